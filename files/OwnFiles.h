// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "files/FileCalls.h"
#include "files/FileDescriptor.h"

#include <QString>

namespace velor {

// Files that the program keeps for itself in private folders (MakePrivateFolder). Paths are native;
// no link is followed.

/// What speaks against reading a file as one of the program's own.
enum class OwnFileDefect {
  None,
  Unreadable,   ///< OwnFile::error says why
  NoPlainFile,  ///< a link, a folder, a pipe
  OtherUsers,   ///< another user may have put anything into it
};

struct OwnFile {
  FileDescriptor file;  ///< open for reading where there is no defect
  OwnFileDefect defect = OwnFileDefect::None;
  int error = 0;  ///< errno
  qint64 bytes = 0;
};

/// Opens a file for reading. It does not wait for whoever has the other end of a pipe.
OwnFile OpenOwnFile(const QString &path);

/// Opens a new or emptied file for appending, which only its owner may read. Not open, with errno
/// set, where that failed.
FileDescriptor CreateOwnFile(FileCalls &calls, const QString &path);

enum class LockCreation {
  Never,      ///< the file is there
  IfMissing,  ///< the file is made where it is not there
  New,        ///< there is no file of that name
};

/// Opens a file for reading and appending and takes its lock, which the system releases when the
/// file is closed or this process ends, however it ends. Not open where another process has the
/// lock, or the file has gone meanwhile.
FileDescriptor OpenLocked(const QString &path, LockCreation creation);

}  // namespace velor
