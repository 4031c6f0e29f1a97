// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velor {

/// Whether a dialog has the published controls and steps only, or additions too.
enum class DialogScope { Published, Extended };

}  // namespace velor
