// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/window/Command.h"
#include "platform/EditingCommands.h"

#include <array>

namespace velor {

/// One button of `tbrGeneral`; its image has the key's name.
struct GeneralButton {
  const char *key;
  const char *tooltip;
  Command command = {};
  /// The menu item without which, enabled, the button does nothing; none: no test.
  const char *guardItem = nullptr;
};

/// The seventeen buttons in toolbar order.
inline constexpr std::array<GeneralButton, 17> GeneralButtons{{
    {"new", "New", {CommandId::NewPage}, "mnuNew"},
    {"open", "Open", {CommandId::OpenPage}, "mnuOpen"},
    {"save", "Save", {CommandId::SavePage}, "mnuSave"},
    {"saveas", "Save As", {CommandId::SavePageAs}, "mnuSaveAs"},
    {"startman", "Project Manager", {CommandId::ProjectManager}},
    {"cut", "Cut", {CommandId::Editing, Number(EditingCommand::Cut)}},
    {"copy", "Copy", {CommandId::Editing, Number(EditingCommand::Copy)}},
    {"paste", "Paste", {CommandId::Editing, Number(EditingCommand::Paste)}},
    {"delete", "Delete", {CommandId::Editing, Number(EditingCommand::Delete)}},
    {"undo", "Undo", {CommandId::Editing, Number(EditingCommand::Undo)}},
    {"redo", "Redo", {CommandId::Editing, Number(EditingCommand::Redo)}},
    {"preview", "Preview", {CommandId::Preview}},
    {"table", "Table", {CommandId::InsertTable}},
    {"image", "Image", {CommandId::InsertImage}},
    {"anchor", "Anchor"},
    {"help", "Help"},
    {"about", "About", {CommandId::About}},
}};

/// What SetPageCommandsEnabled switches together.
inline constexpr std::array<const char *, 3> PageMenus{"mnuEdit_Top", "mnuInsert", "mnuTable"};
inline constexpr std::array<const char *, 10> PageButtons{
    "cut", "copy", "paste", "delete", "undo", "redo", "table", "image", "anchor", "preview"};

}  // namespace velor
