// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/PosixJetStorage.h"

#include "files/FileBytes.h"
#include "files/FileDescriptor.h"
#include "files/JetLockFile.h"
#include "platform/RuntimeError.h"
#include "platform/Words.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace velor {

namespace {

constexpr qint64 NanosecondsPerSecond = 1'000'000'000;
constexpr mode_t AnyWrite = S_IWUSR | S_IWGRP | S_IWOTH;
constexpr mode_t PermissionBits = 0777;

QString Source() {
  return QStringLiteral("Database");
}

[[noreturn]] void RaiseErrno(const QString &path) {
  throw RuntimeError::FromErrno(errno, Source(), path);
}

QByteArray Encoded(const QString &path) {
  return QFile::encodeName(path);
}

FileDescriptor OpenFile(const QString &path, int flags, mode_t mode = 0) {
  FileDescriptor file = OpenFile(FileCalls::OfTheSystem(), Encoded(path), flags, mode);
  if (!file.IsOpen()) RaiseErrno(path);
  return file;
}

struct stat StatOf(const FileDescriptor &file, const QString &path) {
  struct stat status = {};
  if (fstat(file.Number(), &status) != 0) RaiseErrno(path);
  return status;
}

qint64 ModifiedOf(const struct stat &status) {
  return status.st_mtim.tv_sec * NanosecondsPerSecond + status.st_mtim.tv_nsec;
}

void WriteAll(const FileDescriptor &file, const QByteArray &bytes, const QString &path) {
  if (!WriteBytes(FileCalls::OfTheSystem(), file.Number(), bytes)) RaiseErrno(path);
}

/// Reads until `count` bytes are there or the file ends; returns how many are.
std::size_t ReadAll(const FileDescriptor &file, char *bytes, std::size_t count, off_t from,
                    const QString &path) {
  std::size_t total = 0;
  while (total < count) {
    const ssize_t got =
        pread(file.Number(), bytes + total, count - total, from + static_cast<off_t>(total));
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) RaiseErrno(path);
    if (got == 0) break;
    total += static_cast<std::size_t>(got);
  }
  return total;
}

void SyncDescriptor(const FileDescriptor &file, const QString &path) {
  if (fsync(file.Number()) != 0) RaiseErrno(path);
}

class PosixJetStorage final : public JetStorage {
 public:
  explicit PosixJetStorage(const QString &path)
      : path_(path), journalPath_(path + QStringLiteral("-journal")) {
    if (QFileInfo(path).isDir()) throw RuntimeError::FromErrno(EISDIR, Source(), path);
    reader_ = OpenFile(path_, O_RDONLY);
  }

  QString Path() const override { return path_; }

  JetStamp Stamp() override {
    struct stat status = {};
    if (stat(Encoded(path_).constData(), &status) != 0) RaiseErrno(path_);
    if (status.st_ino != StatOf(reader_, path_).st_ino) {
      // Another file has taken the name.
      reader_ = OpenFile(path_, O_RDONLY);
      writer_ = FileDescriptor();
    }
    return {status.st_size, ModifiedOf(status), status.st_ino};
  }

  QString WriteObjection() override {
    if (!(StatOf(reader_, path_).st_mode & AnyWrite)) {
      return Words::tr("it is marked as read-only");
    }
    if (access(Encoded(path_).constData(), W_OK) != 0) {
      return Words::tr("it cannot be written (%1)").arg(qt_error_string(errno));
    }
    if (access(Encoded(Folder()).constData(), W_OK) != 0) {
      return Words::tr(
                 "its folder cannot be written, where its safety copy would be kept "
                 "(%1)")
          .arg(qt_error_string(errno));
    }
    return {};
  }

  QString LockedBy() override { return JetLockHolders(path_); }

  void ReadPage(jet::PageNumber number, jet::Page &page) override {
    const std::size_t got = ReadAll(reader_, reinterpret_cast<char *>(page.data()), page.size(),
                                    static_cast<off_t>(number) * jet::PageBytes, path_);
    std::fill(page.begin() + static_cast<std::ptrdiff_t>(got), page.end(), 0);
  }

  void WritePage(jet::PageNumber number, const jet::Page &page) override {
    OpenWriter();
    if (kept_) Touch(journal_, journalPath_);
    std::size_t done = 0;
    while (done < page.size()) {
      const ssize_t written =
          pwrite(writer_.Number(), page.data() + done, page.size() - done,
                 static_cast<off_t>(number) * jet::PageBytes + static_cast<off_t>(done));
      if (written < 0 && errno == EINTR) continue;
      if (written < 0) RaiseErrno(path_);
      done += static_cast<std::size_t>(written);
    }
    SetKeptTime();
  }

  void Truncate(qint64 bytes) override {
    OpenWriter();
    if (kept_) Touch(journal_, journalPath_);
    if (ftruncate(writer_.Number(), bytes) != 0) RaiseErrno(path_);
    SetKeptTime();
  }

  void Sync() override {
    OpenWriter();
    SyncDescriptor(writer_, path_);
  }

  void PinModificationTime(std::optional<qint64> nanoseconds) override {
    kept_ = nanoseconds;
    if (!kept_) Touch(writer_, path_);
  }

