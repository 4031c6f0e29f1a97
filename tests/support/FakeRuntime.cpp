// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/FakeRuntime.h"

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

void FakeRuntime::ShowBusyCursor() {
  ++busyCursors;
  Note(log_, QStringLiteral("ShowBusyCursor()"));
}

void FakeRuntime::RestoreCursor() {
  --busyCursors;
  Note(log_, QStringLiteral("RestoreCursor()"));
}

}  // namespace velor
