// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "chrome/NoticeBar.h"
#include "editor/EditorContext.h"
#include "editor/FileTrace.h"
#include "platform/FileWatch.h"

#include <QTimer>

#include <memory>
#include <vector>

namespace velor {

class RuntimeError;
class frmMain;

/// Watches a page's file for changes by other programs, and is the bar that asks about them. A page
/// without unsaved changes is loaded again at its place, as one step of its undo history. For a
/// page with unsaved changes the bar is shown. It offers to keep the page's text (a save then keeps
/// the other version), to load the file (the page's text goes to the replaced versions, and Undo
/// brings it back), or to compare both. After Undo over such a load the file is another version
/// again, and the bar comes back. Removal, return and permissions are reported in the status bar.
class OutsideChanges final : public NoticeBar {
  Q_OBJECT

 public:
  /// Both outlive it; `page` becomes its parent. Hidden at first.
  OutsideChanges(EditorContext &context, frmMain &page);

  /// Watches this file (logic form) from now on, instead of the one before. PageSlots::Trace has
  /// the content that the page knows.
  void WatchFile(const QString &path);
  /// The file has a new content of the page's own: versions that Undo leads to are no longer
  /// compared with it.
  void ForgetVersions() { versions_.clear(); }
  /// Watches the files that the page shows, in place of those before: one that changes is shown
  /// anew.
  void WatchParts(const QStringList &paths);
  /// To be called when the document has changed: Undo and Redo may have led over a load of the
  /// file.
  void DocumentChanged();

 private:
  /// Compares the file with what the page knows of it.
  void CheckFile();
  void ShowBar();
  /// Remembers which version of the file the page knows while it has its present original.
  void RememberTrace();
  void ReportRemoval();
  void ReportPermissions();
  bool HasUnsavedWork();
  /// Puts the file's text in the page's place.
  void LoadFile();
  void StoreOwnText();
  void TakeTheirs();
  void KeepMine();
  void Compare();
  void ReportUnreadable(const RuntimeError &error) const;
  void Report(const QString &message) const;
  QString Name() const;

  struct KnownVersion {
    FileTrace original;  ///< of the bytes that the page came from
    FileTrace file;      ///< of the file's content that the page knew then
  };

  EditorContext &context_;
  frmMain &page_;
  std::unique_ptr<FileWatch> watch_;  ///< null where files are not watched
  std::unique_ptr<FileWatch> parts_;  ///< likewise
  QString path_;
  bool isThere_ = true;
  bool isReadOnly_ = false;
  std::vector<KnownVersion> versions_;  ///< before and after each load since the last save
  QByteArray original_;                 ///< of the page, as last seen
  QTimer retry_;
};

}  // namespace velor
