// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velor {

/// Whether the environment turns the engine's sandbox off, as it has to be for the superuser and
/// where the system allows no user namespaces: pages in the preview then run with the person's own
/// rights.
bool IsSandboxOff();

}  // namespace velor
