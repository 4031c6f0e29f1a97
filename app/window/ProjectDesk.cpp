// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/ProjectDesk.h"

#include "app/window/PageChooser.h"
#include "chrome/FrmFld.h"
#include "editor/EditorContext.h"
#include "editor/MainWindow.h"
#include "editor/OpenPages.h"
#include "editor/PageSlots.h"
#include "editor/frmMain.h"
#include "editor/modWorkFlow.h"
#include "platform/Dialogs.h"
#include "platform/Paths.h"
#include "platform/Platform.h"
#include "projects/frmProjectManager.h"

namespace velor {

ProjectDesk::ProjectDesk(EditorContext &context, ProgramValues &values, PageChooser &chooser,
                         StylingSweeps *sweeps)
    : context_(context), values_(values), chooser_(chooser), sweeps_(sweeps) {}

void ProjectDesk::ShowProjectManager(QWidget &parent) {
  if (manager_.isNull()) {
    manager_ = new frmProjectManager(context_.platform, values_, *this, sweeps_, &parent);
  }
  context_.platform.dialogs.RunModal(*manager_);
  if (manager_.isNull() || !manager_->IsClosed()) return;
  manager_->deleteLater();
  manager_.clear();
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

void ProjectDesk::PickProjectFolder() {
  FrmFld picker(values_);
  picker.ForProject = true;
  context_.platform.dialogs.RunModal(picker);
}

}  // namespace velor
