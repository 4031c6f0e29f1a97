// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/Lifetime.h"

#include <QObject>

#include <chrono>
#include <functional>

namespace velor {

/// What the engine is doing on this thread's stack, shared by every view of one engine: whether
/// control is inside one of its callbacks (where an answer would never come) and how many waits
/// are running (during which no notice may leave).
class EngineGuard : public QObject {
  Q_OBJECT

 public:
  bool InCallback() const { return callbacks_ > 0; }
  bool Waiting() const { return waits_ > 0; }
  /// Lets the running waits look again whether they are done; safe inside a callback.
  void Wake() { Q_EMIT Woken(); }

 Q_SIGNALS:
  void Woken();

 private:
  friend class EngineCallback;
  friend class GuardedWait;
  int callbacks_ = 0;
  int waits_ = 0;
  Lifetime lifetime_;
};

/// Stands at the top of every function that the engine calls.
class EngineCallback {
 public:
  explicit EngineCallback(EngineGuard &guard) : guard_(guard) { ++guard_.callbacks_; }
  ~EngineCallback() { --guard_.callbacks_; }
  EngineCallback(const EngineCallback &) = delete;
  EngineCallback &operator=(const EngineCallback &) = delete;

 private:
  EngineGuard &guard_;
};

enum class WaitEnd {
  Done,
  Destroyed,  ///< what was waited on is gone; touch nothing that belonged to it
  TimedOut,
  Stopped,  ///< by the person
  Refused,  ///< inside an engine callback; nothing was waited for
};

/// A wait that may be long: after some time the person is told and may stop it by Escape.
struct Patience {
  /// Other input from then on: lost, where it meant what the wait is about to replace, or given to
  /// whom it was meant for when the wait has ended.
  enum class Input { Lost, Kept };

  std::chrono::milliseconds time;
  std::function<void()> tell;
  Input input = Input::Lost;
};

/// The one nested event loop of the program. User input stays in its queue meanwhile. Posted
/// events are pumped by a timer as well, since the GLib dispatcher does not always send them in a
/// loop that was entered from one of its own callbacks.
class GuardedWait {
 public:
  explicit GuardedWait(EngineGuard &guard) : guard_(guard) {}

  /// Returns when `done` answers true (asked every 2 ms and at each Wake), `subject` is destroyed
  /// or the limit has passed.
  WaitEnd Until(QObject &subject, std::chrono::milliseconds limit,
                const std::function<bool()> &done, const Patience *patience = nullptr);

 private:
  EngineGuard &guard_;
};

}  // namespace velor
