// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/ApplicationAccess.h"
#include "chrome/ColorPalette.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QMenu>
#include <QWindow>

#include <gtest/gtest.h>

namespace velor {
namespace {

/// Whether the object is a window of the program for assistive technology.
bool IsTold(const QObject &object) {
  QAccessibleInterface &program = *QAccessible::queryAccessibleInterface(qApp);
  for (int index = 0; index < program.childCount(); ++index) {
    QAccessibleInterface *child = program.child(index);
    EXPECT_EQ(program.indexOfChild(child), index);
    if (child->object() == &object) return true;
  }
  return false;
}

TEST(ApplicationAccess, WindowsOnTheScreenAreTold) {
  AnnounceSeenWindows();
  QWidget window;
  window.show();
  EXPECT_TRUE(IsTold(window));
}

TEST(ApplicationAccess, AnOpenMenuAndAnOpenPaletteAreToldAndGoWhenTheyClose) {
  AnnounceSeenWindows();
  QWidget window;
  window.show();
  QMenu menu(&window);
  menu.addAction(QStringLiteral("Cut"));
  ColorPalette palette(&window);
  for (QWidget *popup : {static_cast<QWidget *>(&menu), static_cast<QWidget *>(&palette)}) {
    EXPECT_FALSE(IsTold(*popup));
    popup->show();
    EXPECT_TRUE(IsTold(*popup));
    popup->hide();
    EXPECT_FALSE(IsTold(*popup));
  }
}

TEST(ApplicationAccess, TheListOfABoxBelongsToTheBox) {
  AnnounceSeenWindows();
  QComboBox box;
  box.addItem(QStringLiteral("Normal"));
  box.show();
  box.showPopup();
  EXPECT_FALSE(IsTold(*box.view()->window()));
  box.hidePopup();
}

}  // namespace
}  // namespace velor
