// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "files/FileCalls.h"
#include "files/FileDescriptor.h"
#include "platform/TemporaryCopies.h"

#include <map>

namespace velor {

/// Identifies a temporary copy as this program wrote it. A file whose mark differs was changed or
/// replaced by somebody else, and is neither written nor removed.
struct CopyMark {
  dev_t device = 0;
  ino_t inode = 0;
  qint64 size = 0;
  qint64 changed = 0;  ///< modification time, nanoseconds since 1970

  bool operator==(const CopyMark &) const = default;
};

/// Temporary copies as files. Each run keeps a list of its copies in `copies` below the state
/// folder, locked for as long as the process lives; lists that are not locked are those of ended
/// runs. Where no list can be kept the copies are made all the same.
class TemporaryCopyFiles final : public TemporaryCopies {
 public:
  explicit TemporaryCopyFiles(FileCalls &calls = FileCalls::OfTheSystem()) : calls_(calls) {}
  ~TemporaryCopyFiles() override;
  TemporaryCopyFiles(const TemporaryCopyFiles &) = delete;
  TemporaryCopyFiles &operator=(const TemporaryCopyFiles &) = delete;

  Outcome Write(const QString &path, const QByteArray &content, const QString &page) override;
  void Remove(const QString &path) override;
  void RemoveAbandoned() override;

 private:
  /// Opens the copy at a native path for writing; not open where it is no longer as marked.
  FileDescriptor OpenOwn(const QString &path) const;
  /// Creates the copy, with the permissions of `page`; not open, with errno set, where there is a
  /// file of that name or the creation failed.
  FileDescriptor Create(const QString &path, const QString &page);
  /// Sets the mark of a copy, in memory and in the list; nullptr for a copy that is gone.
  void Remember(const QString &path, const CopyMark *mark);
  void OpenList();

  FileCalls &calls_;
  std::map<QString, CopyMark> copies_;  ///< by native path
  QString listName_;                    ///< empty without a list
  FileDescriptor list_;
};

}  // namespace velor
