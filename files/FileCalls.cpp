// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/FileCalls.h"

#include <cstdio>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace velor {

int FileCalls::Open(const char *name, int flags, mode_t mode) {
  return open(name, flags, mode);
}

ssize_t FileCalls::Write(int file, const void *data, size_t size) {
  return write(file, data, size);
}

int FileCalls::Truncate(int file, off_t size) {
  return ftruncate(file, size);
}

int FileCalls::Sync(int file) {
  return fsync(file);
}

int FileCalls::Close(int file) {
  return close(file);
}

int FileCalls::Rename(const char *from, const char *to) {
  return rename(from, to);
}

int FileCalls::Unlink(const char *name) {
  return unlink(name);
}

int FileCalls::Reserve(int file, off_t size) {
  return fallocate(file, FALLOC_FL_KEEP_SIZE, 0, size);
}

int FileCalls::SetOwner(int file, uid_t owner, gid_t group) {
  return fchown(file, owner, group);
}

int FileCalls::SetMode(int file, mode_t mode) {
  return fchmod(file, mode);
}

int FileCalls::SetAttribute(int file, const char *name, const void *value, size_t size) {
  return fsetxattr(file, name, value, size, 0);
}

FileCalls &FileCalls::OfTheSystem() {
  static FileCalls calls;
  return calls;
}

}  // namespace velor
