// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/EditingCommands.h"

#include <compare>
#include <variant>

namespace velor {

/// How the open windows are laid out: each over the next with its title seen, one above the other,
/// or side by side.
enum class Arrangement { Cascade, Horizontal, Vertical };

/// What a menu item or toolbar button does. None: nothing.
enum class CommandId {
  None,
  NewPage,
  NewFromTemplate,
  SaveAsTemplate,
  OpenPage,
  SavePage,
  SavePageAs,
  Print,
  ExportPdf,
  CloseProgram,
  Editing,    ///< argument: the EditingCommand
  MenuStyle,  ///< argument: number of the menu picture, an int
  ProjectManager,
  InsertImage,
  InsertHyperlink,
  InsertTarget,
  InsertVideo,
  InsertTable,
  FollowLink,
  TakePicturesOut,
  CropPicture,
  PasteText,
  PasteTable,
  PasteMarkdown,
  ShowDetail,
  SnapToGrid,
  Arrange,     ///< argument: the Arrangement, an int
  Properties,  ///< argument: the PropertySubject, an int
  InsertMarkup,
  InsertCharacter,
  ShowPath,
  Preview,
  About,
  Help,
  FindCommand,
  Find,
  Replace,
  FindNext,
  FindPrevious,
  Spelling,
  WordAtCaret,
  SpellingOfPages,
  WrapSource,
  Drives,
  Shortcuts,
  Settings,
  ZoomIn,
  ZoomOut,
  ZoomReset,
  PageWidths,
};

struct Command {
  CommandId id = CommandId::None;
  std::variant<std::monostate, EditingCommand, int> argument = {};

  auto operator<=>(const Command &) const = default;
};

}  // namespace velor
