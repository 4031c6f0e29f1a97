// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/window/ProjectPageQuery.h"

#include <QString>
#include <QStringList>

#include <memory>

namespace velor {

class DatabaseConnection;
class InsertCommands;
class frmMain;
struct EditorContext;

/// Opens pages, by whatever way a person or another program names them: as far as there is room,
/// and no file twice. Paths in logic form.
class PageOpener {
 public:
  /// All outlive it. `insert` puts dropped pictures in.
  PageOpener(EditorContext &context, const std::unique_ptr<DatabaseConnection> &catalogue,
             InsertCommands &insert);

  /// Lets a person choose what a new page begins with.
  void NewFromTemplate();
  /// Opens the file, or activates the page that has it. A failure is reported in the status bar;
  /// returns that sentence, or the empty text.
  QString OpenFile(const QString &path);
  /// Opens the page with that identifier in the catalogue.
  void OpenProjectPage(int pageId);
  /// Opens a file of the list of recent files, or activates the page that has it. Does nothing
  /// while another page is being opened.
  void OpenRecentFile(const QString &path);
  /// Opens pages that another program names, and shows line `line` of the first in its source
  /// editor unless that is 0. Gives a sentence for each that was not opened.
  QStringList OpenFiles(const QStringList &paths, int line);
  /// Opens dropped pages, whether Open is enabled or not, and inserts dropped pictures at the caret
  /// of `page`.
  void OpenDroppedFiles(const QStringList &paths, frmMain *page);
  /// Activates the page window of a slot; it is created first where the slot is empty.
  void ActivatePage(int number);
  /// Whether a page is being opened, or a dialog waits for a person: nothing else can be opened.
  bool IsBusy() const;
  /// SetDialogFileName for the page that is active now.
  void UpdateDialogFileName();

 private:
  /// Shows a line, counted from 1, of the page's source in its editor.
  void ShowSourceLine(frmMain &page, int line);

  EditorContext &context_;
  const std::unique_ptr<DatabaseConnection> &catalogue_;
  InsertCommands &insert_;
  ProjectPageQuery projectPages_;
  /// While a load is waited for: files may be dropped meanwhile.
  bool isOpening_ = false;
};

}  // namespace velor
