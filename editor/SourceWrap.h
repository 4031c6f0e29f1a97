// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/SourceControl.h"

namespace velor {

class Registry;

/// The preference WrapSource (default "True"): whether source views and source editors wrap long
/// lines.
LineWrap ChosenLineWrap(const Registry &registry);
void ChooseLineWrap(Registry &registry, LineWrap wrap);

}  // namespace velor
