// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/window/Additions.h"
#include "app/window/Command.h"
#include "platform/EditingCommands.h"
#include "platform/Words.h"

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
    {"new", Words::Mark("New"), {CommandId::NewPage}, Guard::MenuItem},
    {"open", Words::Mark("Open"), {CommandId::OpenPage}, Guard::MenuItem},
    {"save", Words::Mark("Save"), {CommandId::SavePage}, Guard::MenuItem},
    {"saveas", Words::Mark("Save As"), {CommandId::SavePageAs}, Guard::MenuItem},
    {"startman", Words::Mark("Project Manager"), {CommandId::ProjectManager}},
    PageButton("cut", Words::Mark("Cut"), {CommandId::Editing, EditingCommand::Cut}),
    PageButton("copy", Words::Mark("Copy"), {CommandId::Editing, EditingCommand::Copy}),
    PageButton("paste", Words::Mark("Paste"), {CommandId::Editing, EditingCommand::Paste}),
    PageButton("delete", Words::Mark("Delete"), {CommandId::Editing, EditingCommand::Delete}),
    PageButton("undo", Words::Mark("Undo"), {CommandId::Editing, EditingCommand::Undo}),
    PageButton("redo", Words::Mark("Redo"), {CommandId::Editing, EditingCommand::Redo}),
    PageButton("preview", Words::Mark("Preview"), {CommandId::Preview}),
    PageButton("table", Words::Mark("Table"), {CommandId::InsertTable}),
    PageButton("image", Words::Mark("Image"), {CommandId::InsertImage}),
    {"anchor",
     Words::Mark("Anchor"),
     {CommandId::InsertTarget},
     Guard::None,
     Needs::Page,
     Reach::Beyond},
    {"help", Words::Mark("Help"), {CommandId::Help}, Guard::None, Needs::Nothing, Reach::Beyond},
    {"about", Words::Mark("About"), {CommandId::About}},
}};

}  // namespace velor
