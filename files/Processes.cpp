// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/Processes.h"

#include <csignal>
#include <unistd.h>

namespace velor {

void EndProcess(qint64 number) {
  // The system takes 0 and less for groups of processes.
  if (number > 0) kill(static_cast<pid_t>(number), SIGKILL);
}

bool IsSuperuser() {
  return geteuid() == 0;
}

}  // namespace velor
