// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "page/source/SourceRoles.h"

#include <QColor>

class QPalette;

namespace velor {

/// Legible (contrast 4.5 : 1 and better) on the palette's light or dark text background.
QColor SourceColor(SourceRole role, const QPalette &palette);

}  // namespace velor
