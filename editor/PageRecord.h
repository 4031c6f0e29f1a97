// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Conversions.h"

#include <QString>

namespace velor {

/// The bookkeeping of one page. Flags are 16-bit truth values (True is -1); paths in logic form.
struct PageRecord {
  /// The file had no write permission when it was opened.
  Bool16 ReadOnly = False16;
  /// Saved to or loaded from a file of its own, so that Save asks for no name.
  Bool16 HasFile = False16;
  /// The source editor is open on this page; the page cannot be closed meanwhile.
  Bool16 EditorOpen = False16;
  /// Always false after creation and after each save; nothing else reads it.
  Bool16 Spare = False16;
  /// The page's file; empty for a new page.
  QString Path;
  /// The page's temporary copy; empty for a read-only page.
  QString TempPath;
  /// "Untitled N" or the file name; a save does not change it.
  QString Caption;
  /// The document's HTML at the last load or save: the baseline of the unsaved-changes test.
  QString SavedHTML;
};

}  // namespace velor
