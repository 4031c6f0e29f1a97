// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace velor {

/// The markup for the picture on the clipboard; empty where there is none. A page that has a file
/// gets the picture as a file beside it, under a name that is free (picture1.png, picture2.png
/// ...); any other, and one whose folder cannot be written, within the address.
QString PastedPicture(const QString &nativePagePath);

}  // namespace velor
