// SPDX-License-Identifier: GPL-3.0-or-later
// What becomes of an open page whose file another program changes.
#include "editor/OutsideChanges.h"
#include "editor/VersionCompare.h"
#include "editor/modWorkFlow.h"
#include "tests/editor/EditorWorld.h"
#include "tests/support/FakeFileWatches.h"
#include "tests/support/FakeJournals.h"
#include "tests/support/KeyboardWalk.h"
#include "tests/support/Waiting.h"

#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>

namespace velor {
namespace {

const QString IndexFile = QStringLiteral("\\site\\index.htm");
const QString Theirs = QStringLiteral("<p>theirs</p>");
const QString Mine = QStringLiteral("<p>mine</p>");

class OutsideChangesTest : public EditorWorld {
 protected:
  OutsideChangesTest() {
    platform.replaced = &replaced;
    platform.watches = &watches;
    Open(IndexFile);
  }

  void WriteOutside(const QString &content = Theirs) {
    files.AddFile(IndexFile, content.toUtf8());
    watches.Change(IndexFile);
  }
  /// Another program writes the file while the page has changes of its own.
  void MeetAtTheBar() {
    Component(1).Edit(Mine);
    WriteOutside();
    ASSERT_TRUE(WaitFor([&] { return !Page(1).Outside().isHidden(); }));
  }
  void Press(const char *button) {
    Page(1).Outside().findChild<QPushButton *>(QString::fromLatin1(button))->click();
  }
  bool IsSaid(const QString &words) {
    return WaitFor(
        [&] { return !mainWindow.reports.isEmpty() && mainWindow.reports.back().contains(words); });
  }
  QString Document() { return Component(1).Memory().document; }

