// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/CropRules.h"

#include <algorithm>
#include <cmath>

namespace velor {

namespace {

/// One side of a part: from `start`, `length` long.
struct Side {
  int start;
  int length;
};

/// A side whose first or last end, or both, are moved within `limit`.
Side Dragged(Side side, bool movesStart, bool movesEnd, int by, int limit) {
  const int end = side.start + side.length;
  if (movesStart && movesEnd)
    return {std::clamp(side.start + by, 0, limit - side.length), side.length};
  if (movesStart) {
    const int start = std::clamp(side.start + by, 0, end - 1);
    return {start, end - start};
  }
  if (movesEnd) return {side.start, std::clamp(side.length + by, 1, limit - side.start)};
  return side;
}

/// The longest that a side may become: where its start is dragged from its end, where its end is
/// dragged from its start, else from its middle.
int Room(Side side, bool movesStart, bool movesEnd, int limit) {
  const int end = side.start + side.length;
  if (movesStart) return end;
  if (movesEnd) return limit - side.start;
  return std::min(side.start + end, 2 * limit - side.start - end);
}

/// The side with that length, its fixed end or its middle where it was.
Side WithLength(Side side, int length, bool movesStart, bool movesEnd) {
  if (movesStart) return {side.start + side.length - length, length};
  if (movesEnd) return {side.start, length};
  return {side.start + (side.length - length) / 2, length};
}

int Rounded(double length) {
  return std::max(1, static_cast<int>(std::lround(length)));
}

}  // namespace

QRect DraggedPart(QSize picture, const QRect &part, int edges, QPoint by, double ratio) {
  const bool left = (edges & LeftEdge) != 0;
  const bool right = (edges & RightEdge) != 0;
  const bool top = (edges & TopEdge) != 0;
  const bool bottom = (edges & BottomEdge) != 0;
  const Side across{part.x(), part.width()};
  const Side down{part.y(), part.height()};
  Side wide = Dragged(across, left, right, by.x(), picture.width());
  Side high = Dragged(down, top, bottom, by.y(), picture.height());
  if (ratio > 0 && edges != 0 && edges != AllEdges) {
    const bool isByWidth = left || right;
    double width = isByWidth ? wide.length : high.length * ratio;
    // At a corner the side that was moved further leads.
    if (isByWidth && (top || bottom)) width = std::max(width, high.length * ratio);
    width = std::min({width, double(Room(across, left, right, picture.width())),
                      Room(down, top, bottom, picture.height()) * ratio});
    wide = WithLength(across, Rounded(width), left, right);
    high = WithLength(down, std::min(Rounded(width / ratio), picture.height()), top, bottom);
  }
  return PartWithin(picture, {wide.start, high.start, wide.length, high.length});
}

QRect PartWithin(QSize picture, const QRect &asked) {
  const int x = std::clamp(asked.x(), 0, picture.width() - 1);
  const int y = std::clamp(asked.y(), 0, picture.height() - 1);
  return {x, y, std::clamp(asked.width(), 1, picture.width() - x),
          std::clamp(asked.height(), 1, picture.height() - y)};
}

QRect TurnedPart(QSize picture, const QRect &part, Turn turn) {
  if (turn == Turn::Left)
    return {part.y(), picture.width() - part.x() - part.width(), part.height(), part.width()};
  return {picture.height() - part.y() - part.height(), part.x(), part.height(), part.width()};
}

int EdgesAt(const QRect &part, QPoint point, int reach) {
  const QRect around = part.adjusted(-reach, -reach, reach, reach);
  if (!around.contains(point)) return 0;
  const auto nearest = [reach](int at, int start, int length, int first, int last) {
    const int fromStart = std::abs(at - start);
    const int fromEnd = std::abs(start + length - at);
    if (std::min(fromStart, fromEnd) > reach) return 0;
    return fromStart < fromEnd ? first : last;
  };
  const int edges = nearest(point.x(), part.x(), part.width(), LeftEdge, RightEdge) |
                    nearest(point.y(), part.y(), part.height(), TopEdge, BottomEdge);
  return edges == 0 ? AllEdges : edges;
}

QSize ShownAfter(const PictureCut &cut, QSize pixels, QSize shown) {
  if (cut.quarterTurns % 2 != 0) {
    pixels.transpose();
    shown.transpose();
  }
  return {Rounded(double(cut.part.width()) * shown.width() / pixels.width()),
          Rounded(double(cut.part.height()) * shown.height() / pixels.height())};
}

}  // namespace velor
