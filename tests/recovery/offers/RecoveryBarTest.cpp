// SPDX-License-Identifier: GPL-3.0-or-later
// The bar that offers the pages of a program that ended before they were saved.
#include "app/window/PageTabs.h"
#include "editor/PageSlots.h"
#include "editor/frmCodeEditor.h"
#include "editor/frmMain.h"
#include "recovery/offers/RecoveryBar.h"
#include "tests/app/window/WindowFixture.h"
#include "tests/support/FakeJournals.h"
#include "tests/support/KeyboardWalk.h"
#include "tests/support/Waiting.h"

#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QStatusBar>
#include <QTest>

namespace velor {
namespace {

const QString IndexFile = QStringLiteral("\\site\\index.htm");
const QDateTime Noon(QDate(2026, 3, 1), QTime(12, 0));

class RecoveryBars : public WindowFixture {
 protected:
  RecoveryBars() {
    platform.journals = &journals;
    // The window's own look for journals, from the event loop, happens before there is one.
    QTest::qWait(0);
  }

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
  ASSERT_TRUE(WaitFor([bar] { return bar->isVisible(); }));
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
  EXPECT_EQ(journals.Abandoned()[0].caption, QStringLiteral("index.htm"));
  Buttons("cmdDiscard")[0]->click();
  EXPECT_FALSE(Bar().isVisible());
}

TEST_F(RecoveryBars, PagesOfAnExitAreOfferedAsKeptAtExit) {
  JournalledPage page = Page({}, QStringLiteral("Untitled 1"));
  page.end = RunEnd::Exit;
  journals.AddAbandoned(page);
  Offer();
  EXPECT_TRUE(Note().contains(QStringLiteral("kept at exit")));
  EXPECT_EQ(Find<QLabel>("lblRecovery")->text(),
            QStringLiteral("These pages were kept at exit with their unsaved changes (Alt+G leads "
                           "to them):"));
}

TEST_F(RecoveryBars, OneButtonBringsAllBackInTheOrderOfTheirChanges) {
  for (const char *name : {"a.htm", "b.htm", "c.htm"})
    journals.AddAbandoned(
        Page(QStringLiteral("\\site\\") + QLatin1String(name), QLatin1String(name)));
  Offer();
  Buttons("cmdRestoreAll")[0]->click();
  ASSERT_EQ(Slots().PageCount(), 3);
  EXPECT_EQ(Slots().Record(1).Path, QStringLiteral("\\site\\a.htm"));
  EXPECT_EQ(Slots().Record(3).Path, QStringLiteral("\\site\\c.htm"));
  EXPECT_TRUE(journals.Abandoned().empty());
  EXPECT_FALSE(Bar().isVisible());
}

TEST_F(RecoveryBars, FivePagesAreTheMostAndWhatFindsNoRoomStaysAndIsSaid) {
  for (int i = 1; i <= 8; ++i)
    journals.AddAbandoned(Page({}, QStringLiteral("Untitled %1").arg(i)));
  Offer();
  Buttons("cmdRestoreAll")[0]->click();
  EXPECT_EQ(Tabs().count(), 5);
  EXPECT_EQ(journals.Abandoned().size(), 3);
  EXPECT_EQ(window.statusBar()->currentMessage(),
            QStringLiteral("3 more stay here: 5 pages are open, which is the most"));
  Buttons("cmdRestore")[0]->click();
  EXPECT_EQ(Tabs().count(), 5);
  EXPECT_EQ(journals.Abandoned().size(), 3);
  EXPECT_EQ(window.statusBar()->currentMessage(),
            QStringLiteral("Untitled 3 stays here: 5 pages are open, which is the most. Close one, "
                           "then restore it"));
}

TEST_F(RecoveryBars, OneButtonDiscardsAllAfterAQuestion) {
  const QString question = QStringLiteral(
      "Discard the unsaved changes of all pages listed here (2)? They cannot be brought back.");
  journals.AddAbandoned(Page(IndexFile, QStringLiteral("index.htm")));
  journals.AddAbandoned(Page({}, QStringLiteral("Untitled 2")));
  Offer();
  dialogs.ExpectMessage(question, MessageAnswer::No);
  Buttons("cmdDiscardAll")[0]->click();
  EXPECT_EQ(journals.Abandoned().size(), 2);
  dialogs.ExpectMessage(question, MessageAnswer::Yes);
  Buttons("cmdDiscardAll")[0]->click();
  EXPECT_TRUE(journals.Abandoned().empty());
  EXPECT_FALSE(Bar().isVisible());
}

/// A person who has but a keyboard, and three pages to decide on, the newest first.
class RecoveryKeys : public RecoveryBars {
 protected:
  RecoveryKeys() {
    for (const char *name : {"Untitled 1", "Untitled 2", "Untitled 3"})
      journals.AddAbandoned(Page({}, QString::fromLatin1(name)));
    Offer();
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    Press(Qt::Key_G, Qt::AltModifier);
  }

  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QWidget *focus = QApplication::focusWidget();
    QTest::keyClick(focus != nullptr ? focus : &window, key, modifiers);
  }
  static std::string Focus() { return QApplication::focusWidget()->accessibleName().toStdString(); }
  QStringList Left() {
    QStringList captions;
    for (const AbandonedPage &page : journals.Abandoned()) captions << page.caption;
    return captions;
  }
};

TEST_F(RecoveryKeys, AltGLeadsToTheFirstPageAndPressesNothing) {
  EXPECT_EQ(Focus(), "Restore Untitled 3");
  EXPECT_EQ(Slots().PageCount(), 0);
  EXPECT_EQ(Left().size(), 3);
}

TEST_F(RecoveryKeys, TabGoesThroughEveryButtonOfEveryPage) {
  for (const char *page : {"Untitled 3", "Untitled 2", "Untitled 1"}) {
    for (const char *verb : {"Restore ", "Show ", "Discard "}) {
      EXPECT_EQ(Focus(), std::string(verb) + page);
      Press(Qt::Key_Tab);
    }
  }
  Press(Qt::Key_G, Qt::AltModifier);
  EXPECT_EQ(Focus(), "Restore Untitled 3");
  EXPECT_EQ(SharedAltKeys(window).toStdString(), "");
}

TEST_F(RecoveryKeys, ArrowsGoAlongTheRowAndFromPageToPage) {
  const std::vector<std::pair<Qt::Key, std::string>> walk{
      {Qt::Key_Left, "Restore Untitled 3"},  {Qt::Key_Right, "Show Untitled 3"},
      {Qt::Key_Down, "Show Untitled 2"},     {Qt::Key_Right, "Discard Untitled 2"},
      {Qt::Key_Right, "Discard Untitled 2"}, {Qt::Key_End, "Discard Untitled 1"},
      {Qt::Key_Down, "Discard Untitled 1"},  {Qt::Key_Left, "Show Untitled 1"},
      {Qt::Key_Home, "Show Untitled 3"},     {Qt::Key_Up, "Show Untitled 3"},
  };
  for (const auto &[key, focus] : walk) {
    Press(key);
    EXPECT_EQ(Focus(), focus);
  }
}

TEST_F(RecoveryKeys, SpaceAndEnterPress) {
  Press(Qt::Key_Down);
  Press(Qt::Key_Right);
  Press(Qt::Key_Right);
  Press(Qt::Key_Space);
  EXPECT_EQ(Left(), QStringList({QStringLiteral("Untitled 3"), QStringLiteral("Untitled 1")}));
  // The focus goes on to the page that came after it.
  EXPECT_EQ(Focus(), "Restore Untitled 1");
  Press(Qt::Key_Return);
  EXPECT_TRUE(WaitFor([this] { return Left().size() == 1; }));
  EXPECT_EQ(Slots().PageCount(), 1);
  EXPECT_EQ(Component(*Slots().Page(1)).DocumentHTML(),
            QStringLiteral("<p>unsaved Untitled 1</p>"));
}

TEST_F(RecoveryBars, WithALongListTheButtonInFocusIsInSight) {
  for (int i = 1; i <= 200; ++i)
    journals.AddAbandoned(Page({}, QStringLiteral("Untitled %1").arg(i)));
  Offer();
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  auto *rows = Find<QWidget>("picRecoveryRows");
  ASSERT_TRUE(WaitFor([rows] { return rows->height() >= rows->sizeHint().height(); }));
  QTest::keyClick(&window, Qt::Key_G, Qt::AltModifier);
  const auto isInSight = [this] {
    auto *scroller = Bar().findChild<QScrollArea *>();
    const QWidget *focus = QApplication::focusWidget();
    const QRect there(focus->mapTo(scroller->viewport(), QPoint(0, 0)), focus->size());
    return scroller->viewport()->rect().contains(there);
  };
  for (const Qt::Key key : {Qt::Key_End, Qt::Key_Home, Qt::Key_Down, Qt::Key_Down, Qt::Key_Down,
                            Qt::Key_Down, Qt::Key_Down}) {
    QTest::keyClick(QApplication::focusWidget(), key);
    EXPECT_TRUE(WaitFor(isInSight)) << key;
  }
  EXPECT_EQ(QApplication::focusWidget()->accessibleName(), QStringLiteral("Restore Untitled 195"));
}

TEST_F(RecoveryBars, SaysThatASourceWasNotAppliedAndShowsIt) {
  JournalledPage page = Page(IndexFile, QStringLiteral("index.htm"));
  page.source = QStringLiteral("<p>typed</p>");
  journals.AddAbandoned(page);
  Offer();
  EXPECT_TRUE(Note().contains(QStringLiteral("HTML source not applied")));
  Buttons("cmdShow")[0]->click();
  EXPECT_EQ(components.browsers[0]->html, QStringLiteral("<p>typed</p>"));
  Buttons("cmdRestore")[0]->click();
  EXPECT_EQ(Slots().CodeEditor(1)->Code().Text(), QStringLiteral("<p>typed</p>"));
}

TEST_F(RecoveryBars, AJournalThatCannotBeReadCanOnlyBeDiscarded) {
  journals.defects << QStringLiteral("/state/1.page cannot be read: it is not a file.");
  Offer();
  EXPECT_TRUE(Note().contains(journals.defects[0]));
  EXPECT_FALSE(Buttons("cmdRestore")[0]->isEnabled());
  EXPECT_FALSE(Buttons("cmdShow")[0]->isEnabled());
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  QTest::keyClick(&window, Qt::Key_G, Qt::AltModifier);
  EXPECT_EQ(QApplication::focusWidget(), Buttons("cmdDiscard")[0]);
  Buttons("cmdDiscard")[0]->click();
  EXPECT_FALSE(Bar().isVisible());
}

TEST_F(RecoveryBars, WhatCannotBeReadComesLast) {
  journals.defects << QStringLiteral("/state/1.page cannot be read: it is not a file.");
  journals.AddAbandoned(Page(IndexFile, QStringLiteral("index.htm")));
  Offer();
  EXPECT_EQ(Buttons("cmdRestore")[0]->accessibleName(), QStringLiteral("Restore index.htm"));
  EXPECT_TRUE(Buttons("cmdRestore")[0]->isEnabled());
  EXPECT_FALSE(Buttons("cmdRestore")[1]->isEnabled());
}

TEST_F(RecoveryBars, MissingLastChangesAreToldWhenThePageIsRestored) {
  journals.AddAbandoned(Page(IndexFile, QStringLiteral("index.htm")));
  journals.endsAreMissing = true;
  Offer();
  Buttons("cmdRestore")[0]->click();
  EXPECT_EQ(Slots().PageCount(), 1);
  EXPECT_EQ(window.statusBar()->currentMessage(),
            QStringLiteral("The journal of index.htm is damaged: its last changes are missing"));
}

TEST_F(RecoveryBars, WhereNothingCanBeKeptTheStatusBarSaysSo) {
  journals.hindrance = QStringLiteral("Path not found");
  Offer();
  EXPECT_EQ(window.statusBar()->currentMessage(),
            QStringLiteral("Recovery is off, unsaved changes cannot be kept: Path not found"));
}

TEST_F(RecoveryBars, APageWhoseFileIsOpenComesToTheFrontAndItsRowStays) {
  WriteFile(IndexFile);
  SharedDialog().ExpectOpen(IndexFile);
  Choose("mnuOpen");
  NewPage();
  journals.AddAbandoned(Page(IndexFile, QStringLiteral("index.htm")));
  Offer();
  Buttons("cmdRestore")[0]->click();
  EXPECT_EQ(Slots().PageCount(), 2);
  EXPECT_EQ(Tabs().currentIndex(), 0);
  EXPECT_EQ(window.statusBar()->currentMessage(),
            QStringLiteral("index.htm is open already. Close it, then restore what was kept"));
  Find<QPushButton>("cmdRestoreAll")->click();
  EXPECT_EQ(Slots().PageCount(), 2);
  Slots().Page(1)->close();
  Buttons("cmdRestore")[0]->click();
  EXPECT_EQ(Slots().PageCount(), 3);
  EXPECT_FALSE(Bar().isVisible());
}

TEST_F(RecoveryBars, ARestoredPageThatNoJournalHoldsIsOpenedOnceHoweverOftenItIsAskedFor) {
  journals.AddAbandoned(Page({}, QStringLiteral("Untitled 1")));
  journals.writeFailure = ErrorNumber::DiskFull;
  Offer();
  for (int times = 0; times < 3; ++times) {
    Buttons("cmdRestore")[0]->click();
    Find<QPushButton>("cmdRestoreAll")->click();
  }
  EXPECT_EQ(Slots().PageCount(), 1);
  journals.writeFailure.reset();
  Buttons("cmdRestore")[0]->click();
  EXPECT_EQ(Slots().PageCount(), 1);
  EXPECT_FALSE(Bar().isVisible());
  EXPECT_EQ(journals.Written().size(), 1U);
}

TEST_F(RecoveryBars, WhatFollowsIsOfferedWhenTheListIsDone) {
  journals.AddAbandoned(Page({}, QStringLiteral("Untitled 1")));
  Offer();
  journals.AddAbandoned(Page({}, QStringLiteral("Untitled 2")));
  Buttons("cmdDiscard")[0]->click();
  ASSERT_EQ(Buttons("cmdDiscard").size(), 1);
  EXPECT_EQ(Buttons("cmdDiscard")[0]->accessibleName(), QStringLiteral("Discard Untitled 2"));
}

TEST_F(RecoveryBars, EveryControlSaysWhatItIsFor) {
  journals.AddAbandoned(Page(IndexFile, QStringLiteral("index.htm")));
  Offer();
  EXPECT_EQ(Bar().accessibleName(), QStringLiteral("Recovered pages"));
  EXPECT_EQ(Buttons("cmdRestore")[0]->accessibleName(), QStringLiteral("Restore index.htm"));
  EXPECT_EQ(Buttons("cmdShow")[0]->accessibleName(), QStringLiteral("Show index.htm"));
  EXPECT_EQ(Buttons("cmdDiscard")[0]->accessibleName(), QStringLiteral("Discard index.htm"));
}

TEST_F(RecoveryBars, LongNamesAndPathsLeaveTheButtonsInSight) {
  const QString name = QStringLiteral("a-very-long-name-").repeated(14) + QStringLiteral(".htm");
  journals.AddAbandoned(Page(QStringLiteral("\\site\\") + name, name));
  QFont large = window.font();
  large.setPointSizeF(2 * large.pointSizeF());
  Bar().setFont(large);
  Offer();
  window.resize(900, 600);
  QPushButton *last = Buttons("cmdDiscard")[0];
  const auto isInSight = [&] {
    return Bar().rect().contains(QRect(last->mapTo(&Bar(), QPoint(0, 0)), last->size()));
  };
  EXPECT_TRUE(WaitFor(isInSight));
}

TEST_F(RecoveryBars, ManyPagesLeaveRoomForTheOthers) {
  for (int i = 1; i <= 30; ++i)
    journals.AddAbandoned(Page({}, QStringLiteral("Untitled %1").arg(i)));
  EXPECT_LT(Offer().sizeHint().height(), window.height() / 3);
  EXPECT_EQ(Buttons("cmdRestore").size(), 30);
}

}  // namespace
}  // namespace velor
