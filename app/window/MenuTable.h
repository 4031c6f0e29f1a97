// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/window/Additions.h"
#include "app/window/Command.h"

#include <array>
#include <span>

namespace velor {

enum class MenuKind {
  Menu,   ///< top-level menu or submenu
  Popup,  ///< a menu that only pops up
  Item,
  Separator,
};

/// One row of the menu tree, in the order of display. `parent` is the name of the menu that the row
/// is in, an earlier row; null for the menu bar.
struct MenuRow {
  const char *name;
  const char *caption;
  MenuKind kind = MenuKind::Item;
  const char *parent = nullptr;
  const char *shortcut = nullptr;
  Command command = {};
  /// Number among the items of the same name; 0 where the name is unique.
  int index = 0;
  /// Key of the picture beside the item; null for none.
  const char *picture = nullptr;
  Reach reach = Reach::Published;
  /// Further words by which the item is found in the list of commands; empty for none.
  const char *words = "";
};

/// The menus that are enabled only while a page is open.
inline constexpr std::array<const char *, 3> PageMenus{"mnuEdit_Top", "mnuInsert", "mnuTable"};

/// Every menu and item of the main window, the two popups included.
std::span<const MenuRow> MenuTable();

}  // namespace velor
