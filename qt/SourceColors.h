// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "page/source/SourceRoles.h"

#include <QColor>

class QPalette;

namespace velor {

/// The colour of a role on the palette's light or dark text background; its contrast is 4.5 : 1 or
/// better.
QColor SourceColor(SourceRole role, const QPalette &palette);

/// The colour of waves under unknown words, the one that they have in design view
/// (engine/bridge/spelling/waves.js). It is seen on light and dark backgrounds.
QColor UnknownWordColor();

}  // namespace velor
