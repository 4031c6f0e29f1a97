// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/Sandbox.h"

#include <QByteArray>
#include <QtGlobal>

#include <gtest/gtest.h>

namespace velor {

namespace {

class Sandbox : public ::testing::Test {
 protected:
  void SetUp() override {
    for (const char *variable : {Switch, Flags}) qunsetenv(variable);
  }
  void TearDown() override { qputenv(Switch, before_); }

  static constexpr const char *Switch = "QTWEBENGINE_DISABLE_SANDBOX";
  static constexpr const char *Flags = "QTWEBENGINE_CHROMIUM_FLAGS";

 private:
  QByteArray before_ = qgetenv(Switch);
};

TEST_F(Sandbox, IsOnUnlessTheEnvironmentTurnsItOff) {
  EXPECT_FALSE(IsSandboxOff());
  qputenv(Switch, "0");
  EXPECT_FALSE(IsSandboxOff());
  qputenv(Switch, "1");
  EXPECT_TRUE(IsSandboxOff());
}

TEST_F(Sandbox, IsOffByTheEnginesOwnFlagToo) {
  qputenv(Flags, "--disable-gpu --no-sandbox");
  EXPECT_TRUE(IsSandboxOff());
}

}  // namespace

}  // namespace velor
