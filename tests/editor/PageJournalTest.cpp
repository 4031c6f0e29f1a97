// SPDX-License-Identifier: GPL-3.0-or-later
// When a page's changes are journalled, and when the journal goes.
#include "tests/editor/PageJournalFixture.h"
#include "tests/support/Waiting.h"

namespace velor {
namespace {

TEST_F(PageJournals, AnUnchangedPageHasNone) {
  Open(IndexFile);
  New();
  Component(1).ChangeDisplay();
  Component(1).Edit(Component(1).Memory().document);
  EXPECT_FALSE(WaitFor([&] { return !IsEmpty(); }, LongestDelay));
}

TEST_F(PageJournals, AChangeIsWrittenWithThePageItBelongsTo) {
  Open(IndexFile);
  Change(1);
  const JournalledPage page = journals.Written()[0];
  EXPECT_EQ(page.path, IndexFile);
  EXPECT_EQ(page.caption, QStringLiteral("index.htm"));
  EXPECT_EQ(page.saving, JournalledPage::Saving::ToItsFile);
  EXPECT_EQ(page.page.original, "<p>a</p>");
  EXPECT_LE(page.time.secsTo(QDateTime::currentDateTime()), 2);
}

TEST_F(PageJournals, APageThatWasNeverSavedIsWrittenToo) {
  New();
  Change(1);
  EXPECT_EQ(journals.Written()[0].path, QString());
  EXPECT_EQ(journals.Written()[0].caption, QStringLiteral("Untitled 1"));
}

TEST_F(PageJournals, WhoeverTypesOnWithoutAPauseIsWrittenInTime) {
  Open(IndexFile);
  QElapsedTimer typing;
  typing.start();
  int keys = 0;
  ASSERT_TRUE(WaitFor(
      [&] {
        Component(1).Edit(QStringLiteral("<p>%1</p>").arg(++keys));
        return !IsEmpty();
      },
      5 * LongestDelay));
  EXPECT_LE(typing.elapsed(), LongestDelay);
}

TEST_F(PageJournals, ItGoesToTheDiskInAPause) {
  Open(IndexFile);
  Component(1).isIdle = true;
  Change(1);
  EXPECT_TRUE(WaitFor([&] { return journals.compactings > 0; }, LongestDelay));
}

TEST_F(PageJournals, ItGoesToTheDiskBetweenKeysWhereNobodyPauses) {
  Open(IndexFile);
  Component(1).isIdle = true;
  int keys = 0;
  QElapsedTimer typing;
  typing.start();
  EXPECT_TRUE(WaitFor(
      [&] {
        Component(1).Edit(QStringLiteral("<p>%1</p>").arg(++keys));
        return journals.syncs > 1;
      },
      5 * LongestDelay));
  EXPECT_LE(typing.elapsed(), 2 * LongestDelay);
  EXPECT_EQ(journals.compactings, 0);
}

TEST_F(PageJournals, ItDoesNotGoToTheDiskWhileAKeyIsOnItsWay) {
  Open(IndexFile);
  int keys = 0;
  EXPECT_FALSE(WaitFor(
      [&] {
        Component(1).Edit(QStringLiteral("<p>%1</p>").arg(++keys));
        return journals.syncs + journals.compactings > 0;
      },
      2 * LongestDelay));
  EXPECT_FALSE(IsEmpty());
}

TEST_F(PageJournals, WhatIsOnTheDiskIsNotBroughtThereAgain) {
  Open(IndexFile);
  Component(1).isIdle = true;
  Change(1);
  ASSERT_TRUE(WaitFor([&] { return journals.compactings > 0; }, LongestDelay));
  EXPECT_FALSE(WaitFor(
      [&] {
        Component(1).Edit(Changed);
        return journals.syncs > 0;
      },
      LongestDelay));
}

TEST_F(PageJournals, AChangeTakenBackEndsIt) {
  Open(IndexFile);
  Change(1);
  Component(1).Edit(QStringLiteral("<p>a</p>"));
  EXPECT_TRUE(WaitFor([&] { return IsEmpty(); }, LongestDelay));
}

TEST_F(PageJournals, ASaveEndsItAndTheNextChangeBeginsAnother) {
  Open(IndexFile);
  Change(1);
  modWorkFlow::SavePage(context, Page(1), dialog, Record(1), AsBefore);
  EXPECT_TRUE(IsEmpty());
  Change(1, QStringLiteral("<p>again</p>"));
}

TEST_F(PageJournals, ASaveUnderANewNameEndsIt) {
  New();
  Change(1);
  dialog.ExpectSave(QStringLiteral("\\site\\new.htm"));
  EXPECT_EQ(modWorkFlow::SavePage(context, Page(1), dialog, Record(1), UnderNewName), 0);
  EXPECT_TRUE(IsEmpty());
}

TEST_F(PageJournals, ASaveUnderANewNameThatFailsDoesNot) {
  New();
  Change(1);
  dialog.ExpectSave(QStringLiteral("\\site\\new.htm"));
  files.FailNextWrite(ErrorNumber::DiskFull);
  EXPECT_EQ(modWorkFlow::SavePage(context, Page(1), dialog, Record(1), UnderNewName), 61);
  EXPECT_TRUE(IsWritten(Changed));
}

TEST_F(PageJournals, APlainSaveThatFailsKeepsThePageEvenWhenItIsClosed) {
  Open(IndexFile);
  Component(1).Edit(Changed);
  files.FailNextWrite(ErrorNumber::DiskFull);
  EXPECT_EQ(modWorkFlow::SavePage(context, Page(1), dialog, Record(1), AsBefore), 0);
  EXPECT_TRUE(IsWritten(Changed));
  Page(1).close();
  DeleteClosedWindows();
  EXPECT_TRUE(IsWritten(Changed));
}

TEST_F(PageJournals, WhereTheSaveAndTheJournalFailNothingClosesUnaskedAndYesClosesOnlyWhatIsSafe) {
  Open(IndexFile);
  Component(1).Edit(Changed);
  journals.writeFailure = ErrorNumber::DiskFull;
  files.FailNextWrite(ErrorNumber::DiskFull);
  dialogs.ExpectMessage(QStringLiteral("File saving error: 61"));
  modWorkFlow::SaveAndReport(context, Page(1), modWorkFlow::SaveKind::Save);
  Answer(MessageAnswer::Cancel);
  EXPECT_FALSE(Page(1).close());
  Answer(MessageAnswer::Yes);
  files.FailNextWrite(ErrorNumber::DiskFull);
  dialogs.ExpectMessage(QStringLiteral("File saving error: 61"));
  EXPECT_FALSE(Page(1).close());
  ASSERT_FALSE(pages.Page(1).isNull());
  Answer(MessageAnswer::Yes);
  EXPECT_TRUE(Page(1).close());
  EXPECT_EQ(Content(IndexFile), Changed.toUtf8());
}

TEST_F(PageJournals, APageWhoseLetterCaseAloneChangedClosesUnaskedAndIsKept) {
  Open(IndexFile);
  const QString otherCase = Component(1).DocumentHTML().toUpper();
  Component(1).Edit(otherCase);
  EXPECT_TRUE(Page(1).close());
  DeleteClosedWindows();
  EXPECT_TRUE(IsWritten(otherCase));
}

TEST_F(PageJournals, APageWhoseLetterCaseChangeCannotBeKeptAsks) {
  Open(IndexFile);
  journals.writeFailure = ErrorNumber::DiskFull;
  Component(1).Edit(Component(1).DocumentHTML().toUpper());
  Answer(MessageAnswer::No);
  EXPECT_TRUE(Page(1).close());
}

TEST_F(PageJournals, AReadOnlyPageSaysSoAtTheFirstChange) {
  files.AddFile(IndexFile, "<p>a</p>");
  files.MakeReadOnly(IndexFile);
  modWorkFlow::OpenPage(context, IndexFile);
  Component(1).CompleteDocument();
  EXPECT_TRUE(mainWindow.reports.isEmpty());
  Component(1).Edit(Changed);
  Component(1).Edit(QStringLiteral("<p>more</p>"));
  EXPECT_EQ(mainWindow.reports,
            QStringList{QStringLiteral("This file is read-only: Save As keeps your changes")});
}

TEST_F(PageJournals, APlainSaveThatFailsIsMadeGoodByTheNext) {
  Open(IndexFile);
  Change(1);
  files.FailNextWrite(ErrorNumber::DiskFull);
  modWorkFlow::SavePage(context, Page(1), dialog, Record(1), AsBefore);
  modWorkFlow::SavePage(context, Page(1), dialog, Record(1), AsBefore);
  EXPECT_TRUE(IsEmpty());
}

TEST_F(PageJournals, NoAtTheClosePromptEndsIt) {
  Open(IndexFile);
  Change(1);
  Answer(MessageAnswer::No);
  Page(1).close();
  EXPECT_TRUE(IsEmpty());
}

TEST_F(PageJournals, CancelAtTheClosePromptKeepsIt) {
  Open(IndexFile);
  Change(1);
  Answer(MessageAnswer::Cancel);
  Page(1).close();
  EXPECT_TRUE(IsWritten(Changed));
}

TEST_F(PageJournals, APageClosedByForceStaysInIt) {
  Open(IndexFile);
  Change(1);
  Page(1).MarkKill();
  Page(1).close();
  EXPECT_TRUE(IsWritten(Changed));
}

TEST_F(PageJournals, AJournalThatCannotBeWrittenIsToldOnce) {
  Open(IndexFile);
  journals.writeFailure = ErrorNumber::DiskFull;
  Component(1).Edit(Changed);
  ASSERT_TRUE(WaitFor([&] { return !mainWindow.reports.isEmpty(); }, LongestDelay));
  EXPECT_TRUE(mainWindow.reports[0].startsWith(
      QStringLiteral("The changes of index.htm could not be kept for a recovery: ")));
  Component(1).Edit(QStringLiteral("<p>more</p>"));
  EXPECT_FALSE(WaitFor([&] { return mainWindow.reports.size() > 1; }, LongestDelay));
  journals.writeFailure.reset();
  Change(1, QStringLiteral("<p>room again</p>"));
}

TEST_F(PageJournals, ARestoredPageIsAnUnsavedPageOfItsFile) {
  files.AddFile(IndexFile, "<p>a</p>");
  JournalledPage kept{IndexFile,
                      QStringLiteral("index.htm"),
                      JournalledPage::Saving::ToItsFile,
                      {"<p>a</p>", QStringLiteral("/site/index.htm"), Changed},
                      QDateTime::currentDateTime()};
  EXPECT_TRUE(modWorkFlow::RestorePage(context, kept));
  EXPECT_EQ(Component(1).Memory(), kept.page);
  EXPECT_EQ(Page(1).windowTitle(), QStringLiteral("index.htm"));
  EXPECT_EQ(mainWindow.tabs[0].caption, QStringLiteral("index.htm"));
  EXPECT_TRUE(IsWritten(Changed));
  Answer(MessageAnswer::Cancel);
  Page(1).close();
  EXPECT_EQ(dialogs.messages.size(), 1);
  EXPECT_EQ(modWorkFlow::SavePage(context, Page(1), dialog, Record(1), AsBefore), 0);
  EXPECT_EQ(Content(IndexFile), "<p>changed</p>");
  EXPECT_EQ(Record(1).Path, IndexFile);
  EXPECT_TRUE(IsEmpty());
}

TEST_F(PageJournals, ARestoredPageThatWasNeverSavedIsANewPage) {
  New();
  JournalledPage kept;
  kept.caption = QStringLiteral("Untitled 1");
  kept.page = {"<p>", QStringLiteral("/home/"), Changed};
  modWorkFlow::RestorePage(context, kept);
  EXPECT_EQ(Page(2).windowTitle(), QStringLiteral("Untitled 2"));
  EXPECT_EQ(Record(2).HasFile, False16);
  EXPECT_EQ(Record(2).Path, QString());
}

TEST_F(PageJournals, ARestoredPageWhoseFileIsReadOnlyIsReadOnly) {
  files.AddFile(IndexFile, "<p>a</p>");
  files.MakeReadOnly(IndexFile);
  JournalledPage kept;
  kept.path = IndexFile;
  kept.page.document = Changed;
  modWorkFlow::RestorePage(context, kept);
  EXPECT_EQ(mainWindow.tabs[0].caption, QStringLiteral("index.htm (Read-Only)"));
  EXPECT_EQ(Record(1).TempPath, QString());
}

TEST_F(PageJournals, APageThatCannotBeRestoredLeavesNoHalfPage) {
  components.onEditingComponent = [](FakeEditingComponent &component) {
    component.nextLoadFailure =
        RuntimeError::Of(ErrorNumber::DeviceIoError, QStringLiteral("test"));
  };
  EXPECT_EQ(ErrorOf([&] { modWorkFlow::RestorePage(context, {}); }), ErrorNumber::DeviceIoError);
  EXPECT_TRUE(mainWindow.tabs.empty());
}

}  // namespace
}  // namespace velor
