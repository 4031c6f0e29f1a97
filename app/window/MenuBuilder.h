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

/// The menus and items that BuildMenus created.
struct Menus {
  /// Menus and pop-up menus by object name.
  QHash<QString, QMenu *> menus;
  /// Items by the command that they run; the first of the table where several do.
  std::map<Command, QAction *> items;
  /// Items by object name.
  QHash<QString, QAction *> named;
};

/// Creates all menus of the table in `window`. A chosen item calls `run` with its command. Names of
/// the table become object names; captions are taken unchanged.
Menus BuildMenus(QMainWindow &window, Additions additions,
                 const std::function<void(const Command &)> &run);

/// The pictures beside the items; their keys are the items' object names in lower case.
ImageList MenuImages();

}  // namespace velor
