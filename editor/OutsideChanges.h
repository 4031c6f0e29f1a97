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

/// Watches a page's file for changes by other programs, and is the bar that asks about them. A page
/// without unsaved changes is loaded again at its place, as one step of its undo history. For a
/// page with unsaved changes the bar is shown. It offers to keep the page's text (a save then keeps
/// the other version), to load the file (the page's text goes to the replaced versions, and Undo
/// brings it back), or to compare both. Removal, return and permissions are reported in the status
/// bar.
class OutsideChanges final : public QFrame {
  Q_OBJECT

 public:
  /// Both outlive it; `page` becomes its parent. Hidden at first.
  OutsideChanges(EditorContext &context, frmMain &page);

  /// Watches this file (logic form) from now on, instead of the one before. PageSlots::Trace has
  /// the content that the page knows.
  void WatchFile(const QString &path);
  /// Watches the files that the page shows, in place of those before: one that changes is shown
  /// anew.
  void WatchParts(const QStringList &paths);

 protected:
  void paintEvent(QPaintEvent *event) override;

 private:
  /// Compares the file with what the page knows of it.
  void CheckFile();
  void ReportRemoval();
  void ReportPermissions();
  bool HasUnsavedWork();
  /// Puts the file's text in the page's place.
  void LoadFile();
  void StoreOwnText();
  void TakeTheirs();
  void KeepMine();
  void Compare();
  void Report(const QString &message) const;
  QString Name() const;

  EditorContext &context_;
  frmMain &page_;
  std::unique_ptr<FileWatch> watch_;  ///< null where files are not watched
  std::unique_ptr<FileWatch> parts_;  ///< likewise
  QString path_;
  bool isThere_ = true;
  bool isReadOnly_ = false;
  QTimer retry_;
  QLabel *text_ = nullptr;
};

}  // namespace velor
