// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

namespace velor {

/// A picture file without what it says about place, time, person and device: EXIF, XMP, IPTC,
/// comments, texts, previews, and what follows a JPEG's end. Pixels are not coded anew; colour
/// profile, resolution and animation stay. Knows JPEG, PNG and WebP; a file of another kind, or a
/// damaged one, comes back as it is.
QByteArray WithoutPictureData(const QByteArray &file);

}  // namespace velor
