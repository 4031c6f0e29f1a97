// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/EditorContext.h"
#include "page/text/PageEncoding.h"

#include <QString>

#include <cstdint>

/// The life of a page as a file: made, opened, saved, closed. Paths in logic form.
namespace velor {

class FileDialog;
class frmCodeEditor;
class frmMain;
struct JournalledPage;
struct PageRecord;

namespace modWorkFlow {

/// The text every new page starts from: fourteen lines ended by CR LF, the last without.
const QString &NewPageTemplate();

/// The document window of a slot; made, as a child of the main window, when the slot is empty.
frmMain &PageWindow(EditorContext &context, int number);

/// The source editor of a slot; made, with the slot's number in its Tag, when the slot is empty.
frmCodeEditor &SourceEditor(EditorContext &context, int number);

/// Where the temporary copy of a page file goes; the empty text where the rule would name the file
/// itself (a path without a single "."): a temporary copy is never the person's own file.
QString TemporaryCopyOf(const QString &path);

/// How the page of a slot was read: charset and byte order mark. The defaults for an empty slot.
PageEncoding EncodingOf(const EditorContext &context, int number);

/// What follows the text in a temporary copy.
enum class CopyEnd { Nothing, LineBreak };

/// Writes the text of a slot's page to its temporary copy, in the page's encoding. False where
/// there is no place for one: no path, a folder that takes no file, or a file of that name that is
/// not this run's copy. Raises RuntimeError where the writing fails.
bool WriteTemporaryCopy(const EditorContext &context, int number, const QString &text, CopyEnd end);

/// Makes a page from the template in a slot and a tab of its own.
void NewPage(EditorContext &context);

/// Opens a page file in a slot of its own and records it in the history. 1 when the file is
/// read-only, else 0. A missing file is error 53 before anything is made.
std::int16_t OpenPage(EditorContext &context, const QString &path);

/// Opens a page of a web-site project: no history, and its first Save asks for a name. A missing
/// file is error 53 as above.
void OpenProjectPage(EditorContext &context, const QString &path);

/// Opens a page of an earlier run as it was left, with unsaved changes, in a slot of its own: a
/// page that was never saved as a new one. A source that was not applied is in its source editor
/// again. Whether it is in this run's journal now. Raises
/// RuntimeError where it cannot be shown.
bool RestorePage(EditorContext &context, const JournalledPage &kept);

/// Notes what a page's file holds before it is loaded.
void TraceFile(frmMain &window, const QString &path);

/// Saves a page; a file that holds what the page did not come from is kept first, and the status
/// bar says so. `record` is the slot's own and is brought up to date. A plain save (not SaveAs,
/// and the page has a file) ignores errors, which the status bar tells; otherwise `dialog` asks for
/// a name. 0 on success, 32755 when the dialog was cancelled, else the error number.
std::int32_t SavePage(EditorContext &context, frmMain &window, FileDialog &dialog,
                      PageRecord &record, bool SaveAs);

enum class SaveKind { Save, SaveAs };
enum class SaveEnd {
  Safe,       ///< in its file; or the file could not be written, and the journal has it
  Cancelled,  ///< the person gave no name
  Failed,     ///< and was told so
};

/// Saves a page as its commands do, under the name that the page itself has: the shared dialog
/// holds it before and afterwards. Offers another name for a page whose file is read-only. What
/// keeps a page from being safe is told in a message, with the file and the reason.
SaveEnd SaveAndTell(EditorContext &context, frmMain &window, SaveKind kind);

/// Whether the document differs from its last load or save; outer white space and letter case do
/// not count.
bool HasUnsavedChanges(const QString &savedHtml, const QString &documentHtml);

enum class CloseDecision { Close, Keep };

/// Asks what closing a page needs to ask: refuses while its source editor is open, offers to save
/// unsaved changes. Without such changes nothing is asked where what the page holds is in its file
/// or in the journal. A window marked "kill" closes unasked.
CloseDecision AskBeforeClosing(EditorContext &context, frmMain &window);

/// What remains after the decision to close: the temporary copy, the page's source editor and the
/// tab go. Errors are ignored.
void CleanUpAfterPage(EditorContext &context, frmMain &window);

}  // namespace modWorkFlow
}  // namespace velor
