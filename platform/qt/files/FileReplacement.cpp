// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/files/FileReplacement.h"

#include "platform/RuntimeError.h"
#include "platform/qt/files/FileDescriptor.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <cerrno>
#include <climits>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>

namespace velor {

namespace {

constexpr mode_t AnyWriteBit = S_IWUSR | S_IWGRP | S_IWOTH;
constexpr mode_t PermissionBits = 07777;

RuntimeError WriteError(int errnoValue, const QString &path) {
  const QString source = QStringLiteral("ReplaceAll");
  // The file need not be there; what is missing is its folder.
  if (errnoValue == ENOENT) return RuntimeError::Of(ErrorNumber::PathNotFound, source, path);
  return RuntimeError::FromErrno(errnoValue, source, path);
}

/// The path that a chain of symbolic links ends at, whether something is there or not.
QString FollowLinks(const QString &path) {
  constexpr int mostLinks = 40;  // as many as the system itself follows
  QString target = path;
  for (int i = 0; i < mostLinks; ++i) {
    char link[PATH_MAX];
    const ssize_t length = readlink(QFile::encodeName(target).constData(), link, sizeof link);
    if (length < 0) return target;
    const QString next = QFile::decodeName(QByteArray(link, length));
    target = QDir(QFileInfo(target).path()).filePath(next);
  }
  throw WriteError(ELOOP, path);
}

class Replacement {
 public:
  Replacement(const QString &path, const QByteArray &content)
      : path_(FollowLinks(path)), name_(QFile::encodeName(path_)), content_(content) {
    struct stat status {};
    if (stat(name_.constData(), &status) == 0) {
      old_ = status;
    } else if (errno != ENOENT) {
      throw WriteError(errno, path_);
    }
  }

  void Run() {
    if (old_) RefuseReadOnly();
    if (old_ && (!S_ISREG(old_->st_mode) || old_->st_nlink > 1)) {
      WriteInPlace();
    } else if (!WriteSiblingAndRename()) {
      WriteInPlace();
    }
  }

 private:
  void RefuseReadOnly() const {
    if (S_ISDIR(old_->st_mode)) throw WriteError(EISDIR, path_);
    const bool isWritable = (old_->st_mode & AnyWriteBit) != 0;
    if (!isWritable || faccessat(AT_FDCWD, name_.constData(), W_OK, AT_EACCESS) != 0) {
      throw WriteError(EACCES, path_);
    }
  }

  /// False, with nothing changed, where an existing file has to be written in place.
  bool WriteSiblingAndRename() {
    const QString folder = QFileInfo(path_).path();
    const QString sibling =
        QStringLiteral("%1/.velor-%2.tmp")
            .arg(folder, QString::number(QRandomGenerator::system()->generate64(), 16));
    const QByteArray siblingName = QFile::encodeName(sibling);
    const mode_t mode = old_ ? S_IRUSR | S_IWUSR : 0666;
    FileDescriptor file(
        open(siblingName.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode));
    if (!file.IsOpen()) {
      if (old_ && (errno == EACCES || errno == EPERM || errno == EROFS)) return false;
      throw WriteError(errno, path_);
    }
    if (old_ && !TakeOwnerAndMode(file.Number())) {
      unlink(siblingName.constData());
      return false;
    }
    const bool isWritten =
        WriteAll(file.Number(), content_) && fsync(file.Number()) == 0 && file.Close();
    if (isWritten && rename(siblingName.constData(), name_.constData()) == 0) {
      SyncFolder(folder);
      return true;
    }
    const int error = errno;
    unlink(siblingName.constData());
    if (isWritten && old_) return false;  // a mount point, for one, cannot be renamed over
    throw WriteError(error, path_);
  }

  bool TakeOwnerAndMode(int file) const {
    struct stat own {};
    if (fstat(file, &own) != 0) return false;
    const bool isSame = own.st_uid == old_->st_uid && own.st_gid == old_->st_gid;
    if (!isSame && fchown(file, old_->st_uid, old_->st_gid) != 0) return false;
    // After the owner: a change of owner clears bits.
    return fchmod(file, old_->st_mode & PermissionBits) == 0;
  }

  /// A rename survives a power failure only when its folder is on the disk. Some file systems
  /// cannot sync folders; the file itself is safe by then.
  static void SyncFolder(const QString &folder) {
    const FileDescriptor descriptor(
        open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (descriptor.IsOpen()) fsync(descriptor.Number());
  }

  void WriteInPlace() const {
    // Non-blocking, so that a pipe nobody reads fails instead of waiting for ever.
    const bool isRegular = S_ISREG(old_->st_mode);
    FileDescriptor file(
        open(name_.constData(), (isRegular ? O_RDWR : O_WRONLY) | O_CLOEXEC | O_NONBLOCK));
    if (!file.IsOpen()) throw WriteError(errno, path_);
    if (!isRegular) {
      if (!WriteAll(file.Number(), content_)) throw WriteError(errno, path_);
      return;
    }
    const QByteArray before = ReadAll(file.Number());
    if (before.size() < old_->st_size) throw WriteError(EIO, path_);
    if (!Reserve(file.Number())) throw WriteError(errno, path_);
    if (!Overwrite(file.Number(), content_)) {
      const int error = errno;
      Overwrite(file.Number(), before);
      throw WriteError(error, path_);
    }
    if (!file.Close()) throw WriteError(errno, path_);
  }

  /// Takes the blocks for the new content beyond the old end, which changes nothing that is read.
  /// False only when there is no room.
  bool Reserve(int file) const {
    if (content_.isEmpty() || fallocate(file, FALLOC_FL_KEEP_SIZE, 0, content_.size()) == 0) {
      return true;
    }
    return errno != ENOSPC && errno != EDQUOT && errno != EFBIG;
  }

  static bool Overwrite(int file, const QByteArray &content) {
    return lseek(file, 0, SEEK_SET) == 0 && WriteAll(file, content) &&
           ftruncate(file, content.size()) == 0 && fsync(file) == 0;
  }

  static bool WriteAll(int file, const QByteArray &content) {
    const char *data = content.constData();
    qsizetype left = content.size();
    while (left > 0) {
      const ssize_t written = write(file, data, static_cast<size_t>(left));
      if (written < 0 && errno == EINTR) continue;
      if (written < 0) return false;
      data += written;
      left -= written;
    }
    return true;
  }

  static QByteArray ReadAll(int file) {
    QFile reader;
    const bool isOpen = reader.open(file, QIODevice::ReadOnly | QIODevice::Unbuffered);
    return isOpen ? reader.readAll() : QByteArray();
  }

  QString path_;
  QByteArray name_;
  const QByteArray &content_;
  std::optional<struct stat> old_;
};

}  // namespace

void ReplaceFile(const QString &nativePath, const QByteArray &content) {
  Replacement(nativePath, content).Run();
}

}  // namespace velor
