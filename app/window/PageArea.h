// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/window/Additions.h"
#include "app/window/Command.h"
#include "editor/MainWindow.h"

#include <QList>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPointer>

class QAction;
class QMenu;

namespace velor {

class FrontWindow;

/// The area of the child windows: page windows, source editors, the preview. While none is open it
/// shows a hint.
class PageArea final : public QMdiArea, public ChildWindows {
  Q_OBJECT

 public:
  PageArea(Additions additions, QWidget *parent);
  ~PageArea() override;

  void Adopt(QWidget *window) override;
  void Show(QWidget *window) override;
  /// Also moves the focus into the window, unless the person is choosing tabs by keyboard.
  void Activate(QWidget *window) override;
  void Hide(QWidget *window) override;
  void Release(QWidget *window) override;

  QWidget *Current() const override;
  /// The window in front; null when none is open.
  FrontWindow *Front() const;
  /// The open windows by page and kind, as additions have it; else in the order of their adoption.
  QList<QWidget *> OpenWindows() const;

  /// The name of an open window in titles and in the Window menu: FrontWindow::ShownName, with the
  /// path where two windows have the same.
  QString NameOf(const QWidget *window) const;

  /// Lays the open windows out side by side, each in a frame of its own. One that comes to the
  /// front by being opened fills the area again.
  void Arrange(Arrangement arrangement);

  /// Moves the focus into the window in front.
  void FocusFrontWindow();

 Q_SIGNALS:
  /// Another window has come to the front, or none is open any more.
  void FrontChanged();

 protected:
  void paintEvent(QPaintEvent *event) override;
  void changeEvent(QEvent *event) override;
  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  /// Activates the window used last before `going`. Called before `going` is removed, since the
  /// next window is maximised only if it is activated while the one in front still is.
  void ActivateInPlaceOf(QMdiSubWindow *going);
  void NoticeFront();
  /// Sets each frame's title to NameOf its window.
  void NameFrames();

  const Additions additions_;
  QPointer<QWidget> noticed_;   ///< the window in front when FrontChanged was last sent
  bool keepsKeyboard_ = false;  ///< somebody walks along the tabs by keyboard
};

/// Lists the area's open windows at the end of `menu` whenever it is opened, the one in front
/// checked. Choosing one activates it.
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
