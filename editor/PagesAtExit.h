// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/EditorContext.h"

namespace velor {

/// Writes the unsaved changes of all open pages, and source that was not applied, to their
/// journals, marked as kept at exit, so that the next start offers them. Asks nothing where that
/// succeeds. Where it fails for a page, asks whether to end all the same. False when the program is
/// to go on.
bool KeepPagesAtExit(EditorContext &context);

}  // namespace velor
