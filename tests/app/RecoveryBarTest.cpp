// SPDX-License-Identifier: GPL-3.0-or-later
// The bar that offers the pages of a program that ended before they were saved.
#include "app/window/PageTabs.h"
#include "app/window/RecoveryBar.h"
#include "editor/PageSlots.h"
#include "editor/frmMain.h"
#include "tests/app/WindowFixture.h"
#include "tests/support/FakeJournals.h"

#include <QLabel>
#include <QPushButton>
#include <QTest>

namespace velor {
namespace {

const QString IndexFile = QStringLiteral("\\site\\index.htm");
const QDateTime Noon(QDate(2026, 3, 1), QTime(12, 0));

class RecoveryBars : public WindowFixture {
 protected:
  RecoveryBars() { platform.journals = &journals; }

  static JournalledPage Page(const QString &path, const QString &caption) {
    return {
        path,
        caption,
        JournalledPage::Saving::ToItsFile,
        {"<p>a</p>", QStringLiteral("/site/"), QStringLiteral("<p>unsaved %1</p>").arg(caption)},
        Noon};
  }
  /// Lets the bar look for the pages, as it does after start-up.
  RecoveryBar &Offer() {
    Bar().Offer();
    return Bar();
  }
  RecoveryBar &Bar() { return *Find<RecoveryBar>("picRecovery"); }
  QList<QPushButton *> Buttons(const char *name) {
    QList<QPushButton *> shown;
    for (auto *button : Bar().findChildren<QPushButton *>(QString::fromLatin1(name))) {
      if (!button->isHidden() && !button->parentWidget()->isHidden()) shown << button;
    }
    return shown;
  }
  QString Note() { return Find<QLabel>("lblRecoveryNote")->text(); }
  PageSlots &Slots() { return window.Context().pages; }

