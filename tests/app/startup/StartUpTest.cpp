// SPDX-License-Identifier: GPL-3.0-or-later
// The entry procedure: every branch, in its order.
#include "app/startup/StartUp.h"
#include "platform/RuntimeError.h"
#include "tests/support/Checks.h"
#include "tests/support/FakeComponents.h"
#include "tests/support/FakeDatabase.h"
#include "tests/support/FakeDialogs.h"
#include "tests/support/FakeFileDialog.h"
#include "tests/support/FakeFiles.h"
#include "tests/support/FakeRegistry.h"
#include "tests/support/FakeRuntime.h"

#include <gtest/gtest.h>
#include <optional>

namespace velor {
namespace {

const QString M1 =
    QStringLiteral("The Database Path of Vitrine not found. Please provide the Path");
const QString M2 =
    QStringLiteral("The Database Path of Vitrine not Found. Please provide the path");
const QString M3 = QStringLiteral("The Path of Image Folder is not found.Please provide the path");
const QString Database = QStringLiteral("\\program\\eThumbs.mdb");
const QString Images = QStringLiteral("\\program\\eImages");
const QString DatabaseLocation = QStringLiteral("\\program\\SiteConfig.ini");
const QString ImageLocation = QStringLiteral("\\program\\SiteImgConfig.ini");

/// Writes writes into the common log. Doubled separators are one, as they are to a file system.
class LoggedFiles final : public Files {
 public:
  explicit LoggedFiles(CallLog &log) : log_(log) {}

  FakeFiles world;

  bool FileExists(const QString &path, NameOrigin origin) const override {
    return world.FileExists(Single(path), origin);
  }
  bool FolderExists(const QString &path, NameOrigin origin) const override {
    return world.FolderExists(Single(path), origin);
  }
  bool IsReadOnly(const QString &path) const override { return world.IsReadOnly(Single(path)); }
  bool IsSameFile(const QString &one, const QString &other) const override {
    return world.IsSameFile(Single(one), Single(other));
  }
  bool FolderWritable(const QString &path) const override {
    return world.FolderWritable(Single(path));
  }
  QDateTime ChangeTime(const QString &path) const override {
    return world.ChangeTime(Single(path));
  }
  QByteArray ReadAll(const QString &path, NameOrigin origin) const override {
    return world.ReadAll(Single(path), origin);
  }
  void ReplaceAll(const QString &path, const QByteArray &content) override {
    log_.push_back(QStringLiteral("ReplaceAll(%1, %2)").arg(path, QString::fromUtf8(content)));
    world.ReplaceAll(Single(path), content);
  }
  bool CreateNew(const QString &path, const QByteArray &content) override {
    return world.CreateNew(Single(path), content);
  }
  void Delete(const QString &path) override { world.Delete(Single(path)); }

 private:
  static QString Single(QString path) {
    return path.replace(QStringLiteral("\\\\"), QStringLiteral("\\"));
  }

  CallLog &log_;
};

class LoggedWindows final : public StartUpWindows {
 public:
  LoggedWindows(CallLog &log, ProgramValues &values)
      : databaseDialog(&log), log_(log), values_(values) {}

  FakeFileDialog databaseDialog;
  /// What the person picks; the empty text is a cancelled picker.
  std::optional<QString> pickedFolder;

  FileDialog &LoadLogin() override {
    log_.push_back(QStringLiteral("LoadLogin()"));
    return databaseDialog;
  }
  void PickImageFolder() override {
    log_.push_back(QStringLiteral("PickImageFolder()"));
    ASSERT_TRUE(pickedFolder) << "the folder picker was not foreseen";
    values_.ImageFolderPath = *pickedFolder;
  }
  void LoadMainWindow() override { log_.push_back(QStringLiteral("LoadMainWindow()")); }

 private:
  CallLog &log_;
  ProgramValues &values_;
};

class EntryProcedure : public ::testing::Test {
 protected:
  EntryProcedure()
      : files_(log_),
        runtime_(&log_),
        dialogs_(&log_),
        database_(&log_),
        components_(files_, &database_),
        platform_{files_, runtime_, dialogs_, registry_, components_},
        windows_(log_, values_) {
    files_.world.AddFolder(QStringLiteral("\\program"));
  }

