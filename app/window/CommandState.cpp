// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/CommandState.h"

#include "app/window/CoolBar.h"
#include "app/window/MenuBuilder.h"
#include "app/window/PageArea.h"

#include <QAction>
#include <QMenu>

namespace velor {
namespace {

bool ReadsOnly(const Command &command) {
  return command == Command{CommandId::Editing, EditingCommand::Copy} ||
         command == Command{CommandId::Editing, EditingCommand::SelectAll};
}

}  // namespace

bool ActsOn(const Command &command, FrontView front) {
  if (const auto *editing = std::get_if<EditingCommand>(&command.argument);
      editing != nullptr && IsAddition(*editing))
    return front == FrontView::Design;
  switch (front) {
    case FrontView::Nothing:
      return false;
    case FrontView::Design:
      return true;
    case FrontView::SourceView:
      return command.id == CommandId::Preview || ReadsOnly(command);
    case FrontView::SourceEditor:
      return command.id == CommandId::Editing;
    case FrontView::Preview:
      return command.id == CommandId::Preview;
  }
  return false;
}

void CommandState::SetPageCommandsEnabled(bool enabled) {
  const FrontWindow *window = area_.Front();
  const FrontView front = window == nullptr ? FrontView::Nothing : window->View();
  const auto isUsable = [&](const Command &command) {
    return enabled && (additions_ == Additions::Off || ActsOn(command, front));
  };
  for (const char *name : PageMenus) {
    const QMenu &menu = *menus_.menus.value(QString::fromLatin1(name));
    bool hasUse = false;
    for (const MenuRow &row : MenuTable()) {
      if (row.parent != nullptr && row.kind == MenuKind::Item &&
          menu.objectName() == QLatin1String(row.parent))
        hasUse = isUsable(row.command) || hasUse;
    }
    menu.menuAction()->setEnabled(hasUse);
  }
  for (const MenuRow &row : MenuTable()) {
    const auto item = menus_.items.find(row.command);
    if (row.command.id == CommandId::Editing && item != menus_.items.end())
      item->second->setEnabled(!enabled || isUsable(row.command));
  }
  bars_.SetPageButtonsEnabled(isUsable);
}

void CommandState::SetSourceEditingEnabled(bool enabled) {
  sourceEditing_.setEnabled(enabled);
}

void CommandState::Refresh() {
  SetPageCommandsEnabled(tabs_.Count() > 0);
}

}  // namespace velor
