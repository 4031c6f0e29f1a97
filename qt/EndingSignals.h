// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

#include <functional>

namespace velor {

/// Calls `end` from the event loop when the system asks the program to end (SIGTERM, SIGHUP,
/// SIGINT), so that it ends as a person's exit does. There can be one such object at a time.
class EndingSignals final : public QObject {
  Q_OBJECT

 public:
  explicit EndingSignals(std::function<void()> end);
  ~EndingSignals() override;
};

}  // namespace velor
