// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/startup/EventBoundary.h"

#include "app/window/Unwinding.h"
#include "platform/Dialogs.h"
#include "platform/Runtime.h"
#include "platform/RuntimeError.h"
#include "platform/Words.h"

#include <QScopedValueRollback>

#include <cstdio>

namespace velor {

namespace {

/// argc for QApplication, which keeps a reference to it: static, so that it outlives the
/// application.
int &OnlyTheName() {
  static int count = 1;
  return count;
}

void WriteToStandardError(const char *text) {
  std::fprintf(stderr, "velor-web-creator: %s\n", text);
  std::fflush(stderr);
}

QString BoxText(const std::exception &error) {
  const auto *known = dynamic_cast<const RuntimeError *>(&error);
  if (known == nullptr) return QString::fromLocal8Bit(error.what());
  return Words::tr("%1\n\nRun-time error %2 in %3.")
      .arg(known->Description(), QString::number(known->Code()), known->Source());
}

}  // namespace

EventBoundary::EventBoundary(Dialogs &dialogs, Runtime &runtime)
    : dialogs_(dialogs), runtime_(runtime) {}

void EventBoundary::Handle(const std::exception &error) {
  if (phase_ == Phase::Ending) return;
  Report(error);
  if (phase_ == Phase::StartUp) runtime_.EndProgram(1);
}

void EventBoundary::Run(const std::function<void()> &action) {
  try {
    action();
  } catch (const std::exception &error) {
    Handle(error);
  }
}

void EventBoundary::Report(const std::exception &error) {
  WriteToStandardError(error.what());
  // A message box runs an event loop. An error raised in it (by a timer, for example) shows no
  // second box.
  if (showsBox_ || qEnvironmentVariableIsSet("VELOR_NO_ERROR_BOX")) return;
  const QScopedValueRollback<bool> showing(showsBox_, true);
  Message message;
  message.text = BoxText(error);
  if (phase_ == Phase::StartUp) message.text += Words::tr("\n\nThe program has to end.");
  message.icon = MessageIcon::Critical;
  try {
    dialogs_.ShowMessage(message);
  } catch (const std::exception &failure) {
    WriteToStandardError(failure.what());
  }
}

Application::Application(char **arguments) : QApplication(OnlyTheName(), arguments) {
  // Start-up shows and closes boxes before there is a main window.
  setQuitOnLastWindowClosed(false);
}

bool Application::notify(QObject *receiver, QEvent *event) {
  const EventDelivery delivery;
  try {
    return QApplication::notify(receiver, event);
  } catch (const std::exception &error) {
    if (boundary_ == nullptr) throw;
    boundary_->Handle(error);
    return true;
  }
}

bool Application::event(QEvent *event) {
  if (event->type() != QEvent::Quit || !quit_) return QApplication::event(event);
  quit_();
  return true;
}

}  // namespace velor
