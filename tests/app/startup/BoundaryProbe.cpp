// SPDX-License-Identifier: GPL-3.0-or-later
// A small program around the real application object, process and boundary. Its argument says
// which scene it plays; what a test may look at goes to standard output.
#include "app/startup/EventBoundary.h"
#include "chrome/ReportingSweeps.h"
#include "platform/RuntimeError.h"
#include "qt/EndingSignals.h"
#include "qt/QtDialogs.h"
#include "qt/QtRuntime.h"
#include "tests/support/FailingSweeps.h"

#include <QObject>
#include <QTimer>
#include <QWidget>

#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <memory>
#include <string>

namespace {

using namespace velor;

[[noreturn]] void Raise(ErrorNumber number, const QString &source) {
  throw RuntimeError::Of(number, source, QStringLiteral("probe"));
}

}  // namespace

int main(int argc, char **argv) {
  Application application(argv);
  QtDialogs dialogs;
  QtRuntime runtime(argc, argv);
  EventBoundary boundary(dialogs, runtime);
  application.SetBoundary(&boundary);
  const std::string scene = argc > 1 ? argv[1] : "";

  boundary.Run([&scene] {
    if (scene == "start-up") Raise(ErrorNumber::FileNotFound, QStringLiteral("StartUp"));
  });
  boundary.StartUpDone();

  if (scene == "end") {
    std::atexit([] { std::puts("an exit handler ran"); });
    std::puts("before the end");
    runtime.EndProgram(7);
  }
  if (scene == "arguments") {
    std::printf("captured %s, toolkit got %d\n", qPrintable(runtime.CommandLineText()),
                static_cast<int>(QCoreApplication::arguments().size()));
    return 0;
  }
  const auto end = [] {
    std::puts("the end");
    QCoreApplication::exit();
  };
  const EndingSignals signals(end);
  if (scene == "terminated") {
    QTimer::singleShot(0, &application, [&dialogs] {
      QTimer::singleShot(0, [] { std::raise(SIGTERM); });
      dialogs.ShowMessage({.text = QStringLiteral("wait")});
      std::puts("the message is closed");
    });
    return Application::exec();
  }
  if (scene == "quit") application.SetQuit(end);
  QTimer::singleShot(0, &application, [&scene] {
    if (scene == "event") Raise(ErrorNumber::SubscriptOutOfRange, QStringLiteral("Pages"));
    if (scene == "write") {
      Raise(ErrorNumber::DiskFull, QStringLiteral("ReplaceAll"));
    }
  });
  QWidget window;
  if (scene == "styling") {
    ReportingSweeps(std::make_unique<FailingSweeps>()).FlatSweep(window);
    std::puts("the window is loaded");
  }
  QTimer::singleShot(1, &application, [] {
    std::puts("next event");
    QCoreApplication::quit();
  });
  return Application::exec();
}
