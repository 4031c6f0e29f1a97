// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/PageTabs.h"
#include "tests/support/Checks.h"

#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace velor {
namespace {

class PageTabsTest : public ::testing::Test {
 protected:
  PageTabsTest() {
    tabs.setObjectName(QStringLiteral("FileTab"));
    for (const char *key : {"key1", "key2", "key4"}) tabs.Add(QString::fromLatin1(key), 1);
    tabs.SetCaption(QStringLiteral("key1"), QStringLiteral("one.htm"));
    tabs.SetCaption(QStringLiteral("key2"), QStringLiteral("two.htm"));
    tabs.SetCaption(QStringLiteral("key4"), QStringLiteral("four.htm"));
    tabs.resize(tabs.sizeHint());
    tabs.show();
  }

  QStringList Captions() {
    QStringList captions;
    for (int i = 0; i < tabs.count(); ++i) captions.append(tabs.tabText(i));
    return captions;
  }

  void Click(int index) {
    QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(index).center());
  }

  PageTabs tabs{nullptr};
  QSignalSpy chosen{&tabs, &PageTabs::PageChosen};
};

TEST_F(PageTabsTest, KeepsTheOrderInWhichPagesCame) {
  EXPECT_EQ(Captions().join(u' ').toStdString(), "one.htm two.htm four.htm");
  EXPECT_FALSE(tabs.isMovable());
  EXPECT_FALSE(tabs.tabsClosable());
}

TEST_F(PageTabsTest, AnAmpersandIsALetterOfTheCaption) {
  tabs.SetCaption(QStringLiteral("key1"), QStringLiteral("a&b.htm"));
  EXPECT_EQ(tabs.tabText(0), QStringLiteral("a&&b.htm"));
}

TEST_F(PageTabsTest, UnknownKeysAndImagesAreErrors) {
  const QString text = QStringLiteral("x");
  const QString unknown = QStringLiteral("key3");
  EXPECT_EQ(ErrorOf([&] { tabs.SetCaption(unknown, text); }), ErrorNumber::ElementNotFound);
  EXPECT_EQ(ErrorOf([&] { tabs.Select(unknown); }), ErrorNumber::ElementNotFound);
  EXPECT_EQ(ErrorOf([&] { tabs.Remove(unknown); }), ErrorNumber::ElementNotFound);
  EXPECT_EQ(ErrorOf([&] { tabs.Add(unknown, 2); }), ErrorNumber::IndexOutOfBounds);
  EXPECT_EQ(tabs.count(), 3);
}

TEST_F(PageTabsTest, AClickTellsThePagesNumber) {
  Click(2);
  ASSERT_EQ(chosen.count(), 1);
  EXPECT_EQ(chosen[0][0].toInt(), 4);
}

TEST_F(PageTabsTest, AClickOnTheTabInFrontTellsItToo) {
  tabs.Select(QStringLiteral("key2"));
  Click(1);
  ASSERT_EQ(chosen.count(), 1);
  EXPECT_EQ(chosen[0][0].toInt(), 2);
}

TEST_F(PageTabsTest, TheArrowKeysChooseToo) {
  tabs.Select(QStringLiteral("key1"));
  QTest::keyClick(&tabs, Qt::Key_Right);
  ASSERT_EQ(chosen.count(), 1);
  EXPECT_EQ(chosen[0][0].toInt(), 2);
}

TEST_F(PageTabsTest, WhatTheProgramDoesTellsNobody) {
  tabs.Select(QStringLiteral("key4"));
  EXPECT_EQ(tabs.currentIndex(), 2);
  tabs.Remove(QStringLiteral("key4"));
  tabs.Add(QStringLiteral("key5"), 1);
  tabs.Clear();
  EXPECT_EQ(tabs.count(), 0);
  EXPECT_EQ(chosen.count(), 0);
}

TEST_F(PageTabsTest, ATabTellsItsFileAndUnsavedChanges) {
  const QString key = QStringLiteral("key2");
  EXPECT_EQ(tabs.tabToolTip(1), QStringLiteral("two.htm"));
  tabs.SetState(key, {.path = QStringLiteral("/site/two.htm")});
  EXPECT_EQ(tabs.tabToolTip(1), QStringLiteral("/site/two.htm"));
  const QImage before = tabs.grab(tabs.tabRect(1)).toImage();
  tabs.SetState(key, {.path = QStringLiteral("/site/two.htm"), .hasChanges = true});
  EXPECT_EQ(tabs.tabToolTip(1), QStringLiteral("/site/two.htm\nUnsaved changes"));
  EXPECT_NE(tabs.grab(tabs.tabRect(1)).toImage(), before);
  tabs.Remove(QStringLiteral("key1"));
  EXPECT_EQ(tabs.tabToolTip(0), QStringLiteral("/site/two.htm\nUnsaved changes"));
}

TEST_F(PageTabsTest, ATabTellsThatItsPageIsReadOnly) {
  const QImage before = tabs.grab(tabs.tabRect(1)).toImage();
  tabs.SetState(QStringLiteral("key2"),
                {.path = QStringLiteral("/cd/two.htm"), .hasChanges = true, .isReadOnly = true});
  EXPECT_EQ(tabs.tabToolTip(1), QStringLiteral("/cd/two.htm\nRead-only\nUnsaved changes"));
  EXPECT_NE(tabs.grab(tabs.tabRect(1)).toImage(), before);
}

TEST_F(PageTabsTest, ThePointerOnATabTellsWhereItsPageLies) {
  QSignalSpy pointed(&tabs, &PageTabs::Pointed);
  tabs.SetState(QStringLiteral("key2"), {.path = QStringLiteral("/site/two.htm")});
  QTest::mouseMove(&tabs, tabs.tabRect(1).center());
  ASSERT_FALSE(pointed.isEmpty());
  EXPECT_EQ(pointed.last().at(0).toString(), QStringLiteral("/site/two.htm"));
  QEvent leaves(QEvent::Leave);
  QApplication::sendEvent(&tabs, &leaves);
  EXPECT_EQ(pointed.last().at(0).toString(), QString());
}

}  // namespace
}  // namespace velor
