// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QSize>
#include <QString>

namespace velor {

/// A picture file as the preview needs it.
struct LoadedPicture {
  /// The picture's own size in pixels, upright; empty for no picture.
  QSize pixels;
  /// Scaled to fit the bounds asked for, never enlarged. Null where only the size is known: a very
  /// large picture in a format that is decoded at full size.
  QImage preview;
};

/// Pixels of a loaded picture that go on one unit of the screen within `bounds` (in units): 1 for a
/// small picture, which is shown as large as a page shows it, up to `screenRatio` for one that
/// needs all of the screen's pixels.
qreal PreviewRatio(QSize picture, QSize bounds, qreal screenRatio);

/// Loads a picture. The empty path gives no picture; a file that is missing, damaged or of an
/// unknown format raises RuntimeError. `path` in logic form.
LoadedPicture LoadPicture(const QString &path, QSize bounds);

}  // namespace velor
