// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/MainWindow.h"

#include <QList>
#include <QMdiArea>
#include <QMdiSubWindow>

class QAction;
class QMenu;

namespace velor {

/// Where the child windows live: page windows, source editors, the preview. While none is open, a
/// hint stands there.
class PageArea final : public QMdiArea, public ChildWindows {
  Q_OBJECT

 public:
  explicit PageArea(QWidget *parent);

  void Adopt(QWidget *window) override;
  void Show(QWidget *window) override;
  /// The keyboard goes with it, but stays with whoever walks along the tabs by keyboard.
  void Activate(QWidget *window) override;
  void Hide(QWidget *window) override;
  void Release(QWidget *window) override;

  /// The window in front; null when none is open.
  QWidget *Current() const;
  /// The open windows in the order in which they were adopted.
  QList<QWidget *> OpenWindows() const;

 protected:
  void paintEvent(QPaintEvent *event) override;
  void changeEvent(QEvent *event) override;

 private:
  /// Brings the window used last to the front in place of one that is about to go. It goes only
  /// then: the area hands on being maximised from the window in front to the next one.
  void ActivateInPlaceOf(QMdiSubWindow *going);
};

/// Lists the area's open windows at the end of `menu` whenever it drops down, the one in front
/// checked; choosing one brings it to the front.
class WindowList final : public QObject {
  Q_OBJECT

 public:
  WindowList(QMenu &menu, PageArea &area, QObject *parent);

 private:
  void Refill();

  QMenu &menu_;
  PageArea &area_;
  QList<QAction *> entries_;
};

}  // namespace velor
