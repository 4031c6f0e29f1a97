// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <fcntl.h>
#include <sys/types.h>

namespace velor {

/// The system calls by which files change, as the system has them: -1 and errno on failure. Tests
/// put failing ones in their place, or such as end the process between two of them.
class FileCalls {
 public:
  virtual ~FileCalls() = default;

  virtual int Open(const char *name, int flags, mode_t mode);
  virtual ssize_t Write(int file, const void *data, size_t size);
  virtual int Truncate(int file, off_t size);
  /// Content and attributes to the disk.
  virtual int Sync(int file);
  /// The file is closed whatever this answers; some file systems tell a failed write only here.
  virtual int Close(int file);
  virtual int Rename(const char *from, const char *to);
  virtual int Unlink(const char *name);
  /// Takes the room for `size` bytes without changing what is read.
  virtual int Reserve(int file, off_t size);
  virtual int SetOwner(int file, uid_t owner, gid_t group);
  virtual int SetMode(int file, mode_t mode);
  virtual int SetAttribute(int file, const char *name, const void *value, size_t size);

  /// The one that tests do not replace.
  static FileCalls &OfTheSystem();
};

}  // namespace velor
