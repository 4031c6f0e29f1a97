// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/frmMain.h"
#include "tests/app/window/WindowFixture.h"

namespace velor {
namespace {

using WindowMenu = WindowFixture;

QStringList ListedWindows(QMenu &menu) {
  Q_EMIT menu.aboutToShow();
  QStringList listed;
  for (const QAction *entry : menu.actions().mid(3)) {
    const QString mark = entry->isChecked() ? QStringLiteral("*") : QString();
    listed.append(entry->isSeparator() ? QStringLiteral("-") : entry->text() + mark);
  }
  return listed;
}

TEST_F(WindowMenu, ListsTheOpenDocuments) {
  QMenu &menu = *Find<QMenu>("mnuWindow");
  EXPECT_EQ(ListedWindows(menu), QStringList());
  NewPage();
  NewPage();
  EXPECT_EQ(ListedWindows(menu), QStringList({QStringLiteral("-"), QStringLiteral("&1 Untitled 1"),
                                              QStringLiteral("&2 Untitled 2*")}));
}

TEST_F(WindowMenu, ListsThemByPageAndKind) {
  frmMain &first = NewPage();
  NewPage();
  first.ChangeMode(4);
  first.ChangeMode(3);
  const QStringList listed = ListedWindows(*Find<QMenu>("mnuWindow"));
  EXPECT_EQ(listed.join(u'|').toStdString(),
            "-|&1 Untitled 1|&2 Untitled 1, HTML source*|&3 Untitled 1, Preview|&4 Untitled 2");
}

TEST_F(WindowMenu, BringsAListedDocumentToTheFront) {
  frmMain &first = NewPage();
  NewPage();
  QMenu &menu = *Find<QMenu>("mnuWindow");
  ListedWindows(menu);
  menu.actions().at(4)->trigger();
  EXPECT_EQ(ListedWindows(menu).at(1), QStringLiteral("&1 Untitled 1*"));
  EXPECT_EQ(Parts().windows.Current(), &first);
}

TEST_F(WindowMenu, ArrangesTheOpenWindowsWithoutOneOverTheOther) {
  frmMain &first = NewPage();
  frmMain &second = NewPage();
  const auto place = [](frmMain &page) { return page.parentWidget()->geometry(); };
  Choose("mnuWindowTileVertical");
  EXPECT_FALSE(place(first).intersects(place(second)));
  EXPECT_EQ(place(first).top(), place(second).top());
  EXPECT_EQ(place(first).height(), place(second).height());
  Choose("mnuWindowTileHorizontal");
  EXPECT_FALSE(place(first).intersects(place(second)));
  EXPECT_EQ(place(first).left(), place(second).left());
  EXPECT_EQ(place(first).width(), place(second).width());
  Choose("mnuWindowCascade");
  EXPECT_NE(place(first).topLeft(), place(second).topLeft());
  EXPECT_EQ(Parts().windows.Current(), &second);
}

}  // namespace
}  // namespace velor
