// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/PageArea.h"

#include "app/window/PageAreaAccess.h"
#include "chrome/Captions.h"
#include "chrome/Palette.h"
#include "editor/FrontWindow.h"

#include <QApplication>
#include <QEvent>
#include <QMenu>
#include <QPainter>
#include <QScopedValueRollback>
#include <QShortcut>
#include <QTabBar>

#include <algorithm>
#include <utility>

namespace velor {
namespace {

/// The frame around an adopted window; null once the window has been released.
QMdiSubWindow *FrameOf(const QWidget *window) {
  return window ? qobject_cast<QMdiSubWindow *>(window->parentWidget()) : nullptr;
}

}  // namespace

PageArea::PageArea(Additions additions, QWidget *parent) : QMdiArea(parent), additions_(additions) {
  AnnounceSeenPages();
  setObjectName(QStringLiteral("PageArea"));
  setFrameShape(QFrame::NoFrame);
  setActivationOrder(QMdiArea::ActivationHistoryOrder);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  connect(this, &QMdiArea::subWindowActivated, this, &PageArea::NoticeFront);
  // Ctrl+F4 and Ctrl+F6, which Windows has for child windows. QMdiArea itself has Ctrl+W and
  // Ctrl+Tab.
  const auto onKey = [this](const QKeySequence &key, void (QMdiArea::*act)()) {
    connect(new QShortcut(key, this), &QShortcut::activated, this, act);
  };
  const QKeySequence close(Qt::CTRL | Qt::Key_F4);
  // On platforms with this standard shortcut the frames have it already, and two shortcuts for one
  // key disable each other.
  if (!QKeySequence::keyBindings(QKeySequence::Close).contains(close))
    onKey(close, &QMdiArea::closeActiveSubWindow);
  onKey(Qt::CTRL | Qt::Key_F6, &QMdiArea::activateNextSubWindow);
  onKey(Qt::CTRL | Qt::SHIFT | Qt::Key_F6, &QMdiArea::activatePreviousSubWindow);
}

PageArea::~PageArea() {
  // Frames that are deleted with the area report no activation.
  disconnect(this, &QMdiArea::subWindowActivated, this, nullptr);
}

void PageArea::Adopt(QWidget *window) {
  QMdiSubWindow *frame = addSubWindow(window);
  frame->setObjectName(window->objectName() + QStringLiteral("_Frame"));
  frame->hide();
  window->installEventFilter(this);
}

void PageArea::Show(QWidget *window) {
  QMdiSubWindow *frame = FrameOf(window);
  if (!frame) return;
  window->show();
  frame->showMaximized();
  setActiveSubWindow(frame);
  NoticeFront();
  window->setFocus();
}

void PageArea::Activate(QWidget *window) {
  QMdiSubWindow *frame = FrameOf(window);
  if (!frame) return;
  if (frame->isHidden() || frame->isMinimized()) {
    Show(window);
    return;
  }
  QWidget *tabs = qobject_cast<QTabBar *>(QApplication::focusWidget());
  const QScopedValueRollback keeping(keepsKeyboard_, tabs != nullptr);
  // Activating a frame moves the focus into it, wherever the focus was.
  setActiveSubWindow(frame);
  (tabs != nullptr ? tabs : window)->setFocus();
}

void PageArea::Hide(QWidget *window) {
  QMdiSubWindow *frame = FrameOf(window);
  if (!frame) return;
  ActivateInPlaceOf(frame);
  frame->hide();
  NoticeFront();
}

void PageArea::Release(QWidget *window) {
  QMdiSubWindow *frame = FrameOf(window);
  if (!frame) return;
  ActivateInPlaceOf(frame);
  frame->hide();
  frame->setWidget(nullptr);
  // The window deletes itself later (deleteLater); as a child it is deleted with the area at the
  // latest.
  window->setParent(this);
  removeSubWindow(frame);
  frame->deleteLater();
  NoticeFront();
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

FrontWindow *PageArea::Front() const {
  return dynamic_cast<FrontWindow *>(Current());
}

void PageArea::NoticeFront() {
  QWidget *front = Current();
  if (front != nullptr && front == noticed_) return;
  noticed_ = front;
  NameFrames();
  Q_EMIT FrontChanged();
  if (!keepsKeyboard_) FocusFrontWindow();
}

void PageArea::FocusFrontWindow() {
  if (QWidget *front = Current()) front->setFocus();
}

bool PageArea::eventFilter(QObject *watched, QEvent *event) {
  // Queued: the frame copies the window's title first. Frames are filtered too, and are left out:
  // their titles are set here.
  if (event->type() == QEvent::WindowTitleChange &&
      qobject_cast<QMdiSubWindow *>(watched) == nullptr)
    QMetaObject::invokeMethod(this, &PageArea::NameFrames, Qt::QueuedConnection);
  return QMdiArea::eventFilter(watched, event);
}

void PageArea::NameFrames() {
  for (QWidget *window : OpenWindows()) {
    const QString name = NameOf(window);
    if (FrameOf(window)->windowTitle() != name) FrameOf(window)->setWindowTitle(name);
  }
}

QString PageArea::NameOf(const QWidget *window) const {
  const auto *shown = dynamic_cast<const FrontWindow *>(window);
  if (shown == nullptr || additions_ == Additions::Off) return window->windowTitle();
  const QString name = shown->ShownName();
  const QList<QWidget *> windows = OpenWindows();
  const bool isShared = std::any_of(windows.begin(), windows.end(), [&](const QWidget *other) {
    const auto *another = dynamic_cast<const FrontWindow *>(other);
    return other != window && another != nullptr && another->ShownName() == name;
  });
  const QString path = shown->FilePath();
  return isShared && !path.isEmpty() ? QStringLiteral("%1 (%2)").arg(name, path) : name;
}

QList<QWidget *> PageArea::OpenWindows() const {
  QList<QWidget *> windows;
  for (const QMdiSubWindow *frame : subWindowList(QMdiArea::CreationOrder)) {
    if (!frame->isHidden() && frame->widget()) windows.append(frame->widget());
  }
  if (additions_ == Additions::Off) return windows;
  const auto place = [](const QWidget *window) {
    const auto *shown = dynamic_cast<const FrontWindow *>(window);
    return shown == nullptr ? std::pair(0, FrontView::Nothing)
                            : std::pair(shown->PageNumber(), shown->View());
  };
  std::stable_sort(windows.begin(), windows.end(), [&](const QWidget *one, const QWidget *other) {
    return place(one) < place(other);
  });
  return windows;
}

void PageArea::Arrange(Arrangement arrangement) {
  QWidget *front = Current();
  const QList<QWidget *> windows = OpenWindows();
  for (QWidget *window : windows) FrameOf(window)->showNormal();
  if (arrangement == Arrangement::Cascade) {
    cascadeSubWindows();
  } else {
    const QRect room = viewport()->rect();
    const bool isSideBySide = arrangement == Arrangement::Vertical;
    const auto count = std::max<qsizetype>(1, windows.size());
    const auto part = [count](int length, qsizetype index) {
      return static_cast<int>(length * index / count);
    };
    for (qsizetype index = 0; index < windows.size(); ++index) {
      QRect place = room;
      if (isSideBySide) {
        place.setLeft(part(room.width(), index));
        place.setRight(part(room.width(), index + 1) - 1);
      } else {
        place.setTop(part(room.height(), index));
        place.setBottom(part(room.height(), index + 1) - 1);
      }
      FrameOf(windows[index])->setGeometry(place);
    }
  }
  if (front != nullptr) Activate(front);
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
    QAction *entry = menu_.addAction(
        QStringLiteral("&%1 %2").arg(entries_.size()).arg(AsCaption(area_.NameOf(window))));
    entry->setCheckable(true);
    entry->setChecked(window == area_.Current());
    connect(entry, &QAction::triggered, window, [this, window] { area_.Activate(window); });
    entries_.append(entry);
  }
}

}  // namespace velor