  void Backup() override {
    const QString target = path_ + QStringLiteral(".bak");
    const QString unfinished = target + QStringLiteral("-new");
    try {
      CopyTo(unfinished);
      if (rename(Encoded(unfinished).constData(), Encoded(target).constData()) != 0) {
        RaiseErrno(target);
      }
    } catch (const RuntimeError &) {
      unlink(Encoded(unfinished).constData());
      throw;
    }
  }

  JournalState FindJournal() override {
    journal_ = FileDescriptor();
    FileDescriptor found = OpenFile(FileCalls::OfTheSystem(), Encoded(journalPath_), O_RDWR);
    if (!found.IsOpen() && errno != ENOENT) {
      found = OpenFile(FileCalls::OfTheSystem(), Encoded(journalPath_), O_RDONLY);
    }
    if (!found.IsOpen()) {
      if (errno == ENOENT) return JournalState::None;
      RaiseErrno(journalPath_);
    }
    if (flock(found.Number(), LOCK_EX | LOCK_NB) != 0) return JournalState::InUse;
    // Its writer may have removed it between our opening and our lock.
    if (StatOf(found, journalPath_).st_nlink == 0) return JournalState::None;
    journal_ = std::move(found);
    return JournalState::Leftover;
  }

  qint64 JournalModified() override { return ModifiedOf(StatOf(journal_, journalPath_)); }

  QByteArray ReadJournal() override {
    QByteArray bytes(StatOf(journal_, journalPath_).st_size, '\0');
    const std::size_t got =
        ReadAll(journal_, bytes.data(), static_cast<std::size_t>(bytes.size()), 0, journalPath_);
    bytes.truncate(static_cast<qsizetype>(got));
    return bytes;
  }

  void CreateJournal() override {
    const mode_t mode = StatOf(reader_, path_).st_mode & PermissionBits;
    journal_ = OpenFile(journalPath_, O_RDWR | O_CREAT | O_EXCL, mode | S_IRUSR | S_IWUSR);
    if (flock(journal_.Number(), LOCK_EX | LOCK_NB) != 0) RaiseErrno(journalPath_);
  }

  void AppendJournal(const QByteArray &bytes) override { WriteAll(journal_, bytes, journalPath_); }

  void SyncJournal() override {
    SyncDescriptor(journal_, journalPath_);
    SyncFolder();
    if (StatOf(journal_, journalPath_).st_nlink == 0) {
      throw RuntimeError::Of(ErrorNumber::PermissionDenied, Source(),
                             Words::tr("another program removed %1").arg(journalPath_));
    }
  }

  void RemoveJournal() override {
    if (unlink(Encoded(journalPath_).constData()) != 0) RaiseErrno(journalPath_);
    journal_ = FileDescriptor();
    SyncFolder();
  }

  QString SetJournalAside() override {
    QString target = journalPath_ + QStringLiteral(".aside");
    for (int number = 2; QFileInfo::exists(target); ++number) {
      target = QStringLiteral("%1.aside-%2").arg(journalPath_, QString::number(number));
    }
    if (rename(Encoded(journalPath_).constData(), Encoded(target).constData()) != 0) {
      RaiseErrno(journalPath_);
    }
    journal_ = FileDescriptor();
    return target;
  }

 private:
  QString Folder() const { return QFileInfo(path_).absolutePath(); }

  void OpenWriter() {
    if (!writer_.IsOpen()) writer_ = OpenFile(path_, O_RDWR);
  }

  void SyncFolder() { SyncDescriptor(OpenFile(Folder(), O_RDONLY | O_DIRECTORY), Folder()); }

  static void Touch(const FileDescriptor &file, const QString &path) {
    if (futimens(file.Number(), nullptr) != 0) RaiseErrno(path);
  }

  void SetKeptTime() {
    if (!kept_) return;
    const timespec modified = {*kept_ / NanosecondsPerSecond, *kept_ % NanosecondsPerSecond};
    const timespec times[] = {{0, UTIME_OMIT}, modified};
    if (futimens(writer_.Number(), times) != 0) RaiseErrno(path_);
  }

  void CopyTo(const QString &target) {
    const mode_t mode = StatOf(reader_, path_).st_mode & PermissionBits;
    const FileDescriptor copy =
        OpenFile(target, O_WRONLY | O_CREAT | O_TRUNC, mode | S_IRUSR | S_IWUSR);
    QByteArray block(256 * jet::PageBytes, Qt::Uninitialized);
    for (off_t at = 0;;) {
      const std::size_t got =
          ReadAll(reader_, block.data(), static_cast<std::size_t>(block.size()), at, path_);
      if (got == 0) break;
      WriteAll(copy, block.first(static_cast<qsizetype>(got)), target);
      at += static_cast<off_t>(got);
    }
    SyncDescriptor(copy, target);
  }

  QString path_;
  QString journalPath_;
  FileDescriptor reader_;
  /// Opened at the first write.
  FileDescriptor writer_;
  /// Locked as long as it is open.
  FileDescriptor journal_;
  std::optional<qint64> kept_;
};

}  // namespace

std::unique_ptr<JetStorage> OpenJetStorage(const QString &nativePath) {
  return std::make_unique<PosixJetStorage>(nativePath);
}

}  // namespace velor
