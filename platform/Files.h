// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

namespace velor {

/// How a path came about decides how it is looked up.
enum class NameOrigin {
  Chosen,   ///< picked or typed by a person: taken exactly
  Program,  ///< made up by the program: exactly first, then ignoring letter case
};

/// Files as the logic sees them: paths in logic form (Paths.h), every failure a RuntimeError with
/// the number mapped from the system's, naming the file; where the drive or the folder itself is
/// missing the number is 76 throughout. Implementations: files/QtFiles.h, and a fake
/// in memory for tests; one contract suite runs against both.
class Files {
 public:
  virtual ~Files() = default;

  /// Whether a file (not a folder) of that name exists. Never raises.
  virtual bool FileExists(const QString &path, NameOrigin origin = NameOrigin::Chosen) const = 0;
  /// Whether a folder of that name exists. Never raises.
  virtual bool FolderExists(const QString &path, NameOrigin origin = NameOrigin::Chosen) const = 0;

  /// No write bit in the mode, or write access refused. The first holds for the superuser too.
  /// Raises 53 for a missing file.
  virtual bool IsReadOnly(const QString &path) const = 0;

  /// Whether two paths lead to one file: by another spelling, a link, or another name of it. False
  /// where one of them leads nowhere. Never raises.
  virtual bool IsSameFile(const QString &one, const QString &other) const = 0;

  /// Whether files can be created in the folder that `path` lies in.
  virtual bool FolderWritable(const QString &path) const = 0;

  /// When the file's content was last changed; invalid where there is none. Never raises.
  virtual QDateTime ChangeTime(const QString &path) const = 0;

  /// The whole content. Raises 14 (more than 256 MB), 53 (missing), 76 (drive or folder missing),
  /// 75 (a folder, or no access).
  virtual QByteArray ReadAll(const QString &path, NameOrigin origin = NameOrigin::Chosen) const = 0;

  /// Creates the file or replaces its whole content so that at every moment the old or the new
  /// content is there, whole: written to a sibling, synced and renamed over it; mode, owner,
  /// symbolic links, access lists and other attributes kept; written in place where renaming would
  /// break a hard link or lose one of them, the old content then kept until that is done. A
  /// read-only file is refused (75), also for the superuser; a full disk is 61.
  virtual void ReplaceAll(const QString &path, const QByteArray &content) = 0;

  /// Deletes a file; raises 53 when there is none.
  virtual void Delete(const QString &path) = 0;
};

}  // namespace velor
