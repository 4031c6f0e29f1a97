// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

namespace velor {

/// Without the superuser's rights for the life of a scope; nothing to do for other users.
class AsOrdinaryUser {
 public:
  AsOrdinaryUser() : user_(geteuid()) {
    if (user_ == 0) {
      EXPECT_EQ(seteuid(Nobody), 0);
    }
  }
  ~AsOrdinaryUser() { EXPECT_EQ(seteuid(user_), 0); }

  static constexpr uid_t Nobody = 65534;

 private:
  uid_t user_;
};

/// No file may grow beyond so many bytes: what a full disk looks like, without one.
class FileSizeLimit {
 public:
  explicit FileSizeLimit(rlim_t bytes = 1000) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit limit{bytes, before_.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~FileSizeLimit() {
    setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }

 private:
  void (*handler_)(int);
  rlimit before_{};
};

}  // namespace velor
