// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

namespace velor {

/// The origin of a path decides how it is looked up.
enum class NameOrigin {
  Chosen,   ///< picked or typed by a person: taken exactly
  Program,  ///< composed by the program: exactly first, then ignoring letter case
};

/// The file system. Paths in logic form (Paths.h). Failures are RuntimeErrors that name the file,
/// their number mapped from the system's (RuntimeError::FromErrno); PathNotFound (76) where the
/// drive or the folder is missing. Implementations: files/QtFiles.h, and a fake in memory for
/// tests; one contract suite runs against both.
class Files {
 public:
  virtual ~Files() = default;

  /// Whether a file (not a folder) of that name exists. Never raises.
  virtual bool FileExists(const QString &path, NameOrigin origin = NameOrigin::Chosen) const = 0;
  /// Whether a folder of that name exists. Never raises.
  virtual bool FolderExists(const QString &path, NameOrigin origin = NameOrigin::Chosen) const = 0;

  /// Whether the file has no write bit in its mode, which counts for the superuser too, or write
  /// access is refused. Raises 53 for a missing file.
  virtual bool IsReadOnly(const QString &path) const = 0;

  /// Whether two paths lead to one file, be it by another spelling, a symbolic or a hard link.
  /// False where one of them leads to none. Never raises.
  virtual bool IsSameFile(const QString &one, const QString &other) const = 0;

  /// Whether files can be created in the folder that `path` lies in.
  virtual bool FolderWritable(const QString &path) const = 0;

  /// The modification time of the file; an invalid time where there is no file. Never raises.
  virtual QDateTime ChangeTime(const QString &path) const = 0;

  /// The whole content. Raises 14 (more than 256 MB), 53 (missing), 76 (drive or folder missing),
  /// 75 (a folder, or no access).
  virtual QByteArray ReadAll(const QString &path, NameOrigin origin = NameOrigin::Chosen) const = 0;

  /// Creates the file or replaces its whole content so that at every moment the old or the new
  /// content is there, whole: written to a temporary file, synced and renamed over it; mode, owner,
  /// symbolic links, access lists and other attributes kept; written in place where renaming would
  /// break a hard link or lose one of them, the old content then kept until that is done. A
  /// read-only file is refused (75), also for the superuser; a full disk is 61.
  virtual void ReplaceAll(const QString &path, const QByteArray &content) = 0;

  /// Creates a file with that content. False, with nothing changed, where anything of that name is
  /// there, be it a link that leads nowhere; no link is followed. Raises RuntimeError where it
  /// cannot be written; nothing of that name is there then.
  virtual bool CreateNew(const QString &path, const QByteArray &content) = 0;

  /// Deletes a file; raises 53 when there is none.
  virtual void Delete(const QString &path) = 0;
};

}  // namespace velor
