// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>

#include <exception>
#include <functional>

namespace velor {

class Dialogs;
class Runtime;

/// The one place where errors end that nobody caught. It reports them (standard error, and a
/// critical box unless $VELOR_NO_ERROR_BOX is set) and decides what becomes of the program:
/// - anything that goes wrong during start-up, opening the database among it: the program ends with
///   status 1;
/// - later: the operation is abandoned and the program goes on, a file that cannot be written
///   included, since pages are open then.
class EventBoundary {
 public:
  EventBoundary(Dialogs &dialogs, Runtime &runtime);

  /// From now on no error ends the program.
  void StartUpDone() { phase_ = Phase::Running; }

  /// From now on the windows are going, and what fails on the way no longer matters to anybody.
  void ProgramEnds() { phase_ = Phase::Ending; }

  /// Does what the policy says about an error that was caught.
  void Handle(const std::exception &error);

  /// Runs start-up, or anything else from outside the event loop, inside the boundary.
  void Run(const std::function<void()> &action);

 private:
  enum class Phase { StartUp, Running, Ending };

  void Report(const std::exception &error);

  Dialogs &dialogs_;
  Runtime &runtime_;
  Phase phase_ = Phase::StartUp;
  bool showsBox_ = false;
};

/// The application object: every event that is delivered passes the boundary. It is given the
/// program's name alone, since the command line is not acted upon, the toolkit's switches included.
class Application final : public QApplication {
 public:
  explicit Application(char **arguments);

  /// Before this an error in an event goes through.
  void SetBoundary(EventBoundary *boundary) { boundary_ = boundary; }

  bool notify(QObject *receiver, QEvent *event) override;

 private:
  EventBoundary *boundary_ = nullptr;
};

}  // namespace velor
