// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QTemporaryDir>

#include <csignal>
#include <gtest/gtest.h>
#include <optional>
#include <sys/resource.h>
#include <unistd.h>

namespace velor {

/// Gives up the superuser's rights for a scope, with a state folder for the ordinary user. Does
/// nothing for other users.
class AsOrdinaryUser {
 public:
  AsOrdinaryUser() : user_(geteuid()) {
    if (user_ == 0) {
      EXPECT_EQ(seteuid(Nobody), 0);
      states_.emplace();
      qputenv("XDG_STATE_HOME", states_->path().toLocal8Bit());
    }
  }
  ~AsOrdinaryUser() {
    states_.reset();
    qputenv("XDG_STATE_HOME", stateHome_);
    EXPECT_EQ(seteuid(user_), 0);
  }

  static constexpr uid_t Nobody = 65534;

 private:
  uid_t user_;
  QByteArray stateHome_ = qgetenv("XDG_STATE_HOME");
  std::optional<QTemporaryDir> states_;
};

/// Limits the size of files (bytes), so that writing fails as on a full disk.
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
