// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/frmMain.h"

#include <QApplication>
#include <QMouseEvent>
#include <QTest>

namespace velor {

/// The mouse at the grip beside a page that is shown at a width.
class WidthGrip {
 public:
  /// Presses the grip.
  explicit WidthGrip(frmMain &page)
      : grip_(*page.findChild<QWidget *>(QStringLiteral("picWidthGrip"))) {
    QTest::mousePress(&grip_, Qt::LeftButton, {}, Held);
  }
  /// Drags on by so many pixels from where the grip is now.
  void DragBy(int pixels) {
    QMouseEvent move(QEvent::MouseMove, Held, grip_.mapToGlobal(QPointF(Held + QPoint(pixels, 0))),
                     Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(&grip_, &move);
  }
  void Release() { QTest::mouseRelease(&grip_, Qt::LeftButton); }

 private:
  static constexpr QPoint Held{2, 2};
  QWidget &grip_;
};

}  // namespace velor
