// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "chrome/StylingSweeps.h"
#include "platform/RuntimeError.h"

namespace velor {

/// Sweeps that fail as they do for a window with more controls than there are painters.
class FailingSweeps final : public StylingSweeps {
 public:
  void FlatSweep(QWidget &) override { Fail(); }
  void FlatComboSweep(QWidget &) override { Fail(); }
  void ThinEdgeSweep(QWidget &) override { Fail(); }
  void ThinEdgeByType(QWidget &, const QString &) override { Fail(); }

 private:
  [[noreturn]] static void Fail() {
    throw RuntimeError::Of(ErrorNumber::SubscriptOutOfRange, QStringLiteral("Painters"));
  }
};

}  // namespace velor
