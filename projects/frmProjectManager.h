// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "projects/RowTable.h"

#include <QDialog>

#include <memory>

class QLabel;
class QPushButton;
class QTabWidget;

namespace velor {

class DatabaseConnection;
class Dialogs;
class Files;
class ProjectHost;
class RecordList;
class Recordset;
class StylingSweeps;

/// The project manager: lists the generated projects, repairs the folder of one that has moved, and
/// opens one for editing. Opening hides the window, closing it ends it; see IsClosed.
class frmProjectManager : public QDialog {
  Q_OBJECT

 public:
  /// Loads the list of projects. Raises RuntimeError when the database fails, ObjectNotSet (91)
  /// where there is no connection. All arguments outlive the window. Without `sweeps` the controls
  /// keep the palette's own look.
  frmProjectManager(const Files &files, Dialogs &dialogs, DatabaseConnection *connection,
                    ProjectHost &host, StylingSweeps *sweeps, QWidget *parent = nullptr);
  ~frmProjectManager() override;

  /// Fills the list of projects, and makes opening and the page list available when there are
  /// projects.
  void LoadProjects();

  /// Whether the person has closed the window rather than opened a project.
  bool IsClosed() const { return closed_; }
  /// Makes a closed window like a fresh one, its list read anew. It keeps its controls: each sweep
  /// over fresh ones takes painters that the program never gives back.
  void Reopen();

  void reject() override;

 private:
  void Build();
  void OpenCurrentProject();
  /// False when the person does not give the moved site a folder; nothing has changed then.
  bool RepairFolders(const QVariant &projectId, const QString &stored);
  /// Before a folder of this computer is written into the catalogue of another: offers to name the
  /// drive's folder here. The folder as it is to be written, or the stored one where that is there
  /// now; empty when the person calls it off.
  QString FolderToWrite(const QString &folder, const QString &stored);
  bool IsSiteIn(const QString &folder) const;
  void FillPageChooser(const QVariant &projectId);
  void ListPages(int tab);
  /// What a person should know of the catalogue, under the lists; empty takes it back.
  void ShowNote(const QString &text);
  /// Opening needs a row of the list's own.
  void UpdateOpen();
  /// The window's one result set, holding the statement's rows.
  Recordset &Query(const QString &statement);
  DatabaseConnection &Connection();

  const Files &files_;
  Dialogs &dialogs_;
  DatabaseConnection *connection_;
  ProjectHost &host_;
  std::unique_ptr<Recordset> records_;
  RowTable projects_;
  RowTable pages_;
  bool closed_ = false;

  QTabWidget *tabs_ = nullptr;
  RecordList *projectList_ = nullptr;
  RecordList *pageList_ = nullptr;
  QPushButton *openButton_ = nullptr;
  QLabel *note_ = nullptr;
};

}  // namespace velor
