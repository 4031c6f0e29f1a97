// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/Lifetime.h"

#include <QObject>

#include <chrono>
#include <functional>

namespace velor {

/// What is on this thread's stack, shared by all views of one engine: callbacks of the engine
/// (inside one an answer would never come) and waits for it (during one no notice is delivered).
class EngineGuard : public QObject {
  Q_OBJECT

 public:
  bool InCallback() const { return callbacks_ > 0; }
  bool Waiting() const { return waits_ > 0; }
  /// Makes the running waits ask at once whether they are done; safe inside a callback.
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

/// Marks a scope as a callback: the first statement of every function that the engine calls.
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

/// For a wait that may be long: after `time`, `tell` is called to tell the person, who may then
/// stop the wait by Escape.
struct Patience {
  /// What becomes of other input from then on. Lost: dropped, since it was meant for the document
  /// that the wait replaces. Kept: delivered to its receiver after the wait.
  enum class Input { Lost, Kept };

  std::chrono::milliseconds time;
  std::function<void()> tell;
  Input input = Input::Lost;
};

/// The program's one nested event loop for waits. Input of the person stays in its queue until the
/// wait ends, or until its patience is over. A timer sends posted events too, since the GLib
/// dispatcher does not always do so in a loop that was entered from one of its own callbacks.
class GuardedWait {
 public:
  explicit GuardedWait(EngineGuard &guard) : guard_(guard) {}

  /// Returns when `done` answers true (asked every 2 ms and at each Wake), `subject` is destroyed,
  /// `limit` has passed, or the person stops the wait. `done` may use `subject`: it is not called
  /// after its destruction.
  WaitEnd Until(QObject &subject, std::chrono::milliseconds limit,
                const std::function<bool()> &done, const Patience *patience = nullptr);

 private:
  EngineGuard &guard_;
};

}  // namespace velor
