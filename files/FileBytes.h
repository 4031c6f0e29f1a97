// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "files/FileCalls.h"
#include "files/FileDescriptor.h"

#include <QByteArray>
#include <QString>

#include <cerrno>

namespace velor {

/// Repeats a system call that a signal interrupted (EINTR); answers its last result.
template <typename Call>
auto Uninterrupted(Call call) {
  auto answer = call();
  while (answer < 0 && errno == EINTR) answer = call();
  return answer;
}

/// Opens a file, with O_CLOEXEC among its flags. Not open, with errno set, where that failed.
FileDescriptor OpenFile(FileCalls &calls, const QByteArray &name, int flags, mode_t mode = 0);

/// The first bytes of a native file, at most `count`. Raises RuntimeError with that source where it
/// cannot be read, or is a folder.
QByteArray ReadBeginning(const QString &path, qsizetype count, const QString &source);

/// False with errno set where the file system reports a failed write; the file is closed all the
/// same.
bool CloseFile(FileCalls &calls, FileDescriptor file);

/// Writes all of `content`; false with errno set where that failed, perhaps with a part written.
bool WriteBytes(FileCalls &calls, int file, const QByteArray &content);

/// Like FileCalls::Sync, where a file system that cannot sync such a file counts as done.
bool SyncFile(FileCalls &calls, int file);

/// Syncs a native folder, so that new, renamed and deleted names in it survive a power failure.
bool SyncFolder(FileCalls &calls, const QByteArray &folder);

/// Gives `to` the extended attributes of `from`, access control lists among them. False where one
/// of them could not be given.
bool CopyAttributes(FileCalls &calls, int from, int to);

}  // namespace velor
