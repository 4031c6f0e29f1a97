// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/EditorContext.h"

#include <QString>

/// The open pages as a whole: how many there may be, which of them a file belongs to, and what the
/// shared file dialog holds while one of them is active. Paths in logic form.
namespace velor {

class frmMain;
struct PageRecord;

/// More pages than these are never open at once.
inline constexpr int MostPages = 5;

int OpenPageCount(EditorContext &context);

/// Whether another page can be opened; tells the person when not.
bool HasRoom(EditorContext &context);

/// Brings the page to the front that has this file, by whatever name the path calls it, and says
/// so. False where no page has it.
bool ShowPageOfFile(EditorContext &context, const QString &path);

/// The name under which the page is to be saved: its own file; for a page without one a name in
/// `folder` made from the title in `html`, or where that says nothing from the page's caption.
QString ProposedFile(const PageRecord &record, const QString &html, const QString &folder);

/// Makes the shared file dialog hold ProposedFile of the page, so that what takes a name from the
/// dialog takes this page's. A page without a file stays in the folder that was used last.
void HoldNameInDialog(EditorContext &context, frmMain &page);

}  // namespace velor
