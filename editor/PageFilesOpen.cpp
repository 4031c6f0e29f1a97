// SPDX-License-Identifier: GPL-3.0-or-later
// modWorkFlow: pages are made, opened and restored.
#include "app/settings/modSettingManager.h"
#include "editor/MainWindow.h"
#include "editor/OpenPages.h"
#include "editor/OutsideChanges.h"
#include "editor/PagePictures.h"
#include "editor/PageSlots.h"
#include "editor/frmCodeEditor.h"
#include "editor/frmMain.h"
#include "editor/modGeneral.h"
#include "editor/modWorkFlow.h"
#include "page/text/UnsupportedForm.h"
#include "platform/Dialogs.h"
#include "platform/EditingComponent.h"
#include "platform/Files.h"
#include "platform/Journal.h"
#include "platform/Paths.h"
#include "platform/Platform.h"
#include "platform/Runtime.h"
#include "platform/RuntimeError.h"
#include "platform/TemporaryCopies.h"
#include "platform/Words.h"

namespace velor::modWorkFlow {

namespace {

/// Image of a page tab in the strip's image list.
constexpr int PageTabImage = 1;

void RequireFile(EditorContext &context, const QString &path, const QString &operation) {
  if (!context.platform.files.FileExists(path)) {
    throw RuntimeError::Of(ErrorNumber::FileNotFound, operation, ForPeople(path));
  }
}

/// A file that is no page in any charset that pages may have is never shown in design view, from
/// where a save would destroy it. `subject` is the file in the sentence that says so: "it" where
/// the caller names the file.
void RequirePage(const QByteArray &bytes, const QString &subject, const QString &operation) {
  const auto form = UnsupportedFormOf(bytes);
  if (!form) return;
  throw RuntimeError(ErrorNumber::TypeMismatch, operation,
                     Words::tr("%1 is %2. The file stays as it is").arg(subject, InWords(*form)));
}

/// Sets the baseline of the page made last, if its load has not reported yet, before the next slot
/// is made.
void FinishLastPage(PageSlots &pages) {
  if (pages.PageCount() == 0) return;
  if (frmMain *last = pages.Page(pages.PageCount())) last->DHTML1().DeliverCompletion();
}

/// Makes a slot with its source editor and document window, and the page's tab.
frmMain &MakePage(EditorContext &context) {
  FinishLastPage(context.pages);
  const int number = context.pages.AddSlot();
  SourceEditor(context, number);
  frmMain &window = PageWindow(context, number);
  context.mainWindow.tabs.Add(PageKey(number), PageTabImage);
  return window;
}

/// A page that was closed may be deleted already, or is deleted later.
bool IsOpen(const QPointer<frmMain> &window) {
  return !window.isNull() && window->Context().pages.Page(window->Number()) == window;
}

/// Runs the steps that fill a new page. Where they fail, window, source editor and tab are removed
/// again (the slot stays used), and the error is rethrown.
template <typename Steps>
void FillPage(frmMain &window, Steps steps) {
  const QPointer<frmMain> alive = &window;
  try {
    steps();
  } catch (...) {
    if (IsOpen(alive)) {
      window.MarkKill();
      window.close();
    }
    throw;
  }
}

/// Lets the page do what it waits for. Raises RuntimeError where its window was closed meanwhile.
template <typename Wait>
void WaitForPage(frmMain &window, Wait wait) {
  const QPointer<frmMain> alive = &window;
  wait(window.DHTML1());
  if (!IsOpen(alive)) {
    throw RuntimeError::Of(ErrorNumber::ObjectNotSet, QStringLiteral("PageFiles"),
                           Words::tr("the page was closed while it was loaded"));
  }
}

/// Loads the file; the HTML it becomes is to be the saved baseline.
void Load(frmMain &window, const QString &path) {
  // Before it is loaded: a file that changes in between then counts as changed.
  TraceFile(window, path);
  WaitForPage(window, [&](EditingComponent &page) { page.LoadDocument(path); });
  window.setWindowTitle(modGeneral::FileNameOfPath(path));
  window.PendingAction = QStringLiteral("gethtml");
  window.CheckAcc();
}

/// Shows a filled page and selects its tab; from now on the window follows the selection.
void Present(EditorContext &context, frmMain &window, const QString &tabCaption) {
  const QString key = PageKey(window.Number());
  context.mainWindow.windows.Show(&window);
  context.mainWindow.tabs.SetCaption(key, tabCaption);
  context.mainWindow.tabs.Select(key);
  window.Ready = QStringLiteral("True");
  context.mainWindow.commands.SetPageCommandsEnabled(true);
  SetDialogFileName(context, window);
}

QString TemporaryCopyOfNewPage(EditorContext &context, int number) {
  return context.platform.runtime.ProgramFolder() + QStringLiteral("\\Temp%1.htm").arg(number);
}

PageRecord RecordOfFile(const QString &path) {
  PageRecord record;
  record.Path = path;
  record.Caption = modGeneral::FileNameOfPath(path);
  record.TempPath = TemporaryCopyOf(path);
  return record;
}

void OpenWritable(EditorContext &context, frmMain &window, const QString &path, Bool16 hasFile) {
  const int number = window.Number();
  window.Tag = QString::number(number);
  Load(window, path);
  PageRecord record = RecordOfFile(path);
  record.HasFile = hasFile;
  context.pages.Record(number) = record;
  Present(context, window, record.Caption);
}

void OpenReadOnly(EditorContext &context, frmMain &window, const QString &path) {
  const int number = window.Number();
  window.Tag = QString::number(number);
  PageRecord record = RecordOfFile(path);
  record.ReadOnly = True16;
  record.HasFile = True16;
  record.TempPath.clear();
  context.pages.Record(number) = record;
  Load(window, path);
  Present(context, window, record.Caption + Words::tr(" (Read-Only)"));
}

PageRecord RecordOfRestored(EditorContext &context, int number, const JournalledPage &kept) {
  if (kept.path.isEmpty()) {
    PageRecord record;
    record.Caption = Words::tr("Untitled %1").arg(number);
    record.TempPath = TemporaryCopyOfNewPage(context, number);
    return record;
  }
  const Files &files = context.platform.files;
  PageRecord record = RecordOfFile(kept.path);
  if (kept.saving == JournalledPage::Saving::ToItsFile) record.HasFile = True16;
  if (files.FileExists(kept.path) && files.IsReadOnly(kept.path)) {
    record.ReadOnly = True16;
    record.TempPath.clear();
  }
  return record;
}

}  // namespace

const QString &NewPageTemplate() {
  static const QString text = QStringLiteral(
      "<html>\r\n"
      "\r\n"
      "<head>\r\n"
      "<meta http-equiv=\"Content-Type\" content=\"text/html; charset=big5\">\r\n"
      "<meta name=\"GENERATOR\" content=\"Orvane Editor\">\r\n"
      "<meta name=\"ProgId\" content=\"HTML Editor.Document\">\r\n"
      "<title>Untitled New Page</title>\r\n"
      "</head>\r\n"
      "\r\n"
      "<BODY text=#000000 vLink=#800080 aLink=#ff0000 link=#0000ff bgColor=#ffffff \r\n"
      "background=\"\">\r\n"
      "<P>&nbsp;</P>\r\n"
      "\r\n"
      "</BODY>");
  return text;
}

QString TemporaryCopyOf(const QString &path) {
  const QString copy = modGeneral::TemporaryPath(path);
  return copy == path ? QString() : copy;
}

PageEncoding EncodingOf(const EditorContext &context, int number) {
  PageEncoding encoding;
  frmMain *page = context.pages.Page(number);
  if (page == nullptr) return encoding;
  encoding.charset = page->DHTML1().Charset();
  encoding.byteOrderMark = page->DHTML1().HasByteOrderMark();
  return encoding;
}

bool WriteTemporaryCopy(const EditorContext &context, int number, const QString &text,
                        CopyEnd end) {
  const PageRecord &record = context.pages.Record(number);
  TemporaryCopies *copies = context.platform.copies;
  if (copies == nullptr || record.TempPath.isEmpty()) return false;
  const QString content = end == CopyEnd::LineBreak ? text + QStringLiteral("\r\n") : text;
  return copies->Write(record.TempPath, modGeneral::PageBytes(content, EncodingOf(context, number)),
                       record.Path) == TemporaryCopies::Outcome::Written;
}

frmMain &PageWindow(EditorContext &context, int number) {
  QPointer<frmMain> &page = context.pages.Page(number);
  if (page.isNull()) {
    page = new frmMain(context, number);
    context.mainWindow.windows.Adopt(page);
  }
  return *page;
}

frmCodeEditor &SourceEditor(EditorContext &context, int number) {
  QPointer<frmCodeEditor> &editor = context.pages.CodeEditor(number);
  if (editor.isNull()) {
    editor = new frmCodeEditor(context, number);
    editor->Tag = QString::number(number);
    context.mainWindow.windows.Adopt(editor);
  }
  return *editor;
}

void NewPage(EditorContext &context, const QString &text) {
  frmMain &window = MakePage(context);
  FillPage(window, [&] {
    const int number = window.Number();
    const QString caption = Words::tr("Untitled %1").arg(number);
    context.mainWindow.windows.Show(&window);
    window.Tag = QString::number(number);
    window.DHTML1().SetDocumentHTML(text);
    window.PendingAction = QStringLiteral("gethtml");
    window.setWindowTitle(caption);

    PageRecord record;
    record.Caption = caption;
    record.TempPath = TemporaryCopyOfNewPage(context, number);
    context.pages.Record(number) = record;

    window.Ready = QStringLiteral("True");
    context.mainWindow.tabs.SetCaption(PageKey(number), caption);
    context.mainWindow.tabs.Select(PageKey(number));
    context.mainWindow.commands.SetPageCommandsEnabled(true);
    SetDialogFileName(context, window);
  });
}

std::int16_t OpenPage(EditorContext &context, const QString &path) {
  const QString operation = QStringLiteral("OpenPage");
  RequireFile(context, path, operation);
  RequirePage(context.platform.files.ReadAll(path), QStringLiteral("it"), operation);
  bool readOnly = false;
  frmMain &window = MakePage(context);
  FillPage(window, [&] {
    readOnly = context.platform.files.IsReadOnly(path);
    if (readOnly) {
      OpenReadOnly(context, window, path);
    } else {
      OpenWritable(context, window, path, True16);
    }
  });
  modSettingManager::AddToHistory(context.platform.registry, path);
  return readOnly ? 1 : 0;
}

void OpenProjectPage(EditorContext &context, const QString &path) {
  // The catalogue may spell a name in another letter case than the disk.
  const QString file = ToLogic(FindIgnoringCase(path));
  const QString operation = QStringLiteral("OpenProjectPage");
  RequireFile(context, file, operation);
  RequirePage(context.platform.files.ReadAll(file), ForPeople(file), operation);
  frmMain &window = MakePage(context);
  FillPage(window, [&] { OpenWritable(context, window, file, False16); });
}

bool RestorePage(EditorContext &context, const JournalledPage &kept) {
  RequirePage(kept.page.original, Words::tr("it"), QStringLiteral("RestorePage"));
  frmMain &window = MakePage(context);
  bool isKeptAgain = false;
  FillPage(window, [&] {
    const int number = window.Number();
    window.Tag = QString::number(number);
    WaitForPage(window, [&](EditingComponent &page) { page.Restore(kept.page); });
    const PageRecord record = RecordOfRestored(context, number, kept);
    context.pages.Record(number) = record;
    context.pages.Trace(number) = FileTrace::Of(kept.path, kept.page.original);
    if (!kept.path.isEmpty()) window.Outside().WatchFile(kept.path);
    window.Pictures().Restore(kept);
    window.setWindowTitle(record.Caption);
    window.CheckAcc();
    const bool isReadOnly = record.ReadOnly != False16;
    Present(context, window,
            isReadOnly ? record.Caption + Words::tr(" (Read-Only)") : record.Caption);
    window.Journal().MarkUnsaved();
    if (kept.source) window.ReopenEditor(*kept.source);
    isKeptAgain = window.Journal().Flush();
  });
  return isKeptAgain;
}

}  // namespace velor::modWorkFlow
