// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/FlatFrames.h"

#include "platform/RuntimeError.h"

namespace velor {
namespace {

using enum SystemColor;

std::int32_t Sum(std::int32_t one, std::int32_t other) {
  std::int32_t sum = 0;
  if (__builtin_add_overflow(one, other, &sum)) {
    throw RuntimeError::Of(ErrorNumber::Overflow, QStringLiteral("FlatFrames"));
  }
  return sum;
}

PixelRect Grown(const PixelRect &rect, std::int32_t pixels) {
  return {Sum(rect.left, -pixels), Sum(rect.top, -pixels), Sum(rect.right, pixels),
          Sum(rect.bottom, pixels)};
}

PixelRect Shrunk(const PixelRect &rect) {
  return Grown(rect, -1);
}

/// A pen that is created and selected, and at the end of its scope deselected and deleted.
class SelectedPen {
 public:
  SelectedPen(WindowSystem &windows, DeviceContext context, SystemColor color)
      : windows_(windows),
        context_(context),
        pen_(windows.CreatePen(windows.TranslateColor(static_cast<std::uint32_t>(color)))),
        before_(windows.SelectPen(context, pen_)) {}
  ~SelectedPen() {
    windows_.SelectPen(context_, before_);
    windows_.DeletePen(pen_);
  }
  SelectedPen(const SelectedPen &) = delete;
  SelectedPen &operator=(const SelectedPen &) = delete;

 private:
  WindowSystem &windows_;
  DeviceContext context_;
  Pen pen_;
  Pen before_;
};

/// A device context that is given back at the end of its scope.
class Canvas {
 public:
  Canvas(WindowSystem &windows, WindowHandle surface)
      : windows_(windows), context_(windows.CreateDeviceContext(surface)) {}
  ~Canvas() { windows_.DeleteDeviceContext(context_); }
  Canvas(const Canvas &) = delete;
  Canvas &operator=(const Canvas &) = delete;

  void Frame(const PixelRect &rect, SystemColor topLeft, SystemColor bottomRight) {
    FrameRect3D(windows_, context_, rect, topLeft, bottomRight);
  }

 private:
  WindowSystem &windows_;
  DeviceContext context_;
};

/// Paints the drop-down button of a combo box; `button` is its area inside two outer frames.
void PaintDropDown(Canvas &canvas, PixelRect button, FrameState state) {
  switch (state) {
    case FrameState::Idle:
      button.top = Sum(button.top, -1);
      button.bottom = Sum(button.bottom, 1);
      canvas.Frame(button, Highlight, Highlight);
      button.left = Sum(button.left, -1);
      button.right = button.left;
      canvas.Frame(button, Window, Window);
      break;
    case FrameState::Active:
      button.top = Sum(button.top, -1);
      button.bottom = Sum(button.bottom, 1);
      button.right = Sum(button.right, 1);
      canvas.Frame(button, Highlight, Shadow);
      break;
    case FrameState::Pressed:
      button.left = Sum(button.left, -1);
      button.top = Sum(button.top, -2);
      canvas.Frame(
          {Sum(button.left, 1), Sum(button.top, 1), Sum(button.right, 1), Sum(button.bottom, 1)},
          Shadow, Highlight);
      break;
    case FrameState::Disabled:
      break;
  }
}

}  // namespace

void FrameRect3D(WindowSystem &windows, DeviceContext context, const PixelRect &rect,
                 SystemColor topLeft, SystemColor bottomRight) {
  const std::int32_t lastRow = Sum(rect.bottom, -1);
  const std::int32_t lastColumn = Sum(rect.right, -1);
  {
    const SelectedPen pen(windows, context, topLeft);
    windows.MoveTo(context, {rect.left, lastRow});
    windows.LineTo(context, {rect.left, rect.top});
    windows.LineTo(context, {lastColumn, rect.top});
  }
  if (rect.left == rect.right) return;
  const SelectedPen pen(windows, context, bottomRight);
  windows.LineTo(context, {lastColumn, lastRow});
  windows.LineTo(context, {rect.left, lastRow});
}

void PaintEdge(WindowSystem &windows, WindowHandle surface, WindowHandle control,
               FrameState state) {
  const PixelRect onScreen = windows.WindowRect(control);
  const PixelPoint first = windows.ScreenToClient(surface, {onScreen.left, onScreen.top});
  const PixelPoint last = windows.ScreenToClient(surface, {onScreen.right, onScreen.bottom});
  const PixelRect place{first.x, first.y, last.x, last.y};
  Canvas canvas(windows, surface);
  switch (state) {
    case FrameState::Disabled:
      canvas.Frame(Grown(place, 1), Highlight, Highlight);
      break;
    case FrameState::Active:
      canvas.Frame(Grown(place, 2), Shadow, Highlight);
      break;
    default:
      canvas.Frame(Grown(place, 2), Face, Face);
      break;
  }
}

void PaintCombo(WindowSystem &windows, WindowHandle control, FrameState state) {
  const bool raised = state == FrameState::Active || state == FrameState::Pressed;
  PixelRect area = windows.ClientRect(control);
  Canvas canvas(windows, control);
  canvas.Frame(area, raised ? Shadow : Face, raised ? Highlight : Face);
  area = Shrunk(area);
  const SystemColor inner = state == FrameState::Disabled ? Highlight : Face;
  canvas.Frame(area, inner, inner);
  PixelRect button = Shrunk(area);
  button.left = Sum(button.right, -windows.Metric(Metrics::HorizontalThumb));
  canvas.Frame(button, Face, Face);
  button = Shrunk(button);
  canvas.Frame(button, Face, Face);
  PaintDropDown(canvas, button, state);
}

void PaintButton(WindowSystem &windows, WindowHandle control, FrameState state) {
  PixelRect area = windows.ClientRect(control);
  Canvas canvas(windows, control);
  switch (state) {
    case FrameState::Active:
      canvas.Frame(area, Highlight, Shadow);
      break;
    case FrameState::Pressed:
      canvas.Frame(area, Shadow, Highlight);
      break;
    default:
      canvas.Frame(area, Face, Face);
      break;
  }
  for (int ring = 0; ring < 2; ++ring) {
    area = Shrunk(area);
    canvas.Frame(area, Face, Face);
  }
}

void PaintScroll(WindowSystem &windows, WindowHandle control, FrameState state) {
  const bool active = state == FrameState::Active;
  PixelRect area = windows.ClientRect(control);
  Canvas canvas(windows, control);
  canvas.Frame(area, active ? Shadow : Face, active ? Highlight : Face);
  area = Shrunk(area);
  if (active) {
    canvas.Frame(area, Face, Face);
  } else {
    canvas.Frame(area, Highlight, Highlight);
    area = Shrunk(area);
  }
  const std::int32_t arrow = windows.Metric(Metrics::HorizontalScrollArrow);
  PixelRect left = area;
  PixelRect right = area;
  left.right = arrow;
  // The published frames of the two states differ by this pixel.
  right.left = Sum(Sum(area.right, -arrow), active ? 1 : 2);
  for (const PixelRect &button : {left, right}) {
    canvas.Frame(button, Face, Face);
    canvas.Frame(Shrunk(button), active ? Highlight : Face, active ? Shadow : Face);
  }
}

}  // namespace velor
