// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>

namespace velor {

/// Lives as long as an event is delivered. The application object makes one for each.
class EventDelivery final {
 public:
  EventDelivery() { ++depth_; }
  ~EventDelivery() { --depth_; }
  EventDelivery(const EventDelivery &) = delete;
  EventDelivery &operator=(const EventDelivery &) = delete;

  /// Whether an event is delivered while another one is.
  static bool IsNested() { return depth_ > 1; }

 private:
  static inline int depth_ = 0;
};

/// Whether code is on the stack that goes on afterwards: a dialog or a wait for a page runs an
/// event loop of its own, or a handler lets pending events through.
bool IsCodeWaiting();

/// Closes the open dialogs as Escape does, the latest first, and lets the code behind them and
/// waits for pages come to their ends: a save that is under way ends whole. Then calls `goOn`, from
/// the program's own event loop. What has not ended after `mostTurns` turns (of ten milliseconds,
/// and what comes between them) waits on.
void UnwindThen(const std::function<void()> &goOn, int mostTurns = 500);

}  // namespace velor
