// SPDX-License-Identifier: GPL-3.0-or-later
// Pages saved.
#include "editor/MainWindow.h"
#include "editor/PageRecord.h"
#include "editor/PageSlots.h"
#include "editor/frmMain.h"
#include "editor/modGeneral.h"
#include "editor/modWorkFlow.h"
#include "platform/Dialogs.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/Platform.h"
#include "platform/ReplacedVersions.h"
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

/// Runs a step whose failure the operation passes over; the status bar tells the person. False on
/// failure.
template <typename Step>
bool Attempt(EditorContext &context, const QString &path, Step step) {
  try {
    step();
    return true;
  } catch (const RuntimeError &error) {
    context.mainWindow.status.Report(
        QStringLiteral("%1 could not be saved: %2").arg(ForPeople(path), error.Description()));
    return false;
  }
}

/// What another program, or another page, has written must not be lost by a save over it.
void KeepForeignVersion(EditorContext &context, int number, const QString &path) {
  const Files &files = context.platform.files;
  ReplacedVersions *replaced = context.platform.replaced;
  if (replaced == nullptr || !files.FileExists(path) || files.IsReadOnly(path)) return;
  const QByteArray there = files.ReadAll(path);
  if (FileTrace::Of(path, there) == context.pages.Trace(number)) return;
  const QString kept = replaced->Keep(path, there);
  context.mainWindow.status.Report(
      QStringLiteral("%1 held another version. It was replaced and is kept as %2")
          .arg(ForPeople(path), kept));
}

/// Whether the page's file is not there any more.
bool HasGone(const EditorContext &context, int number, const QString &path) {
  return context.pages.Trace(number).path == path && !context.platform.files.FileExists(path);
}

void WriteFile(frmMain &window, const QString &path) {
  const EditorContext &context = window.Context();
  // Should the program not live to the end of it, no key is lost.
  window.Journal().Catch();
  const bool hasGone = HasGone(context, window.Number(), path);
  KeepForeignVersion(window.Context(), window.Number(), path);
  window.DHTML1().SaveDocument(path);
  TraceFile(window, path);
  if (!hasGone) return;
  context.mainWindow.status.Report(
      QStringLiteral("%1 was no longer there. It was written anew").arg(ForPeople(path)));
}

/// Writes to the record's own file; path and temporary copy then follow the dialog's last name,
/// which after another file was opened is that other file.
void SavePlain(EditorContext &context, frmMain &window, const FileDialog &dialog,
               PageRecord &record) {
  const QString file = record.Path;
  const bool isSaved = Attempt(context, file, [&] { WriteFile(window, file); });
  TakeFile(record, dialog.FileName);
  Attempt(context, file, [&] { record.SavedHTML = window.DHTML1().DocumentHTML(); });
  record.Path = dialog.FileName;
  if (isSaved) {
    window.Journal().Settle();
  } else {
    window.Journal().SaveFailed();
  }
}

void SaveUnderNewName(frmMain &window, FileDialog &dialog, PageRecord &record) {
  const QString file = dialog.FileName;
  WriteFile(window, file);
  window.Journal().Settle();
  TakeFile(record, file);
  record.SavedHTML = window.DHTML1().DocumentHTML();
  record.Path = file;
  window.setWindowTitle(modGeneral::FileNameOfPath(file));
  window.UpdateTabCaption();
  window.DHTML1().LoadDocument(file);
  window.Journal().Settle();
}

}  // namespace

void TraceFile(frmMain &window, const QString &path) {
  const Platform &platform = window.Context().platform;
  if (platform.replaced == nullptr) return;
  window.Context().pages.Trace(window.Number()) = FileTrace::Of(path, platform.files.ReadAll(path));
}

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
