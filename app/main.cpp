// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/settings/Languages.h"
#include "app/settings/modSettingManager.h"
#include "app/startup/EventBoundary.h"
#include "app/startup/RealStartUpWindows.h"
#include "app/window/Additions.h"
#include "app/window/MfrmProgram.h"
#include "chrome/Palette.h"
#include "editor/PagesAtExit.h"
#include "engine/EngineInUse.h"
#include "engine/PageScheme.h"
#include "engine/Sandbox.h"
#include "platform/DriveMap.h"
#include "platform/Paths.h"
#include "platform/Words.h"
#include "qt/DesktopService.h"
#include "qt/EndingSignals.h"
#include "qt/PageAccess.h"
#include "qt/ProgramFolder.h"
#include "qt/QtPrinters.h"
#include "qt/RealPlatform.h"
#include "qt/RunningProgram.h"

#include <QSessionManager>

namespace velor {
namespace {

/// What was asked of this program from outside is done by its main window.
QStringList OpenInWindow(MfrmProgram &window, const OpeningRequest &request) {
  UseActivationToken(request.activationToken);
  window.ComeToFront();
  QStringList paths;
  for (const QString &file : request.files) paths += ToLogic(file);
  return window.Opener().OpenFiles(paths, request.line);
}

void Act(MfrmProgram &window, const QString &action) {
  if (window.Opener().IsBusy()) return;
  if (action == QStringLiteral("new-page")) window.Router().Run({CommandId::NewPage});
  if (action == QStringLiteral("recent-files")) window.ShowRecentFiles();
  if (action == QStringLiteral("project-manager")) window.Router().Run({CommandId::ProjectManager});
}

}  // namespace
}  // namespace velor

int main(int argc, char **argv) {
  using namespace velor;
  RegisterSchemes();
  ShowPagesToAssistiveTechnology();
  Application application(argv);
  const QString programFolder = PrepareProgramFolder(QCoreApplication::applicationDirPath());
  RunningProgram running(programFolder);
  if (!running.Claim()) {
    AskRunningProgram(programFolder, {{}, 0, OwnActivationToken()});
    return 0;
  }
  StyleApplication(application);
  // By this name the desktop knows whose windows they are.
  QGuiApplication::setDesktopFileName(QStringLiteral("com.velor.WebCreator"));
  QtRegistry registry;
  UseLanguage(registry);
  const auto driveMapError = UseDriveMapFile(DriveMapFile());
  RealPlatform real(argc, argv);
  EventBoundary boundary(real.dialogs, real.runtime);
  application.SetBoundary(&boundary);
  real.copies.RemoveAbandoned();
  real.components.SetWholeSigns(KeepsTemplateSignsWhole(real.registry));
  real.components.SetAdditions(modSettingManager::HasAdditions(real.registry));
  QtPrinters printers(real.dialogs);
  real.ownLanguage = OwnLanguage(real.registry);
  ProgramValues values;
  std::unique_ptr<MfrmProgram> mainWindow;
  RealStartUpWindows windows(
      real.parts.components, real.dialogs, {values.ImageFolderPath, values.ProjectFolderResult},
      [&] {
        mainWindow = std::make_unique<MfrmProgram>(real.parts, values);
        QObject::connect(mainWindow.get(), &MfrmProgram::Unloading, &application,
                         [&] { boundary.ProgramEnds(); });
        // exit(), not quit(): quit() asks every window again whether it may close.
        QObject::connect(mainWindow.get(), &MfrmProgram::Unloaded, &application,
                         [] { QCoreApplication::exit(); });
        mainWindow->SetEngine(EngineInUse());
        mainWindow->SetPrinters(printers);
        mainWindow->Load();
        if (IsSandboxOff())
          mainWindow->Context().mainWindow.status.Report(
              Words::tr("The browser engine's sandbox is off: preview only pages that you trust."));
      });
  boundary.Run([&] {
    if (driveMapError) throw *driveMapError;
    StartUp(real.parts, values, windows);
  });
  boundary.StartUpDone();

  const auto isBusy = [&] { return mainWindow->Opener().IsBusy(); };
  running.Serve([&](const OpeningRequest &request) { return OpenInWindow(*mainWindow, request); },
                isBusy);
  DesktopService desktop([&](const OpeningRequest &request) { running.Take(request); },
                         [&](const QString &action) { Act(*mainWindow, action); });
  if (programFolder == InstalledProgramFolder()) desktop.Register();
  const auto end = [&] { mainWindow->CloseWhenIdle(); };
  const EndingSignals signals(end);
  application.SetQuit(end);
  // The session ends: whatever becomes of the other programs, nothing may be lost here.
  QObject::connect(&application, &QGuiApplication::commitDataRequest, mainWindow.get(),
                   [&](QSessionManager &manager) {
                     if (!KeepPagesAtSessionEnd(mainWindow->Context())) manager.cancel();
                   });
  return Application::exec();
}
