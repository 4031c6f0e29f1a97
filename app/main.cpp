// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/startup/EventBoundary.h"
#include "app/startup/RealStartUpWindows.h"
#include "app/window/MfrmProgram.h"
#include "chrome/Palette.h"
#include "engine/PageAccess.h"
#include "engine/PageScheme.h"
#include "engine/Sandbox.h"
#include "platform/DriveMap.h"
#include "qt/RealPlatform.h"

int main(int argc, char **argv) {
  using namespace velor;
  RegisterSchemes();
  ShowPagesToAssistiveTechnology();
  Application application(argv);
  DressApplication(application);
  const auto driveMapError = UseDriveMapFile(DriveMapFile());
  RealPlatform real(argc, argv);
  EventBoundary boundary(real.dialogs, real.runtime);
  application.SetBoundary(&boundary);
  real.copies.RemoveAbandoned();
  ProgramValues values;
  std::unique_ptr<MfrmProgram> mainWindow;
  RealStartUpWindows windows(
      real.parts.components, real.dialogs, {values.ImageFolderPath, values.ProjectFolderResult},
      [&] {
        mainWindow = std::make_unique<MfrmProgram>(real.parts, values);
        QObject::connect(mainWindow.get(), &MfrmProgram::Unloading, &application,
                         [&] { boundary.ProgramEnds(); });
        // Not quit(), which would ask every window once more.
        QObject::connect(mainWindow.get(), &MfrmProgram::Unloaded, &application,
                         [] { QCoreApplication::exit(); });
        mainWindow->Load();
        if (IsSandboxOff())
          mainWindow->Context().mainWindow.status.Report(QStringLiteral(
              "The browser engine's sandbox is off: preview only pages that you trust."));
      });
  boundary.Run([&] {
    if (driveMapError) throw *driveMapError;
    StartUp(real.parts, values, windows);
  });
  boundary.StartUpDone();
  return Application::exec();
}
