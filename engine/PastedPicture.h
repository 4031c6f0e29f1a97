// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class QImage;

namespace velor {

/// Markup (an IMG) for a picture from the clipboard, where the listener does not take it. For a
/// page with a file the picture is written beside it, under the first free name of picture1.png,
/// picture2.png
/// ... For a page without one, and where the folder cannot be written, the address holds the
/// picture itself (data:).
QString PastedPicture(const QImage &image, const QString &nativePagePath);

}  // namespace velor
