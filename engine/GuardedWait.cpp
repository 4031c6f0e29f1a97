// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/GuardedWait.h"

#include <QCoreApplication>
#include <QEvent>
#include <QEventLoop>
#include <QKeyEvent>
#include <QPointer>
#include <QTimer>

#include <memory>
#include <utility>
#include <vector>

namespace velor {

namespace {

constexpr std::chrono::milliseconds PumpInterval{2};

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
  EscapeWatch(Patience::Input input, std::function<void()> escaped)
      : input_(input), escaped_(std::move(escaped)) {
    QCoreApplication::instance()->installEventFilter(this);
  }
  ~EscapeWatch() override {
    for (Kept &kept : kept_)
      if (kept.receiver != nullptr)
        QCoreApplication::postEvent(kept.receiver, kept.event.release());
  }

 protected:
  bool eventFilter(QObject *receiver, QEvent *event) override {
    if (!IsInput(event->type())) return false;
    const bool isEscape = event->type() == QEvent::KeyPress &&
                          static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape;
    if (isEscape)
      escaped_();
    else if (input_ == Patience::Input::Kept && CanWait(event->type()))
      kept_.push_back({receiver, std::unique_ptr<QEvent>(event->clone())});
    return true;
  }

 private:
  struct Kept {
    QPointer<QObject> receiver;
    std::unique_ptr<QEvent> event;
  };

  /// A drag goes on only while it is answered; an override is a question about the key behind it.
  static bool CanWait(QEvent::Type type) {
    return type != QEvent::DragEnter && type != QEvent::Drop && type != QEvent::ShortcutOverride;
  }

  Patience::Input input_;
  std::function<void()> escaped_;
  std::vector<Kept> kept_;
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

  pump.start(PumpInterval);
  ++guard_.waits_;
  loop.exec(QEventLoop::ExcludeUserInputEvents);
  if (isImpatient && end == WaitEnd::TimedOut) {
    const EscapeWatch watch(patience->input, [&] {
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
