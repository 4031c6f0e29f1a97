// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "files/FileCalls.h"
#include "files/FileDescriptor.h"

#include <QByteArray>

#include <cerrno>

namespace velor {

/// Calls again for as long as a signal gets in between.
template <typename Call>
auto Uninterrupted(Call call) {
  auto answer = call();
  while (answer < 0 && errno == EINTR) answer = call();
  return answer;
}

/// Not open, with errno set, where that failed.
FileDescriptor OpenFile(FileCalls &calls, const QByteArray &name, int flags, mode_t mode = 0);

/// False with errno set when that failed; the file is closed all the same.
bool CloseFile(FileCalls &calls, FileDescriptor file);

/// Writes all of it; false with errno set when that failed, however much was written by then.
bool WriteBytes(FileCalls &calls, int file, const QByteArray &content);

/// Like FileCalls::Sync, where a file system that cannot sync such a file counts as done.
bool SyncFile(FileCalls &calls, int file);

/// Brings the names in a native folder to the disk.
bool SyncFolder(FileCalls &calls, const QByteArray &folder);

/// Gives `to` the extended attributes of `from`, access control lists among them. False where one
/// of them could not be given.
bool CopyAttributes(FileCalls &calls, int from, int to);

}  // namespace velor
