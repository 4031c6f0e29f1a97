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

/// One row of the menu tree. Rows follow the order of display; a row lies in the menu `parent`
/// names, which stands above it (none: the menu bar).
struct MenuRow {
  const char *name;
  const char *caption;
  MenuKind kind = MenuKind::Item;
  const char *parent = nullptr;
  const char *shortcut = nullptr;
  Command command = {};
  /// Tells items of one name apart; 0 where the name is the only one.
  int index = 0;
  /// Key of the picture beside the item; none where it has no picture.
  const char *picture = nullptr;
  Reach reach = Reach::Published;
};

/// The menus that can be used only while a page is open.
inline constexpr std::array<const char *, 3> PageMenus{"mnuEdit_Top", "mnuInsert", "mnuTable"};

/// Every menu and item of the main window, the two popups included.
std::span<const MenuRow> MenuTable();

}  // namespace velor
