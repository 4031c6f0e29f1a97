// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/EditorContext.h"
#include "platform/FileWatch.h"

#include <QFrame>
#include <QTimer>

#include <memory>

class QLabel;

namespace velor {

class frmMain;

/// What other programs do to a page's file while the page is open. A page without unsaved changes
/// is loaded again where it stands, as one step of its undo history. One with unsaved changes gets
/// this bar, which offers its own text (the save keeps the other version), the file's text (the
/// page's own is kept with the replaced versions, and Undo brings it back), or both side by side.
/// Removal, return and permissions are told in the status bar. Hidden while there is nothing to
/// decide.
class OutsideChanges final : public QFrame {
  Q_OBJECT

 public:
  /// Both outlive it; `page` becomes its parent.
  OutsideChanges(EditorContext &context, frmMain &page);

  /// Follows this file from now on, in place of another. The page's trace says what it holds.
  void Follow(const QString &path);

 protected:
  void paintEvent(QPaintEvent *event) override;

 private:
  /// Compares the file with what the page knows of it.
  void Look();
  void TellRemoval();
  void TellPermissions();
  bool HasUnsavedWork();
  /// Puts the file's text in the page's place.
  void TakeFile();
  void KeepOwnText();
  void TakeTheirs();
  void KeepMine();
  void Compare();
  void Report(const QString &message) const;
  QString Name() const;

  EditorContext &context_;
  frmMain &page_;
  std::unique_ptr<FileWatch> watch_;  ///< null where files are not watched
  QString path_;
  bool isThere_ = true;
  bool isReadOnly_ = false;
  QTimer retry_;
  QLabel *text_ = nullptr;
};

}  // namespace velor
