// SPDX-License-Identifier: GPL-3.0-or-later
// Pages saved.
#include "editor/MainWindow.h"
#include "editor/PageRecord.h"
#include "editor/frmMain.h"
#include "editor/modGeneral.h"
#include "editor/modWorkFlow.h"
#include "platform/Dialogs.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

namespace velor::modWorkFlow {

namespace {

/// The flags and paths of a page that now has the file `path`.
void TakeFile(PageRecord &record, const QString &path) {
  record.ReadOnly = False16;
  record.HasFile = True16;
  record.Spare = False16;
  record.TempPath = TemporaryCopyOf(path);
}

/// Runs a step whose failure the operation passes over; the status bar tells the person.
template <typename Step>
void Attempt(EditorContext &context, const QString &path, Step step) {
  try {
    step();
  } catch (const RuntimeError &error) {
    context.mainWindow.ReportInStatusBar(
        QStringLiteral("%1 could not be saved: %2").arg(ForPeople(path), error.Description()));
  }
}

/// Writes to the record's own file; path and temporary copy then follow the dialog's last name,
/// which after another file was opened is that other file.
void SavePlain(EditorContext &context, frmMain &window, const FileDialog &dialog,
               PageRecord &record) {
  const QString file = record.Path;
  Attempt(context, file, [&] { window.DHTML1().SaveDocument(file); });
  TakeFile(record, dialog.FileName);
  Attempt(context, file, [&] { record.SavedHTML = window.DHTML1().DocumentHTML(); });
  record.Path = dialog.FileName;
}

void SaveUnderNewName(frmMain &window, FileDialog &dialog, PageRecord &record) {
  const QString file = dialog.FileName;
  window.DHTML1().SaveDocument(file);
  TakeFile(record, file);
  record.SavedHTML = window.DHTML1().DocumentHTML();
  record.Path = file;
  window.setWindowTitle(modGeneral::FileNameOfPath(file));
  window.UpdateTabCaption();
  window.DHTML1().LoadDocument(file);
}

}  // namespace

std::int32_t SavePage(EditorContext &context, frmMain &window, FileDialog &dialog,
                      PageRecord &record, bool SaveAs) {
  if (!SaveAs && record.HasFile != False16) {
    SavePlain(context, window, dialog, record);
    return 0;
  }
  try {
    dialog.Filter = QStringLiteral("HTML File *.htm|*.htm");
    dialog.Flags = FileDialog::OverwritePrompt;
    if (dialog.ShowSave().isEmpty()) return static_cast<int>(ErrorNumber::DialogCancelled);
    SaveUnderNewName(window, dialog, record);
    return 0;
  } catch (const RuntimeError &error) {
    return error.Code();
  }
}

bool HasUnsavedChanges(const QString &savedHtml, const QString &documentHtml) {
  return LowerCase(TrimWhiteSpace(savedHtml)) != LowerCase(TrimWhiteSpace(documentHtml));
}

}  // namespace velor::modWorkFlow
