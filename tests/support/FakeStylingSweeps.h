// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "chrome/StylingSweeps.h"
#include "tests/support/CallLog.h"

#include <QWidget>

namespace velor {

/// Sweeps that only record their calls.
class FakeStylingSweeps final : public StylingSweeps {
 public:
  explicit FakeStylingSweeps(CallLog *log) : log_(log) {}

  void FlatSweep(QWidget &window) override {
    Note(log_, QStringLiteral("FlatSweep(%1)").arg(window.objectName()));
  }
  void FlatComboSweep(QWidget &window) override {
    Note(log_, QStringLiteral("FlatComboSweep(%1)").arg(window.objectName()));
  }
  void ThinEdgeSweep(QWidget &window) override {
    Note(log_, QStringLiteral("ThinEdgeSweep(%1)").arg(window.objectName()));
  }
  void ThinEdgeByType(QWidget &window, const QString &typeName) override {
    Note(log_, QStringLiteral("ThinEdgeByType(%1, %2)").arg(window.objectName(), typeName));
  }

 private:
  CallLog *log_;
};

}  // namespace velor
