// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/SelectionItems.h"

#include "app/window/MenuBuilder.h"
#include "app/window/PageArea.h"
#include "editor/FrontWindow.h"
#include "editor/frmMain.h"
#include "platform/EditingComponent.h"

#include <QAction>
#include <QMenu>

#include <optional>

namespace velor {
namespace {

/// All items of the context menu are, those without an action too: they never apply.
bool IsOne(const MenuRow &row) {
  if (row.kind != MenuKind::Item) return false;
  if (QLatin1String(row.name).startsWith(QLatin1String("ext"))) return true;
  const auto *editing = std::get_if<EditingCommand>(&row.command.argument);
  return row.reach == Reach::Beyond &&
         (row.command.id == CommandId::ShowDetail || (editing != nullptr && IsAddition(*editing)));
}

bool Applies(EditingComponent &page, EditingCommand command) {
  const CommandStatus status = page.QueryStatus(command);
  return status != CommandStatus::Disabled && status != CommandStatus::NotSupported;
}

bool Applies(EditingComponent &page, PropertySubject subject) {
  switch (subject) {
    case PropertySubject::Page:
      return true;
    case PropertySubject::Image:
      return page.Document().Selection().ControlElement().tagName == u"IMG";
    case PropertySubject::Table:
      return Applies(page, EditingCommand::SelectTable);
    case PropertySubject::Cell:
      return Applies(page, EditingCommand::SelectCell);
    case PropertySubject::Link:
      return !page.Document().Link().IsNull();
    case PropertySubject::Fonts:
      return Applies(page, EditingCommand::SetFontName);
    case PropertySubject::Element:
      return !page.Document().Path().isEmpty();
  }
  return false;
}

bool Applies(EditingComponent &page, const Command &command) {
  if (const auto *editing = std::get_if<EditingCommand>(&command.argument))
    return Applies(page, *editing);
  if (command.id == CommandId::Properties)
    return Applies(page, static_cast<PropertySubject>(std::get<int>(command.argument)));
  if (command.id == CommandId::InsertMarkup) return Applies(page, EditingCommand::Paste);
  if (command.id == CommandId::ShowPath) return Applies(page, PropertySubject::Element);
  return command.id != CommandId::None;
}

/// Whether the switch that the command turns is on; nothing for a command that is no switch.
std::optional<bool> SwitchOf(EditingComponent *page, const Command &command) {
  if (command.id == CommandId::ShowDetail) return page != nullptr && page->ShowDetails();
  if (command.id == CommandId::SnapToGrid) return page != nullptr && page->SnapToGrid();
  if (command == Command{CommandId::Editing, EditingCommand::AbsolutePosition})
    return page != nullptr &&
           page->QueryStatus(EditingCommand::AbsolutePosition) == CommandStatus::Latched;
  return std::nullopt;
}

}  // namespace

SelectionItems::SelectionItems(const Menus &menus, const PageArea &area, Additions additions)
    : menus_(menus), area_(area), additions_(additions) {
  for (const char *name : {"mnuView_Top", "mnuTableMore"}) {
    if (const QMenu *menu = menus_.menus.value(QString::fromLatin1(name)))
      QObject::connect(menu, &QMenu::aboutToShow, menu, [this] { Refresh(); });
  }
}

void SelectionItems::Refresh() {
  if (additions_ == Additions::Off) return;
  FrontWindow *front = area_.Front();
  frmMain *window = front != nullptr && front->View() == FrontView::Design
                        ? dynamic_cast<frmMain *>(front)
                        : nullptr;
  EditingComponent *page = window == nullptr ? nullptr : &window->DHTML1();
  for (const MenuRow &row : MenuTable()) {
    if (!IsOne(row)) continue;
    QAction &item = *menus_.named.value(QString::fromLatin1(row.name));
    item.setEnabled(page != nullptr && Applies(*page, row.command));
    if (const std::optional<bool> isOn = SwitchOf(page, row.command)) {
      item.setCheckable(true);
      item.setChecked(*isOn);
    }
  }
}

}  // namespace velor
