// SPDX-License-Identifier: GPL-3.0-or-later
// Messages, hooks and drawing. What windows are like is asked in QtWindowFacts.cpp.
#include "qt/QtWindowSystem.h"

#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QComboBox>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QStyle>
#include <QTimerEvent>

#include <algorithm>

namespace velor {
namespace {

/// The message that an event brings to the window; 0 for none.
std::int32_t MessageOf(const QEvent &event) {
  switch (event.type()) {
    case QEvent::FocusIn:
      return Messages::SetFocus;
    case QEvent::FocusOut:
      return Messages::KillFocus;
    case QEvent::EnabledChange:
      return Messages::Enable;
    case QEvent::Enter:
    case QEvent::MouseMove:
      return Messages::MouseMove;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseButtonRelease: {
      if (static_cast<const QMouseEvent &>(event).button() != Qt::LeftButton) return 0;
      return event.type() == QEvent::MouseButtonRelease ? Messages::LeftButtonUp
                                                        : Messages::LeftButtonDown;
    }
    default:
      return 0;
  }
}

/// The combo box whose list the widget holds.
QComboBox *DroppedFrom(const QWidget &widget) {
  return widget.windowType() == Qt::Popup ? qobject_cast<QComboBox *>(widget.parentWidget())
                                          : nullptr;
}

}  // namespace

void QtWindowSystem::AttachMessage(ISubclass &handler, WindowHandle window, std::int32_t message) {
  QWidget *widget = Find(window);
  if (!widget) return;
  hooks_.push_back({&handler, window, message});
  Watch(*widget);
  if (message == Messages::MouseMove) widget->setMouseTracking(true);
  if (message == Messages::Paint) {
    WatchDropDown(*widget);
    widget->update();
  }
}

void QtWindowSystem::DetachMessage(ISubclass &handler, WindowHandle window, std::int32_t message) {
  std::erase(hooks_, Hook{&handler, window, message});
  const auto remains = [&](const Hook &hook) { return hook.handler == &handler; };
  if (std::ranges::any_of(hooks_, remains)) return;
  for (const InkTable::Ink &ink : ink_.RemoveOf(handler)) {
    if (QWidget *surface = Find(ink.surface)) surface->update(RegionOf(ink.strokes));
  }
}

bool QtWindowSystem::IsHooked(WindowHandle window, std::int32_t message) const {
  return std::ranges::any_of(
      hooks_, [&](const Hook &hook) { return hook.window == window && hook.message == message; });
}

void QtWindowSystem::Watch(QWidget &widget) {
  const WindowHandle window = HandleOf(widget);
  if (watched_.contains(window)) return;
  watched_.insert(window);
  widget.installEventFilter(this);
  if (const auto *area = qobject_cast<QAbstractScrollArea *>(&widget)) {
    area->viewport()->installEventFilter(this);
    area->viewport()->setMouseTracking(true);
  }
}

void QtWindowSystem::WatchDropDown(QWidget &widget) {
  if (const auto *combo = qobject_cast<QComboBox *>(&widget)) {
    combo->view()->window()->installEventFilter(this);
  }
}

void QtWindowSystem::Dispatch(const Notice &notice) {
  if (!IsHooked(notice.window, notice.message)) return;
  Deliver(notice, MsgResponse::Preprocess);
  QMetaObject::invokeMethod(
      this, [this, notice] { Deliver(notice, MsgResponse::PostProcess); }, Qt::QueuedConnection);
}

void QtWindowSystem::Deliver(const Notice &notice, MsgResponse stage) {
  if (!Find(notice.window)) return;
  const std::vector<Hook> hooks = hooks_;
  for (const Hook &hook : hooks) {
    if (hook.window != notice.window || hook.message != notice.message) continue;
    if (hook.handler->ISubclass_MsgResponse(notice.message) != stage) continue;
    const QScopedValueRollback<Author> author(author_, {hook.handler, notice.window});
    hook.handler->ISubclass_WindowProc(notice.window, notice.message, notice.wParam, notice.lParam);
  }
}

void QtWindowSystem::DispatchDropDownClosed(const QWidget &combo) {
  const WindowHandle window = KnownHandle(combo);
  for (const WindowHandle told : {window, Parent(window)}) {
    Dispatch({told, Messages::Command, Messages::DropDownClosed * 65536, window});
  }
}

bool QtWindowSystem::eventFilter(QObject *object, QEvent *event) {
  auto *widget = qobject_cast<QWidget *>(object);
  if (!widget) return false;
  if (const QComboBox *combo = DroppedFrom(*widget)) {
    if (event->type() == QEvent::Hide) DispatchDropDownClosed(*combo);
    return false;
  }
  const WindowHandle window = KnownHandle(*widget);
  if (window == 0) return false;
  switch (event->type()) {
    case QEvent::Paint:
      // A viewport paints for itself.
      if ((ownPainting_ && painting_ == window) || Find(window) != widget) return false;
      PaintOnTop(*widget, event);
      return true;
    case QEvent::Move:
    case QEvent::Resize:
      Dispatch({window, Messages::Paint});
      return false;
    case QEvent::Show:
    case QEvent::Hide:
      RefreshInkOf(window);
      return false;
    default:
      if (const std::int32_t message = MessageOf(*event)) Dispatch({window, message});
      return false;
  }
}

void QtWindowSystem::PaintOnTop(QWidget &widget, QEvent *event) {
  const WindowHandle window = KnownHandle(widget);
  const QScopedValueRollback<WindowHandle> painting(painting_, window);
  Deliver({window, Messages::Paint}, MsgResponse::Preprocess);
  {
    const QScopedValueRollback<bool> own(ownPainting_, true);
    static_cast<QObject &>(widget).event(event);
  }
  const QScopedValueRollback<bool> own(ownPainting_, false);
  Deliver({window, Messages::Paint}, MsgResponse::PostProcess);
  QPainter painter(&widget);
  for (const InkTable::Ink &ink : ink_.All()) {
    const QWidget *author = Find(ink.author);
    if (ink.surface != window || !author || !author->isVisibleTo(author->parentWidget())) continue;
    for (const Stroke &stroke : ink.strokes) {
      painter.fillRect(stroke.pixels, QColor::fromRgb(stroke.color));
    }
  }
}

void QtWindowSystem::RefreshInkOf(WindowHandle author) {
  for (const InkTable::Ink &ink : ink_.All()) {
    QWidget *surface = Find(ink.surface);
    if (ink.author == author && surface) surface->update(RegionOf(ink.strokes));
  }
}

void QtWindowSystem::Forget(WindowHandle window) {
  RefreshInkOf(window);
  widgets_.remove(window);
  watched_.remove(window);
  std::erase_if(hooks_, [window](const Hook &hook) { return hook.window == window; });
  std::erase_if(timers_, [window](const auto &timer) { return timer.first.first == window; });
  ink_.ForgetSurface(window);
}

void QtWindowSystem::StartTimer(WindowHandle window, std::int32_t id, std::int32_t milliseconds) {
  if (Find(window)) timers_[{window, id}].start(milliseconds, Qt::PreciseTimer, this);
}

void QtWindowSystem::StopTimer(WindowHandle window, std::int32_t id) {
  timers_.erase({window, id});
}

void QtWindowSystem::timerEvent(QTimerEvent *event) {
  const auto timer = std::ranges::find_if(
      timers_, [event](const auto &entry) { return entry.second.timerId() == event->timerId(); });
  if (timer == timers_.end()) return;
  const auto [window, id] = timer->first;
  // A handler that was detached cannot stop its timer any more.
  if (!IsHooked(window, Messages::Timer)) {
    timers_.erase(timer);
    return;
  }
  const Notice notice{window, Messages::Timer, id};
  Deliver(notice, MsgResponse::Preprocess);
  Deliver(notice, MsgResponse::PostProcess);
}

DeviceContext QtWindowSystem::CreateDeviceContext(WindowHandle window) {
  if (QWidget *widget = Find(window)) Watch(*widget);
  return contexts_.Begin(window);
}

void QtWindowSystem::DeleteDeviceContext(DeviceContext context) {
  DrawingContexts::Drawing drawing = contexts_.End(context);
  QWidget *surface = Find(drawing.surface);
  if (!surface) return;
  // What a painter draws on its own control, and what the style draws below it, are mirrored alike.
  if (surface->isRightToLeft() && drawing.surface == author_.window)
    for (Stroke &stroke : drawing.strokes)
      stroke.pixels = QStyle::visualRect(Qt::RightToLeft, surface->rect(), stroke.pixels);
  const QRegion changed =
      ink_.Replace({author_.handler, drawing.surface, author_.window, std::move(drawing.strokes)});
  if (!changed.isEmpty() && painting_ != drawing.surface) surface->update(changed);
}

Pen QtWindowSystem::CreatePen(std::int32_t color) {
  return contexts_.AddPen(color);
}

Pen QtWindowSystem::SelectPen(DeviceContext context, Pen pen) {
  return contexts_.Select(context, pen);
}

void QtWindowSystem::DeletePen(Pen pen) {
  contexts_.RemovePen(pen);
}

void QtWindowSystem::MoveTo(DeviceContext context, PixelPoint point) {
  contexts_.MoveTo(context, point);
}

void QtWindowSystem::LineTo(DeviceContext context, PixelPoint point) {
  contexts_.LineTo(context, point);
}

}  // namespace velor
