// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/OwnFiles.h"

#include "files/FileBytes.h"

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace velor {

namespace {

constexpr mode_t OwnerOnly = S_IRUSR | S_IWUSR;

int FlagsOf(LockCreation creation) {
  switch (creation) {
    case LockCreation::Never:
      return 0;
    case LockCreation::IfMissing:
      return O_CREAT;
    case LockCreation::New:
      return O_CREAT | O_EXCL;
  }
  return 0;
}

}  // namespace

OwnFile OpenOwnFile(const QString &path) {
  OwnFile own;
  own.file = OpenFile(FileCalls::OfTheSystem(), QFile::encodeName(path),
                      O_RDONLY | O_NOFOLLOW | O_NONBLOCK);
  struct stat status {};
  if (!own.file.IsOpen() && errno != ELOOP) {
    own.error = errno;
    own.defect = OwnFileDefect::Unreadable;
  } else if (!own.file.IsOpen() || fstat(own.file.Number(), &status) != 0 ||
             !S_ISREG(status.st_mode)) {
    own.defect = OwnFileDefect::NoPlainFile;
  } else if (status.st_uid != geteuid()) {
    own.defect = OwnFileDefect::OtherUsers;
  }
  if (own.defect != OwnFileDefect::None) own.file = FileDescriptor();
  own.bytes = status.st_size;
  return own;
}

FileDescriptor CreateOwnFile(FileCalls &calls, const QString &path) {
  return OpenFile(calls, QFile::encodeName(path),
                  O_WRONLY | O_CREAT | O_TRUNC | O_APPEND | O_NOFOLLOW, OwnerOnly);
}

FileDescriptor OpenLocked(const QString &path, LockCreation creation) {
  FileDescriptor file = OpenFile(FileCalls::OfTheSystem(), QFile::encodeName(path),
                                 FlagsOf(creation) | O_RDWR | O_APPEND | O_NOFOLLOW, OwnerOnly);
  struct stat status {};
  const bool isOurs = file.IsOpen() && flock(file.Number(), LOCK_EX | LOCK_NB) == 0 &&
                      fstat(file.Number(), &status) == 0 && status.st_nlink > 0;
  return isOurs ? std::move(file) : FileDescriptor();
}

}  // namespace velor
