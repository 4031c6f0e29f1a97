// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/PageOpener.h"

#include "app/window/FrmNewPage.h"
#include "app/window/InsertCommands.h"
#include "editor/EditorContext.h"
#include "editor/MainWindow.h"
#include "editor/OpenPages.h"
#include "editor/PageSlots.h"
#include "editor/PageTemplates.h"
#include "editor/frmCodeEditor.h"
#include "editor/frmMain.h"
#include "editor/modGeneral.h"
#include "editor/modWorkFlow.h"
#include "pictures/PictureEndings.h"
#include "platform/Database.h"
#include "platform/Dialogs.h"
#include "platform/Paths.h"
#include "platform/Platform.h"
#include "platform/RuntimeError.h"
#include "platform/Words.h"

#include <QApplication>
#include <QPointer>
#include <QScopedValueRollback>

namespace velor {

namespace {

constexpr int SourceEditorMode = 3;

bool IsDroppedAsPage(const QString &path) {
  return path.endsWith(QStringLiteral(".htm"), Qt::CaseInsensitive) ||
         path.endsWith(QStringLiteral(".html"), Qt::CaseInsensitive);
}

}  // namespace

PageOpener::PageOpener(EditorContext &context, const std::unique_ptr<DatabaseConnection> &catalogue,
                       InsertCommands &insert)
    : context_(context), catalogue_(catalogue), insert_(insert) {}

void PageOpener::NewFromTemplate() {
  if (!HasRoom(context_)) return;
  FrmNewPage dialog(OwnTemplates(context_), QApplication::activeWindow());
  context_.platform.dialogs.RunModal(dialog);
  if (dialog.result() != QDialog::Accepted) return;
  const QString path = dialog.TemplatePath();
  try {
    modWorkFlow::NewPage(context_, path.isEmpty()
                                       ? ModernPage(dialog.Beginning())
                                       : modGeneral::ReadWholeFile(context_.platform.files, path));
  } catch (const RuntimeError &error) {
    context_.mainWindow.status.Report(
        Words::tr("%1 could not be opened: %2").arg(ForPeople(path), error.Description()));
  }
}

QString PageOpener::OpenFile(const QString &path) {
  const QScopedValueRollback<bool> opening(isOpening_, true);
  try {
    if (!ShowPageOfFile(context_, path)) modWorkFlow::OpenPage(context_, path);
  } catch (const RuntimeError &error) {
    const QString refusal =
        Words::tr("%1 could not be opened: %2").arg(ForPeople(path), error.Description());
    context_.mainWindow.status.Report(refusal);
    return refusal;
  }
  return {};
}

void PageOpener::UpdateDialogFileName() {
  auto *page = dynamic_cast<frmMain *>(context_.mainWindow.windows.Current());
  if (page != nullptr) SetDialogFileName(context_, *page);
}

void PageOpener::OpenProjectPage(int pageId) {
  if (!HasRoom(context_)) return;
  if (!catalogue_) {
    throw RuntimeError::Of(ErrorNumber::ObjectNotSet, QStringLiteral("CmbPages"));
  }
  const auto page = projectPages_.Find(pageId, *catalogue_);
  if (!page || ShowPageOfFile(context_, ToLogic(FindIgnoringCase(page->path)))) return;
  modWorkFlow::OpenProjectPage(context_, page->path);
  context_.pages.Site(context_.pages.PageCount()) = page->folder;
}

void PageOpener::OpenRecentFile(const QString &path) {
  if (isOpening_ || ShowPageOfFile(context_, path) || !HasRoom(context_)) return;
  OpenFile(path);
  UpdateDialogFileName();
}

QStringList PageOpener::OpenFiles(const QStringList &paths, int line) {
  QStringList notOpened;
  bool isRefused = false;
  for (const QString &path : paths) {
    if (ShowPageOfFile(context_, path)) continue;
    // One report for all files that were refused.
    isRefused = isRefused || !HasRoom(context_);
    const QString refusal =
        isRefused
            ? Words::tr("%1 could not be opened: too many pages are open").arg(ForPeople(path))
            : OpenFile(path);
    if (!refusal.isEmpty()) notOpened += refusal;
  }
  frmMain *first = paths.isEmpty() ? nullptr : PageOfFile(context_, paths.first());
  if (line > 0 && first != nullptr) ShowSourceLine(*first, line);
  UpdateDialogFileName();
  return notOpened;
}

bool PageOpener::IsBusy() const {
  return isOpening_ || QApplication::activeModalWidget() != nullptr ||
         QApplication::activePopupWidget() != nullptr;
}

void PageOpener::ShowSourceLine(frmMain &page, int line) {
  context_.mainWindow.windows.Activate(&page);
  page.ChangeMode(SourceEditorMode);
  frmCodeEditor *editor = context_.pages.CodeEditor(page.Number());
  if (editor == nullptr) return;
  editor->Code().SetCaret(line - 1, 0);
  editor->Code().CenterCaret();
}

void PageOpener::OpenDroppedFiles(const QStringList &paths, frmMain *page) {
  const QPointer<frmMain> alive = page;
  QStringList pages;
  for (const QString &path : paths) {
    const PictureKind picture = KindOfPicture(path);
    if (IsDroppedAsPage(path)) {
      pages += path;
    } else if (!alive.isNull() && picture != PictureKind::None &&
               (picture == PictureKind::Old || context_.hasAdditions)) {
      insert_.PictureFile(*alive, path);
    }
  }
  if (!isOpening_) OpenFiles(pages, 0);
}

void PageOpener::ActivatePage(int number) {
  context_.mainWindow.windows.Activate(&modWorkFlow::PageWindow(context_, number));
}

}  // namespace velor
