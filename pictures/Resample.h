// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QSize>

namespace velor {

/// The picture at another size, resampled as light adds up: in linear light, with premultiplied
/// alpha, by a Lanczos filter of three lobes. The result has the picture's colour space and 8 bits
/// a channel. Two threads share the rows and have ended when it returns; beside the picture and the
/// result it needs some hundred kilobytes. A null picture or an empty size gives a null picture.
QImage Resampled(const QImage &image, QSize size);

}  // namespace velor
