// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/PageChooser.h"
#include "app/window/PageTabs.h"
#include "editor/PageSlots.h"
#include "editor/frmMain.h"
#include "tests/app/window/WindowFixture.h"

#include <QStatusBar>

namespace velor {
namespace {

const QString TooMany = QStringLiteral(
    "Too many Pages are opened. Please close one or two File(s), and then try to open it.");

class OpeningTest : public WindowFixture {
 protected:
  OpeningTest() { WriteFile(QStringLiteral("\\site\\a.htm")); }

  void OpenFive() {
    for (int i = 0; i < 5; ++i) NewPage();
  }

  void ExpectRefusal() { dialogs.ExpectMessage(TooMany); }

  int PagesMade() { return window.Context().pages.PageCount(); }
};

TEST_F(OpeningTest, ANewPageGetsATabAndComesToTheFront) {
  Choose("mnuNew");
  EXPECT_EQ(Tabs().count(), 1);
  EXPECT_EQ(Tabs().tabText(0), QStringLiteral("Untitled 1"));
  EXPECT_TRUE(Item("mnuNew")->isEnabled());
}

TEST_F(OpeningTest, TheNewItemIsDisabledWhileThePageIsMade) {
  bool seen = false;
  QObject::connect(Item("mnuNew"), &QAction::enabledChanged, &window,
                   [&](bool enabled) { seen = seen || !enabled; });
  Choose("mnuNew");
  EXPECT_TRUE(seen);
  EXPECT_TRUE(Item("mnuNew")->isEnabled());
}

TEST_F(OpeningTest, OpenShowsTheSharedDialogAndOpensTheFile) {
  SharedDialog().ExpectOpen(QStringLiteral("\\site\\a.htm"));
  Choose("mnuOpen");
  EXPECT_EQ(SharedDialog().shownFilter, QStringLiteral("HTML Files *.htm,*.html|*.htm;*.html"));
  EXPECT_EQ(SharedDialog().shownFlags, 4096);
  ASSERT_EQ(Tabs().count(), 1);
  EXPECT_EQ(Tabs().tabText(0), QStringLiteral("a.htm"));
  EXPECT_TRUE(Item("mnuOpen")->isEnabled());
}

TEST_F(OpeningTest, ACancelledOpenChangesNothingVisible) {
  SharedDialog().FileName = QStringLiteral("\\site\\before.htm");
  SharedDialog().ExpectCancelledOpen();
  Choose("mnuOpen");
  EXPECT_EQ(Tabs().count(), 0);
  EXPECT_EQ(PagesMade(), 0);
  EXPECT_TRUE(Item("mnuOpen")->isEnabled());
  EXPECT_EQ(Find<QStatusBar>("Sta")->currentMessage(), QString());
  EXPECT_EQ(SharedDialog().FileName, QStringLiteral("\\site\\before.htm"));
}

TEST_F(OpeningTest, AFileThatCannotBeOpenedIsTakenToTheStatusBar) {
  SharedDialog().ExpectOpen(QStringLiteral("\\site\\gone.htm"));
  Choose("mnuOpen");
  EXPECT_EQ(Tabs().count(), 0);
  EXPECT_TRUE(Item("mnuOpen")->isEnabled());
  EXPECT_TRUE(Find<QStatusBar>("Sta")->currentMessage().contains(QStringLiteral("gone.htm")));
}

TEST_F(OpeningTest, WithFivePagesOpenRefusesAndStaysDisabled) {
  OpenFive();
  ExpectRefusal();
  Choose("mnuOpen");
  ASSERT_EQ(dialogs.messages.size(), 1U);
  EXPECT_EQ(dialogs.messages[0].icon, MessageIcon::Critical);
  EXPECT_EQ(dialogs.messages[0].buttons, MessageButtons::Ok);
  EXPECT_EQ(dialogs.messages[0].title, QStringLiteral("Velor Web Creator"));
  EXPECT_FALSE(Item("mnuOpen")->isEnabled());
  // For the rest of the run, closing pages notwithstanding.
  window.Context().pages.Page(1)->close();
  log.clear();
  Click("tbrGeneral_open");
  Choose("mnuOpen");
  EXPECT_TRUE(log.empty());
  EXPECT_EQ(Tabs().count(), 4);
}

TEST_F(OpeningTest, WithFivePagesNewRefusesBeforeItMakesASlot) {
  OpenFive();
  ExpectRefusal();
  Choose("mnuNew");
  EXPECT_EQ(PagesMade(), 5);
  EXPECT_EQ(Tabs().count(), 5);
  EXPECT_TRUE(Item("mnuNew")->isEnabled());
}

TEST_F(OpeningTest, ThereIsRoomUpToTheFifthPageAndForNoneBeyond) {
  for (int pages = 1; pages <= 5; ++pages) {
    NewPage();
    EXPECT_EQ(Tabs().count(), pages);
  }
  // A page whose tab has gone is still one of the five.
  Tabs().Remove(QStringLiteral("key2"));
  ExpectRefusal();
  Choose("mnuNew");
  EXPECT_EQ(PagesMade(), 5);
}

TEST_F(OpeningTest, DroppedPagesOpenAsFarAsThereIsRoomAndTheRestIsRefusedOnce) {
  for (int i = 0; i < 3; ++i) NewPage();
  QStringList paths;
  for (const char *name : {"a", "b", "c", "d", "e"}) {
    paths << QStringLiteral("\\site\\%1.htm").arg(QString::fromLatin1(name));
    WriteFile(paths.back());
  }
  ExpectRefusal();
  window.Opener().OpenDroppedFiles(paths, nullptr);
  EXPECT_EQ(Tabs().count(), 5);
  EXPECT_TRUE(Item("mnuOpen")->isEnabled());
  window.Context().pages.Page(1)->close();
  window.Opener().OpenDroppedFiles({paths[4]}, nullptr);
  EXPECT_EQ(Tabs().count(), 5);
  SharedDialog().ExpectCancelledOpen();
  window.Context().pages.Page(2)->close();
  Choose("mnuOpen");
}

TEST_F(OpeningTest, FilesDroppedAfterARefusedOpenStillOpenOnceThereIsRoom) {
  OpenFive();
  ExpectRefusal();
  Choose("mnuOpen");
  window.Context().pages.Page(1)->close();
  window.Opener().OpenDroppedFiles({QStringLiteral("\\site\\a.htm")}, nullptr);
  EXPECT_EQ(Tabs().count(), 5);
  EXPECT_FALSE(Item("mnuOpen")->isEnabled());
}

TEST_F(OpeningTest, AFileThatIsOpenAlreadyComesToTheFrontHoweverItIsOpened) {
  const QString path = QStringLiteral("\\site\\a.htm");
  SharedDialog().ExpectOpen(path);
  Choose("mnuOpen");
  for (int i = 0; i < 4; ++i) NewPage();
  EXPECT_EQ(Tabs().currentIndex(), 4);
  // There is room for it, though for no other.
  window.Opener().OpenDroppedFiles({path}, nullptr);
  EXPECT_EQ(Tabs().currentIndex(), 0);
  EXPECT_EQ(Find<QStatusBar>("Sta")->currentMessage(),
            QStringLiteral("/site/a.htm is open already"));
  window.Context().pages.Page(5)->close();
  window.Opener().ActivatePage(2);
  SharedDialog().ExpectOpen(path);
  Choose("mnuOpen");
  EXPECT_EQ(Tabs().currentIndex(), 0);
  EXPECT_EQ(PagesMade(), 5);
}

TEST_F(OpeningTest, TheDialogHoldsTheActivePagesNameWhateverHappened) {
  const QString a = QStringLiteral("\\site\\a.htm");
  const QString b = QStringLiteral("\\site\\b.htm");
  WriteFile(b);
  const auto held = [this] { return SharedDialog().FileName; };
  SharedDialog().ExpectOpen(a);
  Choose("mnuOpen");
  EXPECT_EQ(held(), a);
  window.Opener().OpenDroppedFiles({b}, nullptr);
  EXPECT_EQ(held(), b);
  window.Opener().ActivatePage(1);
  EXPECT_EQ(held(), a);
  SharedDialog().ExpectOpen(QStringLiteral("\\site\\gone.htm"));
  Choose("mnuOpen");
  EXPECT_EQ(held(), a) << "after an Open that failed";
  SharedDialog().ExpectCancelledOpen();
  Choose("mnuOpen");
  EXPECT_EQ(held(), a) << "after an Open that was cancelled";
  NewPage();
  EXPECT_EQ(held(), QStringLiteral("\\site\\Untitled 3.htm"));
  window.Context().pages.Page(3)->close();
  EXPECT_NE(held(), QStringLiteral("\\site\\Untitled 3.htm")) << "the page in front now";
}

class ChooserTest : public OpeningTest {
 protected:
  ChooserTest() {
    values.DbConnection = database.CreateConnection();
    values.DbConnection->Open(QStringLiteral("Data Source=\\eThumbs.mdb"), {}, {}, -1);
    database.results[QStringLiteral("Select * from Page where PageId = 7")] = {
        .columns = {{.name = QStringLiteral("PageId"), .type = ColumnType::Integer},
                    {.name = QStringLiteral("TPath")},
                    {.name = QStringLiteral("Path")}},
        .rows = {{7, QStringLiteral("\\site\\"), QStringLiteral("a.htm")}}};
    database.results[QStringLiteral("Select * from Page where PageId = 8")] = {
        .columns = {{.name = QStringLiteral("PageId"), .type = ColumnType::Integer}}, .rows = {}};
    Chooser().AddPage(QStringLiteral("Home"), 7);
    Chooser().AddPage(QStringLiteral("Gone"), 8);
    log.clear();
  }

