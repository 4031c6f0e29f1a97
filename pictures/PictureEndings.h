// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringView>

namespace velor {

/// Picture files by what browsers and this program make of them.
enum class PictureKind {
  None,       ///< no picture
  Old,        ///< browsers show it, and it could be dropped into a page ever since
  New,        ///< browsers show it
  Converted,  ///< becomes one of the others when it is copied into a site
};

/// The kind of a file by the ending of its name.
PictureKind KindOfPicture(QStringView path);

}  // namespace velor
