// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class QWidget;

namespace velor {

class PageArea;

/// F6 and Shift+F6 move the focus round the main window: from a page or a source, where Tab is a
/// key of the text, to the bars, and back. A bar is one stop, by its first control; within it Tab
/// goes on.
class PaneWalk final : public QObject {
  Q_OBJECT

 public:
  /// `area` is in `window`.
  PaneWalk(QWidget &window, PageArea &area);

 private:
  enum class Direction { Forward, Backward };

  void Go(Direction direction);
  /// The first control of each pane, in the order of Tab.
  QList<QWidget *> Stops() const;
  bool IsReachable(const QWidget &control) const;

  QWidget &window_;
  PageArea &area_;
};

}  // namespace velor
