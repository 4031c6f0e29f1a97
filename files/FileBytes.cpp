// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/FileBytes.h"

#include "platform/RuntimeError.h"

#include <QFile>
#include <QList>

#include <optional>
#include <sys/xattr.h>

namespace velor {

namespace {

/// Calls twice, for the size and for the content. Nothing where a call fails.
template <typename Call>
std::optional<QByteArray> Answer(Call call) {
  const ssize_t size = call(nullptr, 0);
  if (size < 0) return std::nullopt;
  QByteArray answer(size, '\0');
  const ssize_t used = call(answer.data(), static_cast<size_t>(size));
  if (used < 0) return std::nullopt;
  answer.truncate(used);
  return answer;
}

std::optional<QByteArray> AttributeOf(int file, const char *name) {
  return Answer([&](char *to, size_t size) { return fgetxattr(file, name, to, size); });
}

}  // namespace

FileDescriptor OpenFile(FileCalls &calls, const QByteArray &name, int flags, mode_t mode) {
  return FileDescriptor(
      Uninterrupted([&] { return calls.Open(name.constData(), flags | O_CLOEXEC, mode); }));
}

QByteArray ReadBeginning(const QString &path, qsizetype count, const QString &source) {
  const FileDescriptor file = OpenFile(FileCalls::OfTheSystem(), QFile::encodeName(path), O_RDONLY);
  QByteArray beginning(count, '\0');
  const ssize_t got = !file.IsOpen() ? -1 : Uninterrupted([&] {
    return read(file.Number(), beginning.data(), static_cast<size_t>(count));
  });
  if (got < 0) throw RuntimeError::FromErrno(errno, source, path);
  beginning.truncate(got);
  return beginning;
}

bool CloseFile(FileCalls &calls, FileDescriptor file) {
  // An interrupted close has closed the file.
  return calls.Close(file.Release()) == 0 || errno == EINTR;
}

bool WriteBytes(FileCalls &calls, int file, const QByteArray &content) {
  const char *data = content.constData();
  qsizetype left = content.size();
  while (left > 0) {
    const ssize_t written =
        Uninterrupted([&] { return calls.Write(file, data, static_cast<size_t>(left)); });
    if (written < 0) return false;
    data += written;
    left -= written;
  }
  return true;
}

bool SyncFile(FileCalls &calls, int file) {
  return Uninterrupted([&] { return calls.Sync(file); }) == 0 || errno == EINVAL ||
         errno == ENOTSUP;
}

bool SyncFolder(FileCalls &calls, const QByteArray &folder) {
  const FileDescriptor descriptor = OpenFile(calls, folder, O_RDONLY | O_DIRECTORY);
  // A folder in which files may be created but not listed cannot be opened; it is not synced then.
  return !descriptor.IsOpen() || SyncFile(calls, descriptor.Number());
}

bool CopyAttributes(FileCalls &calls, int from, int to) {
  const auto names =
      Answer([from](char *list, size_t size) { return flistxattr(from, list, size); });
  if (!names) return errno == ENOTSUP;
  for (const QByteArray &name : names->split('\0')) {
    if (name.isEmpty()) continue;
    const auto value = AttributeOf(from, name.constData());
    if (!value) return false;
    // The system sets some attributes itself and lets nobody else do so: those are equal already.
    if (AttributeOf(to, name.constData()) == value) continue;
    const auto size = static_cast<size_t>(value->size());
    const int given = Uninterrupted(
        [&] { return calls.SetAttribute(to, name.constData(), value->constData(), size); });
    if (given != 0) return false;
  }
  return true;
}

}  // namespace velor
