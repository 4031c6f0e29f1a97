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
/// opens one for editing. Opening a project hides the window and keeps its state; closing it does
/// not, see IsClosed.
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
  /// Puts a closed window into the state of a new one and reads the list anew. A window that was
  /// made anew instead would take flat painters that the program never frees.
  void Reopen();

  void reject() override;

 private:
  void Build();
  void OpenCurrentProject();
  /// Asks for the folder of a site that is not in `stored` and writes it to the catalogue. False,
  /// and nothing is written, when the person gives none.
  bool RepairFolders(const QVariant &projectId, const QString &stored);
  /// The folder to write to the catalogue for the chosen `folder`. Where the catalogue is another
  /// computer's (`stored` is on an unknown drive), offers first to name the folder that stands for
  /// its drive here; `stored` is returned where the site is in it then. Empty when the person
  /// cancels.
  QString FolderToWrite(const QString &folder, const QString &stored);
  /// Whether a folder holds a project's site (its Index.htm).
  bool IsSiteIn(const QString &folder) const;
  void FillPageChooser(const QVariant &projectId);
  void ListPages(int tab);
  /// Shows the first line of `text` under the lists, where the person should know something of the
  /// catalogue; the empty text hides the note.
  void ShowNote(const QString &text);
  /// Enables the Open button where a project is current.
  void UpdateOpen();
  /// Runs a query on the window's one result set and returns that.
  Recordset &Query(const QString &statement);
  /// Raises ObjectNotSet (91) without a connection.
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
