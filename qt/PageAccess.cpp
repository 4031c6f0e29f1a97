// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/PageAccess.h"

#include <QByteArray>
#include <QtGlobal>

namespace velor {

void ShowPagesToAssistiveTechnology() {
  constexpr const char *Switch = "QTWEBENGINE_ENABLE_LINUX_ACCESSIBILITY";
  if (!qEnvironmentVariableIsSet(Switch)) qputenv(Switch, "1");
}

}  // namespace velor
