// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/window/Additions.h"
#include "editor/MainWindow.h"

#include <QList>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPointer>

class QAction;
class QMenu;

namespace velor {

class FrontWindow;

/// Where the child windows live: page windows, source editors, the preview. While none is open, a
/// hint stands there.
class PageArea final : public QMdiArea, public ChildWindows {
  Q_OBJECT

 public:
  PageArea(Additions additions, QWidget *parent);
  ~PageArea() override;

  void Adopt(QWidget *window) override;
  void Show(QWidget *window) override;
  /// The keyboard goes with it, but stays with whoever walks along the tabs by keyboard.
  void Activate(QWidget *window) override;
  void Hide(QWidget *window) override;
  void Release(QWidget *window) override;

  QWidget *Current() const override;
  /// The window in front as commands see it; null when none is open.
  FrontWindow *Front() const;
  /// The open windows in the order in which they were adopted.
  QList<QWidget *> OpenWindows() const;

  /// What titles and the Window menu call an open window; with its path where two share a name.
  QString NameOf(const QWidget *window) const;

  /// Puts the keyboard into the window in front, where its caret is.
  void GiveKeyboard();

 Q_SIGNALS:
  /// Another window is in front, or none.
  void FrontChanged();

 protected:
  void paintEvent(QPaintEvent *event) override;
  void changeEvent(QEvent *event) override;
  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  /// Brings the window used last to the front in place of one that is about to go. It goes only
  /// then: the area hands on being maximised from the window in front to the next one.
  void ActivateInPlaceOf(QMdiSubWindow *going);
  void NoticeFront();
  /// Gives each frame the name that its window shows.
  void NameFrames();

  const Additions additions_;
  QPointer<QWidget> noticed_;   ///< the window in front when FrontChanged was last sent
  bool keepsKeyboard_ = false;  ///< somebody walks along the tabs by keyboard
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
