// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/TemporaryCopyFiles.h"

#include "files/FileBytes.h"
#include "files/OwnFiles.h"
#include "files/StateFolder.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QUrl>

#include <cerrno>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>
#include <utility>

namespace velor {

namespace {

constexpr mode_t OwnerOnly = S_IRUSR | S_IWUSR;
constexpr mode_t AsTheUserAsks = 0666;  // less what the umask takes
/// The size in the mark of a copy that is being written.
constexpr qint64 Unfinished = -1;
const char *const AccessList = "system.posix_acl_access";

CopyMark MarkOf(const struct stat &status) {
  return {status.st_dev, status.st_ino, status.st_size,
          qint64{status.st_mtim.tv_sec} * 1'000'000'000 + status.st_mtim.tv_nsec};
}

std::optional<struct stat> StatusOf(int file) {
  struct stat status {};
  return fstat(file, &status) == 0 ? std::optional(status) : std::nullopt;
}

/// Whether a file is a plain file with one name, in the state that the mark says.
bool IsAsMarked(const struct stat &status, const CopyMark &mark) {
  if (!S_ISREG(status.st_mode) || status.st_nlink != 1) return false;
  const CopyMark now = MarkOf(status);
  if (mark.size == Unfinished) return now.device == mark.device && now.inode == mark.inode;
  return now == mark;
}

bool IsThereAsMarked(const QByteArray &name, const CopyMark &mark) {
  struct stat status {};
  return lstat(name.constData(), &status) == 0 && IsAsMarked(status, mark);
}

/// Whether an error of creating a file means that no file of that name can be created there.
bool IsNameUnusable(int error) {
  return error == EEXIST || error == ENOENT || error == ENOTDIR || error == EACCES ||
         error == EPERM || error == EROFS || error == ELOOP || error == ENAMETOOLONG ||
         error == EISDIR || error == ENXIO;
}

/// The permissions for a copy of a file of that status. The copy may get another group.
mode_t ModeLike(const struct stat &page, const struct stat &copy) {
  mode_t mode = page.st_mode & AsTheUserAsks;
  if (page.st_gid != copy.st_gid) mode &= ~S_IRWXG | ((page.st_mode & S_IRWXO) << 3);
  return mode | OwnerOnly;
}

bool HasAccessList(const QByteArray &name) {
  return getxattr(name.constData(), AccessList, nullptr, 0) > 0;
}

// A line of the list: device, inode, size and time of change as numbers, and the path with its
// bytes escaped; of a copy that is gone the path alone. Of several lines with one path the last
// counts.

QByteArray ListLine(const QString &path, const CopyMark *mark) {
  const QByteArray name = QFile::encodeName(path).toPercentEncoding("/");
  if (mark == nullptr) return name + '\n';
  return QByteArray::number(quint64{mark->device}) + ' ' +
         QByteArray::number(quint64{mark->inode}) + ' ' + QByteArray::number(mark->size) + ' ' +
         QByteArray::number(mark->changed) + ' ' + name + '\n';
}

std::map<QString, CopyMark> ReadList(const QByteArray &list) {
  std::map<QString, CopyMark> copies;
  // A line without an end was cut off by a crash.
  for (const QByteArray &line : list.left(list.lastIndexOf('\n') + 1).split('\n')) {
    const QList<QByteArray> parts = line.split(' ');
    const QString path = QFile::decodeName(QByteArray::fromPercentEncoding(parts.constLast()));
    if (parts.size() == 1) {
      copies.erase(path);
    } else if (parts.size() == 5) {
      copies[path] = {parts[0].toULongLong(), parts[1].toULongLong(), parts[2].toLongLong(),
                      parts[3].toLongLong()};
    }
  }
  return copies;
}

QString ListFolder() {
  return StateFolder() + QStringLiteral("/copies");
}

}  // namespace

TemporaryCopyFiles::~TemporaryCopyFiles() {
  if (list_.IsOpen() && copies_.empty()) calls_.Unlink(QFile::encodeName(listName_).constData());
}

FileDescriptor TemporaryCopyFiles::OpenOwn(const QString &path) const {
  const auto known = copies_.find(path);
  if (known == copies_.end()) return FileDescriptor();
  // Without O_CREAT and O_TRUNC: what is opened is looked at before it is changed.
  FileDescriptor file =
      OpenFile(calls_, QFile::encodeName(path), O_WRONLY | O_NOFOLLOW | O_NONBLOCK);
  if (!file.IsOpen()) return file;
  const auto status = StatusOf(file.Number());
  return status && IsAsMarked(*status, known->second) ? std::move(file) : FileDescriptor();
}

FileDescriptor TemporaryCopyFiles::Create(const QString &path, const QString &page) {
  const QByteArray original = QFile::encodeName(ToNative(page));
  struct stat like {};
  const bool hasPage = !page.isEmpty() && stat(original.constData(), &like) == 0;
  const QByteArray name = QFile::encodeName(path);
  FileDescriptor file = OpenFile(calls_, name, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW,
                                 hasPage ? OwnerOnly : AsTheUserAsks);
  if (!file.IsOpen() || !hasPage) return file;
  // The mode of a file with an access list does not say who may read it: the copy stays private.
  if (HasAccessList(original) || HasAccessList(name)) return file;
  if (const auto status = StatusOf(file.Number()))
    Uninterrupted([&] { return calls_.SetMode(file.Number(), ModeLike(like, *status)); });
  return file;
}

TemporaryCopies::Outcome TemporaryCopyFiles::Write(const QString &path, const QByteArray &content,
                                                   const QString &page) {
  if (path.isEmpty() || IsOnUnknownDrive(path) || path.contains(QChar(0))) return Outcome::NoPlace;
  const QString native = ToNative(path);
  const auto failure = [&](int error) {
    return RuntimeError::FromErrno(error, QStringLiteral("TemporaryCopy"), native);
  };
  FileDescriptor file = OpenOwn(native);
  if (!file.IsOpen()) file = Create(native, page);
  if (!file.IsOpen()) {
    if (IsNameUnusable(errno)) return Outcome::NoPlace;
    throw failure(errno);
  }
  const auto begun = StatusOf(file.Number());
  if (!begun) throw failure(errno);
  CopyMark mark = MarkOf(*begun);
  mark.size = Unfinished;
  Remember(native, &mark);
  const bool isWritten =
      WriteBytes(calls_, file.Number(), content) &&
      Uninterrupted([&] { return calls_.Truncate(file.Number(), content.size()); }) == 0;
  const int error = errno;
  const auto written = isWritten ? StatusOf(file.Number()) : std::nullopt;
  if (!written) {
    Remove(path);
    throw failure(error);
  }
  mark = MarkOf(*written);
  Remember(native, &mark);
  return Outcome::Written;
}

void TemporaryCopyFiles::Remove(const QString &path) {
  const QString native = ToNative(path);
  const auto known = copies_.find(native);
  if (path.isEmpty() || known == copies_.end()) return;
  const QByteArray name = QFile::encodeName(native);
  if (IsThereAsMarked(name, known->second)) calls_.Unlink(name.constData());
  Remember(native, nullptr);
}

void TemporaryCopyFiles::RemoveAbandoned() {
  for (const QString &name :
       QDir(ListFolder()).entryList({QStringLiteral("*.list")}, QDir::Files)) {
    const QString path = ListFolder() + u'/' + name;
    if (path == listName_) continue;
    const FileDescriptor list = OpenLocked(path, LockCreation::Never);
    QFile reader;
    if (!list.IsOpen() || !reader.open(list.Number(), QIODevice::ReadOnly)) continue;
    for (const auto &[copy, mark] : ReadList(reader.readAll())) {
      const QByteArray copyName = QFile::encodeName(copy);
      if (IsThereAsMarked(copyName, mark)) calls_.Unlink(copyName.constData());
    }
    calls_.Unlink(QFile::encodeName(path).constData());
  }
}

void TemporaryCopyFiles::Remember(const QString &path, const CopyMark *mark) {
  if (mark != nullptr) {
    copies_[path] = *mark;
  } else {
    copies_.erase(path);
  }
  if (!list_.IsOpen()) OpenList();
  if (list_.IsOpen()) WriteBytes(calls_, list_.Number(), ListLine(path, mark));
}

void TemporaryCopyFiles::OpenList() {
  try {
    MakePrivateFolder(ListFolder());
  } catch (const RuntimeError &) {
    return;  // nothing is lost without a list but the tidying up after a kill
  }
  const qint64 now = QDateTime::currentMSecsSinceEpoch();
  listName_ = QStringLiteral("%1/%2-%3.list").arg(ListFolder()).arg(getpid()).arg(now);
  list_ = OpenLocked(listName_, LockCreation::New);
}

}  // namespace velor
