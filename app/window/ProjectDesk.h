// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "chrome/FrmFld.h"
#include "projects/ProjectHost.h"

#include <QPointer>

#include <memory>

class QWidget;

namespace velor {

class DatabaseConnection;
class PageChooser;
class StylingSweeps;
class frmProjectManager;
struct EditorContext;

/// Shows the project manager, keeps its window from one showing to the next, and is its
/// ProjectHost.
class ProjectDesk final : public ProjectHost {
 public:
  /// All outlive it. `catalogue` may be null until the project manager is shown. The folder picker
  /// answers in `folders`.
  ProjectDesk(EditorContext &context, const std::unique_ptr<DatabaseConnection> &catalogue,
              PickedFolders folders, PageChooser &chooser, StylingSweeps *sweeps);

  /// Shows the project manager modally over `parent`, in the state in which opening a project left
  /// it; after it was closed, in that of a new one.
  void ShowProjectManager(QWidget &parent);

  /// Shows the window of the drive map modally over `parent`.
  void ShowDrives(QWidget &parent);

  /// Reports a damaged catalogue (DatabaseConnection::Defect) in the status bar.
  void ReportCatalogueDefect();

  void ClearTabs() override;
  void ClearPageChooser() override;
  void AddChooserPage(const QString &name, std::int32_t pageId) override;
  int DocumentCount() const override;
  void UnloadDocument(int index) override;
  void OpenProjectPage(const QString &path) override;
  QString PickProjectFolder(const QString &wanted) override;
  void NameDrives(const QString &path) override;

 private:
  EditorContext &context_;
  const std::unique_ptr<DatabaseConnection> &catalogue_;
  PickedFolders folders_;
  PageChooser &chooser_;
  StylingSweeps *sweeps_;
  QPointer<frmProjectManager> manager_;
};

}  // namespace velor
