// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/EndingSignals.h"

#include <QSocketNotifier>

#include <array>
#include <csignal>
#include <sys/eventfd.h>
#include <unistd.h>
#include <utility>

namespace velor {

namespace {

constexpr std::array EndingSignal = {SIGTERM, SIGHUP, SIGINT};

/// A handler of signals may do little more than write to a file; it can reach nothing but a global.
int wakeUp = -1;

void WakeUp(int /*signal*/) {
  [[maybe_unused]] const int result = eventfd_write(wakeUp, 1);
}

}  // namespace

EndingSignals::EndingSignals(std::function<void()> end) {
  wakeUp = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
  auto *notifier = new QSocketNotifier(wakeUp, QSocketNotifier::Read, this);
  connect(notifier, &QSocketNotifier::activated, this, [end = std::move(end)] {
    eventfd_t count = 0;
    eventfd_read(wakeUp, &count);
    end();
  });
  for (const int signal : EndingSignal) std::signal(signal, WakeUp);
}

EndingSignals::~EndingSignals() {
  for (const int signal : EndingSignal) std::signal(signal, SIG_DFL);
  close(wakeUp);
}

}  // namespace velor
