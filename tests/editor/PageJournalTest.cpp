// SPDX-License-Identifier: GPL-3.0-or-later
// When a page's changes are journalled, and when the journal goes.
#include "editor/PagesAtExit.h"
#include "editor/modWorkFlow.h"
#include "tests/editor/EditorWorld.h"
#include "tests/support/FakeJournals.h"

#include <QTest>

namespace velor {
namespace {

const QString IndexFile = QStringLiteral("\\site\\index.htm");
const QString Changed = QStringLiteral("<p>changed</p>");
constexpr bool AsBefore = false;
constexpr bool UnderNewName = true;
/// From the change on; what the component itself is behind comes on top of it.
constexpr int LongestDelay = 1000;

class PageJournals : public EditorWorld {
 protected:
  PageJournals() { platform.journals = &journals; }

  bool IsWritten(const QString &document) const {
    const auto written = journals.Written();
    return !written.empty() && written.back().page.document == document;
  }
  bool ComesToBeWritten(const QString &document) const {
    return QTest::qWaitFor([&] { return IsWritten(document); }, LongestDelay);
  }
  void Change(int number, const QString &document = Changed) {
    Component(number).Edit(document);
    ASSERT_TRUE(ComesToBeWritten(document));
  }
  bool IsEmpty() const { return journals.Written().empty(); }
  /// What the person says when asked whether to save.
  void Answer(MessageAnswer answer) {
    dialogs.ExpectMessage(
        QStringLiteral("You have made changes to this document. Do you want to save it?"), answer);
  }

