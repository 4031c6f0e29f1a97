// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "chrome/MenuPainter.h"

namespace velor {

class StylingSweeps;

/// The sweeps of the main window's load, in their order: flat combo boxes, thin edges, pictures in
/// its menus. Where there is no window system to paint on, and so no `sweeps`, only the last.
void StyleMainWindow(QWidget &window, StylingSweeps *sweeps, const ImageList &images,
                     MenuPainter &menus);

}  // namespace velor
