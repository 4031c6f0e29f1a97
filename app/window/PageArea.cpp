// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/PageArea.h"

#include "chrome/Palette.h"

#include <QApplication>
#include <QEvent>
#include <QMenu>
#include <QPainter>
#include <QShortcut>
#include <QTabBar>

#include <algorithm>

namespace velor {
namespace {

/// The frame around an adopted window; null once the window has been released.
QMdiSubWindow *FrameOf(const QWidget *window) {
  return window ? qobject_cast<QMdiSubWindow *>(window->parentWidget()) : nullptr;
}

}  // namespace

PageArea::PageArea(QWidget *parent) : QMdiArea(parent) {
  setObjectName(QStringLiteral("PageArea"));
  setFrameShape(QFrame::NoFrame);
  setActivationOrder(QMdiArea::ActivationHistoryOrder);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  // The key that closes a child window where people come from; Ctrl+W is the frame's own.
  connect(new QShortcut(Qt::CTRL | Qt::Key_F4, this), &QShortcut::activated, this,
          &QMdiArea::closeActiveSubWindow);
}

void PageArea::Adopt(QWidget *window) {
  QMdiSubWindow *frame = addSubWindow(window);
  frame->setObjectName(window->objectName() + QStringLiteral("_Frame"));
  frame->hide();
}

void PageArea::Show(QWidget *window) {
  QMdiSubWindow *frame = FrameOf(window);
  if (!frame) return;
  window->show();
  frame->showMaximized();
  setActiveSubWindow(frame);
  window->setFocus();
}

void PageArea::Activate(QWidget *window) {
  QMdiSubWindow *frame = FrameOf(window);
  if (!frame) return;
  const bool walksAlongTabs = qobject_cast<QTabBar *>(QApplication::focusWidget()) != nullptr;
  if (frame->isHidden()) {
    Show(window);
  } else {
    setActiveSubWindow(frame);
    if (!walksAlongTabs) window->setFocus();
  }
}

void PageArea::Hide(QWidget *window) {
  QMdiSubWindow *frame = FrameOf(window);
  if (!frame) return;
  ActivateInPlaceOf(frame);
  frame->hide();
}

void PageArea::Release(QWidget *window) {
  QMdiSubWindow *frame = FrameOf(window);
  if (!frame) return;
  ActivateInPlaceOf(frame);
  frame->hide();
  frame->setWidget(nullptr);
  // The window deletes itself in its own time, but never later than the main window.
  window->setParent(this);
  removeSubWindow(frame);
  frame->deleteLater();
}

void PageArea::ActivateInPlaceOf(QMdiSubWindow *going) {
  const QList<QMdiSubWindow *> frames = subWindowList(QMdiArea::ActivationHistoryOrder);
  const auto last = std::find_if(
      frames.crbegin(), frames.crend(),
      [going](const QMdiSubWindow *frame) { return frame != going && !frame->isHidden(); });
  setActiveSubWindow(last == frames.crend() ? nullptr : *last);
  viewport()->update();
}

QWidget *PageArea::Current() const {
  const QMdiSubWindow *frame = currentSubWindow();
  return frame && !frame->isHidden() ? frame->widget() : nullptr;
}

QList<QWidget *> PageArea::OpenWindows() const {
  QList<QWidget *> windows;
  for (const QMdiSubWindow *frame : subWindowList(QMdiArea::CreationOrder)) {
    if (!frame->isHidden() && frame->widget()) windows.append(frame->widget());
  }
  return windows;
}

void PageArea::paintEvent(QPaintEvent *) {
  QPainter painter(viewport());
  painter.fillRect(viewport()->rect(), Backdrop(palette()));
  if (!OpenWindows().isEmpty()) return;
  QFont large = font();
  large.setPointSizeF(large.pointSizeF() * 1.25);
  painter.setFont(large);
  painter.setPen(QuietText(palette()));
  painter.drawText(viewport()->rect(), Qt::AlignCenter,
                   tr("New Document (Ctrl+N)  or  Open (Ctrl+O)"));
}

void PageArea::changeEvent(QEvent *event) {
  QMdiArea::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) viewport()->update();
}

WindowList::WindowList(QMenu &menu, PageArea &area, QObject *parent)
    : QObject(parent), menu_(menu), area_(area) {
  connect(&menu_, &QMenu::aboutToShow, this, &WindowList::Refill);
}

void WindowList::Refill() {
  qDeleteAll(entries_);
  entries_.clear();
  const QList<QWidget *> windows = area_.OpenWindows();
  if (windows.isEmpty()) return;
  entries_.append(menu_.addSeparator());
  for (QWidget *window : windows) {
    const QString caption = window->windowTitle().replace(u'&', QStringLiteral("&&"));
    QAction *entry = menu_.addAction(QStringLiteral("&%1 %2").arg(entries_.size()).arg(caption));
    entry->setCheckable(true);
    entry->setChecked(window == area_.Current());
    connect(entry, &QAction::triggered, window, [this, window] { area_.Activate(window); });
    entries_.append(entry);
  }
}

}  // namespace velor
