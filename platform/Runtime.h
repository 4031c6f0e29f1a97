// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace velor {

/// The process and the desktop that the program runs in.
class Runtime {
 public:
  virtual ~Runtime() = default;

  /// The arguments after the program's name, as one text.
  virtual QString CommandLineText() const = 0;

  /// The program folder in logic form, without a trailing separator except at a root ("\").
  virtual QString ProgramFolder() const = 0;

  /// Processes the pending window events once, user input among them.
  virtual void ProcessPendingEvents() = 0;

  /// Ends the program at once: no window's close handler runs, nothing further is written.
  [[noreturn]] virtual void EndProgram(int exitStatus = 0) = 0;

  /// Seconds since local midnight, to the millisecond.
  virtual double SecondsSinceMidnight() const = 0;

  /// Runs the desktop's `operation` ("Open" ...) on a file or address, with `folder` (native) as
  /// working folder. Raises RuntimeError where nothing could be started.
  virtual void ShellExecute(const QString &operation, const QString &target,
                            const QString &folder) = 0;

  /// Shows the busy pointer until RestoreCursor was called as often; see BusyCursor.
  virtual void ShowBusyCursor() = 0;
  virtual void RestoreCursor() = 0;
};

/// Shows the busy pointer during its lifetime.
class BusyCursor {
 public:
  explicit BusyCursor(Runtime &runtime) : runtime_(runtime) { runtime_.ShowBusyCursor(); }
  ~BusyCursor() { runtime_.RestoreCursor(); }
  BusyCursor(const BusyCursor &) = delete;
  BusyCursor &operator=(const BusyCursor &) = delete;

 private:
  Runtime &runtime_;
};

}  // namespace velor
