// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/TabBarAccess.h"

#include <QAccessible>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>

#include <gtest/gtest.h>

namespace velor {
namespace {

class TabBarAccessTest : public ::testing::Test {
 protected:
  TabBarAccessTest() {
    AnnounceTabStates();
    for (const char *name : {"&Image", "Black && White", "Video"})
      pages.addTab(new QWidget, QString::fromLatin1(name));
    pages.show();
  }
  QAccessibleInterface &Bar() { return *QAccessible::queryAccessibleInterface(pages.tabBar()); }
  QAccessible::State StateOf(int tab) { return Bar().child(tab)->state(); }

  QTabWidget pages;
};

TEST_F(TabBarAccessTest, TabsAreNamedByTheirTextsAndDescribedByTheirTips) {
  pages.setTabToolTip(0, QStringLiteral("/site/a.htm"));
  EXPECT_EQ(Bar().role(), QAccessible::PageTabList);
  EXPECT_EQ(Bar().child(0)->role(), QAccessible::PageTab);
  EXPECT_EQ(Bar().child(0)->text(QAccessible::Name), QStringLiteral("Image"));
  EXPECT_EQ(Bar().child(1)->text(QAccessible::Name), QStringLiteral("Black & White"));
  EXPECT_EQ(Bar().child(0)->text(QAccessible::Description), QStringLiteral("/site/a.htm"));
}

TEST_F(TabBarAccessTest, TheTabInFrontIsTheOneSelected) {
  for (const int front : {0, 2, 1}) {
    pages.setCurrentIndex(front);
    for (int tab = 0; tab < 3; ++tab) {
      EXPECT_TRUE(StateOf(tab).selectable);
      EXPECT_EQ(StateOf(tab).selected, tab == front) << tab;
      EXPECT_FALSE(StateOf(tab).focused) << "the keyboard is elsewhere";
    }
  }
}

TEST_F(TabBarAccessTest, ATabIsFocusedWhereItsBarHasTheKeyboard) {
  pages.tabBar()->setFocus();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&pages));
  EXPECT_TRUE(StateOf(0).focused);
  EXPECT_FALSE(StateOf(1).focused);
  EXPECT_EQ(Bar().focusChild(), Bar().child(0));
}

TEST_F(TabBarAccessTest, PagesThatAreOffOrHiddenAreNotAlive) {
  pages.setTabEnabled(1, false);
  pages.setTabVisible(2, false);
  EXPECT_FALSE(StateOf(0).disabled);
  EXPECT_TRUE(StateOf(1).disabled);
  EXPECT_TRUE(StateOf(2).invisible);
  EXPECT_FALSE(StateOf(0).invisible);
}

TEST_F(TabBarAccessTest, PressingATabBringsItsPageUpUnlessItIsOff) {
  pages.setTabEnabled(1, false);
  const QString press = QAccessibleActionInterface::pressAction();
  Bar().child(1)->actionInterface()->doAction(press);
  EXPECT_EQ(pages.currentIndex(), 0);
  Bar().child(2)->actionInterface()->doAction(press);
  EXPECT_EQ(pages.currentIndex(), 2);
}

TEST_F(TabBarAccessTest, EveryChildIsFoundAgainAtItsPlace) {
  ASSERT_GE(Bar().childCount(), 3);
  for (int index = 0; index < Bar().childCount(); ++index) {
    EXPECT_EQ(Bar().indexOfChild(Bar().child(index)), index);
    EXPECT_EQ(Bar().child(index)->parent(), &Bar());
  }
  EXPECT_EQ(Bar().child(Bar().childCount()), nullptr);
  const QPoint middle = Bar().child(1)->rect().center();
  EXPECT_EQ(Bar().childAt(middle.x(), middle.y()), Bar().child(1));
}

TEST_F(TabBarAccessTest, ATabThatWentIsNoLongerValid) {
  QAccessibleInterface *last = Bar().child(2);
  EXPECT_TRUE(last->isValid());
  pages.removeTab(2);
  EXPECT_FALSE(last->isValid());
}

}  // namespace
}  // namespace velor
