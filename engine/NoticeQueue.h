// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/GuardedWait.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <vector>

namespace velor {

/// What a component has to tell, in the order in which it is told when several wait.
enum class Notice {
  LoadEnded,
  Complete,
  Display,
  Memory,
  Picture,
  Pointer,
  Menu,
  Drop,
  Report,
  StepOverLoad,
  Died
};

/// Notices to the component's listener. Each is delivered with the next posted events, when the
/// engine's callback or the call that caused it has returned. None is delivered during a wait
/// (GuardedWait); a timer of a millisecond tries those again.
class NoticeQueue : public QObject {
  Q_OBJECT

 public:
  explicit NoticeQueue(EngineGuard &guard);

  /// Two waiting notices of one kind are one, the later; reports are all told.
  void Post(Notice kind, std::function<void()> deliver);
  /// Delivers everything that waits; only outside of engine callbacks.
  void Deliver();
  /// Delivers a notice of that kind before all others, where one waits.
  void DeliverNow(Notice kind);

 private:
  struct Waiting {
    Notice kind;
    std::function<void()> deliver;
  };

  std::vector<Waiting>::iterator Find(Notice kind);

  EngineGuard &guard_;
  QTimer timer_;
  std::vector<Waiting> waiting_;
};

}  // namespace velor
