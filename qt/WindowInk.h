// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/WindowSystem.h"

#include <QColor>
#include <QRect>
#include <QRegion>

#include <map>
#include <vector>

class QPainter;

namespace velor {

/// Pixels of one colour, in the coordinates of the window drawn on.
struct Stroke {
  QRect pixels;
  QRgb color = 0;
  bool operator==(const Stroke &) const = default;
};

using Strokes = std::vector<Stroke>;

QRegion RegionOf(const Strokes &strokes);

/// What the handlers last drew, for each of them and each window drawn on.
class InkTable {
 public:
  /// One handler's drawing on one window, on account of the window whose messages it gets.
  struct Ink {
    const ISubclass *handler;
    WindowHandle surface;
    WindowHandle author;
    Strokes strokes;
  };

  /// The pixels that look different now; empty where the same is drawn again.
  QRegion Replace(Ink ink);
  /// Takes a handler's drawings away; returns them.
  std::vector<Ink> TakeOf(const ISubclass &handler);
  void ForgetSurface(WindowHandle surface);
  const std::vector<Ink> &All() const { return all_; }

 private:
  std::vector<Ink> all_;
};

/// Device contexts and pens between their making and their deletion.
class DrawingContexts {
 public:
  struct Drawing {
    WindowHandle surface = 0;
    Pen pen = 0;
    PixelPoint at;
    Strokes strokes;
  };

  DeviceContext Take(WindowHandle surface);
  Drawing Give(DeviceContext context);
  Pen AddPen(std::int32_t color);
  void RemovePen(Pen pen) { pens_.erase(pen); }
  Pen Select(DeviceContext context, Pen pen);
  void MoveTo(DeviceContext context, PixelPoint point);
  void LineTo(DeviceContext context, PixelPoint point);

 private:
  std::map<DeviceContext, Drawing> drawings_;
  std::map<Pen, QRgb> pens_;
  DeviceContext lastContext_ = 0;
  Pen lastPen_ = 0;
};

}  // namespace velor
