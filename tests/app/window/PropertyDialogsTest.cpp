// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/ColorPicker.h"
#include "properties/frmProperties.h"
#include "tests/app/window/WindowFixture.h"
#include "tests/support/KeyboardWalk.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace velor {
namespace {

class PropertyDialogs : public WindowFixture {
 protected:
  static QWidget &Control(QWidget &dialog, const char *name) {
    auto *found = dialog.findChild<QWidget *>(QStringLiteral("prp_") + QLatin1String(name));
    EXPECT_NE(found, nullptr) << name;
    return *found;
  }
  static void Press(QWidget &dialog, const char *button) {
    dialog.findChild<QPushButton *>(QLatin1String(button))->click();
  }
  QStringList Written() const {
    QStringList calls;
    for (const QString &call : log)
      if (call.startsWith(QStringLiteral("SetProperties"))) calls << call;
    return calls;
  }
};

TEST_F(PropertyDialogs, WriteWhatThePersonChangedAndNothingElse) {
  FakeEditingComponent &component = Component(NewPage());
  component.properties[PropertySubject::Cell] = {
      {"rows", "2"}, {"heading", ""}, {"width", "40"}, {"align", "justify"}, {"class", "a"}};
  dialogs.ExpectModal([](QWidget &dialog) {
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Table Cell Properties"));
    EXPECT_EQ(static_cast<QLabel &>(Control(dialog, "rows")).text(), QStringLiteral("2"));
    EXPECT_EQ(static_cast<QComboBox &>(Control(dialog, "align")).currentText(),
              QStringLiteral("justify"));
    // The page has no value by that name.
    EXPECT_EQ(dialog.findChild<QWidget *>(QStringLiteral("prp_height")), nullptr);
    static_cast<QLineEdit &>(Control(dialog, "width")).setText(QStringLiteral("50%"));
    static_cast<QCheckBox &>(Control(dialog, "heading")).setChecked(true);
    Press(dialog, "cmdApply");
    static_cast<QLineEdit &>(Control(dialog, "class")).clear();
    Press(dialog, "cmdOK");
    EXPECT_FALSE(dialog.isVisible());
  });
  Choose("extTDPro");
  EXPECT_EQ(Written(), QStringList({QStringLiteral("SetProperties(3, heading=true width=50%)"),
                                    QStringLiteral("SetProperties(3, class=)")}));
}

TEST_F(PropertyDialogs, RefuseWhatIsNoLengthOrColour) {
  FakeEditingComponent &component = Component(NewPage());
  component.properties[PropertySubject::Table] = {{"width", ""}, {"background", ""}};
  dialogs.ExpectModal([](QWidget &dialog) {
    auto &line = *dialog.findChild<QLabel *>(QStringLiteral("lblRefusal"));
    for (const auto &[name, bad, good] :
         {std::tuple{"width", "wide", "120"}, {"background", "#12", "#112233"}}) {
      auto &box = static_cast<QLineEdit &>(Control(dialog, name));
      box.setText(QLatin1String(bad));
      Press(dialog, "cmdOK");
      EXPECT_FALSE(line.isHidden()) << name;
      EXPECT_TRUE(line.text().contains(QLatin1String(bad))) << name;
      box.setText(QLatin1String(good));
    }
    Press(dialog, "cmdOK");
  });
  Choose("extTablePro");
  EXPECT_EQ(Written(),
            QStringList(QStringLiteral("SetProperties(2, background=#112233 width=120)")));
}

TEST_F(PropertyDialogs, AColourIsChosenFromThePaletteBesideItsBox) {
  FakeEditingComponent &component = Component(NewPage());
  component.properties[PropertySubject::Table] = {{"width", ""}, {"background", "#112233"}};
  dialogs.ExpectModal([](QWidget &dialog) {
    auto *picker = dialog.findChild<ColorPicker *>(QStringLiteral("prp_background_picker"));
    ASSERT_NE(picker, nullptr);
    EXPECT_EQ(picker->Color(), 0x332211);
    EXPECT_EQ(picker->accessibleName(), QStringLiteral("Choose: Background"));
    auto &box = static_cast<QLineEdit &>(Control(dialog, "background"));
    box.setText(QStringLiteral("red"));
    EXPECT_EQ(picker->Color(), 0x0000FF);
    Q_EMIT picker->ColorChosen(0x00C08040);
    EXPECT_EQ(box.text(), QStringLiteral("#4080C0"));
    Press(dialog, "cmdOK");
  });
  Choose("extTablePro");
  EXPECT_EQ(Written(), QStringList(QStringLiteral("SetProperties(2, background=#4080C0)")));
}

TEST_F(PropertyDialogs, NoTwoFieldsOfOneShareAnAltKey) {
  using enum PropertySubject;
  for (const PropertySubject subject : {Page, Image, Table, Cell, Link, Fonts, Element}) {
    const PropertySheet &sheet = SheetOf(subject);
    PropertyValues empty;
    for (const PropertyField &field : sheet.fields) empty[QLatin1String(field.name)] = QString();
    const frmProperties dialog(sheet, empty, nullptr);
    EXPECT_EQ(SharedAltKeys(dialog).toStdString(), "") << sheet.title;
  }
}

TEST_F(PropertyDialogs, CancelledOrUnchangedWriteNothing) {
  FakeEditingComponent &component = Component(NewPage());
  component.properties[PropertySubject::Page] = {{"title", "old"}};
  for (const char *button : {"cmdOK", "cmdCancel"}) {
    dialogs.ExpectModal([button](QWidget &dialog) {
      if (QLatin1String(button) == QLatin1String("cmdCancel"))
        static_cast<QLineEdit &>(Control(dialog, "title")).setText(QStringLiteral("new"));
      Press(dialog, button);
    });
    Choose("extPagePro");
  }
  EXPECT_TRUE(Written().isEmpty());
}

}  // namespace
}  // namespace velor