  PageChooser &Chooser() { return *Find<PageChooser>("CmbPages"); }

  void ChoosePage(int index) {
    Chooser().setCurrentIndex(index);
    Q_EMIT Chooser().activated(index);
  }
};

TEST_F(ChooserTest, FillingItOpensNothing) {
  EXPECT_TRUE(Chooser().isEnabled());
  EXPECT_EQ(Chooser().currentIndex(), -1);
  EXPECT_TRUE(database.statements.empty());
}

TEST_F(ChooserTest, AChosenPageIsLookedUpAndOpened) {
  ChoosePage(0);
  EXPECT_EQ(log.at(0), QStringLiteral("SetCursorLocation(3)"));
  EXPECT_EQ(log.at(1),
            QStringLiteral("OpenRecordset(Select * from Page where PageId = 7, 3, 1, -1)"));
  ASSERT_EQ(Tabs().count(), 1);
  EXPECT_EQ(Tabs().tabText(0), QStringLiteral("a.htm"));
  EXPECT_EQ(window.Context().pages.Record(1).Path, QStringLiteral("\\site\\a.htm"));
  EXPECT_EQ(window.Context().pages.Record(1).HasFile, False16);
}

TEST_F(ChooserTest, TheResultSetIsReusedAndClosedFirst) {
  ChoosePage(0);
  log.clear();
  ChoosePage(1);
  EXPECT_EQ(log.at(0), QStringLiteral("CloseRecordset()"));
  EXPECT_EQ(database.recordsetsMade, 1);
}

TEST_F(ChooserTest, AnIdentifierWithoutARowOpensAndShowsNothing) {
  ChoosePage(1);
  EXPECT_EQ(Tabs().count(), 0);
  EXPECT_EQ(PagesMade(), 0);
  EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(ChooserTest, WithFivePagesItRefusesAndWorksAgainAfterAClose) {
  OpenFive();
  ExpectRefusal();
  ChoosePage(0);
  EXPECT_EQ(Tabs().count(), 5);
  EXPECT_TRUE(database.statements.empty());
  EXPECT_TRUE(Item("mnuOpen")->isEnabled());
  window.Context().pages.Page(5)->close();
  ChoosePage(0);
  EXPECT_EQ(Tabs().count(), 5);
  EXPECT_EQ(Tabs().tabText(4), QStringLiteral("a.htm"));
}

TEST_F(ChooserTest, AnEmptiedChooserIsDimmed) {
  Chooser().RemovePages();
  EXPECT_EQ(Chooser().count(), 0);
  EXPECT_FALSE(Chooser().isEnabled());
}

}  // namespace
}  // namespace velor
