// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/startup/EventBoundary.h"
#include "app/startup/RealStartUpWindows.h"
#include "app/window/MfrmProgram.h"
#include "chrome/Palette.h"
#include "platform/qt/QtComponents.h"
#include "platform/qt/QtDialogs.h"
#include "platform/qt/QtFiles.h"
#include "platform/qt/QtRegistry.h"
#include "platform/qt/QtRuntime.h"
#include "platform/qt/editing/PageScheme.h"

int main(int argc, char **argv) {
  using namespace velor;
  RegisterPageScheme();
  Application application(argv);
  DressApplication(application);

  QtDialogs dialogs;
  QtRuntime runtime(argc, argv);
  EventBoundary boundary(dialogs, runtime);
  application.SetBoundary(&boundary);
  QtFiles files;
  QtRegistry registry;
  QtComponents components(files, runtime.ProgramFolder());
  Platform platform{files, runtime, dialogs, registry, components};
  ProgramValues values;

  std::unique_ptr<MfrmProgram> mainWindow;
  RealStartUpWindows windows(platform, values, [&] {
    mainWindow = std::make_unique<MfrmProgram>(platform, values);
    QObject::connect(mainWindow.get(), &MfrmProgram::Unloaded, &application,
                     &QCoreApplication::quit, Qt::QueuedConnection);
    mainWindow->Load();
  });
  boundary.Run([&] { StartUp(platform, values, windows); });
  boundary.StartUpDone();
  return Application::exec();
}
