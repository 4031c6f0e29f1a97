// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/PageZoom.h"
#include "editor/frmMain.h"
#include "tests/app/window/WindowFixture.h"

#include <QLabel>
#include <QTest>
#include <QWheelEvent>

namespace velor {
namespace {

TEST(NextZoom, GoesByTheUsualFactorsAndStaysWithinThem) {
  EXPECT_DOUBLE_EQ(NextZoom(1, 1), 1.1);
  EXPECT_DOUBLE_EQ(NextZoom(1.1, -1), 1);
  EXPECT_DOUBLE_EQ(NextZoom(1.0999, 1), 1.25);
  EXPECT_DOUBLE_EQ(NextZoom(5, 1), 5);
  EXPECT_DOUBLE_EQ(NextZoom(0.25, -1), 0.25);
  EXPECT_DOUBLE_EQ(NextZoom(3, 0), 1);
}

class PageZoomTest : public WindowFixture {
 protected:
  QString TextForm() { return Find<QLabel>("Sta_2")->text(); }
  static bool Turn(QWidget &over, int angle, Qt::KeyboardModifiers modifiers) {
    QWheelEvent wheel(QPointF(5, 5), QPointF(5, 5), {}, {0, angle}, Qt::NoButton, modifiers,
                      Qt::NoScrollPhase, false);
    return QApplication::sendEvent(&over, &wheel);
  }
};

TEST_F(PageZoomTest, KeysZoomThePageInFrontAloneAndTheStatusBarTells) {
  frmMain &first = NewPage();
  frmMain &second = NewPage();
  const QString form = TextForm();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  QTest::keyClick(&window, Qt::Key_Plus, Qt::ControlModifier);
  QTest::keyClick(&window, Qt::Key_Equal, Qt::ControlModifier);
  EXPECT_DOUBLE_EQ(Component(second).zoom, 1.25);
  EXPECT_DOUBLE_EQ(Component(first).zoom, 1);
  EXPECT_EQ(TextForm(), form + QStringLiteral(", 125 %"));
  Parts().windows.Activate(&first);
  EXPECT_EQ(TextForm(), form);
  Parts().windows.Activate(&second);
  EXPECT_EQ(TextForm(), form + QStringLiteral(", 125 %"));
  QTest::keyClick(&window, Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_DOUBLE_EQ(Component(second).zoom, 1.1);
  QTest::keyClick(&window, Qt::Key_0, Qt::ControlModifier);
  EXPECT_DOUBLE_EQ(Component(second).zoom, 1);
  EXPECT_EQ(TextForm(), form);
}

TEST_F(PageZoomTest, TheWheelZoomsWithCtrlOnly) {
  frmMain &page = NewPage();
  QWidget &over = *page.DHTML1().Widget();
  Turn(over, 120, Qt::NoModifier);
  EXPECT_DOUBLE_EQ(Component(page).zoom, 1);
  Turn(over, 60, Qt::ControlModifier);
  EXPECT_DOUBLE_EQ(Component(page).zoom, 1);
  Turn(over, 60, Qt::ControlModifier);
  EXPECT_DOUBLE_EQ(Component(page).zoom, 1.1);
  Turn(over, -240, Qt::ControlModifier);
  EXPECT_DOUBLE_EQ(Component(page).zoom, 0.9);
}

TEST_F(PageZoomTest, ThePreviewHasItsOwnAndASourceHasNone) {
  frmMain &page = NewPage();
  const QString form = TextForm();
  page.ChangeMode(4);
  Choose("mnuZoomOut");
  EXPECT_DOUBLE_EQ(components.browsers.at(0)->zoom, 0.9);
  EXPECT_EQ(TextForm(), form + QStringLiteral(", 90 %"));
  Parts().windows.Activate(&page);
  page.ChangeMode(2);
  Choose("mnuZoomIn");
  EXPECT_DOUBLE_EQ(Component(page).zoom, 1);
  EXPECT_EQ(TextForm(), form);
}

}  // namespace
}  // namespace velor
