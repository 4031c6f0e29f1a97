// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/SourceControl.h"

namespace velor {

class Registry;
struct EditorContext;

/// The preference WrapSource: whether source views and source editors wrap long lines.
LineWrap ChosenLineWrap(const Registry &registry);
/// Shows every source view and source editor that is open by that preference.
void ShowLineWrap(EditorContext &context);
/// Turns that preference over, for every source view and source editor that is open as well.
void TurnLineWrap(EditorContext &context);

}  // namespace velor
