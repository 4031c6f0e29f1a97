// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>
#include <QString>

namespace velor {

/// The picture of a toolbar button or menu item by its key ("new", "bold", "Refresh" ...; letter
/// case does not matter, and a blank in it is a hyphen in the drawing's name). Line drawings on one
/// 24-unit grid, drawn anew in the application palette's colours at every size and screen
/// resolution, so they follow a change of palette and stay crisp. Disabled, and selected on the
/// highlight colour, they take those colours. A null icon for a key without a picture.
QIcon IconFor(const QString &key);

/// The program's own picture, for its windows.
QIcon ProgramIcon();

}  // namespace velor
