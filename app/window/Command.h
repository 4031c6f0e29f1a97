// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velor {

/// What a menu item or toolbar button sets going. None is an item that stands in the menu and does
/// nothing.
enum class CommandId {
  None,
  NewPage,
  OpenPage,
  SavePage,
  SavePageAs,
  CloseProgram,
  Editing,    ///< argument: the editing command's published number
  MenuStyle,  ///< argument: number of the menu picture
  ProjectManager,
  InsertImage,
  InsertHyperlink,
  InsertTarget,
  InsertVideo,
  InsertTable,
  Preview,
  About,
};

struct Command {
  CommandId id = CommandId::None;
  int argument = 0;

  bool operator==(const Command &) const = default;
};

}  // namespace velor
