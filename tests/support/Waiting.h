// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QTimer>

namespace velor {

/// Lets events happen until `condition` holds; false when it does not within `limit` milliseconds.
/// QTest::qWaitFor sleeps between two rounds of events, and the engine takes a hundred rounds for a
/// page; here the next event is what is waited for.
template <typename Condition>
bool WaitFor(Condition condition, int limit = 10'000) {
  // A condition that no event of this program brings about is looked at every ten milliseconds.
  QTimer look;
  look.start(10);
  const QDeadlineTimer end(limit);
  while (!condition()) {
    if (end.hasExpired()) return false;
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  return true;
}

}  // namespace velor
