// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/QtRuntime.h"

#include "platform/Paths.h"
#include "platform/qt/ProgramFolder.h"

#include <QApplication>
#include <QStringList>

#include <cstdio>
#include <cstdlib>

namespace velor {

QtRuntime::QtRuntime(int argumentCount, const char *const *arguments)
    : programFolder_(ToLogic(SettleProgramFolder(QCoreApplication::applicationDirPath()))) {
  QStringList texts;
  for (int index = 1; index < argumentCount; ++index) {
    texts << QString::fromLocal8Bit(arguments[index]);
  }
  commandLine_ = texts.join(u' ');
}

void QtRuntime::ProcessPendingEvents() {
  QCoreApplication::processEvents();
}

void QtRuntime::EndProgram(int exitStatus) {
  std::fflush(nullptr);
  // No destructor and no exit handler runs: nothing may be written or asked any more.
  std::_Exit(exitStatus);
}

void QtRuntime::ShowBusyCursor() {
  QApplication::setOverrideCursor(Qt::WaitCursor);
}

void QtRuntime::RestoreCursor() {
  QApplication::restoreOverrideCursor();
}

}  // namespace velor
