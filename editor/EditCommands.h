// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/EditingCommands.h"

#include <QStringView>

#include <array>

namespace velor {

/// One formatting button of the editing toolbar `tbrEdit`.
struct EditCommand {
  QStringView key;
  QStringView tooltip;
  EditingCommand command;
};

/// The ten formatting commands in toolbar order. The main window builds `tbrEdit` from this table
/// and sends the command when its button is clicked; the page window updates the buttons by it.
inline constexpr std::array<EditCommand, 10> EditCommands{{
    {u"bold", u"Bold", EditingCommand::Bold},
    {u"italic", u"Italic", EditingCommand::Italic},
    {u"underline", u"Underline", EditingCommand::Underline},
    {u"left", u"Align Left", EditingCommand::JustifyLeft},
    {u"center", u"Align Center", EditingCommand::JustifyCenter},
    {u"right", u"Align Right", EditingCommand::JustifyRight},
    {u"number", u"Number", EditingCommand::OrderList},
    {u"bullet", u"Bullet", EditingCommand::UnorderList},
    {u"outdent", u"Outdent", EditingCommand::Outdent},
    {u"indent", u"Indent", EditingCommand::Indent},
}};

}  // namespace velor
