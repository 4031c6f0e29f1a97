// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/window/Additions.h"
#include "app/window/Command.h"
#include "platform/EditingCommands.h"

#include <array>

namespace velor {

/// What a button needs to be enabled.
enum class Needs { Nothing, Page };

/// MenuItem: a click does nothing while the menu item of the same command is disabled.
enum class Guard { None, MenuItem };

/// One button of `tbrGeneral`; its image has the key's name.
struct GeneralButton {
  const char *key;
  const char *tooltip;
  Command command = {};
  Guard guard = Guard::None;
  Needs needs = Needs::Nothing;
  Reach reach = Reach::Published;
};

constexpr GeneralButton PageButton(const char *key, const char *tooltip, Command command = {}) {
  return {key, tooltip, command, Guard::None, Needs::Page, Reach::Published};
}

/// The seventeen buttons in toolbar order.
inline constexpr std::array<GeneralButton, 17> GeneralButtons{{
    {"new", "New", {CommandId::NewPage}, Guard::MenuItem},
    {"open", "Open", {CommandId::OpenPage}, Guard::MenuItem},
    {"save", "Save", {CommandId::SavePage}, Guard::MenuItem},
    {"saveas", "Save As", {CommandId::SavePageAs}, Guard::MenuItem},
    {"startman", "Project Manager", {CommandId::ProjectManager}},
    PageButton("cut", "Cut", {CommandId::Editing, EditingCommand::Cut}),
    PageButton("copy", "Copy", {CommandId::Editing, EditingCommand::Copy}),
    PageButton("paste", "Paste", {CommandId::Editing, EditingCommand::Paste}),
    PageButton("delete", "Delete", {CommandId::Editing, EditingCommand::Delete}),
    PageButton("undo", "Undo", {CommandId::Editing, EditingCommand::Undo}),
    PageButton("redo", "Redo", {CommandId::Editing, EditingCommand::Redo}),
    PageButton("preview", "Preview", {CommandId::Preview}),
    PageButton("table", "Table", {CommandId::InsertTable}),
    PageButton("image", "Image", {CommandId::InsertImage}),
    {"anchor", "Anchor", {CommandId::InsertTarget}, Guard::None, Needs::Page, Reach::Beyond},
    {"help", "Help", {CommandId::Help}, Guard::None, Needs::Nothing, Reach::Beyond},
    {"about", "About", {CommandId::About}},
}};

}  // namespace velor
