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
/// Qt draws inside paint events only. So what a handler draws is kept, for each window that it
/// draws on, and put on top of the window's own painting inside each of its paint events; drawing
/// anything else than what is kept asks for a paint event. Messages other than paint come by the
/// event loop, right after the widget's own treatment of the event.
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
  DeviceContext TakeDeviceContext(WindowHandle window) override;
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
  /// Who is drawing: the handler that runs and the window whose message it got.
  struct Author {
    ISubclass *handler = nullptr;
    WindowHandle window = 0;
  };
  using TimerKey = std::pair<WindowHandle, std::int32_t>;

  QWidget *Find(WindowHandle window) const { return widgets_.value(window); }
  /// 0 for a widget that was never asked about, or that is being destroyed.
  WindowHandle KnownHandle(const QWidget &widget) const;
  bool IsHooked(WindowHandle window, std::int32_t message) const;
  /// Sees the events of the widget from now on.
  void Watch(QWidget &widget);
  void WatchDropDown(QWidget &widget);
  void Forget(WindowHandle window);
  /// Delivers to those that come before the window's own treatment, and after it to the others.
  void Bring(const Notice &notice);
  void Deliver(const Notice &notice, MsgResponse stage);
  void BringDropDownClosed(const QWidget &combo);
  void PaintOnTop(QWidget &widget, QEvent *event);
  void RefreshInkOf(WindowHandle author);

  QHash<WindowHandle, QPointer<QWidget>> widgets_;
  WindowHandle lastHandle_ = ScreenWindow;
  QSet<WindowHandle> watched_;
  std::vector<Hook> hooks_;
  Author author_;
  /// The window whose paint event runs, and whether its own painting does.
  WindowHandle painting_ = 0;
  bool ownPainting_ = false;
  InkTable ink_;
  DrawingContexts contexts_;
  std::map<TimerKey, QBasicTimer> timers_;
};

}  // namespace velor
