// SPDX-License-Identifier: GPL-3.0-or-later
// What the page windows, and files dropped on the window, ask of the main window.
#include "app/window/FrmCrop.h"
#include "app/window/MfrmProgram.h"
#include "editor/PageWords.h"
#include "editor/PictureFitting.h"
#include "editor/frmMain.h"
#include "platform/Dialogs.h"
#include "platform/EditingComponent.h"
#include "platform/Paths.h"
#include "platform/Platform.h"

#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QTimer>
#include <QUrl>

namespace velor {

void MfrmProgram::PopUpContextMenu(QPoint screenPosition) {
  const QPointer<MfrmProgram> alive = this;
  QMenu &menu = *menus_.menus.value(QStringLiteral("mnuExt"));
  qDeleteAll(wordActions_);
  wordActions_.clear();
  auto *page = dynamic_cast<frmMain *>(Front());
  if (page != nullptr && additions_ == Additions::On) {
    wordActions_ = WordActions(context_, *page, *this);
    if (alive.isNull()) return;
  }
  if (!wordActions_.isEmpty()) {
    auto *line = new QAction(this);
    line->setSeparator(true);
    wordActions_ << line;
    menu.insertActions(menu.actions().constFirst(), wordActions_);
  }
  selectionItems_.Refresh();
  menu.popup(screenPosition);
}

void MfrmProgram::OpenDroppedFiles(const QStringList &paths, frmMain *page) {
  opener_.OpenDroppedFiles(paths, page);
}

void MfrmProgram::ShowPictureProperties(frmMain &) {
  if (additions_ == Additions::On) router_.Run({CommandId::InsertImage});
}

void MfrmProgram::CropPicture(frmMain &page) {
  const QPointer<PictureFitting> fitting = &page.Fitting();
  const QImage picture = fitting->PictureToCut();
  if (picture.isNull()) return;
  FrmCrop dialog(picture, fitting->FileName(), this);
  context_.platform.dialogs.RunModal(dialog);
  if (fitting != nullptr && dialog.result() == QDialog::Accepted) fitting->CutPicture(dialog.Cut());
}

void MfrmProgram::ResetElementInspection() {
  inspectedElement_.clear();
}

void MfrmProgram::dragEnterEvent(QDragEnterEvent *event) {
  if (event->mimeData()->hasUrls()) event->acceptProposedAction();
}

void MfrmProgram::dropEvent(QDropEvent *event) {
  QStringList paths;
  for (const QUrl &url : event->mimeData()->urls())
    if (url.isLocalFile()) paths += ToLogic(url.toLocalFile());
  event->acceptProposedAction();
  // The program that the files come from waits for the end of this event.
  QTimer::singleShot(0, this, [this, paths] { OpenDroppedFiles(paths, nullptr); });
}

}  // namespace velor
