// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <cstdint>

class QWidget;

namespace velor {

/// A window of the window system; every control is one. 0 is none. Handles are never reused; calls
/// with the handle of a window that is gone do nothing and return 0 or empty values.
using WindowHandle = std::int32_t;
/// A window's drawing surface, valid from CreateDeviceContext to DeleteDeviceContext.
using DeviceContext = std::int32_t;
/// A pen of one colour, valid from CreatePen to DeletePen.
using Pen = std::int32_t;

/// In device-independent pixels; right and bottom are exclusive.
struct PixelRect {
  std::int32_t left = 0;
  std::int32_t top = 0;
  std::int32_t right = 0;
  std::int32_t bottom = 0;
  bool operator==(const PixelRect &) const = default;
};

struct PixelPoint {
  std::int32_t x = 0;
  std::int32_t y = 0;
  bool operator==(const PixelPoint &) const = default;
};

/// Numbers of the messages that handlers are attached to or that are sent; published.
namespace Messages {
inline constexpr std::int32_t SetFocus = 7;
inline constexpr std::int32_t KillFocus = 8;
inline constexpr std::int32_t Enable = 10;
inline constexpr std::int32_t Paint = 15;
inline constexpr std::int32_t Command = 273;
inline constexpr std::int32_t Timer = 275;
/// Sent: whether a combo box shows its list.
inline constexpr std::int32_t GetDroppedState = 343;
inline constexpr std::int32_t MouseMove = 512;
inline constexpr std::int32_t LeftButtonDown = 513;
inline constexpr std::int32_t LeftButtonUp = 514;
/// The notification in the high word of Command when a combo box's list has closed.
inline constexpr std::int32_t DropDownClosed = 8;
}  // namespace Messages

/// Style bits and position flags; published numbers.
namespace WindowBits {
inline constexpr std::int32_t DropDownStyle = 0x2;
inline constexpr std::int32_t DropDownListStyle = 0x3;
inline constexpr std::int32_t ExtendedClientEdge = 0x200;
inline constexpr std::int32_t ExtendedStaticEdge = 0x20000;
inline constexpr std::int32_t PositionNoSize = 1;
inline constexpr std::int32_t PositionNoMove = 2;
inline constexpr std::int32_t PositionNoOrder = 4;
inline constexpr std::int32_t PositionNoActivate = 16;
inline constexpr std::int32_t PositionFrameChanged = 32;
}  // namespace WindowBits

/// Dynamic property of a widget: its extended style, once set; the widget is drawn accordingly.
inline constexpr const char *ExtendedStyleProperty = "velorExtendedStyle";

/// Indices of measures; published numbers.
namespace Metrics {
inline constexpr std::int32_t HorizontalThumb = 10;
inline constexpr std::int32_t HorizontalScrollArrow = 21;
}  // namespace Metrics

/// When a handler runs: before or after the window handles the message itself.
enum class MsgResponse : std::int32_t { Preprocess = 1, PostProcess = 2 };

/// Handles messages of windows that it is attached to (WindowSystem::AttachMessage).
class ISubclass {
 public:
  virtual ~ISubclass() = default;
  /// When to run for this message.
  virtual MsgResponse ISubclass_MsgResponse(std::int32_t message) const = 0;
  /// Called for each message. The parameters are those of the message; the result is not used.
  virtual std::int32_t ISubclass_WindowProc(WindowHandle hwnd, std::int32_t iMsg,
                                            std::int32_t wParam, std::int32_t lParam) = 0;
};

/// A message-based window system laid over the widgets: messages, styles, places, timers, drawing.
/// The flat painters are written against it (docs/decisions/flat-controls.md).
class WindowSystem {
 public:
  virtual ~WindowSystem() = default;

  virtual WindowHandle HandleOf(QWidget &widget) = 0;

  /// `handler` is called for that message of the window until it is detached, and outlives that.
  virtual void AttachMessage(ISubclass &handler, WindowHandle window, std::int32_t message) = 0;
  virtual void DetachMessage(ISubclass &handler, WindowHandle window, std::int32_t message) = 0;
  /// Sends a message at once and returns the window's answer.
  virtual std::int32_t SendMessage(WindowHandle window, std::int32_t message) = 0;

  virtual std::int32_t Style(WindowHandle window) = 0;
  virtual std::int32_t ExtendedStyle(WindowHandle window) = 0;
  virtual void SetExtendedStyle(WindowHandle window, std::int32_t style) = 0;
  /// Applies what the flags (WindowBits::Position...) do not exclude. Callers only ever announce a
  /// changed frame.
  virtual void SetPosition(WindowHandle window, std::int32_t flags) = 0;
  virtual bool IsEnabled(WindowHandle window) = 0;

  virtual WindowHandle Parent(WindowHandle window) = 0;
  virtual WindowHandle FirstChild(WindowHandle window) = 0;
  virtual WindowHandle FirstChildOfClass(WindowHandle window, const QString &className) = 0;

  virtual PixelRect ClientRect(WindowHandle window) = 0;
  /// In screen coordinates, the frame included.
  virtual PixelRect WindowRect(WindowHandle window) = 0;
  virtual PixelPoint ScreenToClient(WindowHandle window, PixelPoint point) = 0;
  virtual PixelPoint CursorPosition() = 0;
  /// The program's window at that point, else the screen's own window; never 0.
  virtual WindowHandle WindowAt(PixelPoint screenPoint) = 0;
  virtual std::int32_t TwipsPerPixelX() = 0;
  virtual std::int32_t TwipsPerPixelY() = 0;
  virtual std::int32_t Metric(std::int32_t index) = 0;

  /// Sends Messages::Timer to the window at this interval until StopTimer.
  virtual void StartTimer(WindowHandle window, std::int32_t id, std::int32_t milliseconds) = 0;
  virtual void StopTimer(WindowHandle window, std::int32_t id) = 0;

  /// The colour (red in the low byte) of a system colour's reference, which is its index with the
  /// top bit set; -1 for an unknown one.
  virtual std::int32_t TranslateColor(std::uint32_t reference) = 0;
  virtual DeviceContext CreateDeviceContext(WindowHandle window) = 0;
  virtual void DeleteDeviceContext(DeviceContext context) = 0;
  virtual Pen CreatePen(std::int32_t color) = 0;
  /// Returns the pen that was selected before.
  virtual Pen SelectPen(DeviceContext context, Pen pen) = 0;
  virtual void DeletePen(Pen pen) = 0;
  virtual void MoveTo(DeviceContext context, PixelPoint point) = 0;
  /// Draws a horizontal or vertical line from the current point, without its end pixel, and moves
  /// there.
  virtual void LineTo(DeviceContext context, PixelPoint point) = 0;
};

}  // namespace velor
