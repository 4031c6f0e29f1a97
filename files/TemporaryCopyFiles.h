// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "files/FileCalls.h"
#include "files/FileDescriptor.h"
#include "platform/TemporaryCopies.h"

#include <map>

namespace velor {

/// How a temporary copy is recognised: as the file that it is, with the size and the time of change
/// that it had after it was written.
struct CopyMark {
  dev_t device = 0;
  ino_t inode = 0;
  qint64 size = 0;
  qint64 changed = 0;  ///< nanoseconds since 1970

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
  /// The copy of that native path, open for writing, if it is still ours.
  FileDescriptor OpenOwn(const QString &path) const;
  /// A copy that was not there before; not open, with errno set, where it could not be created.
  FileDescriptor Create(const QString &path, const QString &page);
  /// Remembers the copy, here and in the list. `mark` null: the copy is gone.
  void Remember(const QString &path, const CopyMark *mark);
  void OpenList();

  FileCalls &calls_;
  std::map<QString, CopyMark> copies_;  ///< by native path
  QString listName_;                    ///< empty without a list
  FileDescriptor list_;
};

}  // namespace velor