  void PutDatabaseBesideTheProgram() { files_.world.AddFile(Database, "db"); }
  void PutImagesBesideTheProgram() { files_.world.AddFolder(Images); }

  /// Runs the procedure; the exit status when it ended the program.
  std::optional<int> Start() {
    try {
      StartUp(platform_, values_, windows_);
    } catch (const ProgramEnded &ended) {
      return ended.exitStatus;
    }
    return std::nullopt;
  }

  ErrorNumber ErrorOfStart() {
    return ErrorOf([this] { StartUp(platform_, values_, windows_); });
  }

  bool Called(const QString &call) const {
    return std::find(log_.begin(), log_.end(), call) != log_.end();
  }
  bool MainWindowLoaded() const { return Called(QStringLiteral("LoadMainWindow()")); }
  std::optional<QByteArray> Content(const QString &path) const {
    return files_.world.Content(path);
  }
  void ExpectAsked(const QString &text) {
    ASSERT_EQ(dialogs_.messages.size(), 1u);
    EXPECT_EQ(dialogs_.messages[0].text, text);
    EXPECT_EQ(dialogs_.messages[0].title, QStringLiteral("Path not Found"));
    EXPECT_EQ(dialogs_.messages[0].buttons, MessageButtons::YesNo);
    EXPECT_EQ(dialogs_.messages[0].icon, MessageIcon::None);
  }

