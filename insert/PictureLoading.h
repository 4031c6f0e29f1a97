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
  /// Scaled down to fit `bounds` of LoadPicture, never enlarged. Null where the picture would take
  /// too much memory: its format can only be decoded at full size.
  QImage preview;
};

/// The device pixel ratio to show a loaded picture with in `bounds` (device-independent pixels). A
/// picture that fits has 1, as in a page; a larger one more, so that it fits, up to `screenRatio`.
qreal PreviewRatio(QSize picture, QSize bounds, qreal screenRatio);

/// Loads a picture with a preview for `bounds` (pixels). `path` in logic form; the empty path gives
/// no picture. Raises RuntimeError for a file that is missing, damaged or of an unknown format.
LoadedPicture LoadPicture(const QString &path, QSize bounds);

}  // namespace velor
