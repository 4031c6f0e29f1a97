// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/engine/bridge/BridgePage.h"
#include "tests/support/Waiting.h"

#include <gtest/gtest.h>

namespace velor {

/// A page of the bridge that is asked and waited for by expressions in its world.
class BridgeFixture : public ::testing::Test {
 protected:
  QVariant Evaluate(const QString &expression) { return page_.Evaluate(expression); }
  QString Text(const QString &expression) { return Evaluate(expression).toString(); }
  bool Comes(const QString &condition) {
    return WaitFor([this, &condition] { return Evaluate(condition).toBool(); }, 5000);
  }

  BridgePage page_;
};

}  // namespace velor
