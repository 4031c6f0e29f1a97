// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/EditorContext.h"

namespace velor {

/// Keeps the unsaved changes of all open pages, and source that was not applied, for the next start
/// (PageJournal::KeepAtExit). Where that fails for a page, asks whether to end all the same;
/// otherwise asks nothing. False when the program is to go on.
bool KeepPagesAtExit(EditorContext &context);

/// The same where the desktop's session is about to end: somebody may call that off, so changes are
/// followed on until the program itself ends.
bool KeepPagesAtSessionEnd(EditorContext &context);

}  // namespace velor
