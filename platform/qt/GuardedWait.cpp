// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/GuardedWait.h"

#include <QCoreApplication>
#include <QEvent>
#include <QEventLoop>
#include <QKeyEvent>
#include <QPointer>
#include <QTimer>

namespace velor {

namespace {

constexpr std::chrono::milliseconds pumpInterval{2};

bool IsInput(QEvent::Type type) {
  switch (type) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
    case QEvent::Shortcut:
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::DragEnter:
    case QEvent::Drop:
      return true;
    default:
      return false;
  }
}

/// Keeps all input of the program from where it was meant for, and looks out for Escape in it.
class EscapeWatch : public QObject {
 public:
  explicit EscapeWatch(std::function<void()> escaped) : escaped_(std::move(escaped)) {
    QCoreApplication::instance()->installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject *, QEvent *event) override {
    if (!IsInput(event->type())) return false;
    if (event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape)
      escaped_();
    return true;
  }

 private:
  std::function<void()> escaped_;
};

}  // namespace

WaitEnd GuardedWait::Until(QObject &subject, std::chrono::milliseconds limit,
                           const std::function<bool()> &done, const Patience *patience) {
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
  bool isImpatient = false;
  if (patience != nullptr) {
    QTimer::singleShot(patience->time, &loop, [&] {
      isImpatient = true;
      loop.quit();
    });
  }

  pump.start(pumpInterval);
  ++guard_.waits_;
  loop.exec(QEventLoop::ExcludeUserInputEvents);
  if (isImpatient && end == WaitEnd::TimedOut) {
    const EscapeWatch watch([&] {
      end = WaitEnd::Stopped;
      loop.quit();
    });
    patience->tell();
    loop.exec();
  }
  if (guardAlive != nullptr) --guard_.waits_;
  return end;
}

}  // namespace velor
