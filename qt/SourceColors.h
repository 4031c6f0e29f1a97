// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "page/source/SourceRoles.h"

#include <QColor>

class QPalette;

namespace velor {

/// The colour of a role on the palette's light or dark text background; its contrast is 4.5 : 1 or
/// better.
QColor SourceColor(SourceRole role, const QPalette &palette);

}  // namespace velor
