// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/WindowInk.h"

#include <algorithm>
#include <utility>

namespace velor {
namespace {

/// The pixels from one point towards another, which is left out; level or upright.
QRect LinePixels(PixelPoint from, PixelPoint to) {
  if (from.y == to.y) {
    return from.x <= to.x ? QRect(from.x, from.y, to.x - from.x, 1)
                          : QRect(to.x + 1, from.y, from.x - to.x, 1);
  }
  return from.y <= to.y ? QRect(from.x, from.y, 1, to.y - from.y)
                        : QRect(from.x, to.y + 1, 1, from.y - to.y);
}

}  // namespace

QRegion RegionOf(const Strokes &strokes) {
  QRegion region;
  for (const Stroke &stroke : strokes) region += stroke.pixels;
  return region;
}

QRegion InkTable::Replace(Ink ink) {
  const auto place = std::ranges::find_if(all_, [&](const Ink &known) {
    return known.handler == ink.handler && known.surface == ink.surface;
  });
  if (place == all_.end()) {
    all_.push_back(std::move(ink));
    return RegionOf(all_.back().strokes);
  }
  if (place->strokes == ink.strokes) return {};
  const QRegion before = RegionOf(place->strokes);
  *place = std::move(ink);
  return before + RegionOf(place->strokes);
}

std::vector<InkTable::Ink> InkTable::RemoveOf(const ISubclass &handler) {
  const auto rest = std::stable_partition(all_.begin(), all_.end(),
                                          [&](const Ink &ink) { return ink.handler != &handler; });
  std::vector<Ink> taken(std::make_move_iterator(rest), std::make_move_iterator(all_.end()));
  all_.erase(rest, all_.end());
  return taken;
}

void InkTable::ForgetSurface(WindowHandle surface) {
  std::erase_if(all_, [surface](const Ink &ink) { return ink.surface == surface; });
}

DeviceContext DrawingContexts::Begin(WindowHandle surface) {
  drawings_[++lastContext_].surface = surface;
  return lastContext_;
}

DrawingContexts::Drawing DrawingContexts::End(DeviceContext context) {
  auto node = drawings_.extract(context);
  return node ? std::move(node.mapped()) : Drawing{};
}

Pen DrawingContexts::AddPen(std::int32_t color) {
  pens_[++lastPen_] = qRgb(color & 0xff, (color >> 8) & 0xff, (color >> 16) & 0xff);
  return lastPen_;
}

Pen DrawingContexts::Select(DeviceContext context, Pen pen) {
  return std::exchange(drawings_.at(context).pen, pen);
}

void DrawingContexts::MoveTo(DeviceContext context, PixelPoint point) {
  drawings_.at(context).at = point;
}

void DrawingContexts::LineTo(DeviceContext context, PixelPoint point) {
  Drawing &drawing = drawings_.at(context);
  const QRect pixels = LinePixels(drawing.at, point);
  if (!pixels.isEmpty()) drawing.strokes.push_back({pixels, pens_.at(drawing.pen)});
  drawing.at = point;
}

}  // namespace velor
