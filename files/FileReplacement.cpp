// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/FileReplacement.h"

#include "files/FileBytes.h"
#include "files/ReplacedFiles.h"
#include "files/StaleTempFiles.h"
#include "platform/RuntimeError.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <climits>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>
#include <utility>

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
  constexpr int MostLinks = 40;  // as many as the system itself follows
  QString target = path;
  for (int i = 0; i < MostLinks; ++i) {
    char link[PATH_MAX];
    const ssize_t length = readlink(QFile::encodeName(target).constData(), link, sizeof link);
    if (length < 0) return target;
    const QString next = QFile::decodeName(QByteArray(link, length));
    target = QDir(QFileInfo(target).path()).filePath(next);
  }
  throw WriteError(ELOOP, path);
}

/// Permissions of a new file.
constexpr mode_t AsTheUserAsks = 0666;  // less what the umask takes
constexpr mode_t OwnerOnly = S_IRUSR | S_IWUSR;

class Replacement {
 public:
  Replacement(const QString &path, const QByteArray &content, FileCalls &calls)
      : path_(FollowLinks(path)),
        name_(QFile::encodeName(path_)),
        content_(content),
        calls_(calls) {
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
    } else if (!WriteTempAndRename(old_ ? OwnerOnly : AsTheUserAsks)) {
      WriteInPlace();
    }
  }

  /// Creates the file for its owner alone, whatever is there.
  void RunPrivate() {
    old_.reset();
    WriteTempAndRename(OwnerOnly);
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
  bool WriteTempAndRename(mode_t mode) {
    const QString folder = QFileInfo(path_).path();
    const QByteArray tempName = QFile::encodeName(NewTempName(folder));
    FileDescriptor file = OpenFile(calls_, tempName, O_WRONLY | O_CREAT | O_EXCL, mode);
    if (!file.IsOpen()) {
      if (old_ && (errno == EACCES || errno == EPERM || errno == EROFS)) return false;
      throw WriteError(errno, path_);
    }
    if (old_ && !TakeOwnerModeAndAttributes(file.Number())) {
      calls_.Unlink(tempName.constData());
      return false;
    }
    MarkTempInUse(file.Number());
    const bool isWritten = WriteBytes(calls_, file.Number(), content_) &&
                           SyncFile(calls_, file.Number()) && CloseFile(calls_, std::move(file));
    if (isWritten && Rename(tempName)) {
      // A rename survives a power failure only when its folder is on the disk.
      if (!SyncFolder(calls_, QFile::encodeName(folder))) throw WriteError(errno, path_);
      RemoveStaleTempFiles(folder, calls_);
      return true;
    }
    const int error = errno;
    calls_.Unlink(tempName.constData());
    if (isWritten && old_ && IsRenameRefused(error)) return false;
    throw WriteError(error, path_);
  }

  bool Rename(const QByteArray &tempName) const {
    return Uninterrupted([&] { return calls_.Rename(tempName.constData(), name_.constData()); }) ==
           0;
  }

  /// Whether a rename failed for the place of the file, not for the disk: a mount point, or a
  /// folder where only a file's owner may replace it.
  static bool IsRenameRefused(int error) {
    return error == EBUSY || error == EXDEV || error == EACCES || error == EPERM;
  }

  bool TakeOwnerModeAndAttributes(int file) const {
    struct stat own {};
    if (fstat(file, &own) != 0) return false;
    const bool isSame = own.st_uid == old_->st_uid && own.st_gid == old_->st_gid;
    const auto giveOwner = [&] { return calls_.SetOwner(file, old_->st_uid, old_->st_gid); };
    if (!isSame && Uninterrupted(giveOwner) != 0) return false;
    // Without the right to read the file its attributes cannot be known to be kept.
    const FileDescriptor before(open(name_.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
    if (!before.IsOpen() || !CopyAttributes(calls_, before.Number(), file)) return false;
    // After the owner: a change of owner clears bits.
    return Uninterrupted([&] { return calls_.SetMode(file, old_->st_mode & PermissionBits); }) == 0;
  }

  void WriteInPlace() {
    // Non-blocking, so that a pipe nobody reads fails instead of waiting for ever.
    const bool isRegular = S_ISREG(old_->st_mode);
    FileDescriptor file = OpenFile(calls_, name_, (isRegular ? O_RDWR : O_WRONLY) | O_NONBLOCK);
    if (!file.IsOpen()) throw WriteError(errno, path_);
    if (!isRegular) {
      if (!WriteBytes(calls_, file.Number(), content_)) throw WriteError(errno, path_);
      return;
    }
    const QByteArray before = ReadAll(file.Number());
    if (before.size() < old_->st_size) throw WriteError(EIO, path_);
    if (!ReserveRoom(file.Number())) throw WriteError(errno, path_);
    ReplacedFiles replaced(calls_);
    const QString kept = replaced.StoreNative(path_, before);
    if (!Overwrite(file.Number(), content_)) {
      const int error = errno;
      if (Overwrite(file.Number(), before)) replaced.Remove(kept);
      throw WriteError(error, path_);
    }
    if (!CloseFile(calls_, std::move(file))) throw WriteError(errno, path_);
    replaced.Remove(kept);
  }

  /// Takes the blocks for the new content beyond the old end, which changes nothing that is read.
  /// False only when there is no room.
  bool ReserveRoom(int file) const {
    const auto reserve = [&] { return calls_.Reserve(file, content_.size()); };
    if (content_.isEmpty() || Uninterrupted(reserve) == 0) return true;
    return errno != ENOSPC && errno != EDQUOT && errno != EFBIG;
  }

  bool Overwrite(int file, const QByteArray &content) const {
    return lseek(file, 0, SEEK_SET) == 0 && WriteBytes(calls_, file, content) &&
           Uninterrupted([&] { return calls_.Truncate(file, content.size()); }) == 0 &&
           SyncFile(calls_, file);
  }

  static QByteArray ReadAll(int file) {
    QFile reader;
    const bool isOpen = reader.open(file, QIODevice::ReadOnly | QIODevice::Unbuffered);
    return isOpen ? reader.readAll() : QByteArray();
  }

  QString path_;
  QByteArray name_;
  const QByteArray &content_;
  FileCalls &calls_;
  std::optional<struct stat> old_;
};

}  // namespace

void ReplaceFile(const QString &nativePath, const QByteArray &content, FileCalls &calls) {
  Replacement(nativePath, content, calls).Run();
}

void CreatePrivateFile(const QString &nativePath, const QByteArray &content, FileCalls &calls) {
  Replacement(nativePath, content, calls).RunPrivate();
}

}  // namespace velor
