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

/// The last drawing of each handler on each window.
class InkTable {
 public:
  /// The drawing of one handler on one window.
  struct Ink {
    const ISubclass *handler;
    WindowHandle surface;  ///< the window drawn on
    WindowHandle author;   ///< the window whose messages the handler gets
    Strokes strokes;
  };

  /// Replaces the drawing of the same handler and surface. Answers the pixels that changed; empty
  /// where the drawing is the same.
  QRegion Replace(Ink ink);
  /// Removes and returns a handler's drawings.
  std::vector<Ink> RemoveOf(const ISubclass &handler);
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

  /// A new device context for drawing on a window.
  DeviceContext Begin(WindowHandle surface);
  /// Ends a device context and returns what was drawn in it.
  Drawing End(DeviceContext context);
  Pen AddPen(std::int32_t color);
  void RemovePen(Pen pen) { pens_.erase(pen); }
  /// Makes a pen the context's; returns the one before.
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
