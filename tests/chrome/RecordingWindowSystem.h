// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/WindowSystem.h"

#include <QHash>
#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

#include <utility>

namespace velor {

/// A window system of invented windows that writes down what is asked of it.
class RecordingWindowSystem final : public WindowSystem {
 public:
  struct Window {
    std::int32_t style = 0;
    std::int32_t extendedStyle = 0;
    WindowHandle parent = 0;
    WindowHandle firstChild = 0;
    QHash<QString, WindowHandle> childrenOfClass = {};
    PixelRect client = {};
    PixelRect onScreen = {};
    bool enabled = true;
    bool dropped = false;
  };

  QHash<WindowHandle, Window> windows;
  QStringList calls;
  /// "window message", in the order of attaching.
  QStringList hooks;
  /// "window id period".
  QStringList timers;
  WindowHandle underCursor = 0;
  QSet<std::uint32_t> unknownColors;

  WindowHandle HandleOf(QWidget &) override { return 0; }
  void AttachMessage(ISubclass &, WindowHandle window, std::int32_t message) override {
    hooks.append(Text({window, message}));
  }
  void DetachMessage(ISubclass &, WindowHandle window, std::int32_t message) override {
    if (!hooks.removeOne(Text({window, message}))) {
      calls.append(QStringLiteral("never hooked: ") + Text({window, message}));
    }
  }
  std::int32_t SendMessage(WindowHandle window, std::int32_t message) override {
    return message == 343 && windows[window].dropped ? 1 : 0;
  }
  std::int32_t Style(WindowHandle window) override { return windows[window].style; }
  std::int32_t ExtendedStyle(WindowHandle window) override { return windows[window].extendedStyle; }
  void SetExtendedStyle(WindowHandle window, std::int32_t style) override {
    windows[window].extendedStyle = style;
    calls.append(QStringLiteral("ex-style ") + Text({window, style}));
  }
  void SetPosition(WindowHandle window, std::int32_t flags) override {
    calls.append(QStringLiteral("position ") + Text({window, flags}));
  }
  bool IsEnabled(WindowHandle window) override { return windows[window].enabled; }
  WindowHandle Parent(WindowHandle window) override { return windows[window].parent; }
  WindowHandle FirstChild(WindowHandle window) override { return windows[window].firstChild; }
  WindowHandle FirstChildOfClass(WindowHandle window, const QString &className) override {
    return windows[window].childrenOfClass.value(className);
  }
  PixelRect ClientRect(WindowHandle window) override { return windows[window].client; }
  PixelRect WindowRect(WindowHandle window) override { return windows[window].onScreen; }
  PixelPoint ScreenToClient(WindowHandle window, PixelPoint point) override {
    const PixelRect &place = windows[window].onScreen;
    return {point.x - place.left, point.y - place.top};
  }
  PixelPoint CursorPosition() override { return {}; }
  WindowHandle WindowAt(PixelPoint) override { return underCursor; }
  std::int32_t TwipsPerPixelX() override { return 15; }
  std::int32_t TwipsPerPixelY() override { return 12; }
  std::int32_t Metric(std::int32_t index) override { return index == 10 || index == 21 ? 17 : 0; }
  void StartTimer(WindowHandle window, std::int32_t id, std::int32_t period) override {
    timers.append(Text({window, id, period}));
  }
  void StopTimer(WindowHandle window, std::int32_t id) override {
    timers.removeIf([&](const QString &timer) { return timer.startsWith(Text({window, id})); });
  }

  /// A colour of its own for each reference.
  std::int32_t TranslateColor(std::uint32_t reference) override {
    const bool known = !unknownColors.contains(reference);
    const std::int32_t color = known ? static_cast<std::int32_t>(reference & 0xff) : -1;
    calls.append(QStringLiteral("translate %1 to %2").arg(reference, 0, 16).arg(color));
    return color;
  }
  DeviceContext CreateDeviceContext(WindowHandle window) override {
    calls.append(QStringLiteral("take ") + Text({window}));
    return Context;
  }
  void DeleteDeviceContext(DeviceContext) override { calls.append(QStringLiteral("give back")); }
  Pen CreatePen(std::int32_t color) override {
    calls.append(QStringLiteral("create pen ") + Text({color}));
    return ++lastPen_;
  }
  Pen SelectPen(DeviceContext, Pen pen) override {
    calls.append(pen == 0 ? QStringLiteral("deselect") : QStringLiteral("select"));
    return std::exchange(selected_, pen);
  }
  void DeletePen(Pen) override { calls.append(QStringLiteral("delete pen")); }
  void MoveTo(DeviceContext, PixelPoint point) override {
    calls.append(QStringLiteral("move ") + Text({point.x, point.y}));
  }
  void LineTo(DeviceContext, PixelPoint point) override {
    calls.append(QStringLiteral("line ") + Text({point.x, point.y}));
  }

  static constexpr DeviceContext Context = 7;

  static QString Text(const QList<std::int32_t> &numbers) {
    QStringList texts;
    for (const std::int32_t number : numbers) texts.append(QString::number(number));
    return texts.join(u' ');
  }

 private:
  Pen lastPen_ = 0;
  Pen selected_ = 0;
};

}  // namespace velor
