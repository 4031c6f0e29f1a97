// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/EditorContext.h"
#include "page/text/PageEncoding.h"

#include <QString>

#include <cstdint>

/// Page files: pages are made, opened, saved and closed. Paths in logic form.
namespace velor {

class FileDialog;
class frmCodeEditor;
class frmMain;
struct JournalledPage;
struct PageRecord;

namespace modWorkFlow {

/// The text of a new page: fourteen lines separated by CR LF.
const QString &NewPageTemplate();

/// The document window of a slot; created as a child of the main window when the slot is empty.
frmMain &PageWindow(EditorContext &context, int number);

/// The source editor of a slot; created, with the slot's number in its Tag, when the slot is empty.
frmCodeEditor &SourceEditor(EditorContext &context, int number);

/// The path of the temporary copy of a page file (modGeneral::TemporaryPath). Empty where that
/// would be the file itself, whose path has no ".".
QString TemporaryCopyOf(const QString &path);

/// Charset and byte order mark of the page of a slot; the defaults for an empty slot.
PageEncoding EncodingOf(const EditorContext &context, int number);

/// What follows the text in a temporary copy.
enum class CopyEnd { Nothing, LineBreak };

/// Writes the text of a slot's page to its temporary copy, in the page's encoding. False where
/// there is no place for one: TempPath is empty, or TemporaryCopies::Outcome::NoPlace. Raises
/// RuntimeError where the writing fails.
bool WriteTemporaryCopy(const EditorContext &context, int number, const QString &text, CopyEnd end);

/// Makes a page with this text in a new slot with a tab.
void NewPage(EditorContext &context, const QString &text = NewPageTemplate());

/// Opens a page file in a new slot and records it in the history. Returns 1 when the file is
/// read-only, else 0. Raises FileNotFound (53) for a missing file, and TypeMismatch (13)
/// for one that is no page in any charset that pages may have, before a slot is made.
std::int16_t OpenPage(EditorContext &context, const QString &path);

/// Opens a page of a web-site project. It is not recorded in the history, and its first Save asks
/// for a name. Raises 53 as OpenPage.
void OpenProjectPage(EditorContext &context, const QString &path);

/// Opens a page of an earlier run with its unsaved changes in a new slot; one that was never saved
/// is a new page again. A source that was not applied is put into the source editor. Returns
/// whether this run's journal has the page now. Raises RuntimeError where it cannot be shown.
bool RestorePage(EditorContext &context, const JournalledPage &kept);

/// Sets the trace of a page (PageSlots::Trace) to the file's present content. Called before
/// loading.
void TraceFile(frmMain &window, const QString &path);

/// Saves a page. A version of the file that the page did not come from is first kept with the
/// replaced versions, which the status bar reports. `record` is the slot's own and is updated. With
/// SaveAs, or for a page without a file, `dialog` asks for a name; returns 0 on success, 32755 when
/// the dialog was cancelled, else the error number. A plain save returns 0 always; the status bar
/// reports its failure.
std::int32_t SavePage(EditorContext &context, frmMain &window, FileDialog &dialog,
                      PageRecord &record, bool SaveAs);

enum class SaveKind { Save, SaveAs };
enum class SaveEnd {
  Safe,       ///< in its file; or the file could not be written, and the journal has it
  Cancelled,  ///< the person gave no name
  Failed,     ///< and was told so
};

/// Saves a page as the Save and Save As commands do, with the shared file dialog set to the page's
/// own name. Offers another name for a page whose file is read-only, and asks
/// before a file is written anew whose source cannot be kept. A failure that leaves the page
/// unsafe is shown in a message with the file and the reason.
SaveEnd SaveAndReport(EditorContext &context, frmMain &window, SaveKind kind);

/// Whether the document differs from its text at the last load or save, apart from outer white
/// space and letter case.
bool HasUnsavedChanges(const QString &savedHtml, const QString &documentHtml);

enum class CloseDecision { Close, Keep };

/// Decides whether a page may close, and asks the person where needed: refuses while its source
/// editor is open, offers to save unsaved changes. Without such changes nothing is asked as long as
/// the page's content is in its file or in the journal. A window marked "kill" closes unasked.
CloseDecision AskBeforeClosing(EditorContext &context, frmMain &window);

/// Removes a closing page's temporary copy, source editor and tab. Errors are ignored.
void CleanUpAfterPage(EditorContext &context, frmMain &window);

}  // namespace modWorkFlow
}  // namespace velor
