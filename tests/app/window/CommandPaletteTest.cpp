// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/app/window/WindowFixture.h"

#include <QLineEdit>
#include <QListWidget>
#include <QTest>

namespace velor {
namespace {

using CommandPaletteTest = WindowFixture;

TEST_F(CommandPaletteTest, FindsACommandByWordsAndRunsItOnWhatIsInFront) {
  const auto type = [](QWidget &palette, const QString &words) {
    auto *line = palette.findChild<QLineEdit *>(QStringLiteral("txtWords"));
    line->setText(words);
    QTest::keyClick(line, Qt::Key_Return);
  };
  dialogs.ExpectModal([](QWidget &palette) {
    const auto *list = palette.findChild<QListWidget *>(QStringLiteral("lstCommands"));
    EXPECT_EQ(list->item(0)->text(), QStringLiteral("New Document (Ctrl+N)"));
    EXPECT_TRUE(list->findItems(QStringLiteral("Bold"), Qt::MatchExactly).isEmpty());
    palette.close();
  });
  Choose("mnuFindCommand");
  NewPage();
  log.clear();
  dialogs.ExpectModal([&](QWidget &palette) { type(palette, QStringLiteral("all SEL")); });
  Choose("mnuFindCommand");
  EXPECT_EQ(Commands(), QStringList(QStringLiteral("ExecCommand(5035)")));
  log.clear();
  dialogs.ExpectModal([&](QWidget &palette) { type(palette, QStringLiteral("no such thing")); });
  Choose("mnuFindCommand");
  EXPECT_TRUE(Commands().isEmpty());
}

TEST_F(CommandPaletteTest, WhatWasChosenLastIsFirstAtTheNextStartToo) {
  NewPage();
  QStringList first;
  const auto use = [&](MfrmProgram &program, const char *words) {
    dialogs.ExpectModal([&](QWidget &palette) {
      auto *line = palette.findChild<QLineEdit *>(QStringLiteral("txtWords"));
      const auto *list = palette.findChild<QListWidget *>(QStringLiteral("lstCommands"));
      first.clear();
      for (int row = 0; row < 3; ++row) first << list->item(row)->text();
      line->setText(QString::fromLatin1(words));
      QTest::keyClick(line, Qt::Key_Return);
    });
    program.findChild<QAction *>(QStringLiteral("mnuFindCommand"))->trigger();
  };
  use(window, "all sel");
  use(window, "undo");
  use(window, "all sel");
  use(window, "no such thing");
  const QStringList wanted = {QStringLiteral("Select All"), QStringLiteral("Undo"),
                              QStringLiteral("New Document (Ctrl+N)")};
  EXPECT_EQ(first, wanted) << first.join(u'|').toStdString();
  MfrmProgram next{platform, values};
  next.Load();
  next.findChild<QAction *>(QStringLiteral("mnuNew"))->trigger();
  first.clear();
  use(next, "no such thing");
  EXPECT_EQ(first, wanted) << first.join(u'|').toStdString();
}

TEST_F(CommandPaletteTest, FindsACommandByOtherWordsForItBehindThoseNamedSo) {
  NewPage();
  const auto found = [this](const char *words) {
    QStringList entries;
    dialogs.ExpectModal([&](QWidget &palette) {
      palette.findChild<QLineEdit *>(QStringLiteral("txtWords"))
          ->setText(QString::fromLatin1(words));
      const auto *list = palette.findChild<QListWidget *>(QStringLiteral("lstCommands"));
      for (int row = 0; row < list->count(); ++row) entries.append(list->item(row)->text());
      palette.close();
    });
    Choose("mnuFindCommand");
    return entries;
  };
  EXPECT_EQ(found("pict"),
            QStringList({QStringLiteral("Take Embedded Pictures Out into Files"),
                         QStringLiteral("Crop and Turn Picture"), QStringLiteral("Image")}));
  const QStringList pages = found("page");
  EXPECT_TRUE(pages.contains(QStringLiteral("New Document (Ctrl+N)")))
      << pages.join(u'|').toStdString();
  EXPECT_EQ(found("tab").constFirst(), QStringLiteral("Insert Table"));
  EXPECT_EQ(found("list"), QStringList({QStringLiteral("Number"), QStringLiteral("Bullet")}));
  EXPECT_EQ(found("style sheet"), QStringList(QStringLiteral("Page Properties")));
}

}  // namespace
}  // namespace velor