  CallLog log_;
  LoggedFiles files_;
  FakeRuntime runtime_;
  FakeDialogs dialogs_;
  FakeRegistry registry_;
  FakeDatabase database_;
  FakeComponents components_;
  Platform platform_;
  ProgramValues values_;
  LoggedWindows windows_;
};

TEST_F(EntryProcedure, DoesItsStepsInOrder) {
  PutDatabaseBesideTheProgram();
  PutImagesBesideTheProgram();
  EXPECT_EQ(Start(), std::nullopt);
  const CallLog order = {
      QStringLiteral("CommandLineText()"),
      QStringLiteral("ProcessPendingEvents()"),
      QStringLiteral("LoadLogin()"),
      QStringLiteral("ReplaceAll(\\program\\SiteConfig.ini, \"/program\"\r\n)"),
      QStringLiteral("CreateDatabaseConnection()"),
      QStringLiteral("OpenConnection(Provider=Microsoft.Jet.OLEDB.4.0;Persist Security Info=False;"
                     "Data Source=\\program\\eThumbs.mdb)"),
      QStringLiteral("ReplaceAll(\\program\\SiteImgConfig.ini, \"/program/eImages\"\r\n)"),
      QStringLiteral("LoadMainWindow()")};
  EXPECT_EQ(log_, order);
}

TEST_F(EntryProcedure, CapturesTheCommandLineAndOpensNothingOfIt) {
  PutDatabaseBesideTheProgram();
  PutImagesBesideTheProgram();
  runtime_.commandLine = QStringLiteral("/site/page.htm --platform other");
  EXPECT_EQ(Start(), std::nullopt);
  EXPECT_EQ(values_.CommandLine, QStringLiteral("/site/page.htm --platform other"));
  for (const QString &call : log_) EXPECT_FALSE(call.contains(QStringLiteral("page.htm")));
}

TEST_F(EntryProcedure, AFirstStartWithEverythingBesideTheProgramAsksNothing) {
  PutDatabaseBesideTheProgram();
  PutImagesBesideTheProgram();
  EXPECT_EQ(Start(), std::nullopt);
  EXPECT_TRUE(dialogs_.messages.empty());
  EXPECT_EQ(values_.DatabasePath, Database);
  EXPECT_EQ(values_.ImageFolderPath, Images);
  EXPECT_EQ(Content(DatabaseLocation), QByteArray("\"/program\"\r\n"));
  EXPECT_EQ(Content(ImageLocation), QByteArray("\"/program/eImages\"\r\n"));
}

TEST_F(EntryProcedure, WhatLiesBesideTheProgramReplacesWhateverTheLocationFilesSay) {
  PutDatabaseBesideTheProgram();
  PutImagesBesideTheProgram();
  files_.world.AddFile(DatabaseLocation, "\"/elsewhere/and much longer than before\"\r\nmore\r\n");
  files_.world.AddFile(ImageLocation, "");
  EXPECT_EQ(Start(), std::nullopt);
  EXPECT_EQ(Content(DatabaseLocation), QByteArray("\"/program\"\r\n"));
  EXPECT_EQ(Content(ImageLocation), QByteArray("\"/program/eImages\"\r\n"));
}

TEST_F(EntryProcedure, ALocatedDatabaseIsUsedAndItsLocationFileLeftAlone) {
  PutImagesBesideTheProgram();
  files_.world.AddFile(QStringLiteral("\\data\\eThumbs.mdb"), "db");
  files_.world.AddFile(DatabaseLocation, "  /data,by hand");
  EXPECT_EQ(Start(), std::nullopt);
  EXPECT_EQ(values_.DatabasePath, QStringLiteral("\\data\\eThumbs.mdb"));
  EXPECT_EQ(Content(DatabaseLocation), QByteArray("  /data,by hand"));
  for (const QString &call : log_) EXPECT_FALSE(call.contains(QStringLiteral("SiteConfig.ini")));
}

TEST_F(EntryProcedure, ALocatedFolderWithoutTheDatabaseAsksInItsOwnWords) {
  files_.world.AddFile(DatabaseLocation, "\"/data\"\r\n");
  dialogs_.ExpectMessage(M1, MessageAnswer::No);
  EXPECT_EQ(Start(), 0);
  ExpectAsked(M1);
}

TEST_F(EntryProcedure, NeitherDatabaseNorLocationAsksInItsOwnWords) {
  dialogs_.ExpectMessage(M2, MessageAnswer::No);
  EXPECT_EQ(Start(), 0);
  ExpectAsked(M2);
}

TEST_F(EntryProcedure, NoToTheDatabaseQuestionEndsAtOnceAndNothingMoreHappens) {
  dialogs_.ExpectMessage(M2, MessageAnswer::No);
  EXPECT_EQ(Start(), 0);
  EXPECT_EQ(log_.back(), QStringLiteral("EndProgram(0)"));
  EXPECT_TRUE(files_.world.Paths().isEmpty());
  EXPECT_EQ(database_.connectionsMade, 0);
}

TEST_F(EntryProcedure, TheDatabaseDialogIsSetUpAndItsFilesOwnNameDropped) {
  PutImagesBesideTheProgram();
  dialogs_.ExpectMessage(M2, MessageAnswer::Yes);
  windows_.databaseDialog.CancelError = true;
  windows_.databaseDialog.ExpectOpen(QStringLiteral("D:\\Data\\other.mdb"));
  EXPECT_EQ(Start(), std::nullopt);
  EXPECT_EQ(windows_.databaseDialog.shownFilter, QStringLiteral("Database(*.mdb;)|*.mdb"));
  EXPECT_FALSE(windows_.databaseDialog.shownCancelError);
  EXPECT_EQ(Content(DatabaseLocation), QByteArray("\"D:\\Data\"\r\n"));
  EXPECT_EQ(values_.DatabasePath, QStringLiteral("D:\\Data\\eThumbs.mdb"));
  EXPECT_TRUE(
      database_.connectionText.endsWith(QStringLiteral(";Data Source=D:\\Data\\eThumbs.mdb")));
}

TEST_F(EntryProcedure, ACancelledDatabaseDialogEndsAtOnceAndWritesNothing) {
  files_.world.AddFile(DatabaseLocation, "\"/data\"\r\n");
  dialogs_.ExpectMessage(M1, MessageAnswer::Yes);
  windows_.databaseDialog.ExpectCancelledOpen();
  EXPECT_EQ(Start(), 0);
  EXPECT_EQ(log_.back(), QStringLiteral("EndProgram(0)"));
  EXPECT_EQ(Content(DatabaseLocation), QByteArray("\"/data\"\r\n"));
}

TEST_F(EntryProcedure, AChosenNameWithoutAFolderIsAnError) {
  dialogs_.ExpectMessage(M2, MessageAnswer::Yes);
  windows_.databaseDialog.ExpectOpen(QStringLiteral("other.mdb"));
  EXPECT_EQ(ErrorOfStart(), ErrorNumber::InvalidProcedureCall);
}

TEST_F(EntryProcedure, AnEmptyLocationFileIsAnErrorWithoutAMessage) {
  files_.world.AddFile(DatabaseLocation, "");
  EXPECT_EQ(ErrorOfStart(), ErrorNumber::InputPastEnd);
  EXPECT_FALSE(MainWindowLoaded());
}

TEST_F(EntryProcedure, ALocationFileThatCannotBeWrittenIsAnError) {
  PutDatabaseBesideTheProgram();
  files_.world.AddFile(DatabaseLocation, "\"/elsewhere\"\r\n");
  files_.world.MakeReadOnly(DatabaseLocation);
  EXPECT_EQ(ErrorOfStart(), ErrorNumber::PathFileAccess);
  EXPECT_EQ(database_.connectionsMade, 0);
}

TEST_F(EntryProcedure, TheConnectionIsOpenedOnceWithoutUserAndPassword) {
  PutDatabaseBesideTheProgram();
  PutImagesBesideTheProgram();
  EXPECT_EQ(Start(), std::nullopt);
  EXPECT_EQ(database_.connectionsMade, 1);
  EXPECT_EQ(database_.user, QString());
  EXPECT_EQ(database_.password, QString());
  EXPECT_EQ(database_.openOptions, -1);
  ASSERT_TRUE(values_.DbConnection);
  EXPECT_EQ(values_.DbConnection->State(), ObjectState::Open);
}

TEST_F(EntryProcedure, AConnectionThatIsThereAlreadyIsUsed) {
  PutDatabaseBesideTheProgram();
  PutImagesBesideTheProgram();
  values_.DbConnection = database_.CreateConnection();
  const DatabaseConnection *existing = values_.DbConnection.get();
  EXPECT_EQ(Start(), std::nullopt);
  EXPECT_EQ(values_.DbConnection.get(), existing);
  EXPECT_EQ(database_.connectionsMade, 1);
  EXPECT_EQ(existing->State(), ObjectState::Open);
}

TEST_F(EntryProcedure, WhatOpeningTheDatabaseBroughtAboutIsSaid) {
  PutDatabaseBesideTheProgram();
  PutImagesBesideTheProgram();
  database_.notice = QStringLiteral("An interrupted change was taken back.");
  dialogs_.ExpectMessage(database_.notice, MessageAnswer::Ok);
  EXPECT_EQ(Start(), std::nullopt);
  ASSERT_EQ(dialogs_.messages.size(), 1u);
  EXPECT_EQ(dialogs_.messages[0].icon, MessageIcon::Information);
  EXPECT_TRUE(MainWindowLoaded());
}

TEST_F(EntryProcedure, ADatabaseThatCannotBeOpenedStopsBeforeTheImageFolder) {
  PutDatabaseBesideTheProgram();
  database_.openFailure = RuntimeError::Of(ErrorNumber::DeviceIoError, QStringLiteral("test"));
  EXPECT_EQ(ErrorOfStart(), ErrorNumber::DeviceIoError);
  EXPECT_TRUE(dialogs_.messages.empty());
  EXPECT_EQ(Content(ImageLocation), std::nullopt);
  EXPECT_FALSE(MainWindowLoaded());
}

TEST_F(EntryProcedure, ALocatedImageFolderIsUsedAndItsLocationFileLeftAlone) {
  PutDatabaseBesideTheProgram();
  files_.world.AddFolder(QStringLiteral("\\pictures, all"));
  files_.world.AddFile(ImageLocation, "\"/pictures, all\"");
  EXPECT_EQ(Start(), std::nullopt);
  EXPECT_EQ(values_.ImageFolderPath, QStringLiteral("\\pictures, all"));
  EXPECT_EQ(Content(ImageLocation), QByteArray("\"/pictures, all\""));
  EXPECT_TRUE(MainWindowLoaded());
}

TEST_F(EntryProcedure, AFileOfTheImageFoldersNameSatisfiesTheTest) {
  PutDatabaseBesideTheProgram();
  files_.world.AddFile(Images, "");
  EXPECT_EQ(Start(), std::nullopt);
  EXPECT_EQ(values_.ImageFolderPath, Images);
}

TEST_F(EntryProcedure, NoToTheImageFolderQuestionEndsAtOnce) {
  PutDatabaseBesideTheProgram();
  dialogs_.ExpectMessage(M3, MessageAnswer::No);
  EXPECT_EQ(Start(), 0);
  ExpectAsked(M3);
  EXPECT_EQ(Content(ImageLocation), std::nullopt);
}

TEST_F(EntryProcedure, ALocatedImageFolderThatIsGoneAsksTheSameQuestion) {
  PutDatabaseBesideTheProgram();
  files_.world.AddFile(ImageLocation, "\"/gone\"\r\n");
  dialogs_.ExpectMessage(M3, MessageAnswer::No);
  EXPECT_EQ(Start(), 0);
  ExpectAsked(M3);
}

TEST_F(EntryProcedure, APickedImageFolderIsWrittenDownAndUsed) {
  PutDatabaseBesideTheProgram();
  files_.world.AddFolder(QStringLiteral("\\picked"));
  dialogs_.ExpectMessage(M3, MessageAnswer::Yes);
  windows_.pickedFolder = QStringLiteral("\\picked");
  EXPECT_EQ(Start(), std::nullopt);
  EXPECT_EQ(values_.ImageFolderPath, QStringLiteral("\\picked"));
  EXPECT_EQ(Content(ImageLocation), QByteArray("\"/picked\"\r\n"));
  EXPECT_TRUE(MainWindowLoaded());
}

TEST_F(EntryProcedure, ACancelledPickerEndsAtOnce) {
  PutDatabaseBesideTheProgram();
  files_.world.AddFile(ImageLocation, "\"/gone\"\r\n");
  dialogs_.ExpectMessage(M3, MessageAnswer::Yes);
  windows_.pickedFolder = QString();
  EXPECT_EQ(Start(), 0);
  EXPECT_EQ(log_.back(), QStringLiteral("EndProgram(0)"));
  EXPECT_EQ(Content(ImageLocation), QByteArray("\"/gone\"\r\n"));
}

TEST_F(EntryProcedure, APickedFolderThatIsGoneEndsAtOnce) {
  PutDatabaseBesideTheProgram();
  dialogs_.ExpectMessage(M3, MessageAnswer::Yes);
  windows_.pickedFolder = QStringLiteral("\\vanished");
  EXPECT_EQ(Start(), 0);
  EXPECT_EQ(Content(ImageLocation), std::nullopt);
  EXPECT_FALSE(MainWindowLoaded());
}

TEST_F(EntryProcedure, AProgramFolderThatIsARootGivesADoubledSeparator) {
  runtime_.programFolder = QStringLiteral("C:\\");
  files_.world.AddFile(QStringLiteral("C:\\eThumbs.mdb"), "db");
  files_.world.AddFolder(QStringLiteral("C:\\eImages"));
  EXPECT_EQ(Start(), std::nullopt);
  EXPECT_EQ(values_.DatabasePath, QStringLiteral("C:\\\\eThumbs.mdb"));
  EXPECT_EQ(values_.ImageFolderPath, QStringLiteral("C:\\\\eImages"));
  EXPECT_EQ(Content(QStringLiteral("C:\\SiteConfig.ini")), QByteArray("\"C:\\\"\r\n"));
  EXPECT_EQ(Content(QStringLiteral("C:\\SiteImgConfig.ini")), QByteArray("\"C:\\\\eImages\"\r\n"));
}

TEST_F(EntryProcedure, NamesBesideTheProgramAreFoundInAnotherLetterCase) {
  files_.world.AddFile(QStringLiteral("\\program\\ETHUMBS.MDB"), "db");
  files_.world.AddFolder(QStringLiteral("\\program\\eimages"));
  EXPECT_EQ(Start(), std::nullopt);
  EXPECT_TRUE(dialogs_.messages.empty());
}

}  // namespace
}  // namespace velor
