// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/settings/modSettingManager.h"
#include "app/window/PageTabs.h"
#include "tests/app/window/WindowFixture.h"

#include <QLineEdit>
#include <QListWidget>
#include <QTest>

#include <initializer_list>

namespace velor {
namespace {

class RecentFilesTest : public WindowFixture {
 protected:
  /// Makes files of the folder \site that were opened in this order.
  void Remember(std::initializer_list<const char *> names) {
    for (const char *name : names) {
      const QString path = QStringLiteral("\\site\\") + QString::fromLatin1(name);
      WriteFile(path);
      modSettingManager::AddToHistory(registry, path);
    }
  }
};

TEST_F(RecentFilesTest, AreListedLatestFirstAndOpen) {
  QMenu &recent = *Find<QMenu>("mnuRecent");
  const auto listed = [&recent] {
    Q_EMIT recent.aboutToShow();
    QStringList captions;
    for (const QAction *entry : recent.actions()) captions.append(entry->text());
    return captions;
  };
  EXPECT_EQ(listed(), QStringList(QStringLiteral("No file was opened yet")));
  EXPECT_FALSE(recent.actions().at(0)->isEnabled());
  Remember({"a.htm", "b.htm", "a.htm"});
  EXPECT_EQ(listed(),
            QStringList({QStringLiteral("&1 /site/a.htm"), QStringLiteral("&2 /site/b.htm")}));
  recent.actions().at(1)->trigger();
  ASSERT_EQ(Tabs().count(), 1);
  EXPECT_EQ(Tabs().tabText(0), QStringLiteral("b.htm"));
  EXPECT_EQ(Tabs().tabToolTip(0), QStringLiteral("/site/b.htm"));
}

TEST_F(RecentFilesTest, AreFifteenTheFirstNineWithADigit) {
  for (int number = 1; number <= 20; ++number)
    modSettingManager::AddToHistory(registry, QStringLiteral("\\site\\%1.htm").arg(number));
  QMenu &recent = *Find<QMenu>("mnuRecent");
  Q_EMIT recent.aboutToShow();
  ASSERT_EQ(recent.actions().size(), 15);
  EXPECT_EQ(recent.actions().at(8)->text(), QStringLiteral("&9 /site/12.htm"));
  EXPECT_EQ(recent.actions().at(9)->text(), QStringLiteral("10 /site/11.htm"));
}

TEST_F(RecentFilesTest, AreFoundByTheDesktopsActionByWordsOfTheirPaths) {
  Remember({"a&b.htm", "c d.htm"});
  dialogs.ExpectModal([](QWidget &palette) {
    EXPECT_EQ(palette.windowTitle(), QStringLiteral("Recent Files"));
    auto &list = *palette.findChild<QListWidget *>(QStringLiteral("lstCommands"));
    ASSERT_EQ(list.count(), 2);
    EXPECT_EQ(list.item(0)->text(), QStringLiteral("/site/c d.htm"));
    EXPECT_EQ(list.item(1)->text(), QStringLiteral("/site/a&b.htm"));
    auto *words = palette.findChild<QLineEdit *>(QStringLiteral("txtWords"));
    QTest::keyClicks(words, QStringLiteral("a&"));
    QTest::keyClick(words, Qt::Key_Return);
  });
  window.ShowRecentFiles();
  ASSERT_EQ(Tabs().count(), 1);
  EXPECT_EQ(Tabs().tabToolTip(0), QStringLiteral("/site/a&b.htm"));
}

}  // namespace
}  // namespace velor
