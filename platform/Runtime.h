// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace velor {

/// What the running program may ask of the process it lives in.
class Runtime {
 public:
  virtual ~Runtime() = default;

  /// The arguments after the program's name, as one text. Captured, never acted upon.
  virtual QString CommandLineText() const = 0;

  /// The program folder in logic form, without a trailing separator except at a root ("\").
  virtual QString ProgramFolder() const = 0;

  /// Lets pending window events run once; user input is delivered too.
  virtual void ProcessPendingEvents() = 0;

  /// Ends the program at once: no window's close handler runs, nothing further is written.
  [[noreturn]] virtual void EndProgram(int exitStatus = 0) = 0;

  /// The local clock, to the millisecond.
  virtual double SecondsSinceMidnight() const = 0;

  /// Has the desktop do what its shell means by `operation` with a file or address, in a native
  /// folder. RuntimeError where nothing could be started.
  virtual void ShellExecute(const QString &operation, const QString &target,
                            const QString &folder) = 0;

  /// The busy pointer, nested calls counted; see BusyCursor.
  virtual void ShowBusyCursor() = 0;
  virtual void RestoreCursor() = 0;
};

/// The busy pointer for the life of a scope.
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
