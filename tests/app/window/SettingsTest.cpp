// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/settings/modSettingManager.h"
#include "chrome/ColorPicker.h"
#include "editor/frmMain.h"
#include "platform/Conversions.h"
#include "tests/app/window/WindowFixture.h"
#include "tests/support/FakeRegistry.h"
#include "tests/support/FakeSourceControl.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace velor {
namespace {

class SettingsTest : public WindowFixture {
 protected:
  /// Opens the window, lets the person act in it and presses a button.
  void Use(const char *button, const std::function<void(QWidget &)> &act) {
    dialogs.ExpectModal([=](QWidget &settings) {
      settings.show();
      act(settings);
      settings.findChild<QPushButton *>(QString::fromLatin1(button))->click();
    });
    Choose("mnuSettings");
  }
  template <typename Control>
  static Control &In(QWidget &settings, const char *name) {
    return *settings.findChild<Control *>(QString::fromLatin1(name));
  }
  QString Stored(const char *name) {
    return modSettingManager::GetOption(registry, QString::fromLatin1(name),
                                        QStringLiteral("(none)"));
  }
  void Store(const char *name, const char *text) {
    modSettingManager::SetOption(registry, QString::fromLatin1(name), QString::fromLatin1(text));
  }
};

TEST_F(SettingsTest, ShowsEachPreferenceByItsDefaultAndStoresNothingThatWasNotChanged) {
  Use("cmdOK", [](QWidget &settings) {
    EXPECT_FALSE(In<QCheckBox>(settings, "ShowDetails").isChecked());
    EXPECT_TRUE(In<QCheckBox>(settings, "SnapToGrid").isChecked());
    EXPECT_TRUE(In<QCheckBox>(settings, "showtoolbox").isChecked());
    EXPECT_TRUE(In<QCheckBox>(settings, "WrapSource").isChecked());
    EXPECT_TRUE(In<QCheckBox>(settings, "WholeTemplateSigns").isChecked());
    EXPECT_FALSE(In<QCheckBox>(settings, "PublishedOnly").isChecked());
    EXPECT_EQ(In<QComboBox>(settings, "MenuStyle").currentText(), QStringLiteral("Clear XP Style"));
    EXPECT_FALSE(In<QLineEdit>(settings, "MenuBackground").isEnabled());
    EXPECT_EQ(In<ColorPicker>(settings, "mnuBorder").Color(), 8388608);
    EXPECT_EQ(In<ColorPicker>(settings, "mnuHighlight").Color(), 16761024);
  });
  for (const Preference &preference : PreferenceTable)
    EXPECT_EQ(Stored(preference.name.data()), QStringLiteral("(none)")) << preference.name;
}

TEST_F(SettingsTest, HasAControlForEachRowOfTheTableThatShowsItsDefault) {
  Use("cmdCancel", [](QWidget &settings) {
    for (const Preference &preference : PreferenceTable) {
      auto *control = settings.findChild<QWidget *>(preference.Name());
      ASSERT_NE(control, nullptr) << preference.name;
      QString shown;
      if (auto *box = qobject_cast<QCheckBox *>(control)) shown = BoolText(box->isChecked());
      if (auto *list = qobject_cast<QComboBox *>(control))
        shown = preference.kind == Preference::Kind::Name ? list->currentData().toString()
                                                          : QString::number(list->currentIndex());
      if (auto *picker = qobject_cast<ColorPicker *>(control))
        shown = QString::number(picker->Color());
      if (auto *line = qobject_cast<QLineEdit *>(control)) shown = line->text();
      EXPECT_EQ(shown, preference.Default()) << preference.name;
    }
  });
}

TEST_F(SettingsTest, StoresWhatWasChangedAsText) {
  Use("cmdOK", [](QWidget &settings) {
    In<QCheckBox>(settings, "ShowDetails").click();
    In<QCheckBox>(settings, "WholeTemplateSigns").click();
    In<QCheckBox>(settings, "PublishedOnly").click();
    In<QComboBox>(settings, "MenuStyle").setCurrentIndex(1);
    In<ColorPicker>(settings, "mnuFore").SetColor(255);
  });
  EXPECT_EQ(Stored("ShowDetails"), QStringLiteral("True"));
  EXPECT_EQ(Stored("WholeTemplateSigns"), QStringLiteral("False"));
  EXPECT_EQ(Stored("PublishedOnly"), QStringLiteral("True"));
  EXPECT_EQ(Stored("MenuStyle"), QStringLiteral("1"));
  EXPECT_EQ(Stored("mnuFore"), QStringLiteral("255"));
  EXPECT_EQ(Stored("SnapToGrid"), QStringLiteral("(none)"));
  EXPECT_TRUE(Item("mnuSettings")->isVisible()) << "published behaviour begins at the next start";
}

TEST_F(SettingsTest, CancelStoresNothing) {
  Use("cmdCancel", [](QWidget &settings) { In<QCheckBox>(settings, "ShowDetails").click(); });
  EXPECT_EQ(Stored("ShowDetails"), QStringLiteral("(none)"));
}

TEST_F(SettingsTest, MenusAndOpenSourceFollowAtOnce) {
  frmMain &page = NewPage();
  page.ChangeMode(2);
  Use("cmdOK", [](QWidget &settings) {
    In<QCheckBox>(settings, "WrapSource").click();
    In<QComboBox>(settings, "MenuStyle").setCurrentIndex(1);
  });
  EXPECT_EQ(static_cast<FakeSourceControl &>(page.Code1()).wrap, LineWrap::Off);
  QStringList marked;
  for (const QAction *item : window.findChildren<QAction *>(QStringLiteral("mnuView_style")))
    if (item->isChecked()) marked.append(item->text());
  EXPECT_EQ(marked, QStringList(QStringLiteral("Sky Blue")));
}

TEST_F(SettingsTest, ABadPreferenceIsNamedAndMendedByOk) {
  Store("SnapToGrid", "yes");
  Store("mnuBorder", "blue");
  Store("MenuStyle", "7");
  Use("cmdOK", [](QWidget &settings) {
    const auto &words = In<QLabel>(settings, "lblRefusal");
    EXPECT_TRUE(words.isVisible());
    for (const char *name : {"SnapToGrid", "mnuBorder", "MenuStyle"})
      EXPECT_TRUE(words.text().contains(QString::fromLatin1(name))) << name;
    EXPECT_TRUE(In<QCheckBox>(settings, "SnapToGrid").isChecked());
    EXPECT_EQ(In<QComboBox>(settings, "MenuStyle").currentIndex(), 2);
  });
  EXPECT_EQ(Stored("SnapToGrid"), QStringLiteral("True"));
  EXPECT_EQ(Stored("mnuBorder"), QStringLiteral("8388608"));
  EXPECT_EQ(Stored("MenuStyle"), QStringLiteral("2"));
}

TEST_F(SettingsTest, AMenuPictureThatCannotBeShownIsRefused) {
  Use("cmdCancel", [](QWidget &settings) {
    In<QComboBox>(settings, "MenuStyle").setCurrentIndex(0);
    ASSERT_TRUE(In<QLineEdit>(settings, "MenuBackground").isEnabled());
    In<QLineEdit>(settings, "MenuBackground").setText(QStringLiteral("/nowhere/sky.png"));
    In<QPushButton>(settings, "cmdOK").click();
    EXPECT_TRUE(settings.isVisible());
    EXPECT_EQ(In<QLabel>(settings, "lblRefusal").text(),
              QStringLiteral("That file cannot be shown as a picture."));
  });
  EXPECT_EQ(Stored("MenuStyle"), QStringLiteral("(none)"));
}

}  // namespace
}  // namespace velor
