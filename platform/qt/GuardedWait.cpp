// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/GuardedWait.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QPointer>
#include <QTimer>

namespace velor {

namespace {

constexpr std::chrono::milliseconds pumpInterval{2};

}  // namespace

WaitEnd GuardedWait::Until(QObject &subject, std::chrono::milliseconds limit,
                           const std::function<bool()> &done) {
  if (guard_.InCallback()) return WaitEnd::Refused;
  if (done()) return WaitEnd::Done;

  const QPointer<QObject> alive(&subject);
  const QPointer<EngineGuard> guardAlive(&guard_);
  WaitEnd end = WaitEnd::TimedOut;
  QEventLoop loop;
  const auto look = [&] {
    if (alive.isNull())
      end = WaitEnd::Destroyed;
    else if (done())
      end = WaitEnd::Done;
    else
      return;
    loop.quit();
  };
  QTimer pump;
  QObject::connect(&pump, &QTimer::timeout, &loop, [&] {
    QCoreApplication::sendPostedEvents();
    look();
  });
  QObject::connect(&guard_, &EngineGuard::Woken, &loop, look);
  QObject::connect(&subject, &QObject::destroyed, &loop, [&] {
    end = WaitEnd::Destroyed;
    loop.quit();
  });
  QTimer::singleShot(limit, &loop, &QEventLoop::quit);

  pump.start(pumpInterval);
  ++guard_.waits_;
  loop.exec(QEventLoop::ExcludeUserInputEvents);
  if (guardAlive != nullptr) --guard_.waits_;
  return end;
}

}  // namespace velor
