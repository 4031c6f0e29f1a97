// SPDX-License-Identifier: GPL-3.0-or-later
// What an exit keeps of pages with unsaved changes.
#include "tests/editor/PageJournalFixture.h"

namespace velor {
namespace {

class ExitJournals : public PageJournals {
 protected:
  /// What the main window does at its end.
  bool Exit() {
    if (!KeepPagesAtExit(context)) return false;
    for (int number = 1; number <= pages.PageCount(); ++number) {
      if (pages.CodeEditor(number)) pages.CodeEditor(number)->MarkKill();
      if (pages.Page(number)) pages.Page(number)->MarkKill();
    }
    for (int number = 1; number <= pages.PageCount(); ++number) {
      if (pages.CodeEditor(number)) pages.CodeEditor(number)->close();
      if (pages.Page(number)) pages.Page(number)->close();
    }
    return true;
  }
  void ExpectQuestion(MessageAnswer answer) {
    dialogs.ExpectMessage(
        QStringLiteral("The unsaved changes of index.htm cannot be kept for the next start. They "
                       "are lost if the program ends now.\n\nEnd the program all the same?"),
        answer);
  }
};

TEST_F(ExitJournals, UnsavedChangesAreKeptUnaskedAndSavedPagesLeaveNothing) {
  Open(QStringLiteral("\\site\\saved.htm"));
  Open(IndexFile);
  Component(2).Edit(Changed);
  EXPECT_TRUE(Exit());
  EXPECT_TRUE(dialogs.messages.empty());
  ASSERT_EQ(journals.Written().size(), 1);
  EXPECT_EQ(journals.Written()[0].path, IndexFile);
  EXPECT_EQ(journals.Written()[0].page.document, Changed);
  EXPECT_EQ(journals.Written()[0].end, RunEnd::Exit);
  EXPECT_GT(journals.syncs, 0);
}

TEST_F(ExitJournals, WhatWasJournalledBeforeIsMarkedAsKeptAtExit) {
  Open(IndexFile);
  Change(1);
  EXPECT_EQ(journals.Written()[0].end, RunEnd::Unforeseen);
  EXPECT_TRUE(Exit());
  EXPECT_EQ(journals.Written()[0].end, RunEnd::Exit);
}

TEST_F(ExitJournals, WhereAPageCannotBeKeptExitAsksAndNoGoesOn) {
  Open(IndexFile);
  journals.writeFailure = ErrorNumber::DiskFull;
  Component(1).Edit(Changed);
  ExpectQuestion(MessageAnswer::No);
  EXPECT_FALSE(Exit());
  EXPECT_EQ(dialogs.messages.size(), 1);
  // The page is followed on, and its journal no longer says that it was left at an exit.
  journals.writeFailure.reset();
  Change(1, QStringLiteral("<p>room again</p>"));
  EXPECT_EQ(journals.Written()[0].end, RunEnd::Unforeseen);
}

TEST_F(ExitJournals, WhatIsTypedAfterASessionEndWasCalledOffIsKeptToo) {
  Open(IndexFile);
  Component(1).Edit(Changed);
  EXPECT_TRUE(KeepPagesAtSessionEnd(context));
  EXPECT_TRUE(IsWritten(Changed));
  const QString later = QStringLiteral("<p>and on</p>");
  Change(1, later);
  EXPECT_TRUE(IsWritten(later));
  EXPECT_EQ(journals.Written()[0].end, RunEnd::Unforeseen);
  Component(1).Edit(Changed);
  EXPECT_TRUE(Exit());
  EXPECT_TRUE(IsWritten(Changed));
  EXPECT_EQ(journals.Written()[0].end, RunEnd::Exit);
}

TEST_F(ExitJournals, YesEndsTheProgramWithoutTheChanges) {
  Open(IndexFile);
  journals.writeFailure = ErrorNumber::DiskFull;
  Component(1).Edit(Changed);
  ExpectQuestion(MessageAnswer::Yes);
  EXPECT_TRUE(Exit());
  EXPECT_TRUE(IsEmpty());
}

TEST_F(ExitJournals, AFailingDiskIsNoMatterWhereNothingIsUnsaved) {
  Open(IndexFile);
  journals.writeFailure = ErrorNumber::DiskFull;
  EXPECT_TRUE(Exit());
  EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(ExitJournals, APageWhoseSaveFailedIsKeptToo) {
  Open(IndexFile);
  Component(1).Edit(Changed);
  files.FailNextWrite(ErrorNumber::DiskFull);
  modWorkFlow::SavePage(context, Page(1), dialog, Record(1), AsBefore);
  EXPECT_TRUE(Exit());
  EXPECT_TRUE(IsWritten(Changed));
  EXPECT_EQ(journals.Written()[0].end, RunEnd::Exit);
}

}  // namespace
}  // namespace velor
