// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/WindowSystem.h"
#include "qt/WindowInk.h"

#include <QBasicTimer>
#include <QHash>
#include <QObject>
#include <QPointer>
#include <QSet>
#include <QWidget>

#include <map>
#include <optional>
#include <utility>
#include <vector>

namespace velor {

/// The window system over Qt's widgets. A control that Qt makes of several widgets (a list and its
/// viewport) is one window.
///
/// Qt draws inside paint events only. What a handler draws on a window is therefore kept, and
/// painted over the window's own painting in each of its paint events. A drawing that differs from
/// the one kept schedules a paint event. Handlers get messages other than paint from the event
/// loop, right after the widget has handled the event.
class QtWindowSystem final : public QObject, public WindowSystem {
 public:
  QtWindowSystem() = default;

  WindowHandle HandleOf(QWidget &widget) override;
  void AttachMessage(ISubclass &handler, WindowHandle window, std::int32_t message) override;
  void DetachMessage(ISubclass &handler, WindowHandle window, std::int32_t message) override;
  std::int32_t SendMessage(WindowHandle window, std::int32_t message) override;
  std::int32_t Style(WindowHandle window) override;
  std::int32_t ExtendedStyle(WindowHandle window) override;
  void SetExtendedStyle(WindowHandle window, std::int32_t style) override;
  void SetPosition(WindowHandle window, std::int32_t flags) override;
  bool IsEnabled(WindowHandle window) override;
  WindowHandle Parent(WindowHandle window) override;
  WindowHandle FirstChild(WindowHandle window) override;
  WindowHandle FirstChildOfClass(WindowHandle window, const QString &className) override;
  PixelRect ClientRect(WindowHandle window) override;
  PixelRect WindowRect(WindowHandle window) override;
  PixelPoint ScreenToClient(WindowHandle window, PixelPoint point) override;
  PixelPoint CursorPosition() override;
  WindowHandle WindowAt(PixelPoint screenPoint) override;
  std::int32_t TwipsPerPixelX() override { return TwipsPerPixel; }
  std::int32_t TwipsPerPixelY() override { return TwipsPerPixel; }
  std::int32_t Metric(std::int32_t index) override;
  void StartTimer(WindowHandle window, std::int32_t id, std::int32_t milliseconds) override;
  void StopTimer(WindowHandle window, std::int32_t id) override;
  std::int32_t TranslateColor(std::uint32_t reference) override;
  DeviceContext CreateDeviceContext(WindowHandle window) override;
  void DeleteDeviceContext(DeviceContext context) override;
  Pen CreatePen(std::int32_t color) override;
  Pen SelectPen(DeviceContext context, Pen pen) override;
  void DeletePen(Pen pen) override;
  void MoveTo(DeviceContext context, PixelPoint point) override;
  void LineTo(DeviceContext context, PixelPoint point) override;

  bool eventFilter(QObject *object, QEvent *event) override;

 protected:
  void timerEvent(QTimerEvent *event) override;

 private:
  /// A pixel is 1/96 inch, a twip 1/1440.
  static constexpr std::int32_t TwipsPerPixel = 15;
  static constexpr WindowHandle ScreenWindow = 1;
  static constexpr const char *HandleProperty = "velorWindowHandle";

  struct Notice {
    WindowHandle window;
    std::int32_t message;
    std::int32_t wParam = 0;
    std::int32_t lParam = 0;
  };
  struct Hook {
    ISubclass *handler;
    WindowHandle window;
    std::int32_t message;
    bool operator==(const Hook &) const = default;
  };
  /// The handler that runs, and the window whose message it got.
  struct Author {
    ISubclass *handler = nullptr;
    WindowHandle window = 0;
  };
  using TimerKey = std::pair<WindowHandle, std::int32_t>;

  QWidget *Find(WindowHandle window) const { return widgets_.value(window); }
  /// 0 for a widget that was never asked about, or that is being destroyed.
  WindowHandle KnownHandle(const QWidget &widget) const;
  bool IsHooked(WindowHandle window, std::int32_t message) const;
  /// Filters the widget's events from now on.
  void Watch(QWidget &widget);
  /// Also those of a combo box's list, to tell when it closes.
  void WatchDropDown(QWidget &widget);
  /// Drops all that is kept for a window that is being destroyed.
  void Forget(WindowHandle window);
  /// Delivers a message to the handlers that want it before the window handles it (Preprocess) now,
  /// and to the others from the event loop.
  void Dispatch(const Notice &notice);
  /// Calls the handlers of a message that want it at that stage.
  void Deliver(const Notice &notice, MsgResponse stage);
  /// Tells the combo box and its parent that the list has closed.
  void DispatchDropDownClosed(const QWidget &combo);
  /// Lets the widget paint itself, then paints what the handlers drew on it.
  void PaintOnTop(QWidget &widget, QEvent *event);
  /// Schedules paint events where handlers of that window's messages have drawn.
  void RefreshInkOf(WindowHandle author);

  QHash<WindowHandle, QPointer<QWidget>> widgets_;
  WindowHandle lastHandle_ = ScreenWindow;
  QSet<WindowHandle> watched_;
  std::vector<Hook> hooks_;
  Author author_;
  WindowHandle painting_ = 0;  ///< the window whose paint event runs; 0 for none
  bool ownPainting_ = false;   ///< the widget of `painting_` is painting itself
  InkTable ink_;
  DrawingContexts contexts_;
  std::map<TimerKey, QBasicTimer> timers_;
};

}  // namespace velor
