// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Runtime.h"
#include "tests/support/CallLog.h"

#include <functional>

namespace velor {

/// What FakeRuntime throws in place of ending the process; no exception type of the program's, so
/// that nothing but the test catches it.
struct ProgramEnded {
  int exitStatus = 0;
};

/// A process that ends by throwing ProgramEnded, and whose pending events the test provides.
class FakeRuntime final : public Runtime {
 public:
  explicit FakeRuntime(CallLog *log = nullptr) : log_(log) {}

  QString commandLine;
  QString programFolder = QStringLiteral("\\program");
  /// Runs inside ProcessPendingEvents, as a waiting event would.
  std::function<void()> pendingEvents;
  int busyCursors = 0;  ///< shown and not yet restored
  double clock = 0;     ///< seconds since midnight
  bool hasShell = true;

  QString CommandLineText() const override;
  QString ProgramFolder() const override { return programFolder; }
  void ProcessPendingEvents() override;
  [[noreturn]] void EndProgram(int exitStatus) override;
  double SecondsSinceMidnight() const override { return clock; }
  void ShellExecute(const QString &operation, const QString &target,
                    const QString &folder) override;
  void ShowBusyCursor() override;
  void RestoreCursor() override;

 private:
  CallLog *log_;
};

}  // namespace velor
