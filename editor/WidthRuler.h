// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QWidget>

namespace velor {

class PageFrame;

/// A ruler over a page that shows at which widths its style sheets change: a tick at each side,
/// where the page's edges are at that width. A click on one chooses the width, and so do the arrow
/// keys, from one to the next.
class WidthRuler final : public QWidget {
  Q_OBJECT

 public:
  /// `frame` outlives the ruler.
  WidthRuler(PageFrame &frame, QWidget *parent);

  /// The widths in CSS pixels, the smallest first. Without any the ruler is hidden.
  void SetBreakpoints(const QList<int> &widths);

  QSize sizeHint() const override;

 Q_SIGNALS:
  void Chosen(int width);

 protected:
  bool event(QEvent *event) override;
  void keyPressEvent(QKeyEvent *event) override;
  void mouseMoveEvent(QMouseEvent *event) override;
  void mousePressEvent(QMouseEvent *event) override;
  void paintEvent(QPaintEvent *event) override;

 private:
  /// Pixels from the middle of the page to its edges at that width.
  int Reach(int width) const;
  /// The breakpoint whose tick or number is at that place; 0 for none.
  int At(int x) const;

  PageFrame &frame_;
  QList<int> breakpoints_;
};

}  // namespace velor
