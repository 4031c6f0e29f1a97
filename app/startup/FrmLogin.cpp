// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/startup/FrmLogin.h"

#include "platform/Platform.h"
#include "platform/SourceControl.h"

namespace velor {

FrmLogin::FrmLogin(Components &components) : databaseDialog_(components.CreateFileDialog()) {
  setObjectName(QStringLiteral("FrmLogin"));
  setWindowTitle(QStringLiteral("Form1"));
}

}  // namespace velor
