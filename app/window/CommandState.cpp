// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/CommandState.h"

#include "app/window/CoolBar.h"
#include "app/window/MenuBuilder.h"

#include <QAction>
#include <QMenu>

namespace velor {

void CommandState::SetPageCommandsEnabled(bool enabled) {
  for (const char *menu : PageMenus) {
    menus_.menus.value(QString::fromLatin1(menu))->menuAction()->setEnabled(enabled);
  }
  bars_.SetPageButtonsEnabled(enabled);
}

void CommandState::SetSourceEditingEnabled(bool enabled) {
  sourceEditing_.setEnabled(enabled);
}

void CommandState::Refresh() {
  SetPageCommandsEnabled(tabs_.Count() > 0);
}

}  // namespace velor
