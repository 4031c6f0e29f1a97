// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/FakeRuntime.h"

#include "platform/RuntimeError.h"

namespace velor {

QString FakeRuntime::CommandLineText() const {
  Note(log_, QStringLiteral("CommandLineText()"));
  return commandLine;
}

void FakeRuntime::ProcessPendingEvents() {
  Note(log_, QStringLiteral("ProcessPendingEvents()"));
  if (pendingEvents) pendingEvents();
}

void FakeRuntime::EndProgram(int exitStatus) {
  Note(log_, QStringLiteral("EndProgram(%1)").arg(exitStatus));
  throw ProgramEnded{exitStatus};
}

void FakeRuntime::ShellExecute(const QString &operation, const QString &target,
                               const QString &folder) {
  Note(log_, QStringLiteral("ShellExecute(%1, %2, %3)").arg(operation, target, folder));
  if (!hasShell) throw RuntimeError::Of(ErrorNumber::FileNotFound, QStringLiteral("ShellExecute"));
}

void FakeRuntime::ShowBusyCursor() {
  ++busyCursors;
  Note(log_, QStringLiteral("ShowBusyCursor()"));
}

void FakeRuntime::RestoreCursor() {
  --busyCursors;
  Note(log_, QStringLiteral("RestoreCursor()"));
}

}  // namespace velor
