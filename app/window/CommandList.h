// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/window/CommandPalette.h"

#include <QList>

namespace velor {

class FormattingBar;
struct Menus;

/// All commands of the menus and of the formatting bar, in their order. What the context menu
/// shares with another menu is there once, by the name in that menu.
QList<NamedCommand> CommandsOf(const Menus &menus, const FormattingBar &formatting);

}  // namespace velor
