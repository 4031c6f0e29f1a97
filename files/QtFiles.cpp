// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/QtFiles.h"

#include "files/FileBytes.h"
#include "files/FileReplacement.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>

namespace velor {

namespace {

/// Bytes. No page, picture or settings file is that large; reading more would block the program.
constexpr off_t LargestRead = off_t{256} * 1024 * 1024;

QString Find(const QString &path, NameOrigin origin) {
  return origin == NameOrigin::Program ? FindIgnoringCase(path) : ToNative(path);
}

/// The native form of a path that an operation is about to use.
QString Usable(const QString &path, const QString &source, NameOrigin origin = NameOrigin::Chosen) {
  if (IsOnUnknownDrive(path)) throw RuntimeError::Of(ErrorNumber::PathNotFound, source, path);
  // System calls read the name up to the NUL, which names another file.
  if (path.contains(QChar(0))) throw RuntimeError::Of(ErrorNumber::PathFileAccess, source, path);
  return Find(path, origin);
}

RuntimeError Failure(int errnoValue, const QString &source, const QString &native) {
  const bool lacksFolder = errnoValue == ENOENT && !QFileInfo(QFileInfo(native).path()).isDir();
  if (lacksFolder) return RuntimeError::Of(ErrorNumber::PathNotFound, source, native);
  return RuntimeError::FromErrno(errnoValue, source, native);
}

bool IsAccessible(const QByteArray &name, int mode) {
  return faccessat(AT_FDCWD, name.constData(), mode, AT_EACCESS) == 0;
}

}  // namespace

bool QtFiles::FileExists(const QString &path, NameOrigin origin) const {
  const QFileInfo info(Find(path, origin));
  return !IsOnUnknownDrive(path) && info.exists() && !info.isDir();
}

bool QtFiles::FolderExists(const QString &path, NameOrigin origin) const {
  return !IsOnUnknownDrive(path) && QFileInfo(Find(path, origin)).isDir();
}

bool QtFiles::IsReadOnly(const QString &path) const {
  const QString source = QStringLiteral("IsReadOnly");
  const QString native = Usable(path, source);
  const QByteArray name = QFile::encodeName(native);
  struct stat status {};
  if (stat(name.constData(), &status) != 0) throw Failure(errno, source, native);
  const bool hasWriteBit = (status.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) != 0;
  return !hasWriteBit || !IsAccessible(name, W_OK);
}

bool QtFiles::IsSameFile(const QString &one, const QString &other) const {
  const auto look = [](const QString &path, struct stat &status) {
    return !IsOnUnknownDrive(path) &&
           stat(QFile::encodeName(ToNative(path)).constData(), &status) == 0;
  };
  struct stat first {};
  struct stat second {};
  return look(one, first) && look(other, second) && first.st_dev == second.st_dev &&
         first.st_ino == second.st_ino;
}

bool QtFiles::FolderWritable(const QString &path) const {
  const QString folder = QFileInfo(ToNative(path)).path();
  return QFileInfo(folder).isDir() && IsAccessible(QFile::encodeName(folder), W_OK | X_OK);
}

QDateTime QtFiles::ChangeTime(const QString &path) const {
  return FileExists(path) ? QFileInfo(ToNative(path)).lastModified() : QDateTime();
}

QByteArray QtFiles::ReadAll(const QString &path, NameOrigin origin) const {
  const QString source = QStringLiteral("ReadAll");
  const QString native = Usable(path, source, origin);
  // Non-blocking, so that a pipe that nobody fills cannot hold the program.
  const FileDescriptor file(
      open(QFile::encodeName(native).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  struct stat status {};
  if (!file.IsOpen() || fstat(file.Number(), &status) != 0) throw Failure(errno, source, native);
  if (!S_ISREG(status.st_mode)) {
    throw RuntimeError::Of(ErrorNumber::PathFileAccess, source, native);
  }
  if (status.st_size > LargestRead) {
    throw RuntimeError::Of(ErrorNumber::OutOfStringSpace, source, native);
  }
  QByteArray content(status.st_size, Qt::Uninitialized);
  qsizetype used = 0;
  for (;;) {
    // Room for one byte more than expected, so that the end is found without another read.
    if (used == content.size()) content.resize(used + used / 2 + 1);
    const ssize_t count =
        read(file.Number(), content.data() + used, static_cast<size_t>(content.size() - used));
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) throw Failure(errno, source, native);
    if (count == 0) break;
    used += count;
  }
  content.truncate(used);
  return content;
}

void QtFiles::ReplaceAll(const QString &path, const QByteArray &content) {
  ReplaceFile(Usable(path, QStringLiteral("ReplaceAll")), content, calls_);
}

bool QtFiles::CreateNew(const QString &path, const QByteArray &content) {
  constexpr mode_t AsTheUserAsks = 0666;
  const QString source = QStringLiteral("CreateNew");
  const QString native = Usable(path, source);
  const QByteArray name = QFile::encodeName(native);
  FileDescriptor file = OpenFile(calls_, name, O_WRONLY | O_CREAT | O_EXCL, AsTheUserAsks);
  if (!file.IsOpen()) {
    if (errno == EEXIST) return false;
    throw Failure(errno, source, native);
  }
  const bool isWritten = WriteBytes(calls_, file.Number(), content) &&
                         SyncFile(calls_, file.Number()) && CloseFile(calls_, std::move(file));
  if (isWritten) return true;
  const int error = errno;
  calls_.Unlink(name.constData());
  throw Failure(error, source, native);
}

void QtFiles::Delete(const QString &path) {
  const QString source = QStringLiteral("Delete");
  const QString native = Usable(path, source);
  if (calls_.Unlink(QFile::encodeName(native).constData()) != 0)
    throw Failure(errno, source, native);
}

}  // namespace velor
