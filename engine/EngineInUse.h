// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/EngineVersion.h"

namespace velor {

/// The versions of the engine that the program runs on.
EngineVersion EngineInUse();

}  // namespace velor
