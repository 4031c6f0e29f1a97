// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QImage>
#include <QRect>
#include <QSize>

namespace velor {

/// The quality of pictures that are coded in a lossy format.
inline constexpr int PhotoQuality = 90;

/// The picture of a file, upright, of up to 100 megapixels and some. Raises RuntimeError (5) for
/// what is no picture.
QImage UprightPicture(const QByteArray &file);

QImage TurnedClockwise(const QImage &image, int quarterTurns);

/// A picture as a file of that format. A negative quality is the format's own. Raises RuntimeError
/// (5) where it cannot be coded.
QByteArray Coded(const QImage &image, const char *format, int quality);

/// Whether a picture file can be coded anew in its own format without losing what it is: JPEG, PNG
/// and WebP that do not move.
bool CanBeChanged(const QByteArray &file);

/// A picture file at another size, in its own format. Raises RuntimeError (5) unless CanBeChanged.
QByteArray Resized(const QByteArray &file, QSize size);

/// A picture file turned by 90 degrees, in its own format. Raises RuntimeError (5) unless
/// CanBeChanged.
enum class Turn { Left, Right };
QByteArray Turned(const QByteArray &file, Turn turn);

/// What is cut out of a picture, after it was turned clockwise so many times by 90 degrees.
struct PictureCut {
  QRect part;
  int quarterTurns = 0;
};
/// The part of a picture file inside a rectangle of its upright pixels, in its own format. Raises
/// RuntimeError (5) unless CanBeChanged, and where nothing is in the rectangle.
QByteArray Cropped(const QByteArray &file, const PictureCut &cut);

}  // namespace velor
