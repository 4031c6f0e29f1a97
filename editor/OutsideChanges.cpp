// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/OutsideChanges.h"

#include "editor/PageSlots.h"
#include "editor/VersionCompare.h"
#include "editor/frmCodeEditor.h"
#include "editor/frmMain.h"
#include "editor/modGeneral.h"
#include "editor/modWorkFlow.h"
#include "page/text/PageEncoding.h"
#include "page/text/UnsupportedForm.h"
#include "platform/Paths.h"
#include "platform/Platform.h"
#include "platform/ReplacedVersions.h"
#include "platform/RuntimeError.h"
#include "platform/Words.h"

#include <QPushButton>

#include <algorithm>
#include <chrono>

namespace velor {

namespace {

using namespace std::chrono_literals;

/// While the engine is waited for, or the page is being made, the file is looked at later.
constexpr std::chrono::milliseconds RetryDelay = 100ms;

}  // namespace

OutsideChanges::OutsideChanges(EditorContext &context, frmMain &page)
    : NoticeBar("picOutside", "lblOutside", Words::tr("Changed file"), &page),
      context_(context),
      page_(page) {
  const auto add = [&](const char *name, const QString &caption, const QString &tip,
                       void (OutsideChanges::*action)()) {
    connect(&AddButton(name, caption, tip), &QPushButton::clicked, this, action);
  };
  add("cmdKeepMine", Words::tr("Keep Mine"),
      Words::tr("Go on with the page as it is here; saving it keeps the other version"),
      &OutsideChanges::KeepMine);
  add("cmdTakeTheirs", Words::tr("Take Theirs"),
      Words::tr("Load the file again; Undo brings the page back as it is here"),
      &OutsideChanges::TakeTheirs);
  add("cmdCompare", Words::tr("Compare"),
      Words::tr("Show both side by side as source, with the differences marked"),
      &OutsideChanges::Compare);

  retry_.setSingleShot(true);
  connect(&retry_, &QTimer::timeout, this, &OutsideChanges::CheckFile);
  if (context.platform.watches == nullptr) return;
  watch_ = context.platform.watches->Begin([this](const QString &) { CheckFile(); });
  parts_ = context.platform.watches->Begin(
      [this](const QString &path) { page_.DHTML1().ReloadPart(path); });
}

void OutsideChanges::WatchParts(const QStringList &paths) {
  if (parts_) parts_->SetFiles(paths);
}

void OutsideChanges::WatchFile(const QString &path) {
  if (!watch_) return;
  hide();
  if (path == path_) return;
  ForgetVersions();
  path_ = path;
  isThere_ = true;
  isReadOnly_ =
      context_.platform.files.FileExists(path) && context_.platform.files.IsReadOnly(path);
  watch_->SetFiles({path});
}

void OutsideChanges::CheckFile() {
  if (page_.Tag == QStringLiteral("kill")) return;
  if (page_.Ready != QStringLiteral("True") || page_.DHTML1().IsWaiting())
    return retry_.start(RetryDelay);
  if (!context_.platform.files.FileExists(path_)) return ReportRemoval();
  isThere_ = true;
  try {
    const QByteArray content = context_.platform.files.ReadAll(path_);
    if (FileTrace::Of(path_, content) == context_.pages.Trace(page_.Number())) {
      hide();
      return ReportPermissions();
    }
    const QPointer<OutsideChanges> alive(this);
    const bool hasUnsavedWork = HasUnsavedWork();
    if (alive == nullptr) return;
    if (!hasUnsavedWork) {
      LoadFile();
      if (alive == nullptr) return;
      return Report(Words::tr(
          "%1 was changed by another program and is loaded again; Undo brings back what was here"));
    }
  } catch (const RuntimeError &error) {
    return ReportUnreadable(error);
  }
  ShowBar();
}

void OutsideChanges::DocumentChanged() {
  const QByteArray original = page_.DHTML1().Memory().original;
  // A shared text is the same one: nothing is compared at each key.
  if (original.constData() == original_.constData()) return;
  original_ = original;
  const FileTrace trace = FileTrace::Of(path_, original);
  const auto version =
      std::find_if(versions_.begin(), versions_.end(),
                   [&](const KnownVersion &known) { return known.original == trace; });
  FileTrace &known = context_.pages.Trace(page_.Number());
  if (version == versions_.end() || version->file == known) return;
  // A save keeps the version that the page does not come from any more.
  known = version->file;
  try {
    // The file is not loaded here: that would take back what was just undone.
    if (FileTrace::Of(path_, context_.platform.files.ReadAll(path_)) == known)
      hide();
    else
      ShowBar();
  } catch (const RuntimeError &) {
    // The watch reports a file that has gone.
  }
}

void OutsideChanges::RememberTrace() {
  original_ = page_.DHTML1().Memory().original;
  const FileTrace original = FileTrace::Of(path_, original_);
  std::erase_if(versions_, [&](const KnownVersion &known) { return known.original == original; });
  versions_.push_back({original, context_.pages.Trace(page_.Number())});
}

void OutsideChanges::ShowBar() {
  Tell(Words::tr("%1 was changed by another program, and has unsaved changes here.").arg(Name()));
}

void OutsideChanges::ReportRemoval() {
  if (!isThere_) return;
  isThere_ = false;
  Report(Words::tr(
      "%1 is no longer there: it was removed, renamed, or its disk has gone. The page stays open, "
      "and saving it writes the file anew"));
}

void OutsideChanges::ReportPermissions() {
  const bool isReadOnly = context_.platform.files.IsReadOnly(path_);
  if (isReadOnly == isReadOnly_) return;
  isReadOnly_ = isReadOnly;
  Report(isReadOnly ? Words::tr("%1 is read-only now: Save As keeps your changes")
                    : Words::tr("%1 can be written now"));
}

bool OutsideChanges::HasUnsavedWork() {
  const QPointer<OutsideChanges> alive(this);
  // Asking for the document brings Memory() up to the last key.
  (void)page_.DHTML1().DocumentHTML();
  if (alive == nullptr) return true;
  const frmCodeEditor *editor = context_.pages.CodeEditor(page_.Number());
  if (editor != nullptr && editor->UnappliedText()) return true;
  return page_.Journal().HasChanges();
}

void OutsideChanges::LoadFile() {
  EditingComponent &component = page_.DHTML1();
  const QPointer<frmMain> alive(&page_);
  const int number = page_.Number();
  const ElementPlaces caret = component.CaretPlaces();
  if (alive == nullptr) return;
  // Read first: a file that changes in between counts as changed again. Noted last: a page that
  // could not be loaded still holds its old text.
  const QByteArray content = context_.platform.files.ReadAll(path_);
  if (const auto form = UnsupportedFormOf(content))
    throw RuntimeError(ErrorNumber::TypeMismatch, QStringLiteral("OutsideChanges"),
                       Words::tr("it is %1 now. The page stays as it is here").arg(InWords(*form)));
  const FileTrace trace = FileTrace::Of(path_, content);
  RememberTrace();
  component.LoadDocument(path_);
  if (alive == nullptr) return;
  context_.pages.Trace(number) = trace;
  RememberTrace();
  component.ShowPlace(caret);
  const QString html = component.DocumentHTML();
  if (alive == nullptr) return;
  context_.pages.Record(number).SavedHTML = html;
  page_.Journal().MarkSaved();
  page_.ShowTab();
}

void OutsideChanges::StoreOwnText() {
  if (context_.platform.replaced == nullptr) return;
  const QString text = page_.DHTML1().TextToSave();
  context_.platform.replaced->Store(
      path_, EncodePage(text, modWorkFlow::EncodingOf(context_, page_.Number())));
}

void OutsideChanges::TakeTheirs() {
  StoreOwnText();
  try {
    LoadFile();
  } catch (const RuntimeError &error) {
    return ReportUnreadable(error);
  }
  hide();
  Report(Words::tr("%1 is loaded again; Undo brings back what was here"));
}

void OutsideChanges::KeepMine() {
  // The trace stays: a save keeps the file's version before it replaces it.
  hide();
  Report(Words::tr("Saving %1 keeps the other version among the replaced ones"));
}

void OutsideChanges::Compare() {
  const QByteArray there = context_.platform.files.ReadAll(path_);
  auto *compare =
      new VersionCompare(Name(), page_.DHTML1().TextToSave(), DecodePage(there).text, window());
  compare->show();
}

void OutsideChanges::ReportUnreadable(const RuntimeError &error) const {
  context_.mainWindow.status.ReportOn(
      page_.Number(), Words::tr("%1 was changed by another program and cannot be read: %2")
                          .arg(Name(), error.Description()));
}

void OutsideChanges::Report(const QString &message) const {
  context_.mainWindow.status.ReportOn(page_.Number(), message.arg(Name()));
}

QString OutsideChanges::Name() const {
  return modGeneral::FileNameOfPath(path_);
}

}  // namespace velor
