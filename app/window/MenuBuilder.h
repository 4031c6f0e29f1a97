// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/window/MenuTable.h"
#include "chrome/MenuPainter.h"

#include <QHash>
#include <QString>

#include <functional>
#include <map>

class QAction;
class QMainWindow;
class QMenu;

namespace velor {

/// The menus made from the table.
struct Menus {
  /// Menus and popups by name.
  QHash<QString, QMenu *> menus;
  /// Items by the command that they run.
  std::map<Command, QAction *> items;
};

/// Makes every menu of the table in `window`; an item chosen runs its command through `run`.
/// Captions stand in the actions exactly as in the table; names are object names.
Menus BuildMenus(QMainWindow &window, Additions additions,
                 const std::function<void(const Command &)> &run);

/// The pictures beside the items, under the items' names in lower case.
ImageList MenuImages();

}  // namespace velor
