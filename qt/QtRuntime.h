// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Runtime.h"

namespace velor {

/// The process of the program. The constructor finds or
/// makes the program folder (ProgramFolder.h).
class QtRuntime final : public Runtime {
 public:
  /// The arguments as main gets them.
  QtRuntime(int argumentCount, const char *const *arguments);

  QString CommandLineText() const override { return commandLine_; }
  QString ProgramFolder() const override { return programFolder_; }
  void ProcessPendingEvents() override;
  [[noreturn]] void EndProgram(int exitStatus) override;
  double SecondsSinceMidnight() const override;
  /// The only operation is "Open".
  void ShellExecute(const QString &operation, const QString &target,
                    const QString &folder) override;
  void ShowBusyCursor() override;
  void RestoreCursor() override;

 private:
  QString commandLine_;
  QString programFolder_;
};

}  // namespace velor
