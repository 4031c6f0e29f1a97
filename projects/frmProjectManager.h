// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "projects/RowTable.h"

#include <QDialog>

#include <memory>

class QPushButton;
class QTabWidget;

namespace velor {

class DatabaseConnection;
class ProjectHost;
class RecordList;
class Recordset;
class StylingSweeps;
struct Platform;
struct ProgramValues;

/// The project manager: lists the generated projects, repairs the folder of one that has moved, and
/// opens one for editing. Opening hides the window, closing it ends it; see IsClosed.
class frmProjectManager : public QDialog {
  Q_OBJECT

 public:
  /// Loads the list. A database failure passes through. Without `sweeps` the controls keep the
  /// palette's own look.
  frmProjectManager(Platform &platform, ProgramValues &values, ProjectHost &host,
                    StylingSweeps *sweeps, QWidget *parent = nullptr);
  ~frmProjectManager() override;

  /// Fills the list of projects, and makes opening and the page list available when there are
  /// projects.
  void LoadProjects();

  /// Whether the person has closed the window rather than opened a project: whoever holds it
  /// releases it then, and the next showing is a fresh one.
  bool IsClosed() const { return closed_; }

  void reject() override;

 private:
  void Build();
  void OpenCurrentProject();
  /// False when the person does not give the moved site a folder; nothing has changed then.
  bool RepairFolders(const QVariant &projectId);
  void FillPageChooser(const QVariant &projectId);
  void ListPages(int tab);
  /// The window's one result set, holding the statement's rows.
  Recordset &Query(const QString &statement);
  DatabaseConnection &Connection();

  Platform &platform_;
  ProgramValues &values_;
  ProjectHost &host_;
  std::unique_ptr<Recordset> records_;
  RowTable projects_;
  RowTable pages_;
  bool closed_ = false;

  QTabWidget *tabs_ = nullptr;
  RecordList *projectList_ = nullptr;
  RecordList *pageList_ = nullptr;
  QPushButton *openButton_ = nullptr;
};

}  // namespace velor
