// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "projects/ProjectHost.h"

#include <QPointer>

class QWidget;

namespace velor {

class PageChooser;
class StylingSweeps;
class frmProjectManager;
struct EditorContext;
struct ProgramValues;

/// The main window as the project manager sees it, and the keeper of that window.
class ProjectDesk final : public ProjectHost {
 public:
  ProjectDesk(EditorContext &context, ProgramValues &values, PageChooser &chooser,
              StylingSweeps *sweeps);

  /// Shows the project manager modally over `parent`: as it was left by opening a project, as a
  /// fresh one after it was closed.
  void ShowProjectManager(QWidget &parent);

  /// Tells in the status bar that the catalogue is not whole, where it is not.
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
  ProgramValues &values_;
  PageChooser &chooser_;
  StylingSweeps *sweeps_;
  QPointer<frmProjectManager> manager_;
};

}  // namespace velor
