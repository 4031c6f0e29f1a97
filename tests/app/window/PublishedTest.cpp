// SPDX-License-Identifier: GPL-3.0-or-later
// What is published of buttons, boxes and status bar holds with additions and without them.
#include "app/window/ChoiceBox.h"
#include "app/window/PageTabs.h"
#include "chrome/ColorPalette.h"
#include "chrome/ColorPicker.h"
#include "chrome/FontPicker.h"
#include "editor/frmMain.h"
#include "tests/app/window/WindowFixture.h"

#include <QLabel>
#include <QLineEdit>
#include <QStatusBar>
#include <QTest>
#include <QToolBar>

namespace velor {
namespace {

class PublishedTest : public WindowFixture, public ::testing::WithParamInterface<Additions> {
 protected:
  PublishedTest() : WindowFixture(GetParam()) {}

  /// The names of the windows that a button shows.
  QStringList WindowsOf(const char *button) {
    QStringList shown;
    dialogs.ExpectModal([&](QWidget &dialog) { shown << dialog.objectName(); });
    Click(button);
    return shown;
  }
};
INSTANTIATE_TEST_SUITE_P(Both, PublishedTest, ::testing::Values(Additions::On, Additions::Off),
                         [](const auto &setting) {
                           return setting.param == Additions::On ? "WithAdditions" : "Alone";
                         });

TEST_P(PublishedTest, EachEditingButtonSendsItsCommandToThePage) {
  NewPage();
  const std::pair<const char *, int> published[] = {
      {"bold", 5000},  {"italic", 5023}, {"underline", 5048}, {"left", 5025},    {"center", 5024},
      {"right", 5026}, {"number", 5030}, {"bullet", 5051},    {"outdent", 5031}, {"indent", 5018}};
  for (const auto &[key, command] : published) {
    Parts().formats.ShowButton(static_cast<EditingCommand>(command), ButtonState::On);
    log.clear();
    Click(("tbrEdit_" + std::string(key)).c_str());
    EXPECT_EQ(Commands(), QStringList{QStringLiteral("ExecCommand(%1)").arg(command)}) << key;
  }
}

TEST_P(PublishedTest, EditItemsAndTheirButtonsSendTheSameCommands) {
  NewPage();
  struct Row {
    const char *item;
    const char *button;
    int command;
  };
  const Row published[] = {
      {"mnuUndo", "tbrGeneral_undo", 5049},   {"mnuRedo", "tbrGeneral_redo", 5033},
      {"mnuCut", "tbrGeneral_cut", 5003},     {"mnuCopy", "tbrGeneral_copy", 5002},
      {"mnuPaste", "tbrGeneral_paste", 5032}, {"mnuDelete", "tbrGeneral_delete", 5004},
      {"mnuSelectAll", nullptr, 5035}};
  for (const Row &row : published) {
    const QStringList sent{QStringLiteral("ExecCommand(%1)").arg(row.command)};
    log.clear();
    Choose(row.item);
    EXPECT_EQ(Commands(), sent) << row.item;
    if (row.button == nullptr) continue;
    log.clear();
    Click(row.button);
    EXPECT_EQ(Commands(), sent) << row.button;
  }
}

TEST_P(PublishedTest, TheFileButtonsDoWhatTheirItemsDoWhileTheseAreEnabled) {
  Click("tbrGeneral_new");
  EXPECT_EQ(Tabs().Count(), 1);
  Item("mnuNew")->setEnabled(false);
  Click("tbrGeneral_new");
  EXPECT_EQ(Tabs().Count(), 1);
  Item("mnuSave")->setEnabled(false);
  Click("tbrGeneral_save");
  Item("mnuSave")->setEnabled(true);
  SharedDialog().ExpectSave(QStringLiteral("\\site\\a.htm"));
  Click("tbrGeneral_save");
  EXPECT_TRUE(files.FileExists(QStringLiteral("\\site\\a.htm")));
  SharedDialog().ExpectSave(QStringLiteral("\\site\\b.htm"));
  Click("tbrGeneral_saveas");
  EXPECT_TRUE(files.FileExists(QStringLiteral("\\site\\b.htm")));
  SharedDialog().ExpectOpen(QStringLiteral("\\site\\a.htm"));
  Click("tbrGeneral_open");
  EXPECT_EQ(Tabs().Count(), 2);
}

TEST_P(PublishedTest, ButtonsOfWindowsShowThem) {
  frmMain &page = NewPage();
  EXPECT_EQ(WindowsOf("tbrGeneral_table"), QStringList{QStringLiteral("frmDialog_Table")});
  EXPECT_EQ(WindowsOf("tbrGeneral_image"), QStringList{QStringLiteral("frmInsertElement")});
  EXPECT_EQ(WindowsOf("tbrGeneral_about"), QStringList{QStringLiteral("frmAbout")});
  Click("tbrGeneral_preview");
  EXPECT_EQ(components.browsers.size(), 1U);
  EXPECT_NE(window.Context().mainWindow.windows.Current(), &page);
}

TEST_P(PublishedTest, ChoicesInTheBoxesAreSentAndColoursGiveTheKeyboardBack) {
  NewPage();
  const auto pick = [&](const char *name, const char *text) {
    auto *box = Find<ChoiceBox>(name);
    const int index = box->findText(QString::fromLatin1(text));
    box->setCurrentIndex(index);
    log.clear();
    Q_EMIT box->activated(index);
    return Commands().join(u' ').toStdString();
  };
  EXPECT_EQ(pick("cobFormat", "Heading 1"), "ExecCommand(5011) ExecCommand(5043, Heading 1)");
  EXPECT_EQ(pick("cobSize", "24"), "ExecCommand(5014) ExecCommand(5045, 24)");
  log.clear();
  auto *font = Find<FontPicker>("Font1");
  font->lineEdit()->setText(QStringLiteral("Some Face"));
  QTest::keyClick(font->lineEdit(), Qt::Key_Return);
  EXPECT_EQ(Commands().join(u' ').toStdString(), "ExecCommand(5013) ExecCommand(5044, Some Face)");
  for (const auto &[picker, call] : {std::pair{"cpFore", "ExecCommand(5046, #FF8000)"},
                                     std::pair{"cpBack", "ExecCommand(5042, #FF8000)"}}) {
    log.clear();
    Q_EMIT Find<ColorPicker>(picker)->Panel().Chosen(QColor(255, 128, 0));
    EXPECT_EQ(log, CallLog({QString::fromLatin1(call), QStringLiteral("SetFocus()")}));
  }
}

TEST_P(PublishedTest, ButtonsBoxesAndStatusBarShowThePageAtTheCaret) {
  frmMain &page = NewPage();
  FakeEditingComponent &component = Component(page);
  component.statuses = {{EditingCommand::Bold, CommandStatus::Latched},
                        {EditingCommand::Italic, CommandStatus::Enabled},
                        {EditingCommand::Underline, CommandStatus::Disabled}};
  component.values = {{EditingCommand::GetBlockFormat, QStringLiteral("Heading 1")},
                      {EditingCommand::GetFontSize, QStringLiteral("24")},
                      {EditingCommand::GetFontName, QStringLiteral("Some Face")},
                      {EditingCommand::GetForeColor, QStringLiteral("#ff0000")},
                      {EditingCommand::GetBackColor, QStringLiteral("#00ff00")}};
  component.element = {QStringLiteral("A"), {{QStringLiteral("href"), QStringLiteral("next.htm")}}};
  component.ChangeDisplay();
  EXPECT_TRUE(Button("tbrEdit_bold")->isChecked());
  EXPECT_TRUE(Button("tbrEdit_italic")->isEnabled());
  EXPECT_FALSE(Button("tbrEdit_italic")->isChecked());
  EXPECT_FALSE(Button("tbrEdit_underline")->isEnabled());
  EXPECT_EQ(Find<ChoiceBox>("cobFormat")->Text(), QStringLiteral("Heading 1"));
  EXPECT_EQ(Find<ChoiceBox>("cobSize")->Text(), QStringLiteral("24"));
  EXPECT_EQ(Find<FontPicker>("Font1")->FontName(), QStringLiteral("Some Face"));
  EXPECT_EQ(Find<ColorPicker>("cpFore")->Color(), 0x0000FF);
  EXPECT_EQ(Find<ColorPicker>("cpBack")->Color(), 0x00FF00);
  EXPECT_EQ(component.toolTip, QStringLiteral("Link to : next.htm"));
  if (GetParam() == Additions::Off) {
    EXPECT_EQ(Find<QLabel>("Sta_1")->text(), QStringLiteral("A"));
  }
}

TEST_P(PublishedTest, WhatBelongsToAPageIsOffWithoutOneAndFollowsTheTabInFront) {
  const auto areOn = [&] {
    QString states;
    for (const char *menu : {"mnuFile_Top", "mnuEdit_Top", "mnuInsert", "mnuTable"})
      states += Item(menu)->isEnabled() ? u'1' : u'0';
    return states.toStdString();
  };
  EXPECT_EQ(areOn(), "1000");
  frmMain &first = NewPage();
  NewPage();
  EXPECT_EQ(areOn(), "1111");
  EXPECT_EQ(window.windowTitle(), QStringLiteral("Velor Web Creator - [Untitled 2]"));
  Tabs().setCurrentIndex(0);
  EXPECT_EQ(window.Context().mainWindow.windows.Current(), &first);
  EXPECT_EQ(window.windowTitle(), QStringLiteral("Velor Web Creator - [Untitled 1]"));
}

class PublishedAlone : public WindowFixture {
 protected:
  PublishedAlone() : WindowFixture(Additions::Off) {}
};

TEST_F(PublishedAlone, TabsHaveNeitherMarksNorPaths) {
  WriteFile(QStringLiteral("\\site\\a.htm"));
  window.Opener().OpenFiles({QStringLiteral("\\site\\a.htm")}, 0);
  ASSERT_EQ(Tabs().Count(), 1);
  EXPECT_EQ(Tabs().tabToolTip(0), QStringLiteral("a.htm"));
  components.editingComponents.back()->Edit(QStringLiteral("<p>changed</p>"));
  QCoreApplication::processEvents();
  // With additions the tip tells the path and the changes, whose mark the tab has.
  EXPECT_EQ(Tabs().tabToolTip(0), QStringLiteral("a.htm"));
  QTest::mouseMove(&Tabs(), Tabs().tabRect(0).center());
  EXPECT_EQ(Find<QLabel>("Sta_1")->text(), QString());
}

}  // namespace
}  // namespace velor
