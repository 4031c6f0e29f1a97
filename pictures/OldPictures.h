// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QImage>
#include <QString>

namespace velor {

/// Reads a picture whose format Qt has no reader for, or one for the newest files alone: TGA
/// ("tga"), PCX ("pcx") and Sun raster ("ras"), all of them with and without run lengths. TGA files
/// cannot be told by their bytes, so `ending`, the end of the file's name in small letters,
/// decides. Null for any other ending and for bytes that are no whole picture of it. The formats
/// have not changed since 1991.
QImage ReadOldPicture(const QByteArray &bytes, const QString &ending);

}  // namespace velor