  FakeJournals journals;
};

TEST_F(PageJournals, AnUnchangedPageHasNone) {
  Open(IndexFile);
  New();
  Component(1).ChangeDisplay();
  Component(1).Edit(Component(1).Memory().document);
  EXPECT_FALSE(QTest::qWaitFor([&] { return !IsEmpty(); }, LongestDelay));
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
  ASSERT_TRUE(QTest::qWaitFor(
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
  EXPECT_TRUE(QTest::qWaitFor([&] { return journals.compactings > 0; }, LongestDelay));
}

TEST_F(PageJournals, ItGoesToTheDiskBetweenKeysWhereNobodyPauses) {
  Open(IndexFile);
  Component(1).isIdle = true;
  int keys = 0;
  QElapsedTimer typing;
  typing.start();
  EXPECT_TRUE(QTest::qWaitFor(
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
  EXPECT_FALSE(QTest::qWaitFor(
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
  ASSERT_TRUE(QTest::qWaitFor([&] { return journals.compactings > 0; }, LongestDelay));
  EXPECT_FALSE(QTest::qWaitFor(
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
  EXPECT_TRUE(QTest::qWaitFor([&] { return IsEmpty(); }, LongestDelay));
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
  modWorkFlow::SaveAndTell(context, Page(1), modWorkFlow::SaveKind::Save);
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

TEST_F(PageJournals, AJournalThatCannotBeWrittenIsToldOnce) {
  Open(IndexFile);
  journals.writeFailure = ErrorNumber::DiskFull;
  Component(1).Edit(Changed);
  ASSERT_TRUE(QTest::qWaitFor([&] { return !mainWindow.reports.isEmpty(); }, LongestDelay));
  EXPECT_TRUE(mainWindow.reports[0].startsWith(
      QStringLiteral("The changes of index.htm could not be kept for a recovery: ")));
  Component(1).Edit(QStringLiteral("<p>more</p>"));
  EXPECT_FALSE(QTest::qWaitFor([&] { return mainWindow.reports.size() > 1; }, LongestDelay));
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

class SourceJournals : public PageJournals {
 protected:
  const QString Typed = QStringLiteral("<p>typed</p>");

  frmCodeEditor &Edit() {
    Open(IndexFile);
    Page(1).ChangeMode(3);
    return *pages.CodeEditor(1);
  }
  void TypeInSource(const QString &source) { Code(1).SetText(source); }
  std::optional<QString> WrittenSource() const {
    const auto written = journals.Written();
    return written.empty() ? std::nullopt : written.back().source;
  }
  bool SourceComesToBeWritten(const std::optional<QString> &source) {
    return QTest::qWaitFor([&] { return WrittenSource() == source; }, LongestDelay);
  }
  void AnswerEditor(MessageAnswer answer) {
    dialogs.ExpectMessage(QStringLiteral("Do you want to apply the changes on this Document?"),
                          answer);
  }
};

TEST_F(SourceJournals, ASourceThatWasOnlyLookedAtHasNone) {
  Edit();
  EXPECT_FALSE(QTest::qWaitFor([&] { return !IsEmpty(); }, LongestDelay));
}

TEST_F(SourceJournals, WhatIsTypedIntoTheSourceIsWrittenWithItsPage) {
  Edit();
  TypeInSource(Typed);
  ASSERT_TRUE(SourceComesToBeWritten(Typed));
  EXPECT_EQ(journals.Written()[0].page.document, QStringLiteral("<p>a</p>"));
  EXPECT_EQ(journals.Written()[0].path, IndexFile);
  TypeInSource({});
  EXPECT_TRUE(SourceComesToBeWritten(QString()));
}

TEST_F(SourceJournals, ASourceBroughtBackToThePagesEndsIt) {
  Edit();
  TypeInSource(Typed);
  ASSERT_TRUE(SourceComesToBeWritten(Typed));
  TypeInSource(QStringLiteral("<p>a</p>"));
  EXPECT_TRUE(QTest::qWaitFor([&] { return IsEmpty(); }, LongestDelay));
}

TEST_F(SourceJournals, AnAppliedSourceIsThePagesChange) {
  frmCodeEditor &editor = Edit();
  TypeInSource(Typed);
  ASSERT_TRUE(SourceComesToBeWritten(Typed));
  ASSERT_EQ(editor.ApplyCode(), 0);
  EXPECT_TRUE(SourceComesToBeWritten(std::nullopt));
  EXPECT_EQ(journals.Written().back().page.document.trimmed(), Typed);
}

TEST_F(SourceJournals, ClosingTheEditorWithoutApplyingEndsIt) {
  frmCodeEditor &editor = Edit();
  TypeInSource(Typed);
  ASSERT_TRUE(SourceComesToBeWritten(Typed));
  AnswerEditor(MessageAnswer::No);
  editor.close();
  EXPECT_TRUE(IsEmpty());
}

TEST_F(SourceJournals, ClosingTheEditorKeepsThePagesOwnChanges) {
  frmCodeEditor &editor = Edit();
  TypeInSource(Typed);
  Change(1);
  AnswerEditor(MessageAnswer::No);
  editor.close();
  EXPECT_TRUE(IsWritten(Changed));
  EXPECT_EQ(WrittenSource(), std::nullopt);
}

TEST_F(SourceJournals, ASaveOfThePageKeepsTheSource) {
  Edit();
  TypeInSource(Typed);
  Change(1);
  modWorkFlow::SavePage(context, Page(1), dialog, Record(1), AsBefore);
  EXPECT_EQ(WrittenSource(), Typed);
  dialog.ExpectSave(QStringLiteral("\\site\\new.htm"));
  modWorkFlow::SavePage(context, Page(1), dialog, Record(1), UnderNewName);
  EXPECT_EQ(WrittenSource(), Typed);
  EXPECT_EQ(journals.Written().back().path, QStringLiteral("\\site\\new.htm"));
}

TEST_F(SourceJournals, AnExitKeepsTheSourceThatWasNotApplied) {
  frmCodeEditor &editor = Edit();
  TypeInSource(Typed);
  EXPECT_TRUE(KeepPagesAtExit(context));
  Page(1).MarkKill();
  editor.MarkKill();
  // The editor may go before its page.
  editor.close();
  Page(1).close();
  EXPECT_EQ(WrittenSource(), Typed);
  EXPECT_EQ(journals.Written().back().end, RunEnd::Exit);
  EXPECT_FALSE(QTest::qWaitFor([&] { return WrittenSource() != Typed; }, LongestDelay));
}

TEST_F(SourceJournals, ASourceThatThePagesOwnTookThePlaceOfStaysUntilOneIsAppliedOrGivenUp) {
  frmCodeEditor &editor = Edit();
  TypeInSource(Typed);
  Page(1).ChangeMode(3);
  EXPECT_NE(Code(1).text, Typed);
  Page(1).Journal().Flush();
  EXPECT_EQ(WrittenSource(), Typed);
  editor.ApplyCode();
  Page(1).Journal().Flush();
  EXPECT_EQ(WrittenSource(), std::nullopt);
}

TEST_F(SourceJournals, ARestoredSourceIsInTheEditorAgainAndNotInThePage) {
  files.AddFile(IndexFile, "<p>a</p>");
  JournalledPage kept{IndexFile,
                      QStringLiteral("index.htm"),
                      JournalledPage::Saving::ToItsFile,
                      {"<p>a</p>", QStringLiteral("/site/index.htm"), Changed},
                      QDateTime::currentDateTime(),
                      Typed};
  EXPECT_TRUE(modWorkFlow::RestorePage(context, kept));
  EXPECT_EQ(Code(1).Text(), Typed);
  EXPECT_EQ(Component(1).DocumentHTML(), Changed);
  EXPECT_EQ(Record(1).EditorOpen, True16);
  EXPECT_EQ(WrittenSource(), Typed);
  AnswerEditor(MessageAnswer::Yes);
  pages.CodeEditor(1)->close();
  EXPECT_EQ(Component(1).DocumentHTML().trimmed(), Typed);
}

class ReplacedVersionsTest : public EditorWorld {
 protected:
  ReplacedVersionsTest() { platform.replaced = &replaced; }
  void Save(int number) {
    modWorkFlow::SavePage(context, Page(number), dialog, Record(number), AsBefore);
  }
  static QStringList Versions(std::initializer_list<const char *> contents) {
    QStringList versions;
    for (const char *content : contents)
      versions << QStringLiteral("\\site\\index.htm: ") + QString::fromUtf8(content);
    return versions;
  }

  FakeReplacedVersions replaced;
};

TEST_F(ReplacedVersionsTest, SavingWhatWasLoadedAndSavedKeepsNothing) {
  Open(IndexFile);
  Component(1).Edit(Changed);
  Save(1);
  Component(1).Edit(QStringLiteral("<p>more</p>"));
  Save(1);
  EXPECT_EQ(replaced.kept, QStringList());
  EXPECT_TRUE(mainWindow.reports.isEmpty());
}

TEST_F(ReplacedVersionsTest, AFileThatAnotherProgramChangedIsKeptAndTheStatusBarSaysSo) {
  Open(IndexFile);
  files.AddFile(IndexFile, "<p>b</p>");
  Component(1).Edit(Changed);
  Save(1);
  EXPECT_EQ(replaced.kept, Versions({"<p>b</p>"}));
  EXPECT_EQ(Content(IndexFile), "<p>changed</p>");
  ASSERT_EQ(mainWindow.reports.size(), 1);
  EXPECT_EQ(mainWindow.reports[0],
            QStringLiteral("/site/index.htm held another version. It was replaced and is kept as "
                           "/kept/1"));
}

TEST_F(ReplacedVersionsTest, AFileThatThePlainSavesOwnRuleLeadsToIsKept) {
  Open(QStringLiteral("\\site\\first.htm"));
  Open(IndexFile, "<p>another page</p>");
  Save(1);
  EXPECT_EQ(replaced.kept, QStringList());
  Save(1);
  EXPECT_EQ(replaced.kept, Versions({"<p>another page</p>"}));
}

TEST_F(ReplacedVersionsTest, AFileChosenForANewPageIsKept) {
  files.AddFile(IndexFile, "<p>there before</p>");
  New();
  dialog.ExpectSave(IndexFile);
  modWorkFlow::SavePage(context, Page(1), dialog, Record(1), UnderNewName);
  EXPECT_EQ(replaced.kept, Versions({"<p>there before</p>"}));
}

TEST_F(ReplacedVersionsTest, ARestoredPageKeepsOnlyWhatItDidNotComeFrom) {
  files.AddFile(IndexFile, "<p>a</p>");
  JournalledPage kept{
      IndexFile, {}, JournalledPage::Saving::ToItsFile, {"<p>a</p>", {}, Changed}, {}};
  modWorkFlow::RestorePage(context, kept);
  Save(1);
  EXPECT_EQ(replaced.kept, QStringList());
  files.AddFile(IndexFile, "<p>newer</p>");
  modWorkFlow::RestorePage(context, kept);
  Save(2);
  EXPECT_EQ(replaced.kept, Versions({"<p>newer</p>"}));
}

TEST_F(ReplacedVersionsTest, WhatCannotBeKeptIsNotReplaced) {
  Open(IndexFile);
  files.AddFile(IndexFile, "<p>b</p>");
  replaced.failure = ErrorNumber::DiskFull;
  Component(1).Edit(Changed);
  Save(1);
  EXPECT_EQ(Content(IndexFile), "<p>b</p>");
  ASSERT_EQ(mainWindow.reports.size(), 1);
  EXPECT_TRUE(mainWindow.reports[0].contains(QStringLiteral("could not be saved")));
}

}  // namespace
}  // namespace velor