  FakeJournals journals;
};

TEST_F(RecoveryBars, IsNotThereWithoutSuchPages) {
  EXPECT_FALSE(Offer().isVisible());
  QTest::qWait(0);
  EXPECT_FALSE(Bar().isVisible());
}

TEST_F(RecoveryBars, ComesByItselfAfterStartUpAboveThePageArea) {
  FakeJournals ended;
  ended.AddAbandoned(Page(IndexFile, QStringLiteral("index.htm")));
  platform.journals = &ended;
  MfrmProgram second(platform, values);
  second.Load();
  auto *bar = second.findChild<RecoveryBar *>();
  EXPECT_FALSE(bar->isVisible());
  ASSERT_TRUE(QTest::qWaitFor([bar] { return bar->isVisible(); }));
  EXPECT_EQ(
      bar->mapTo(&second, QPoint(0, bar->height())).y(),
      second.findChild<QWidget *>(QStringLiteral("picFileTab"))->mapTo(&second, QPoint(0, 0)).y() +
          second.findChild<QWidget *>(QStringLiteral("picFileTab"))->height() + bar->height());
  EXPECT_TRUE(second.Context().pages.PageCount() == 0);
}

TEST_F(RecoveryBars, SaysPageTimeAndFile) {
  files.AddFile(IndexFile, "<p>a</p>");
  journals.AddAbandoned(Page(IndexFile, QStringLiteral("index.htm")));
  Offer();
  EXPECT_EQ(Find<QLabel>("lblRecoveredPage")->text(), QStringLiteral("index.htm"));
  EXPECT_EQ(Note(), QStringLiteral("changed 2026-03-01 12:00:00  ·  /site/index.htm"));
}

TEST_F(RecoveryBars, SaysThatTheFileOnDiskIsNewer) {
  files.AddFile(IndexFile, "<p>a</p>");
  files.changeTime = Noon.addSecs(1);
  journals.AddAbandoned(Page(IndexFile, QStringLiteral("index.htm")));
  Offer();
  EXPECT_TRUE(Note().contains(QStringLiteral("the file on disk is newer")));
}

TEST_F(RecoveryBars, SaysThatAPageWasNeverSavedOrItsFileIsGone) {
  journals.AddAbandoned(Page({}, QStringLiteral("Untitled 3")));
  Offer();
  EXPECT_TRUE(Note().endsWith(QStringLiteral("never saved")));
  journals.AddAbandoned(Page(IndexFile, {}));
  Buttons("cmdDiscard")[0]->click();
  DeleteClosedWindows();
  Offer();
  EXPECT_TRUE(Note().contains(QStringLiteral("the file is gone")));
}

TEST_F(RecoveryBars, RestoreOpensThePageAndItsRowGoes) {
  journals.AddAbandoned(Page(IndexFile, QStringLiteral("index.htm")));
  Offer();
  Buttons("cmdRestore")[0]->click();
  ASSERT_EQ(Slots().PageCount(), 1);
  EXPECT_EQ(Component(*Slots().Page(1)).DocumentHTML(), QStringLiteral("<p>unsaved index.htm</p>"));
  EXPECT_FALSE(Bar().isVisible());
  EXPECT_TRUE(journals.Abandoned().empty());
  // It is in this run's journal before it leaves the other's.
  ASSERT_EQ(journals.Written().size(), 1);
  EXPECT_EQ(journals.Written()[0].page.document, QStringLiteral("<p>unsaved index.htm</p>"));
}

TEST_F(RecoveryBars, APageThatNoJournalTakesStaysInTheOldOne) {
  journals.AddAbandoned(Page(IndexFile, QStringLiteral("index.htm")));
  Offer();
  journals.writeFailure = ErrorNumber::DiskFull;
  Buttons("cmdRestore")[0]->click();
  EXPECT_EQ(Slots().PageCount(), 1);
  EXPECT_EQ(journals.Abandoned().size(), 1);
}

TEST_F(RecoveryBars, ShowLetsThePageBeLookedAtAndKeepsItsRow) {
  journals.AddAbandoned(Page(IndexFile, QStringLiteral("index.htm")));
  Offer();
  Buttons("cmdShow")[0]->click();
  EXPECT_EQ(Slots().PageCount(), 0);
  ASSERT_EQ(components.browsers.size(), 1);
  EXPECT_EQ(components.browsers[0]->html, QStringLiteral("<p>unsaved index.htm</p>"));
  EXPECT_EQ(components.browsers[0]->url, QUrl(QStringLiteral("file:///site/")));
  EXPECT_TRUE(Bar().isVisible());
  EXPECT_EQ(journals.Abandoned().size(), 1);
}

TEST_F(RecoveryBars, DiscardGivesOnePageUpAndLeavesTheOthers) {
  journals.AddAbandoned(Page(IndexFile, QStringLiteral("index.htm")));
  journals.AddAbandoned(Page({}, QStringLiteral("Untitled 2")));
  Offer();
  ASSERT_EQ(Buttons("cmdDiscard").size(), 2);
  Buttons("cmdDiscard")[0]->click();
  EXPECT_EQ(Slots().PageCount(), 0);
  EXPECT_TRUE(Bar().isVisible());
  ASSERT_EQ(journals.Abandoned().size(), 1);
  EXPECT_EQ(journals.Abandoned()[0].page.caption, QStringLiteral("Untitled 2"));
  Buttons("cmdDiscard")[0]->click();
  EXPECT_FALSE(Bar().isVisible());
}

TEST_F(RecoveryBars, IsReachedAndUsedByKeyboard) {
  journals.AddAbandoned(Page(IndexFile, QStringLiteral("index.htm")));
  journals.AddAbandoned(Page({}, QStringLiteral("Untitled 2")));
  Offer();
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  QTest::keyClick(&window, Qt::Key_G, Qt::AltModifier);
  for (const char *next : {"cmdRestore", "cmdShow", "cmdDiscard"}) {
    EXPECT_EQ(QApplication::focusWidget()->objectName().toStdString(), next);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  }
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab, Qt::ShiftModifier);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
  // The focus goes on to the page that is left.
  ASSERT_EQ(Buttons("cmdRestore").size(), 1);
  EXPECT_EQ(QApplication::focusWidget(), Buttons("cmdRestore")[0]);
}

TEST_F(RecoveryBars, EveryControlSaysWhatItIsFor) {
  journals.AddAbandoned(Page(IndexFile, QStringLiteral("index.htm")));
  Offer();
  EXPECT_EQ(Bar().accessibleName(), QStringLiteral("Recovered pages"));
  EXPECT_EQ(Buttons("cmdRestore")[0]->accessibleName(), QStringLiteral("Restore index.htm"));
  EXPECT_EQ(Buttons("cmdShow")[0]->accessibleName(), QStringLiteral("Show index.htm"));
  EXPECT_EQ(Buttons("cmdDiscard")[0]->accessibleName(), QStringLiteral("Discard index.htm"));
}

TEST_F(RecoveryBars, ManyPagesLeaveRoomForTheOthers) {
  for (int i = 1; i <= 30; ++i)
    journals.AddAbandoned(Page({}, QStringLiteral("Untitled %1").arg(i)));
  EXPECT_LT(Offer().sizeHint().height(), window.height() / 3);
  EXPECT_EQ(Buttons("cmdRestore").size(), 30);
}

}  // namespace
}  // namespace velor
