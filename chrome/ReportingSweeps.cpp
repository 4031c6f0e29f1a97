// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/ReportingSweeps.h"

#include "platform/RuntimeError.h"

#include <QTimer>
#include <QWidget>

namespace velor {

void ReportingSweeps::FlatSweep(QWidget &window) {
  Run(window, [&] { sweeps_->FlatSweep(window); });
}

void ReportingSweeps::FlatComboSweep(QWidget &window) {
  Run(window, [&] { sweeps_->FlatComboSweep(window); });
}

void ReportingSweeps::ThinEdgeSweep(QWidget &window) {
  Run(window, [&] { sweeps_->ThinEdgeSweep(window); });
}

void ReportingSweeps::ThinEdgeByType(QWidget &window, const QString &typeName) {
  Run(window, [&] { sweeps_->ThinEdgeByType(window, typeName); });
}

void ReportingSweeps::Run(QWidget &window, const std::function<void()> &sweep) {
  try {
    sweep();
  } catch (const RuntimeError &error) {
    QTimer::singleShot(0, &window, [error] { throw error; });
  }
}

}  // namespace velor
