// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/QtRuntime.h"

#include "platform/Paths.h"
#include "platform/RuntimeError.h"
#include "qt/ProgramFolder.h"

#include <QApplication>
#include <QProcess>
#include <QStringList>
#include <QTime>

#include <cstdio>
#include <cstdlib>

namespace velor {

QtRuntime::QtRuntime(int argumentCount, const char *const *arguments)
    : programFolder_(ToLogic(PrepareProgramFolder(QCoreApplication::applicationDirPath()))) {
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

double QtRuntime::SecondsSinceMidnight() const {
  return QTime::currentTime().msecsSinceStartOfDay() / 1000.0;
}

void QtRuntime::ShellExecute(const QString &operation, const QString &target,
                             const QString &folder) {
  const QString opener = QStringLiteral("xdg-open");
  const QString source = QStringLiteral("ShellExecute");
  if (operation.compare(QStringLiteral("open"), Qt::CaseInsensitive) != 0) {
    throw RuntimeError::Of(ErrorNumber::InvalidProcedureCall, source, operation);
  }
  if (!QProcess::startDetached(opener, {target}, folder)) {
    throw RuntimeError::Of(ErrorNumber::FileNotFound, source, opener);
  }
}

void QtRuntime::ShowBusyCursor() {
  QApplication::setOverrideCursor(Qt::WaitCursor);
}

void QtRuntime::RestoreCursor() {
  QApplication::restoreOverrideCursor();
}

}  // namespace velor
