// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/modWorkFlow.h"
#include "tests/editor/EditorWorld.h"

namespace velor {

namespace {

const QString IndexFile = QStringLiteral("\\site\\index.htm");
const QString IndexCopy = QStringLiteral("\\site\\indexTMP.htm");
const QString SaveQuestion =
    QStringLiteral("You have made changes to this document. Do you want to save it?");

}  // namespace

class CloseTest : public EditorWorld {
 protected:
  void Change(int number) { Component(number).Edit(QStringLiteral("<p>changed</p>")); }
  bool IsOpen(int number) {
    DeleteClosedWindows();
    return !pages.Page(number).isNull();
  }
};

TEST_F(CloseTest, AnUnchangedPageClosesUnasked) {
  Open(IndexFile);
  EXPECT_TRUE(Page(1).close());
  EXPECT_FALSE(IsOpen(1));
  EXPECT_TRUE(mainWindow.adopted.empty());
}

TEST_F(CloseTest, ALetterCaseChangeAloneClosesUnasked) {
  Open(IndexFile, "<p>Text</p>");
  Component(1).Edit(QStringLiteral("\n<P>tEXT</P> "));
  EXPECT_TRUE(Page(1).close());
}

TEST_F(CloseTest, TheQuestionHasTheStatedWordsIconAndButtons) {
  Open(IndexFile);
  Change(1);
  dialogs.ExpectMessage(SaveQuestion, MessageAnswer::Cancel);
  Page(1).close();
  const Message &question = dialogs.messages.at(0);
  EXPECT_EQ(question.title, QStringLiteral("Closing doucment..."));
  EXPECT_EQ(question.buttons, MessageButtons::YesNoCancel);
  EXPECT_EQ(question.icon, MessageIcon::Question);
}

TEST_F(CloseTest, CancelKeepsWindowTabAndTemporaryCopy) {
  Open(IndexFile);
  Page(1).CreatorHTML();
  Change(1);
  dialogs.ExpectMessage(SaveQuestion, MessageAnswer::Cancel);
  EXPECT_FALSE(Page(1).close());
  EXPECT_TRUE(IsOpen(1));
  EXPECT_EQ(mainWindow.tabs.size(), 1U);
  EXPECT_TRUE(Exists(IndexCopy));
  EXPECT_FALSE(pages.CodeEditor(1).isNull());
}

TEST_F(CloseTest, NoClosesWithoutSaving) {
  Open(IndexFile);
  Change(1);
  dialogs.ExpectMessage(SaveQuestion, MessageAnswer::No);
  EXPECT_TRUE(Page(1).close());
  EXPECT_FALSE(IsOpen(1));
  EXPECT_EQ(Content(IndexFile), "<p>a</p>");
}

TEST_F(CloseTest, YesSavesAPageThatHasAFileAndCloses) {
  Open(IndexFile);
  Change(1);
  dialogs.ExpectMessage(SaveQuestion, MessageAnswer::Yes);
  EXPECT_TRUE(Page(1).close());
  EXPECT_EQ(Content(IndexFile), "<p>changed</p>");
}

TEST_F(CloseTest, YesAsksForANameWhereThePageHasNoFile) {
  New();
  Change(1);
  dialogs.ExpectMessage(SaveQuestion, MessageAnswer::Yes);
  dialog.ExpectSave(QStringLiteral("\\site\\new.htm"));
  EXPECT_TRUE(Page(1).close());
  EXPECT_EQ(Content(QStringLiteral("\\site\\new.htm")), "<p>changed</p>");
  EXPECT_EQ(Record(1).Path, QStringLiteral("\\site\\new.htm"));
}

TEST_F(CloseTest, CancellingTheNameKeepsThePageWithoutAMessage) {
  New();
  Change(1);
  dialogs.ExpectMessage(SaveQuestion, MessageAnswer::Yes);
  dialog.ExpectCancelledSave();
  EXPECT_FALSE(Page(1).close());
  EXPECT_TRUE(IsOpen(1));
}

TEST_F(CloseTest, AFailingSaveTellsItsNumberAndKeepsThePage) {
  New();
  Change(1);
  Component(1).nextSaveFailure =
      RuntimeError::Of(ErrorNumber::DiskFull, QStringLiteral("SaveDocument"));
  dialogs.ExpectMessage(SaveQuestion, MessageAnswer::Yes);
  dialog.ExpectSave(QStringLiteral("\\site\\new.htm"));
  dialogs.ExpectMessage(QStringLiteral("File saving error: 61"));
  EXPECT_FALSE(Page(1).close());
  EXPECT_TRUE(IsOpen(1));
  EXPECT_EQ(dialogs.messages.at(1).details, QStringLiteral("Disk full"));
  EXPECT_EQ(dialogs.messages.at(1).icon, MessageIcon::Critical);
  EXPECT_EQ(dialogs.messages.at(1).buttons, MessageButtons::Ok);
  EXPECT_EQ(dialogs.messages.at(1).title, QStringLiteral("Velor Web Creator"));
}

TEST_F(CloseTest, AnOpenSourceEditorComesFirst) {
  Open(IndexFile);
  Page(1).ChangeMode(3);
  Change(1);
  dialogs.ExpectMessage(QStringLiteral("Please close the Code Editor first."));
  EXPECT_FALSE(Page(1).close());
  EXPECT_TRUE(IsOpen(1));
  const Message &refusal = dialogs.messages.at(0);
  EXPECT_EQ(refusal.title, QStringLiteral("Closing..."));
  EXPECT_EQ(refusal.icon, MessageIcon::Information);
  EXPECT_EQ(refusal.buttons, MessageButtons::Ok);
  EXPECT_TRUE(refusal.foreground);
}

TEST_F(CloseTest, APageMarkedKillClosesUnaskedWhateverIsOpenOrChanged) {
  Open(IndexFile);
  Page(1).ChangeMode(3);
  Change(1);
  Page(1).MarkKill();
  EXPECT_EQ(Page(1).Tag, QStringLiteral("kill"));
  EXPECT_EQ(Page(1).PendingAction, QStringLiteral("kill"));
  EXPECT_TRUE(Page(1).close());
  EXPECT_FALSE(IsOpen(1));
  EXPECT_FALSE(Exists(IndexCopy)) << "found by the page's own number";
  EXPECT_TRUE(mainWindow.tabs.empty());
}

TEST_F(CloseTest, EitherMarkAloneIsEnough) {
  Open(IndexFile);
  Change(1);
  Page(1).Tag = QStringLiteral("kill");
  EXPECT_TRUE(Page(1).close());
  New();
  Change(2);
  Page(2).PendingAction = QStringLiteral("kill");
  EXPECT_TRUE(Page(2).close());
}

TEST_F(CloseTest, CleaningUpGoesInTheStatedOrder) {
  Open(IndexFile);
  Page(1).CreatorHTML();
  log.clear();
  bool copyWasThere = false;
  runtime.pendingEvents = [&] { copyWasThere = Exists(IndexCopy); };
  Page(1).close();
  EXPECT_EQ(log, Calls({"DocumentHTML()", "ProcessPendingEvents()", "ShowBusyCursor()",
                        "ReleaseWindow(frmCodeEditor)", "RestoreCursor()", "ClearTabs()",
                        "SetPageCommandsEnabled(False)", "ReleaseWindow(frmMain)"}));
  EXPECT_TRUE(copyWasThere) << "deleted only after pending events have run";
  EXPECT_FALSE(Exists(IndexCopy));
  EXPECT_TRUE(pages.CodeEditor(1).isNull());
  EXPECT_EQ(runtime.busyCursors, 0);
}

TEST_F(CloseTest, OneOfSeveralTabsGoesByItsKey) {
  New();
  New();
  New();
  Page(2).close();
  EXPECT_EQ(Count(QStringLiteral("RemoveTab(key2)")), 1);
  EXPECT_EQ(Count(QStringLiteral("ClearTabs()")), 0);
  EXPECT_TRUE(mainWindow.pageCommandsEnabled);
  ASSERT_EQ(mainWindow.tabs.size(), 2U);
  EXPECT_EQ(mainWindow.tabs[1].key, QStringLiteral("key3"));
}

TEST_F(CloseTest, AMissingTemporaryCopyOrTabIsNoError) {
  New();
  New();
  mainWindow.Remove(QStringLiteral("key1"));
  mainWindow.Add(QStringLiteral("key9"), 1);
  EXPECT_TRUE(Page(1).close());
  EXPECT_FALSE(IsOpen(1));
}

TEST_F(CloseTest, ClosingAReadOnlyPageDeletesNothing) {
  files.AddFile(IndexCopy, "mine");
  files.AddFile(IndexFile, "<p>a</p>");
  files.MakeReadOnly(IndexFile);
  modWorkFlow::OpenPage(context, IndexFile);
  Component(1).CompleteDocument();
  // A plain save that fails gives the record a temporary path.
  modWorkFlow::SavePage(context, Page(1), dialog, Record(1), false);
  Page(1).ChangeMode(2);
  const QStringList before = files.Paths();
  Page(1).close();
  EXPECT_FALSE(IsOpen(1));
  EXPECT_EQ(files.Paths(), before);
  EXPECT_EQ(Content(IndexCopy), "mine");
}

TEST_F(CloseTest, APersonsOwnFileOfTheCopysNameIsNeitherWrittenNorDeleted) {
  files.AddFile(IndexCopy, "mine");
  Open(IndexFile);
  for (const int mode : {2, 3, 4}) Page(1).ChangeMode(mode);
  EXPECT_EQ(Code(1).text, QStringLiteral("<p>a</p>"));
  pages.CodeEditor(1)->close();
  EXPECT_TRUE(Page(1).close());
  EXPECT_EQ(Content(IndexCopy), "mine");
}

TEST_F(CloseTest, TheCopyOfThePagesOldNameGoesWithASaveUnderANewOne) {
  Open(IndexFile);
  Page(1).CreatorHTML();
  ASSERT_TRUE(Exists(IndexCopy));
  dialog.ExpectSave(QStringLiteral("\\site\\new.htm"));
  modWorkFlow::SavePage(context, Page(1), dialog, Record(1), true);
  EXPECT_FALSE(Exists(IndexCopy));
}

TEST_F(CloseTest, AnEditorWithUnappliedSourceGoesWithItsPageUnasked) {
  Open(IndexFile);
  Page(1).ChangeMode(3);
  Code(1).text = QStringLiteral("unapplied");
  Page(1).MarkKill();
  EXPECT_TRUE(Page(1).close());
  DeleteClosedWindows();
  EXPECT_TRUE(mainWindow.adopted.empty());
}

}  // namespace velor
