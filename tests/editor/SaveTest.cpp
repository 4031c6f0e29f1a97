// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/modWorkFlow.h"
#include "tests/editor/EditorWorld.h"

namespace velor {

namespace {

const QString IndexFile = QStringLiteral("\\site\\index.htm");
const QString OtherFile = QStringLiteral("\\site\\other.htm");
const QString NewName = QStringLiteral("\\site\\new.htm");
constexpr bool AsBefore = false;
constexpr bool UnderNewName = true;
constexpr int Cancelled = 32755;

}  // namespace

class SaveTest : public EditorWorld {
 protected:
  std::int32_t Save(int number, bool saveAs) {
    return modWorkFlow::SavePage(context, Page(number), dialog, Record(number), saveAs);
  }
};

TEST_F(SaveTest, APlainSaveWritesTheFileAndAsksNothing) {
  Open(IndexFile);
  Component(1).Edit(QStringLiteral("<p>b</p>"));
  EXPECT_EQ(Save(1, AsBefore), 0);
  EXPECT_EQ(Content(IndexFile), "<p>b</p>");
  EXPECT_EQ(log, Calls({"SaveDocument(\\site\\index.htm)", "DocumentHTML()"}));
}

TEST_F(SaveTest, APlainSaveRenewsTheBaselineAndTheRecord) {
  Open(IndexFile);
  Record(1).ReadOnly = True16;
  Record(1).Spare = True16;
  Component(1).Edit(QStringLiteral("<p>b</p>"));
  Save(1, AsBefore);
  const PageRecord record = Record(1);
  EXPECT_EQ(record.SavedHTML, QStringLiteral("<p>b</p>"));
  EXPECT_EQ(record.ReadOnly, False16);
  EXPECT_EQ(record.HasFile, True16);
  EXPECT_EQ(record.Spare, False16);
  EXPECT_EQ(record.Path, IndexFile);
  EXPECT_EQ(record.TempPath, QStringLiteral("\\site\\indexTMP.htm"));
}

TEST_F(SaveTest, APlainSaveTakesItsPathFromTheDialogAfterWritingTheOldOne) {
  Open(IndexFile);
  Open(OtherFile);
  Component(1).Edit(QStringLiteral("<p>b</p>"));
  EXPECT_EQ(Save(1, AsBefore), 0);
  EXPECT_EQ(Content(IndexFile), "<p>b</p>");
  EXPECT_EQ(Content(OtherFile), "<p>a</p>");
  EXPECT_EQ(Record(1).Path, OtherFile);
  EXPECT_EQ(Record(1).TempPath, QStringLiteral("\\site\\otherTMP.htm"));
}

TEST_F(SaveTest, APlainSaveThatFailsCountsAsSuccessAndTheStatusBarTellsWhy) {
  Open(IndexFile);
  files.MakeReadOnly(IndexFile);
  Component(1).Edit(QStringLiteral("<p>b</p>"));
  EXPECT_EQ(Save(1, AsBefore), 0);
  EXPECT_EQ(Content(IndexFile), "<p>a</p>");
  EXPECT_EQ(Record(1).SavedHTML, QStringLiteral("<p>b</p>"));
  ASSERT_EQ(mainWindow.reports.size(), 1);
  EXPECT_TRUE(
      mainWindow.reports[0].startsWith(QStringLiteral("/site/index.htm could not be saved: ")))
      << mainWindow.reports[0].toStdString();
}

TEST_F(SaveTest, APlainSaveLeavesCaptionsAlone) {
  Open(IndexFile);
  Save(1, AsBefore);
  EXPECT_EQ(Page(1).windowTitle(), QStringLiteral("index.htm"));
  EXPECT_EQ(mainWindow.tabs[0].caption, QStringLiteral("index.htm"));
}

TEST_F(SaveTest, ANewPageAsksForANameWithTheHtmlFilter) {
  New();
  dialog.ExpectSave(NewName);
  EXPECT_EQ(Save(1, AsBefore), 0);
  EXPECT_EQ(dialog.shownFilter, QStringLiteral("HTML File *.htm|*.htm"));
  EXPECT_EQ(dialog.shownFlags, 2);
  EXPECT_TRUE(Exists(NewName));
}

TEST_F(SaveTest, SavingUnderANewNameGoesInTheStatedOrder) {
  Open(IndexFile);
  dialog.ExpectSave(NewName);
  EXPECT_EQ(Save(1, UnderNewName), 0);
  EXPECT_EQ(log, Calls({"ShowSave(HTML File *.htm|*.htm)", "SaveDocument(\\site\\new.htm)",
                        "DocumentHTML()", "SetTabCaptionAt(1, new.htm)",
                        "LoadDocument(\\site\\new.htm)"}));
}

TEST_F(SaveTest, SavingUnderANewNameBringsTheRecordUpToDateInPlace) {
  New();
  Record(1).ReadOnly = True16;
  Record(1).Spare = True16;
  dialog.ExpectSave(NewName);
  Save(1, AsBefore);
  const PageRecord record = Record(1);
  EXPECT_EQ(record.HasFile, True16);
  EXPECT_EQ(record.ReadOnly, False16);
  EXPECT_EQ(record.Spare, False16);
  EXPECT_EQ(record.Path, NewName);
  EXPECT_EQ(record.TempPath, QStringLiteral("\\site\\newTMP.htm"));
  EXPECT_EQ(record.Caption, QStringLiteral("Untitled 1")) << "a save does not change it";
  EXPECT_EQ(Page(1).windowTitle(), QStringLiteral("new.htm"));
}

TEST_F(SaveTest, ASecondSaveOfAPageSavedOnceAsksNothing) {
  New();
  dialog.ExpectSave(NewName);
  Save(1, AsBefore);
  Component(1).CompleteDocument();
  Component(1).Edit(QStringLiteral("<p>b</p>"));
  EXPECT_EQ(Save(1, AsBefore), 0);
  EXPECT_EQ(Content(NewName), "<p>b</p>");
}

TEST_F(SaveTest, AProjectPageAsksThoughItCameFromAFile) {
  files.AddFile(IndexFile, "<p>a</p>");
  modWorkFlow::OpenProjectPage(context, IndexFile);
  dialog.ExpectCancelledSave();
  EXPECT_EQ(Save(1, AsBefore), Cancelled);
}

TEST_F(SaveTest, ACancelledDialogChangesNothing) {
  Open(IndexFile);
  for (const bool raises : {false, true}) {
    dialog.CancelError = raises;
    log.clear();
    dialog.ExpectCancelledSave();
    EXPECT_EQ(Save(1, UnderNewName), Cancelled);
    EXPECT_EQ(log, Calls({"ShowSave(HTML File *.htm|*.htm)"}));
    EXPECT_EQ(Record(1).Path, IndexFile);
    EXPECT_EQ(dialog.FileName, IndexFile);
  }
}

TEST_F(SaveTest, AFileThatCannotBeWrittenReturnsItsErrorNumber) {
  Open(IndexFile);
  files.AddFile(NewName, "old");
  files.MakeReadOnly(NewName);
  dialog.ExpectSave(NewName);
  EXPECT_EQ(Save(1, UnderNewName), static_cast<int>(ErrorNumber::PathFileAccess));
  EXPECT_EQ(Record(1).Path, IndexFile);
  EXPECT_EQ(Content(NewName), "old");
  EXPECT_EQ(Page(1).windowTitle(), QStringLiteral("index.htm"));
}

TEST_F(SaveTest, ATabThatIsNotAtThePagesPositionReturnsItsErrorAfterTheFileIsSafe) {
  New().close();
  New();
  Component(2).Edit(QStringLiteral("<p>b</p>"));
  dialog.ExpectSave(NewName);
  EXPECT_EQ(Save(2, UnderNewName), static_cast<int>(ErrorNumber::IndexOutOfBounds));
  EXPECT_EQ(Content(NewName), "<p>b</p>");
  EXPECT_EQ(Record(2).HasFile, True16);
  EXPECT_EQ(Record(2).Path, NewName);
}

TEST_F(SaveTest, AFileThatCannotBeReadBackReturnsItsErrorNumber) {
  Open(IndexFile);
  Component(1).nextLoadFailure =
      RuntimeError::Of(ErrorNumber::DeviceIoError, QStringLiteral("LoadDocument"));
  dialog.ExpectSave(NewName);
  EXPECT_EQ(Save(1, UnderNewName), static_cast<int>(ErrorNumber::DeviceIoError));
  EXPECT_EQ(Record(1).Path, NewName);
}

TEST(UnsavedChangesTest, LetterCaseAndOuterWhiteSpaceDoNotCount) {
  EXPECT_FALSE(modWorkFlow::HasUnsavedChanges(QStringLiteral("<P>Text</P>"),
                                              QStringLiteral("\r\n\t <p>text</p> \n")));
  EXPECT_TRUE(modWorkFlow::HasUnsavedChanges(QStringLiteral("<p>text</p>"),
                                             QStringLiteral("<p>te xt</p>")));
  EXPECT_TRUE(modWorkFlow::HasUnsavedChanges(QString(), QStringLiteral("<p>")));
  EXPECT_FALSE(modWorkFlow::HasUnsavedChanges(QString(), QStringLiteral(" \n")));
}

}  // namespace velor
