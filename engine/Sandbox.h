// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velor {

/// Whether the environment turns the engine's sandbox off. It has to be off for the superuser and
/// where the system allows no user namespaces. Scripts of pages in the preview then run with the
/// person's own rights.
bool IsSandboxOff();

}  // namespace velor
