// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QIcon>
#include <QString>

namespace velor {

/// The icon of a toolbar button or menu item by its key ("new", "bold", "Refresh" ...): the drawing
/// resources/icons/KEY.svg, the key in lower case with "-" for blanks. It is rendered in the
/// application palette's present colours at every size, screen resolution and state (disabled,
/// selected), so that it follows a change of palette. A null icon for a key without a drawing.
QIcon IconFor(const QString &key);

/// The program's own icon, for its windows.
QIcon ProgramIcon();

}  // namespace velor