  FakeReplacedVersions replaced;
  FakeFileWatches watches;
};

TEST_F(OutsideChangesTest, APageWithoutChangesIsLoadedAgainWithItsCaretAndThatIsSaid) {
  const ElementPlaces caret = Component(1).caretPlaces;
  WriteOutside();
  EXPECT_TRUE(
      IsSaid(QStringLiteral("index.htm was changed by another program and is loaded again")));
  EXPECT_EQ(Document(), Theirs);
  EXPECT_EQ(Record(1).SavedHTML, Theirs);
  EXPECT_EQ(Component(1).caretPlaces, caret);
  EXPECT_TRUE(Page(1).Outside().isHidden());
  // It counts as saved, and a save replaces what it came from.
  Page(1).close();
  EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(OutsideChangesTest, APageWithChangesAsksInABarAndTouchesNothing) {
  MeetAtTheBar();
  EXPECT_EQ(
      Page(1).Outside().findChild<QLabel *>()->text(),
      QStringLiteral("index.htm was changed by another program, and has unsaved changes here."));
  EXPECT_EQ(Document(), Mine);
  EXPECT_EQ(Content(IndexFile), Theirs.toUtf8());
}

TEST_F(OutsideChangesTest, TabMeetsEveryButtonOfTheBar) {
  MeetAtTheBar();
  Page(1).window()->show();
  Page(1).activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(Page(1).window()));
  OutsideChanges &bar = Page(1).Outside();
  QWidget &start = *bar.findChild<QPushButton *>(QStringLiteral("cmdKeepMine"));
  start.setFocus();
  const auto isOut = [&](const QWidget &now) { return !bar.isAncestorOf(&now); };
  EXPECT_EQ(WalkByKey(Qt::Key_Tab, start, isOut).join(u' ').toStdString(),
            "cmdKeepMine cmdTakeTheirs cmdCompare");
  EXPECT_EQ(SharedAltKeys(Page(1)).toStdString(), "");
}

TEST_F(OutsideChangesTest, SourceThatWasNotAppliedCountsAsAChange) {
  Page(1).ChangeMode(3);
  Code(1).SetText(QStringLiteral("<p>typed</p>"));
  WriteOutside();
  EXPECT_TRUE(WaitFor([&] { return !Page(1).Outside().isHidden(); }));
  EXPECT_EQ(Code(1).Text(), QStringLiteral("<p>typed</p>"));
}

TEST_F(OutsideChangesTest, MineIsSavedLaterAndTheirsIsKept) {
  MeetAtTheBar();
  Press("cmdKeepMine");
  EXPECT_TRUE(Page(1).Outside().isHidden());
  modWorkFlow::SavePage(context, Page(1), dialog, Record(1), false);
  EXPECT_EQ(Content(IndexFile), Mine.toUtf8());
  EXPECT_EQ(replaced.kept, QStringList(IndexFile + QStringLiteral(": ") + Theirs));
}

TEST_F(OutsideChangesTest, TheirsIsLoadedAndMineIsKept) {
  MeetAtTheBar();
  Press("cmdTakeTheirs");
  EXPECT_EQ(Document(), Theirs);
  EXPECT_TRUE(Page(1).Outside().isHidden());
  EXPECT_EQ(replaced.kept, QStringList(IndexFile + QStringLiteral(": ") + Mine));
  EXPECT_TRUE(IsSaid(QStringLiteral("Undo brings back what was here")));
}

TEST_F(OutsideChangesTest, AfterUndoOverTakeTheirsItAsksAgainAndASaveKeepsTheirs) {
  MeetAtTheBar();
  Press("cmdTakeTheirs");
  Page(1).DHTML1().ExecCommand(EditingCommand::Undo);
  EXPECT_EQ(Document(), Mine);
  EXPECT_FALSE(Page(1).Outside().isHidden());
  EXPECT_TRUE(Page(1).Journal().HasChanges());
  replaced.kept.clear();
  modWorkFlow::SavePage(context, Page(1), dialog, Record(1), false);
  EXPECT_EQ(Content(IndexFile), Mine.toUtf8());
  EXPECT_EQ(replaced.kept, QStringList(IndexFile + QStringLiteral(": ") + Theirs));
  EXPECT_TRUE(Page(1).Outside().isHidden());
}

TEST_F(OutsideChangesTest, AfterASaveThatChangedNothingUndoOverALoadAsksToo) {
  const QString before = Document();
  WriteOutside();
  ASSERT_TRUE(IsSaid(QStringLiteral("is loaded again")));
  modWorkFlow::SavePage(context, Page(1), dialog, Record(1), false);
  ASSERT_EQ(Content(IndexFile), Theirs.toUtf8());
  Page(1).DHTML1().ExecCommand(EditingCommand::Undo);
  ASSERT_EQ(Document(), before);
  EXPECT_FALSE(Page(1).Outside().isHidden());
  replaced.kept.clear();
  modWorkFlow::SavePage(context, Page(1), dialog, Record(1), false);
  EXPECT_EQ(replaced.kept, QStringList(IndexFile + QStringLiteral(": ") + Theirs));
}

TEST_F(OutsideChangesTest, TheirsThatIsNoPageIsNotTakenAndTheBarStays) {
  MeetAtTheBar();
  files.AddFile(IndexFile, QByteArray("\x89PNG\r\n\x1a\n", 8));
  Press("cmdTakeTheirs");
  EXPECT_TRUE(IsSaid(QStringLiteral("cannot be read: it is a binary file")));
  EXPECT_EQ(Document(), Mine);
  EXPECT_FALSE(Page(1).Outside().isHidden());
}

TEST_F(OutsideChangesTest, BothAreShownSideBySide) {
  MeetAtTheBar();
  Press("cmdCompare");
  auto *compare = Page(1).window()->findChild<VersionCompare *>();
  ASSERT_NE(compare, nullptr);
  EXPECT_EQ(compare->findChild<QPlainTextEdit *>(QStringLiteral("txtMine"))->toPlainText(), Mine);
  EXPECT_EQ(compare->findChild<QPlainTextEdit *>(QStringLiteral("txtTheirs"))->toPlainText(),
            Theirs);
  EXPECT_FALSE(Page(1).Outside().isHidden());
}

TEST_F(OutsideChangesTest, ItsOwnSaveIsNoChangeOfOthers) {
  Component(1).Edit(Mine);
  modWorkFlow::SavePage(context, Page(1), dialog, Record(1), false);
  mainWindow.reports.clear();
  log.clear();
  watches.Change(IndexFile);
  QTest::qWait(0);
  EXPECT_TRUE(mainWindow.reports.isEmpty());
  EXPECT_EQ(Count(QStringLiteral("LoadDocument(%1)").arg(IndexFile)), 0);
}

TEST_F(OutsideChangesTest, AFileThatIsRemovedIsSaidOnceAndThePageStays) {
  files.Delete(IndexFile);
  watches.Change(IndexFile);
  EXPECT_TRUE(IsSaid(QStringLiteral("index.htm is no longer there")));
  watches.Change(IndexFile);
  QTest::qWait(0);
  EXPECT_EQ(mainWindow.reports.size(), 1);
  EXPECT_EQ(Document(), QStringLiteral("<p>a</p>"));
}

TEST_F(OutsideChangesTest, AFileThatBecomesReadOnlyIsSaid) {
  files.MakeReadOnly(IndexFile);
  watches.Change(IndexFile);
  EXPECT_TRUE(IsSaid(QStringLiteral("index.htm is read-only now")));
}

TEST_F(OutsideChangesTest, AfterSaveAsTheNewFileIsFollowed) {
  const QString copy = QStringLiteral("\\site\\copy.htm");
  dialog.ExpectSave(copy);
  modWorkFlow::SavePage(context, Page(1), dialog, Record(1), true);
  files.AddFile(copy, Theirs.toUtf8());
  watches.Change(copy);
  EXPECT_TRUE(IsSaid(QStringLiteral("copy.htm was changed by another program")));
  EXPECT_EQ(Document(), Theirs);
}

TEST(LineDifferencesTest, AreTheLinesThatTheOtherTextDoesNotHave) {
  const auto lines = [](const char *text) { return QString::fromLatin1(text).split(u' '); };
  const LineDifferences one = LineDifferences::Between(lines("a b c d"), lines("a x c y d"));
  EXPECT_EQ(one.left, std::vector<int>({1}));
  EXPECT_EQ(one.right, std::vector<int>({1, 3}));
  const LineDifferences same = LineDifferences::Between(lines("a b"), lines("a b"));
  EXPECT_TRUE(same.left.empty() && same.right.empty());
  const LineDifferences longer = LineDifferences::Between(lines("a"), lines("a b"));
  EXPECT_TRUE(longer.left.empty());
  EXPECT_EQ(longer.right, std::vector<int>({1}));
}

}  // namespace
}  // namespace velor
