// SPDX-License-Identifier: GPL-3.0-or-later
// Source that was typed and not applied is journalled with its page.
#include "tests/editor/PageJournalFixture.h"
#include "tests/support/Waiting.h"

namespace velor {
namespace {

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
    return WaitFor([&] { return WrittenSource() == source; }, LongestDelay);
  }
  void AnswerEditor(MessageAnswer answer) {
    dialogs.ExpectMessage(QStringLiteral("Do you want to apply the changes on this Document?"),
                          answer);
  }
};

TEST_F(SourceJournals, ASourceThatWasOnlyLookedAtHasNone) {
  Edit();
  EXPECT_FALSE(WaitFor([&] { return !IsEmpty(); }, LongestDelay));
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
  EXPECT_TRUE(WaitFor([&] { return IsEmpty(); }, LongestDelay));
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
  EXPECT_FALSE(WaitFor([&] { return WrittenSource() != Typed; }, LongestDelay));
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

}  // namespace
}  // namespace velor
