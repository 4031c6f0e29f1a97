// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>

#include <exception>
#include <functional>
#include <utility>

namespace velor {

class Dialogs;
class Runtime;

/// The one handler of errors that nothing else caught. It reports them (standard error, and a
/// critical message unless $VELOR_NO_ERROR_BOX is set) and decides how to go on:
/// - during start-up, opening the database included, the program ends with status 1;
/// - later only the failed operation ends, whatever the error is, since pages are open then.
class EventBoundary {
 public:
  EventBoundary(Dialogs &dialogs, Runtime &runtime);

  /// Start-up is done: from now on no error ends the program.
  void StartUpDone() { phase_ = Phase::Running; }

  /// The windows are being closed for good: from now on errors are ignored.
  void ProgramEnds() { phase_ = Phase::Ending; }

  /// Handles a caught error as described above.
  void Handle(const std::exception &error);

  /// Runs `action` (start-up, or anything outside the event loop) and handles its error.
  void Run(const std::function<void()> &action);

 private:
  enum class Phase { StartUp, Running, Ending };

  void Report(const std::exception &error);

  Dialogs &dialogs_;
  Runtime &runtime_;
  Phase phase_ = Phase::StartUp;
  bool showsBox_ = false;
};

/// The application object; it delivers every event within the boundary. Qt gets only the program's
/// name of the command line, so that its own switches have no effect.
class Application final : public QApplication {
 public:
  explicit Application(char **arguments);

  /// Without a boundary an error in an event is not caught.
  void SetBoundary(EventBoundary *boundary) { boundary_ = boundary; }

  /// What is done where the desktop asks the program to quit. The toolkit's own way would close
  /// every window by itself, and each could ask.
  void SetQuit(std::function<void()> quit) { quit_ = std::move(quit); }

  bool notify(QObject *receiver, QEvent *event) override;

 protected:
  bool event(QEvent *event) override;

 private:
  EventBoundary *boundary_ = nullptr;
  std::function<void()> quit_;
};

}  // namespace velor
