// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pictures/CodedPicture.h"

#include <QPoint>
#include <QRect>
#include <QSize>

/// What a drag or a key does to the part of a picture that is cut out. All in the picture's pixels;
/// a part lies within its picture and is never empty.
namespace velor {

/// The edges of a part that a handle moves; a corner moves two, the inside all four.
enum PartEdge { LeftEdge = 1, TopEdge = 2, RightEdge = 4, BottomEdge = 8 };
inline constexpr int AllEdges = LeftEdge | TopEdge | RightEdge | BottomEdge;

/// The part after some of its edges were moved by so much. With a `ratio` of width to height, not
/// 0, the other side follows: from the opposite corner, at an edge from its middle.
QRect DraggedPart(QSize picture, const QRect &part, int edges, QPoint by, double ratio);

/// The nearest part to a rectangle that was asked for by numbers: the size gives way to the place.
QRect PartWithin(QSize picture, const QRect &asked);

/// Where the part is after the picture was turned.
QRect TurnedPart(QSize picture, const QRect &part, Turn turn);

/// Which edges of a part a point takes hold of that may be so far off: those of the nearest handle,
/// all of them inside, none outside.
int EdgesAt(const QRect &part, QPoint point, int reach);

/// The size of a picture on the page after it was cut: what stays of it is shown as large as
/// before.
QSize ShownAfter(const PictureCut &cut, QSize pixels, QSize shown);

}  // namespace velor
