// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velor {

class Registry;

/// Whether the program does what goes beyond its published behaviour. Rows of the menu and toolbar
/// tables that do are marked with Reach::Beyond.
enum class Additions { Off, On };

/// What a menu, a menu item or a toolbar button belongs to. While additions are off, menus beyond
/// the published ones are not there, and what goes beyond in published places has no effect.
enum class Reach { Published, Beyond };

/// The preference PublishedOnly: "True" turns every addition off. Read at start.
Additions ReadAdditions(const Registry &registry);

}  // namespace velor
