// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/qt/files/FileCalls.h"

#include <QByteArray>

namespace velor {

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
