// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "chrome/MenuPainter.h"

namespace velor {

class StylingSweeps;

/// Styles the main window when it loads, in this order: flat combo boxes, thin edges, menu
/// pictures. Without `sweeps` only the last.
void StyleMainWindow(QWidget &window, StylingSweeps *sweeps, const ImageList &images,
                     MenuPainter &menus);

}  // namespace velor
