// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/EditingCommands.h"
#include "platform/Words.h"

#include <QStringView>

#include <array>

namespace velor {

/// One formatting button of the editing toolbar `tbrEdit`.
struct EditCommand {
  QStringView key;
  const char *tooltip;
  EditingCommand command;
  /// Further words by which the command is found in the list of commands; empty for none.
  const char *words = "";
};

/// The ten formatting commands in toolbar order. The main window builds `tbrEdit` from this table
/// and sends the command when its button is clicked; the page window updates the buttons by it.
inline constexpr std::array<EditCommand, 10> EditCommands{{
    {u"bold", Words::Mark("Bold"), EditingCommand::Bold},
    {u"italic", Words::Mark("Italic"), EditingCommand::Italic},
    {u"underline", Words::Mark("Underline"), EditingCommand::Underline},
    {u"left", Words::Mark("Align Left"), EditingCommand::JustifyLeft},
    {u"center", Words::Mark("Align Center"), EditingCommand::JustifyCenter},
    {u"right", Words::Mark("Align Right"), EditingCommand::JustifyRight},
    {u"number", Words::Mark("Number"), EditingCommand::OrderList, Words::Mark("numbered list")},
    {u"bullet", Words::Mark("Bullet"), EditingCommand::UnorderList, Words::Mark("bullets list")},
    {u"outdent", Words::Mark("Outdent"), EditingCommand::Outdent},
    {u"indent", Words::Mark("Indent"), EditingCommand::Indent},
}};

}  // namespace velor
