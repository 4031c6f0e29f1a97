// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/EditingCommands.h"

#include <array>

namespace velor {

/// A key that the page itself answers while it has the keyboard. A shortcut of the program goes
/// before it.
struct PageKey {
  const char *key;  ///< as QKeySequence::PortableText has it
  EditingCommand command;
};

/// Those of the bridge (engine/bridge/keys/shortcuts.js).
inline constexpr std::array<PageKey, 7> BridgeKeys{{
    {"Ctrl+Z", EditingCommand::Undo},
    {"Ctrl+Y", EditingCommand::Redo},
    {"Ctrl+Shift+Z", EditingCommand::Redo},
    {"Ctrl+B", EditingCommand::Bold},
    {"Ctrl+I", EditingCommand::Italic},
    {"Ctrl+U", EditingCommand::Underline},
    {"Ctrl+A", EditingCommand::SelectAll},
}};

/// Those that the engine has of its own.
inline constexpr std::array<PageKey, 3> EngineKeys{{
    {"Ctrl+X", EditingCommand::Cut},
    {"Ctrl+C", EditingCommand::Copy},
    {"Ctrl+V", EditingCommand::Paste},
}};

}  // namespace velor
