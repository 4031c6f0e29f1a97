// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/WindowStyling.h"

#include "chrome/StylingSweeps.h"

namespace velor {

void StyleMainWindow(QWidget &window, StylingSweeps *sweeps, const ImageList &images,
                     MenuPainter &menus) {
  if (sweeps) {
    sweeps->FlatComboSweep(window);
    sweeps->ThinEdgeSweep(window);
  }
  MenuPictureSweep(window, images, menus);
}

}  // namespace velor
