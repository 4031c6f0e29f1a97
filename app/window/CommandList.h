// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/window/CommandPalette.h"

#include <QList>

namespace velor {

class FormattingBar;
class Registry;
struct Menus;

/// All commands of the menus and of the formatting bar, in their order. What the context menu
/// shares with another menu is there once, by the name in that menu.
QList<NamedCommand> CommandsOf(const Menus &menus, const FormattingBar &formatting);

/// The same commands with those first that a person chose from a palette, the last one at the
/// front. They are kept with the preferences.
QList<NamedCommand> LastUsedFirst(const Registry &registry, QList<NamedCommand> commands);
/// Notes that a command was chosen from a palette, by its name in the tables.
void NoteUse(Registry &registry, const QString &id);

}  // namespace velor
