// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/GuardedWait.h"

#include <QCoreApplication>
#include <QEvent>
#include <QEventLoop>
#include <QKeyEvent>
#include <QPointer>
#include <QTimer>

#include <memory>
#include <optional>
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

/// Takes all input of the program while it lives, and calls `escaped` for Escape.
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

  /// Whether an event means the same later. A drag needs its answers at once, and a shortcut
  /// override asks about the key event behind it.
  static bool CanWait(QEvent::Type type) {
    return type != QEvent::DragEnter && type != QEvent::Drop && type != QEvent::ShortcutOverride;
  }

  Patience::Input input_;
  std::function<void()> escaped_;
  std::vector<Kept> kept_;
};

/// The event loop of one wait. It may run twice: first without user input, then with
/// Escape watched.
class WaitLoop {
 public:
  WaitLoop(QObject &subject, EngineGuard &guard, const std::function<bool()> &done) : done_(done) {
    QObject::connect(&pump_, &QTimer::timeout, &loop_, [this] {
      QCoreApplication::sendPostedEvents();
      CheckDone();
    });
    QObject::connect(&guard, &EngineGuard::Woken, &loop_, [this] { CheckDone(); });
    QObject::connect(&subject, &QObject::destroyed, &loop_, [this] { End(WaitEnd::Destroyed); });
    pump_.start(PumpInterval);
  }

  /// How the wait ended; nothing while it goes on.
  const std::optional<WaitEnd> &Ended() const { return end_; }
  /// Ends the wait as timed out when that time has passed.
  void LimitTo(std::chrono::milliseconds limit) {
    QTimer::singleShot(limit, &loop_, [this] { End(WaitEnd::TimedOut); });
  }
  /// Runs until the wait ends, or for that time.
  void RunWithoutInput(std::optional<std::chrono::milliseconds> time) {
    if (time) QTimer::singleShot(*time, &loop_, &QEventLoop::quit);
    loop_.exec(QEventLoop::ExcludeUserInputEvents);
  }
  /// Tells the person and runs until the wait ends or is stopped by Escape.
  void RunStoppable(const Patience &patience) {
    const EscapeWatch watch(patience.input, [this] { End(WaitEnd::Stopped); });
    patience.tell();
    loop_.exec();
  }

 private:
  void CheckDone() {
    if (!end_ && done_()) end_ = WaitEnd::Done;
    if (end_) loop_.quit();
  }
  void End(WaitEnd end) {
    if (!end_ || end == WaitEnd::Destroyed) end_ = end;
    loop_.quit();
  }

  const std::function<bool()> &done_;
  QEventLoop loop_;
  QTimer pump_;
  std::optional<WaitEnd> end_;
};

}  // namespace

WaitEnd GuardedWait::Until(QObject &subject, std::chrono::milliseconds limit,
                           const std::function<bool()> &done, const Patience *patience) {
  if (guard_.InCallback()) return WaitEnd::Refused;
  if (done()) return WaitEnd::Done;

  const Lifetime::Watch guardLife = guard_.lifetime_.NewWatch();
  ++guard_.waits_;
  WaitLoop loop(subject, guard_, done);
  loop.LimitTo(limit);
  if (patience == nullptr) {
    loop.RunWithoutInput({});
  } else {
    loop.RunWithoutInput(patience->time);
    if (!loop.Ended()) loop.RunStoppable(*patience);
  }
  if (!guardLife.IsOver()) --guard_.waits_;
  return loop.Ended().value_or(WaitEnd::TimedOut);
}

}  // namespace velor
