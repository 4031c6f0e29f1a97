// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "chrome/StylingSweeps.h"

#include <functional>
#include <memory>
#include <utility>

namespace velor {

/// Sweeps whose errors do not keep a window from loading: what was styled stays, and the error is
/// raised anew from the event loop, where the program's one handler reports it.
class ReportingSweeps final : public StylingSweeps {
 public:
  explicit ReportingSweeps(std::unique_ptr<StylingSweeps> sweeps) : sweeps_(std::move(sweeps)) {}

  void FlatSweep(QWidget &window) override;
  void FlatComboSweep(QWidget &window) override;
  void ThinEdgeSweep(QWidget &window) override;
  void ThinEdgeByType(QWidget &window, const QString &typeName) override;

 private:
  static void Run(QWidget &window, const std::function<void()> &sweep);

  std::unique_ptr<StylingSweeps> sweeps_;
};

}  // namespace velor
