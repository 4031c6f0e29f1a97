// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "files/FileCalls.h"

#include <cerrno>
#include <csignal>
#include <limits>
#include <optional>
#include <unistd.h>
#include <vector>

namespace velor {

/// The real system calls, of which chosen ones fail or end the process.
class FaultyCalls : public FileCalls {
 public:
  enum class Call {
    Open,
    Write,
    Truncate,
    Sync,
    Close,
    Rename,
    Unlink,
    Reserve,
    Owner,
    Mode,
    Attribute,
  };

  int Open(const char *name, int flags, mode_t mode) override {
    // Looking at a file or folder changes nothing, and does not count.
    if ((flags & O_ACCMODE) == O_RDONLY) return FileCalls::Open(name, flags, mode);
    return Pass(Call::Open) ? FileCalls::Open(name, flags, mode) : -1;
  }
  ssize_t Write(int file, const void *data, size_t size) override {
    if (!Pass(Call::Write)) return -1;
    return FileCalls::Write(file, data, size < longestWrite ? size : longestWrite);
  }
  int Truncate(int file, off_t size) override {
    return Pass(Call::Truncate) ? FileCalls::Truncate(file, size) : -1;
  }
  int Sync(int file) override { return Pass(Call::Sync) ? FileCalls::Sync(file) : -1; }
  int Close(int file) override {
    const bool passes = Pass(Call::Close);
    const int error = errno;
    const int closed = FileCalls::Close(file);
    errno = passes ? errno : error;
    return passes ? closed : -1;
  }
  int Rename(const char *from, const char *to) override {
    return Pass(Call::Rename) ? FileCalls::Rename(from, to) : -1;
  }
  int Unlink(const char *name) override {
    return Pass(Call::Unlink) ? FileCalls::Unlink(name) : -1;
  }
  int Reserve(int file, off_t size) override {
    return Pass(Call::Reserve) ? FileCalls::Reserve(file, size) : -1;
  }
  int SetOwner(int file, uid_t owner, gid_t group) override {
    return Pass(Call::Owner) ? FileCalls::SetOwner(file, owner, group) : -1;
  }
  int SetMode(int file, mode_t mode) override {
    return Pass(Call::Mode) ? FileCalls::SetMode(file, mode) : -1;
  }
  int SetAttribute(int file, const char *name, const void *value, size_t size) override {
    return Pass(Call::Attribute) ? FileCalls::SetAttribute(file, name, value, size) : -1;
  }

  /// After `good` calls of this kind have succeeded, `bad` ones fail with that errno.
  void Fail(Call call, int errnoValue, int good = 0, int bad = std::numeric_limits<int>::max()) {
    failing_ = call;
    errno_ = errnoValue;
    good_ = good;
    bad_ = bad;
  }
  enum class Lasting { Once, FromThenOn };
  /// The call with this number, counted from 1 from now on, fails with that errno.
  void FailAt(int call, int errnoValue, Lasting lasting = Lasting::Once) {
    calls = 0;
    order.clear();
    failAt_ = call;
    errnoAt_ = errnoValue;
    lasting_ = lasting;
  }
  void FailNoMore() {
    errno_ = 0;
    failAt_ = 0;
    alsoFails.reset();
  }
  /// The process ends before the call with this number, counted from 1 from now on.
  void KillBefore(int call) {
    calls = 0;
    killBefore_ = call;
  }

  int calls = 0;
  /// All calls so far, in order.
  std::vector<Call> order;
  /// Calls of this kind fail too (EIO).
  std::optional<Call> alsoFails;
  size_t longestWrite = static_cast<size_t>(-1);

 private:
  bool Pass(Call call) {
    order.push_back(call);
    if (++calls == killBefore_) kill(getpid(), SIGKILL);
    const bool isDue = lasting_ == Lasting::Once ? calls == failAt_ : calls >= failAt_;
    if (failAt_ > 0 && isDue) {
      errno = errnoAt_;
      return false;
    }
    if (call == alsoFails) {
      errno = EIO;
      return false;
    }
    if (errno_ == 0 || call != failing_ || good_-- > 0 || bad_-- <= 0) return true;
    errno = errno_;
    return false;
  }

  Call failing_ = Call::Open;
  int errno_ = 0;
  int good_ = 0;
  int bad_ = 0;
  int killBefore_ = 0;
  int failAt_ = 0;
  int errnoAt_ = 0;
  Lasting lasting_ = Lasting::Once;
};

}  // namespace velor
