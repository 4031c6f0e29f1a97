// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/EditorContext.h"

#include <QString>

/// The open pages as a whole: how many there may be, which of them a file belongs to, and what the
/// shared file dialog holds while one of them is active. Paths in logic form.
namespace velor {

class frmMain;
struct PageRecord;

/// The maximum number of open pages.
inline constexpr int MostPages = 5;

/// The number of page windows, be they without a tab.
int OpenPageCount(EditorContext &context);

/// Whether another page can be opened; shows a message where not.
bool HasRoom(EditorContext &context);

/// The page that has this file (Files::IsSameFile); nullptr where none has it.
frmMain *PageOfFile(EditorContext &context, const QString &path);

/// Activates the page that has this file and reports that in the status bar. False where no page
/// has it.
bool ShowPageOfFile(EditorContext &context, const QString &path);

/// The full path to propose for saving a page: its own file; for a page without one a name in
/// `folder`, made from the title in `html`, or from the page's caption where the title gives none.
QString ProposedFile(const PageRecord &record, const QString &html, const QString &folder);

/// Sets FileName of the shared file dialog to ProposedFile of the page, so that a save takes this
/// page's name. For a page without a file the folder is the one that the dialog used last.
void SetDialogFileName(EditorContext &context, frmMain &page);

}  // namespace velor
