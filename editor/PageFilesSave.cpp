// SPDX-License-Identifier: GPL-3.0-or-later
// modWorkFlow: pages are saved.
#include "editor/MainWindow.h"
#include "editor/OpenPages.h"
#include "editor/OutsideChanges.h"
#include "editor/PageLinks.h"
#include "editor/PagePictures.h"
#include "editor/PageRecord.h"
#include "editor/PageSlots.h"
#include "editor/frmMain.h"
#include "editor/modGeneral.h"
#include "editor/modWorkFlow.h"
#include "platform/Dialogs.h"
#include "platform/EditingComponent.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/Platform.h"
#include "platform/ReplacedVersions.h"
#include "platform/Runtime.h"
#include "platform/RuntimeError.h"
#include "platform/TemporaryCopies.h"
#include "platform/Words.h"

#include <QPointer>

#include <algorithm>
#include <optional>

namespace velor::modWorkFlow {

namespace {

/// Sets the flags and the temporary copy's path of the record of a page that now has the file
/// `path`, and removes the temporary copy of its old name.
void AssignFile(const EditorContext &context, PageRecord &record, const QString &path) {
  const QString oldCopy = record.TempPath;
  record.ReadOnly = False16;
  record.HasFile = True16;
  record.Spare = False16;
  record.TempPath = TemporaryCopyOf(path);
  TemporaryCopies *copies = context.platform.copies;
  if (copies != nullptr && oldCopy != record.TempPath) copies->Remove(oldCopy);
}

/// Why a page could not be saved.
struct SaveFailure {
  RuntimeError error;
  /// What the person learns it from: a plain save reports it in the status bar itself.
  enum class By { Result, StatusBar } reportedBy;
};

/// Runs a step whose failure does not stop the operation; it is reported in the status bar and
/// returned.
template <typename Step>
std::optional<RuntimeError> RunAndReport(EditorContext &context, const QString &path, Step step) {
  try {
    step();
    return std::nullopt;
  } catch (const RuntimeError &error) {
    context.mainWindow.status.Report(
        Words::tr("%1 could not be saved: %2").arg(ForPeople(path), error.Description()));
    return error;
  }
}

/// Why a save would write the page's source anew; empty where it keeps it, and where that is not
/// known: the save itself then fails, and tells why.
QString ReasonToWriteAnew(frmMain &window) {
  try {
    return window.DHTML1().ReasonToWriteAnew();
  } catch (const RuntimeError &) {
    return {};
  }
}

enum class Writing { Edits, Anew };

/// What another program, or another page, has written must not be lost by a save over it; neither
/// what the page came from where the save keeps nothing of its source.
void StoreVersion(EditorContext &context, const frmMain &window, const QString &path,
                  Writing writing) {
  const Files &files = context.platform.files;
  ReplacedVersions *replaced = context.platform.replaced;
  if (replaced == nullptr || !files.FileExists(path) || files.IsReadOnly(path)) return;
  const QByteArray there = files.ReadAll(path);
  const bool isOwn = FileTrace::Of(path, there) == context.pages.Trace(window.Number());
  if (isOwn && (writing == Writing::Edits || window.WasWrittenAnew)) return;
  const QString kept = replaced->Store(path, there);
  const QString notice =
      isOwn ? Words::tr("%1 was written anew. What it held is kept as %2")
            : Words::tr("%1 held another version. It was replaced and is kept as %2");
  context.mainWindow.status.Report(notice.arg(ForPeople(path), kept));
}

/// Whether the page's file was removed.
bool HasGone(const EditorContext &context, int number, const QString &path) {
  return context.pages.Trace(number).path == path && !context.platform.files.FileExists(path);
}

void WriteFile(frmMain &window, const QString &path) {
  const EditorContext &context = window.Context();
  // So that no key is lost where the program ends during the save.
  window.Journal().Flush();
  const bool hasGone = HasGone(context, window.Number(), path);
  const Writing writing = ReasonToWriteAnew(window).isEmpty() ? Writing::Edits : Writing::Anew;
  StoreVersion(window.Context(), window, path, writing);
  window.DHTML1().SaveDocument(path);
  window.WasWrittenAnew = writing == Writing::Anew;
  try {
    TraceFile(window, path);
  } catch (const RuntimeError &) {
    // Written, but not readable: the trace stays, so that the next save keeps what is in the file.
    window.Context().pages.Trace(window.Number()) = {};
  }
  if (!hasGone) return;
  context.mainWindow.status.Report(
      Words::tr("%1 was no longer there. It was written anew").arg(ForPeople(path)));
}

/// Writes to the record's own file. Path and temporary copy are then set by the dialog's FileName,
/// which is another file where that was opened in between.
std::optional<RuntimeError> SavePlain(EditorContext &context, frmMain &window,
                                      const FileDialog &dialog, PageRecord &record) {
  const QString file = record.Path;
  const auto failure = RunAndReport(context, file, [&] { WriteFile(window, file); });
  AssignFile(context, record, dialog.FileName);
  RunAndReport(context, file, [&] { record.SavedHTML = window.DHTML1().DocumentHTML(); });
  record.Path = dialog.FileName;
  if (failure) {
    window.Journal().MarkSaveFailed();
  } else {
    window.Pictures().MarkSaved();
    window.Journal().MarkSaved();
  }
  return failure;
}

enum class LinkChoice { Adapt, TakePictures, Leave };

/// How many links and pictures there are, as words of a sentence.
QString Counted(int links, int pictures) {
  const QString ofLinks =
      links == 1 ? Words::tr("one link") : Words::tr("%n links", nullptr, links);
  const QString ofPictures =
      pictures == 1 ? Words::tr("one picture") : Words::tr("%n pictures", nullptr, pictures);
  if (pictures == 0) return ofLinks;
  return links == 0 ? ofPictures : Words::tr("%1 and %2").arg(ofLinks, ofPictures);
}

LinkChoice AskAboutLinks(EditorContext &context, const std::vector<BrokenLink> &links) {
  const auto pictures = std::count_if(links.begin(), links.end(),
                                      [](const BrokenLink &link) { return link.isPicture; });
  const auto others = static_cast<std::ptrdiff_t>(links.size()) - pictures;
  Message question;
  question.text = Words::tr("From the new folder %1 of this page would lead nowhere.")
                      .arg(Counted(static_cast<int>(others), static_cast<int>(pictures)));
  question.details = Words::tr(
      "Adapted, they lead to the files where these are now. Taken along, the pictures are copied "
      "beside the page, and the links are adapted.");
  question.icon = MessageIcon::Question;
  QStringList captions = {Words::tr("Adapt"), Words::tr("Leave")};
  if (pictures > 0) captions.insert(1, Words::tr("Take Pictures Along"));
  const int answer = context.platform.dialogs.Choose(question, captions);
  if (answer == 0) return LinkChoice::Adapt;
  return answer == captions.size() - 1 ? LinkChoice::Leave : LinkChoice::TakePictures;
}

/// What was done to a page's links before it is written to its new place.
struct LinkChanges {
  std::optional<QString> before = {};  ///< the page's text, where that changed
  QString from = {};                   ///< the file that its links resolved against
  QString notice = {};                 ///< for the status bar once the page is written
};

/// Adapts the relative links of a page that goes to another folder, as the person chooses, as one
/// undo step, and shows it from there.
LinkChanges AdaptLinks(EditorContext &context, frmMain &window, const QString &from,
                       const QString &to) {
  if (modGeneral::FolderOfPath(from) == modGeneral::FolderOfPath(to)) return {};
  Files &files = context.platform.files;
  const QString html = window.DHTML1().TextToSave();
  std::vector<BrokenLink> links = BrokenLinks(html, from, to, files);
  if (links.empty()) return {};
  const LinkChoice choice = AskAboutLinks(context, links);
  if (choice == LinkChoice::Leave) return {};
  if (choice == LinkChoice::TakePictures) CopyPictures(links, to, files);
  window.DHTML1().LoadText(WithAdapted(html, links), to);
  return {html, from};
}

/// Makes the links relative that the program wrote in full into a page without a path, as one undo
/// step, and shows the page from `to`.
LinkChanges MakeFullLinksRelative(EditorContext &context, frmMain &window, const QString &to) {
  const auto &addresses = context.pages.FullAddresses(window.Number());
  if (addresses.empty()) return {};
  const QString html = window.DHTML1().TextToSave();
  window.Pictures().MoveInto(to, html);
  const std::vector<BrokenLink> links = FullLinks(html, to, addresses);
  if (links.empty()) return {};
  window.DHTML1().LoadText(WithAdapted(html, links), to);
  // A page without a path is shown from the program folder.
  return {
      html, context.platform.runtime.ProgramFolder() + u'\\',
      (links.size() == 1
           ? Words::tr("Saved %1. One link in it leads to its file by its way from the page now")
           : Words::tr("Saved %1. %n links in it lead to files by their way from the page now",
                       nullptr, static_cast<int>(links.size())))
          .arg(ForPeople(to))};
}

void WriteToNewFolder(EditorContext &context, frmMain &window, const QString &from,
                      const QString &to) {
  const LinkChanges changes = from.isEmpty() ? MakeFullLinksRelative(context, window, to)
                                             : AdaptLinks(context, window, from, to);
  try {
    WriteFile(window, to);
  } catch (const RuntimeError &) {
    window.Pictures().MoveBack();
    // The page stays in its folder: its links are set back, and resolve against it again.
    if (changes.before) {
      window.DHTML1().ExecCommand(EditingCommand::Undo);
      window.DHTML1().LoadText(*changes.before, changes.from);
    }
    throw;
  }
  if (!changes.notice.isEmpty() && !context.mainWindow.status.HasNotice())
    context.mainWindow.status.Report(changes.notice);
}

void SaveUnderNewName(frmMain &window, FileDialog &dialog, PageRecord &record) {
  const QString file = dialog.FileName;
  WriteToNewFolder(window.Context(), window, record.Path, file);
  window.Journal().MarkSaved();
  AssignFile(window.Context(), record, file);
  record.SavedHTML = window.DHTML1().DocumentHTML();
  record.Path = file;
  window.setWindowTitle(modGeneral::FileNameOfPath(file));
  window.UpdateTabCaption();
  window.DHTML1().LoadDocument(file);
  window.WasWrittenAnew = false;
  window.Pictures().MarkSaved();
  window.Journal().MarkSaved();
  // The page may have been read-only before.
  window.CheckAcc();
}

std::optional<SaveFailure> Save(EditorContext &context, frmMain &window, FileDialog &dialog,
                                PageRecord &record, bool SaveAs) {
  if (!SaveAs && record.HasFile != False16) {
    const auto failure = SavePlain(context, window, dialog, record);
    if (!failure) return std::nullopt;
    return SaveFailure{*failure, SaveFailure::By::StatusBar};
  }
  try {
    dialog.Filter = Words::tr("HTML File *.htm|*.htm");
    dialog.Flags = FileDialog::OverwritePrompt;
    if (dialog.ShowSave().isEmpty())
      throw RuntimeError::Of(ErrorNumber::DialogCancelled, QStringLiteral("SavePage"));
    SaveUnderNewName(window, dialog, record);
    return std::nullopt;
  } catch (const RuntimeError &error) {
    return SaveFailure{error, SaveFailure::By::Result};
  }
}

void ShowFailure(EditorContext &context, const RuntimeError &error) {
  Message failure;
  failure.text = Words::tr("File saving error: %1").arg(error.Code());
  failure.details = error.Description();
  failure.icon = MessageIcon::Critical;
  context.platform.dialogs.ShowMessage(failure);
}

bool IsWriteProtected(const EditorContext &context, const PageRecord &record) {
  const Files &files = context.platform.files;
  return record.HasFile != False16 && files.FileExists(record.Path) &&
         files.IsReadOnly(record.Path);
}

/// Asks whether a page whose file cannot be written is to be saved under another name.
bool WantsAnotherName(EditorContext &context, const PageRecord &record) {
  Message question;
  question.text = Words::tr("%1 is read-only. Do you want to save your changes under another name?")
                      .arg(modGeneral::FileNameOfPath(record.Path));
  question.details = ForPeople(record.Path);
  question.buttons = MessageButtons::YesNo;
  question.icon = MessageIcon::Question;
  return context.platform.dialogs.ShowMessage(question) == MessageAnswer::Yes;
}

enum class AnewChoice { Save, SaveAs, Cancel };

/// What to do with a page whose file a save would write anew, asked before the first such save.
AnewChoice AskBeforeWritingAnew(EditorContext &context, frmMain &window, const PageRecord &record) {
  if (record.HasFile == False16 || window.WasWrittenAnew) return AnewChoice::Save;
  const QString reason = ReasonToWriteAnew(window);
  if (reason.isEmpty()) return AnewChoice::Save;
  Message question;
  question.text = Words::tr("The source of %1 cannot be kept as it was written, since %2.")
                      .arg(modGeneral::FileNameOfPath(record.Path), reason);
  question.details = Words::tr(
                         "Saved anew, the whole file is written as the page is shown now. What it "
                         "holds is kept among the replaced versions.\n%1")
                         .arg(ForPeople(record.Path));
  question.icon = MessageIcon::Question;
  switch (context.platform.dialogs.Choose(
      question,
      {Words::tr("Save Anew"), Words::tr("Save Under Another Name"), Words::tr("Cancel")})) {
    case 0:
      return AnewChoice::Save;
    case 1:
      return AnewChoice::SaveAs;
    default:
      return AnewChoice::Cancel;
  }
}

}  // namespace

void TraceFile(frmMain &window, const QString &path) {
  const Platform &platform = window.Context().platform;
  window.Outside().WatchFile(path);
  if (platform.replaced == nullptr) return;
  FileTrace &known = window.Context().pages.Trace(window.Number());
  const FileTrace trace = FileTrace::Of(path, platform.files.ReadAll(path));
  // After a save that changed nothing, Undo over a load still leads to another version.
  if (trace != known) window.Outside().ForgetVersions();
  known = trace;
}

std::int32_t SavePage(EditorContext &context, frmMain &window, FileDialog &dialog,
                      PageRecord &record, bool SaveAs) {
  const auto failure = Save(context, window, dialog, record, SaveAs);
  return failure && failure->reportedBy == SaveFailure::By::Result ? failure->error.Code() : 0;
}

SaveEnd SaveAndReport(EditorContext &context, frmMain &window, SaveKind kind) {
  PageRecord &record = context.pages.Record(window.Number());
  if (kind == SaveKind::Save && IsWriteProtected(context, record)) {
    if (!WantsAnotherName(context, record)) return SaveEnd::Cancelled;
    kind = SaveKind::SaveAs;
  }
  if (kind == SaveKind::Save) {
    const QPointer<frmMain> alive(&window);
    const AnewChoice choice = AskBeforeWritingAnew(context, window, record);
    if (alive == nullptr || choice == AnewChoice::Cancel) return SaveEnd::Cancelled;
    if (choice == AnewChoice::SaveAs) kind = SaveKind::SaveAs;
  }
  SetDialogFileName(context, window);
  const auto failure =
      Save(context, window, context.mainWindow.fileDialog, record, kind == SaveKind::SaveAs);
  SetDialogFileName(context, window);
  if (!failure) return SaveEnd::Safe;
  if (failure->error.Number() == ErrorNumber::DialogCancelled) return SaveEnd::Cancelled;
  if (failure->reportedBy == SaveFailure::By::StatusBar && window.Journal().IsSafe())
    return SaveEnd::Safe;
  ShowFailure(context, failure->error);
  return SaveEnd::Failed;
}

bool HasUnsavedChanges(const QString &savedHtml, const QString &documentHtml) {
  return LowerCase(TrimWhiteSpace(savedHtml)) != LowerCase(TrimWhiteSpace(documentHtml));
}

}  // namespace velor::modWorkFlow
