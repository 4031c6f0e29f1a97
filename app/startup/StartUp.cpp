// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/startup/StartUp.h"

#include "app/startup/LocationFiles.h"
#include "editor/modGeneral.h"
#include "platform/Conversions.h"
#include "platform/Dialogs.h"
#include "platform/Files.h"
#include "platform/Runtime.h"
#include "platform/Words.h"

namespace velor {

namespace {

// Appended to the program folder. For a root folder that gives two separators, which every file
// operation accepts.
constexpr auto DatabaseName = u"\\eThumbs.mdb";
constexpr auto ImageFolderName = u"\\eImages";
constexpr auto DatabaseLocationName = u"\\SiteConfig.ini";
constexpr auto ImageLocationName = u"\\SiteImgConfig.ini";

constexpr auto LocatedDatabaseMissing =
    Words::Mark("The Database Path of Vitrine not found. Please provide the Path");
constexpr auto NoDatabase =
    Words::Mark("The Database Path of Vitrine not Found. Please provide the path");
constexpr auto NoImageFolder =
    Words::Mark("The Path of Image Folder is not found.Please provide the path");

constexpr auto ConnectionPrefix =
    u"Provider=Microsoft.Jet.OLEDB.4.0;Persist Security Info=False;Data Source=";

QString Text(const char16_t *text) {
  return QString::fromUtf16(text);
}

/// The steps of the start that look for a file or folder and ask for it where it is missing, in
/// their order.
class StartUpSteps {
 public:
  StartUpSteps(Platform &platform, ProgramValues &values, StartUpWindows &windows)
      : platform_(platform),
        files_(platform.files),
        values_(values),
        windows_(windows),
        programFolder_(platform.runtime.ProgramFolder()) {}

  void LocateDatabase(FileDialog &dialog) {
    const QString locationFile = programFolder_ + Text(DatabaseLocationName);
    const bool isHere = FileExists(programFolder_ + Text(DatabaseName));
    const bool isLocated = FileExists(locationFile);
    if (isHere) {
      WriteLocation(files_, locationFile, programFolder_);
      values_.DatabasePath = programFolder_;
    } else if (isLocated) {
      values_.DatabasePath = ReadLocation(files_, locationFile);
      if (!FileExists(values_.DatabasePath + Text(DatabaseName))) {
        RequestDatabase(LocatedDatabaseMissing, locationFile, dialog);
      }
    } else {
      RequestDatabase(NoDatabase, locationFile, dialog);
    }
    values_.DatabasePath += Text(DatabaseName);
  }

  void OpenConnection() {
    if (TrimBlanks(values_.DatabasePath).isEmpty()) return;
    if (!values_.DbConnection) {
      values_.DbConnection = platform_.components.CreateDatabaseConnection();
    }
    values_.DbConnection->Open(Text(ConnectionPrefix) + values_.DatabasePath, {}, {},
                               CommandTypeUnspecified);
    const QString notice = values_.DbConnection->Notice();
    if (notice.isEmpty()) return;
    platform_.dialogs.ShowMessage({.text = notice, .icon = MessageIcon::Information});
  }

  void LocateImageFolder() {
    const QString locationFile = programFolder_ + Text(ImageLocationName);
    const bool isHere = NameExists(programFolder_ + Text(ImageFolderName), NameOrigin::Program);
    const bool isLocated = FileExists(locationFile);
    if (isHere) {
      values_.ImageFolderPath = programFolder_ + Text(ImageFolderName);
      WriteLocation(files_, locationFile, values_.ImageFolderPath);
      return;
    }
    if (isLocated) {
      values_.ImageFolderPath = ReadLocation(files_, locationFile);
      if (NameExists(values_.ImageFolderPath, NameOrigin::Chosen)) return;
    }
    RequestImageFolder(locationFile);
  }

 private:
  /// Leaves the folder of the chosen file in DatabasePath. The file's own name is dropped: the
  /// database always has its one name, and whether that is there shows when it is opened.
  void RequestDatabase(const char *message, const QString &locationFile, FileDialog &dialog) {
    AskOrEnd(message);
    dialog.CancelError = false;
    dialog.Filter = Words::tr("Database(*.mdb;)|*.mdb");
    const QString chosen = dialog.ShowOpen();
    if (chosen.isEmpty()) platform_.runtime.EndProgram();
    values_.DatabasePath = chosen;
    values_.DatabasePath = modGeneral::FolderOfPath(values_.DatabasePath);
    WriteLocation(files_, locationFile, values_.DatabasePath);
  }

  void RequestImageFolder(const QString &locationFile) {
    AskOrEnd(NoImageFolder);
    windows_.PickImageFolder();
    if (values_.ImageFolderPath.isEmpty()) platform_.runtime.EndProgram();
    if (!NameExists(values_.ImageFolderPath, NameOrigin::Chosen)) platform_.runtime.EndProgram();
    WriteLocation(files_, locationFile, values_.ImageFolderPath);
  }

  void AskOrEnd(const char *text) {
    Message message;
    message.text = Words::tr(text);
    message.title = Words::tr("Path not Found");
    message.buttons = MessageButtons::YesNo;
    if (platform_.dialogs.ShowMessage(message) != MessageAnswer::Yes) {
      platform_.runtime.EndProgram();
    }
  }

  bool FileExists(const QString &path) const {
    return files_.FileExists(path, NameOrigin::Program);
  }

  /// Tests the name only: a file with a folder's name counts as that folder.
  bool NameExists(const QString &path, NameOrigin origin) const {
    return files_.FolderExists(path, origin) || files_.FileExists(path, origin);
  }

  Platform &platform_;
  Files &files_;
  ProgramValues &values_;
  StartUpWindows &windows_;
  const QString programFolder_;
};

}  // namespace

void StartUp(Platform &platform, ProgramValues &values, StartUpWindows &windows) {
  values.CommandLine = platform.runtime.CommandLineText();
  platform.runtime.ProcessPendingEvents();
  FileDialog &databaseDialog = windows.LoadLogin();

  StartUpSteps steps(platform, values, windows);
  steps.LocateDatabase(databaseDialog);
  steps.OpenConnection();
  steps.LocateImageFolder();

  windows.LoadMainWindow();
}

}  // namespace velor
