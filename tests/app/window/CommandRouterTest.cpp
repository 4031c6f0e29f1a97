// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/settings/modSettingManager.h"
#include "app/window/Additions.h"
#include "app/window/PageTabs.h"
#include "editor/PageSlots.h"
#include "editor/frmCodeEditor.h"
#include "editor/frmMain.h"
#include "insert/frmInsertElement.h"
#include "tests/app/window/WindowFixture.h"
#include "tests/support/FakeSourceControl.h"

#include <QStatusBar>
#include <QTest>

namespace velor {
namespace {

using CommandRouterTest = WindowFixture;

struct Sent {
  const char *name;
  int number;
};

TEST_F(CommandRouterTest, EachEditItemSendsItsCommandAlone) {
  NewPage();
  for (const Sent &sent : std::initializer_list<Sent>{{"mnuUndo", 5049},
                                                      {"mnuRedo", 5033},
                                                      {"mnuCut", 5003},
                                                      {"mnuCopy", 5002},
                                                      {"mnuPaste", 5032},
                                                      {"mnuDelete", 5004},
                                                      {"mnuSelectAll", 5035}}) {
    log.clear();
    Choose(sent.name);
    EXPECT_EQ(log, CallLog({QStringLiteral("ExecCommand(%1)").arg(sent.number)})) << sent.name;
  }
}

TEST_F(CommandRouterTest, EachEditButtonSendsItsCommandAlone) {
  NewPage();
  for (const Sent &sent : std::initializer_list<Sent>{{"tbrGeneral_undo", 5049},
                                                      {"tbrGeneral_redo", 5033},
                                                      {"tbrGeneral_cut", 5003},
                                                      {"tbrGeneral_copy", 5002},
                                                      {"tbrGeneral_paste", 5032},
                                                      {"tbrGeneral_delete", 5004},
                                                      {"tbrEdit_bold", 5000},
                                                      {"tbrEdit_italic", 5023},
                                                      {"tbrEdit_underline", 5048},
                                                      {"tbrEdit_left", 5025},
                                                      {"tbrEdit_center", 5024},
                                                      {"tbrEdit_right", 5026},
                                                      {"tbrEdit_number", 5030},
                                                      {"tbrEdit_bullet", 5051},
                                                      {"tbrEdit_outdent", 5031},
                                                      {"tbrEdit_indent", 5018}}) {
    log.clear();
    Click(sent.name);
    EXPECT_EQ(log, CallLog({QStringLiteral("ExecCommand(%1)").arg(sent.number)})) << sent.name;
  }
}

TEST_F(CommandRouterTest, TheEditButtonsAskNoMenuItem) {
  NewPage();
  for (const char *item :
       {"mnuCut", "mnuCopy", "mnuPaste", "mnuDelete", "mnuUndo", "mnuRedo", "mnuEdit_Top"}) {
    Item(item)->setEnabled(false);
  }
  log.clear();
  for (const char *button : {"tbrGeneral_cut", "tbrGeneral_copy", "tbrGeneral_paste",
                             "tbrGeneral_delete", "tbrGeneral_undo", "tbrGeneral_redo"}) {
    Click(button);
  }
  EXPECT_EQ(Commands().join(u' ').toStdString(),
            "ExecCommand(5003) ExecCommand(5002) ExecCommand(5032) ExecCommand(5004) "
            "ExecCommand(5049) ExecCommand(5033)");
}

TEST_F(CommandRouterTest, CommandsGoToTheDocumentInFront) {
  frmMain &first = NewPage();
  NewPage();
  Parts().windows.Activate(&first);
  log.clear();
  // Only the first page has that format, so that only there nothing is left to send.
  Component(first).values[EditingCommand::GetBlockFormat] = QStringLiteral("Normal");
  window.Router().SetBlockFormat(QStringLiteral("Normal"));
  EXPECT_EQ(Commands(), QStringList(QStringLiteral("ExecCommand(5011)")));
}

TEST_F(CommandRouterTest, WithoutADocumentNothingIsSent) {
  for (const char *item : {"mnuUndo", "mnuSelectAll", "mnuISTimage", "mnuISTlink", "mnuTBLnew",
                           "mnuSave", "mnuSaveAs"}) {
    Choose(item);
  }
  for (const char *button : {"tbrEdit_bold", "tbrGeneral_save", "tbrGeneral_preview"}) {
    Click(button);
  }
  EXPECT_TRUE(log.empty());
}

TEST_F(CommandRouterTest, TheAnchorButtonOpensTheTargetPage) {
  NewPage();
  dialogs.ExpectModal([](QWidget &dialog) {
    auto *element = dynamic_cast<frmInsertElement *>(&dialog);
    ASSERT_NE(element, nullptr);
    EXPECT_EQ(element->ElementMode, QStringLiteral("target"));
  });
  Click("tbrGeneral_anchor");
}

TEST_F(CommandRouterTest, TheFileButtonsDoNothingWhileTheirItemsAreDisabled) {
  NewPage();
  for (const char *item : {"mnuNew", "mnuOpen", "mnuSave", "mnuSaveAs"}) {
    Item(item)->setEnabled(false);
  }
  log.clear();
  for (const char *button :
       {"tbrGeneral_new", "tbrGeneral_open", "tbrGeneral_save", "tbrGeneral_saveas"}) {
    Click(button);
  }
  EXPECT_TRUE(log.empty());
}

TEST_F(CommandRouterTest, TheFileButtonsDoWhatTheirItemsDo) {
  WriteFile(QStringLiteral("\\site\\a.htm"));
  Click("tbrGeneral_new");
  EXPECT_EQ(Tabs().count(), 1);
  SharedDialog().ExpectOpen(QStringLiteral("\\site\\a.htm"));
  Click("tbrGeneral_open");
  ASSERT_EQ(Tabs().count(), 2);
  EXPECT_EQ(Tabs().tabText(1), QStringLiteral("a.htm"));
  NewPage();
  SharedDialog().ExpectSave(QStringLiteral("\\site\\b.htm"));
  Click("tbrGeneral_save");
  EXPECT_TRUE(files.FileExists(QStringLiteral("\\site\\b.htm")));
}

TEST_F(CommandRouterTest, PreviewShowsThePageInTheBrowser) {
  NewPage();
  Click("tbrGeneral_preview");
  ASSERT_EQ(components.browsers.size(), 1U);
  EXPECT_FALSE(components.browsers[0]->url.isEmpty());
}

TEST_F(CommandRouterTest, AboutIsShownModally) {
  for (int i = 0; i < 2; ++i) {
    dialogs.ExpectModal([](QWidget &about) {
      EXPECT_EQ(about.objectName(), QStringLiteral("frmAbout"));
      EXPECT_EQ(about.windowTitle(), QStringLiteral("About us..."));
    });
  }
  Choose("mnuAbout");
  Click("tbrGeneral_about");
}

TEST_F(CommandRouterTest, SavingANewPageAsksForAName) {
  NewPage();
  SharedDialog().ExpectSave(QStringLiteral("\\site\\a.htm"));
  Choose("mnuSave");
  EXPECT_TRUE(files.FileExists(QStringLiteral("\\site\\a.htm")));
  EXPECT_EQ(SharedDialog().shownFilter, QStringLiteral("HTML File *.htm|*.htm"));
}

TEST_F(CommandRouterTest, ACancelledSaveSaysNothing) {
  NewPage();
  SharedDialog().ExpectCancelledSave();
  Choose("mnuSaveAs");
  EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(CommandRouterTest, AFailedSaveTellsTheErrorsNumber) {
  frmMain &page = NewPage();
  SharedDialog().ExpectSave(QStringLiteral("\\site\\a.htm"));
  Component(page).nextSaveFailure = RuntimeError::Of(ErrorNumber::DiskFull, QStringLiteral("test"));
  dialogs.ExpectMessage(QStringLiteral("File saving error: 61"));
  Click("tbrGeneral_saveas");
  ASSERT_EQ(dialogs.messages.size(), 1U);
  EXPECT_EQ(dialogs.messages[0].buttons, MessageButtons::Ok);
  EXPECT_EQ(dialogs.messages[0].title, QStringLiteral("Velor Web Creator"));
}

class PublishedOnly : public WindowFixture {
 protected:
  PublishedOnly() : WindowFixture(Additions::Off) {}
};

TEST_F(PublishedOnly, CommandsGoToTheActiveDocumentAloneAndMenusFollowTheOpenPages) {
  frmMain &page = NewPage();
  page.ChangeMode(2);
  log.clear();
  Choose("mnuCopy");
  EXPECT_EQ(log, CallLog({QStringLiteral("ExecCommand(5002)")}));
  page.ChangeMode(3);
  log.clear();
  Choose("mnuCut");
  Choose("mnuSave");
  EXPECT_TRUE(log.empty());
  for (const char *on : {"mnuCut", "mnuInsert", "mnuTable"})
    EXPECT_TRUE(Item(on)->isEnabled()) << on;
  EXPECT_EQ(window.windowTitle(), QStringLiteral("Velor Web Creator - [Untitled 1]"));
}

TEST_F(PublishedOnly, TheAnchorButtonDoesNothing) {
  NewPage();
  log.clear();
  Click("tbrGeneral_anchor");
  EXPECT_TRUE(log.empty());
}

TEST(WholeTemplateSigns, AreAPreferenceThatIsOnUnlessTurnedOff) {
  FakeRegistry registry;
  const auto set = [&](const char *name, const char *value) {
    modSettingManager::SetOption(registry, QString::fromLatin1(name), QString::fromLatin1(value));
  };
  EXPECT_TRUE(KeepsTemplateSignsWhole(registry));
  set("WholeTemplateSigns", "false");
  EXPECT_FALSE(KeepsTemplateSignsWhole(registry));
  set("WholeTemplateSigns", "nonsense");
  EXPECT_TRUE(KeepsTemplateSignsWhole(registry));
  set("PublishedOnly", "True");
  EXPECT_FALSE(KeepsTemplateSignsWhole(registry));
}

TEST_F(CommandRouterTest, ASaveThatWentWellIsSaidWithThePath) {
  NewPage();
  SharedDialog().ExpectSave(QStringLiteral("\\site\\a.htm"));
  Choose("mnuSave");
  EXPECT_EQ(Find<QStatusBar>("Sta")->currentMessage(), QStringLiteral("Saved /site/a.htm"));
}

TEST_F(CommandRouterTest, ASaveThatFailedIsNotSaidToHaveGoneWell) {
  frmMain &page = NewPage();
  SharedDialog().ExpectSave(QStringLiteral("\\site\\a.htm"));
  Choose("mnuSave");
  Component(page).nextSaveFailure = RuntimeError::Of(ErrorNumber::DiskFull, QStringLiteral("test"));
  Choose("mnuSave");
  EXPECT_FALSE(Find<QStatusBar>("Sta")->currentMessage().startsWith(QStringLiteral("Saved")))
      << Find<QStatusBar>("Sta")->currentMessage().toStdString();
}

TEST_F(CommandRouterTest, ACharacterThatIsChosenInASourceEditorGoesIntoTheSource) {
  frmMain &page = NewPage();
  page.ChangeMode(3);
  auto &source = static_cast<FakeSourceControl &>(window.Context().pages.CodeEditor(1)->Code());
  source.text = QStringLiteral("<p>");
  source.selectionStart = source.selectionEnd = 3;
  log.clear();
  dialogs.ExpectModal([](QWidget &dialog) {
    dialog.show();
    auto *words = dialog.findChild<QWidget *>(QStringLiteral("txtWords"));
    QTest::keyClicks(words, QStringLiteral("snowman"));
    QTest::keyClick(words, Qt::Key_Return);
  });
  Choose("mnuCharacter");
  EXPECT_EQ(source.text, QStringLiteral("<p>&#9731;"));
  EXPECT_TRUE(Commands().isEmpty());
}

}  // namespace
}  // namespace velor
