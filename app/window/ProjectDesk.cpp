// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/ProjectDesk.h"

#include "app/window/PageChooser.h"
#include "chrome/FrmDrives.h"
#include "editor/EditorContext.h"
#include "editor/MainWindow.h"
#include "editor/OpenPages.h"
#include "editor/PageSlots.h"
#include "editor/frmMain.h"
#include "editor/modWorkFlow.h"
#include "platform/Database.h"
#include "platform/Dialogs.h"
#include "platform/DriveMap.h"
#include "platform/Paths.h"
#include "platform/Platform.h"
#include "projects/frmProjectManager.h"

namespace velor {

ProjectDesk::ProjectDesk(EditorContext &context,
                         const std::unique_ptr<DatabaseConnection> &catalogue,
                         PickedFolders folders, PageChooser &chooser, StylingSweeps *sweeps)
    : context_(context),
      catalogue_(catalogue),
      folders_(folders),
      chooser_(chooser),
      sweeps_(sweeps) {}

void ProjectDesk::ShowProjectManager(QWidget &parent) {
  if (manager_.isNull()) {
    manager_ = new frmProjectManager(context_.platform.files, context_.platform.dialogs,
                                     catalogue_.get(), *this, sweeps_, &parent);
  } else if (manager_->IsClosed()) {
    manager_->Reopen();
  }
  context_.platform.dialogs.RunModal(*manager_);
}

void ProjectDesk::ShowDrives(QWidget &parent) {
  FrmDrives drives(context_.platform.dialogs, DriveMapFile(), &parent);
  context_.platform.dialogs.RunModal(drives);
}

void ProjectDesk::ReportCatalogueDefect() {
  if (!catalogue_) return;
  const QString defect = catalogue_->Defect();
  if (!defect.isEmpty()) context_.mainWindow.status.Report(defect);
}

void ProjectDesk::ClearTabs() {
  context_.mainWindow.tabs.Clear();
}

void ProjectDesk::ClearPageChooser() {
  chooser_.RemovePages();
}

void ProjectDesk::AddChooserPage(const QString &name, std::int32_t pageId) {
  chooser_.AddPage(name, pageId);
}

int ProjectDesk::DocumentCount() const {
  return context_.pages.PageCount();
}

void ProjectDesk::UnloadDocument(int index) {
  if (const QPointer<frmMain> page = context_.pages.Page(index)) page->close();
}

void ProjectDesk::OpenProjectPage(const QString &path) {
  if (ShowPageOfFile(context_, ToLogic(FindIgnoringCase(path))) || !HasRoom(context_)) return;
  modWorkFlow::OpenProjectPage(context_, path);
}

QString ProjectDesk::PickProjectFolder(const QString &wanted) {
  FrmFld picker(folders_, manager_);
  picker.ForProject = true;
  if (!wanted.isEmpty() && !IsOnUnknownDrive(wanted)) picker.SelectFolder(ToNative(wanted));
  context_.platform.dialogs.RunModal(picker);
  return folders_.ProjectFolderResult;
}

void ProjectDesk::NameDrives(const QString &path) {
  FrmDrives drives(context_.platform.dialogs, DriveMapFile(), manager_);
  drives.AddDrive(path.at(0));
  context_.platform.dialogs.RunModal(drives);
}

}  // namespace velor
