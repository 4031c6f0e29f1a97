// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "chrome/StylingSweeps.h"

#include <functional>
#include <memory>
#include <utility>

namespace velor {

/// Runs other sweeps and catches their errors, so that a window loads although its styling failed:
/// what was styled stays, and the error is raised again from the event loop, where the event
/// boundary reports it.
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
