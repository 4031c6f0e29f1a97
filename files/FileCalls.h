// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <fcntl.h>
#include <sys/types.h>

namespace velor {

/// The system calls that change files. They answer -1 and set errno on failure, as the system's own
/// do. Tests override them to fail, or to end the process between two of them.
class FileCalls {
 public:
  virtual ~FileCalls() = default;

  virtual int Open(const char *name, int flags, mode_t mode);
  virtual ssize_t Write(int file, const void *data, size_t size);
  virtual int Truncate(int file, off_t size);
  /// fsync: content and attributes are on the disk when it returns 0.
  virtual int Sync(int file);
  /// The file is closed whatever this answers; some file systems tell a failed write only here.
  virtual int Close(int file);
  virtual int Rename(const char *from, const char *to);
  virtual int Unlink(const char *name);
  /// Allocates blocks for `size` bytes; neither the content nor the file's size changes.
  virtual int Reserve(int file, off_t size);
  virtual int SetOwner(int file, uid_t owner, gid_t group);
  virtual int SetMode(int file, mode_t mode);
  virtual int SetAttribute(int file, const char *name, const void *value, size_t size);

  /// The real system calls.
  static FileCalls &OfTheSystem();
};

}  // namespace velor
