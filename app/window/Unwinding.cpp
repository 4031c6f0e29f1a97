// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/Unwinding.h"

#include <QApplication>
#include <QThread>
#include <QTimer>
#include <QWidget>

#include <chrono>

namespace velor {

namespace {

constexpr std::chrono::milliseconds Turn{10};

}  // namespace

bool IsCodeWaiting() {
  return QThread::currentThread()->loopLevel() > 1 || EventDelivery::IsNested();
}

void UnwindThen(const std::function<void()> &goOn, int mostTurns) {
  if (!IsCodeWaiting() || mostTurns == 0) return goOn();
  if (QWidget *dialog = QApplication::activeModalWidget()) dialog->close();
  QTimer::singleShot(Turn, qApp, [=] { UnwindThen(goOn, mostTurns - 1); });
}

}  // namespace velor
