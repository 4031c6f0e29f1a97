// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/Sandbox.h"

#include <QByteArray>
#include <QtGlobal>

namespace velor {

bool IsSandboxOff() {
  return qEnvironmentVariableIntValue("QTWEBENGINE_DISABLE_SANDBOX") != 0 ||
         qgetenv("QTWEBENGINE_CHROMIUM_FLAGS").contains("--no-sandbox");
}

}  // namespace velor
