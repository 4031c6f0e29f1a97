// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace velor {

/// Markup (an IMG) for the picture on the clipboard; empty where there is none. For a page with a
/// file the picture is written beside it, under the first free name of picture1.png, picture2.png
/// ... For a page without one, and where the folder cannot be written, the address holds the
/// picture itself (data:).
QString PastedPicture(const QString &nativePagePath);

}  // namespace velor
