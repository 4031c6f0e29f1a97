// SPDX-License-Identifier: GPL-3.0-or-later
// The real executable in a program folder of its own: what it leaves on disk, and how it ends.
#include "platform/DriveMap.h"
#include "tests/support/Checks.h"
#include "tests/support/Waiting.h"
#include "tools/sample-site/SampleMaker.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sqlite3.h>

namespace velor {
namespace {

constexpr int Limit = 30'000;  // milliseconds on a busy machine

class Program : public ::testing::Test {
 protected:
  Program() {
    MakeSample(folder_.path());
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("VELOR_PROGRAM_FOLDER"), folder_.path());
    process_.setProcessEnvironment(environment);
  }
  ~Program() override {
    process_.kill();
    process_.waitForFinished(Limit);
  }

  QString Native(const QString &name) const { return folder_.filePath(name); }

  void Write(const QString &name, const QByteArray &content) {
    QFile file(Native(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
  }
  QByteArray Bytes(const QString &name) const {
    QFile file(Native(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }
  void Start(const QStringList &arguments = {}) {
    process_.start(QStringLiteral(VELOR_EXECUTABLE), arguments);
    ASSERT_TRUE(process_.waitForStarted(Limit)) << process_.errorString().toStdString();
  }
  /// The program ends by itself; its report.
  QByteArray ReportAfterFailure() {
    Start();
    EXPECT_TRUE(process_.waitForFinished(Limit)) << "the program went on";
    EXPECT_EQ(process_.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(process_.exitCode(), 1);
    return process_.readAllStandardError();
  }
  /// Start-up has passed its last question.
  void ExpectStarted() {
    const QByteArray expected =
        '"' + QFile::encodeName(Native(QStringLiteral("eImages"))) + "\"\r\n";
    EXPECT_TRUE(
        WaitFor([&] { return Bytes(QStringLiteral("SiteImgConfig.ini")) == expected; }, Limit))
        << process_.readAllStandardError().constData();
    EXPECT_EQ(process_.state(), QProcess::Running);
  }

  QTemporaryDir folder_;
  QProcess process_;
};

TEST_F(Program, AFirstStartAsksNothingAndWritesBothLocationFiles) {
  Start();
  ExpectStarted();
  EXPECT_EQ(Bytes(QStringLiteral("SiteConfig.ini")),
            '"' + QFile::encodeName(folder_.path()) + "\"\r\n");
}

TEST_F(Program, ActsUponNoArgumentTheToolkitsIncluded) {
  Write(QStringLiteral("page.htm"), "<p>one</p>");
  Start(
      {QStringLiteral("-platform"), QStringLiteral("nowhere"), Native(QStringLiteral("page.htm"))});
  ExpectStarted();
  // Whatever opens a page records it in the history.
  QFile settings(QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) +
                 QStringLiteral("/Company/VelorCDMaker.conf"));
  const auto isOpened = [&] {
    const bool holds =
        settings.open(QIODevice::ReadOnly) && settings.readAll().contains("page.htm");
    settings.close();
    return holds;
  };
  constexpr int LongEnough = 3000;
  EXPECT_FALSE(WaitFor(isOpened, LongEnough));
}

TEST_F(Program, ADamagedCatalogueEndsItWithAReportAndStaysAsItIs) {
  Write(QStringLiteral("eThumbs.mdb"), "this is no catalogue");
  EXPECT_TRUE(ReportAfterFailure().contains("eThumbs.mdb"));
  EXPECT_EQ(Bytes(QStringLiteral("eThumbs.mdb")), QByteArray("this is no catalogue"));
  EXPECT_FALSE(QFile::exists(Native(QStringLiteral("SiteImgConfig.ini"))));
}

TEST_F(Program, ALockedCatalogueEndsItWithAReport) {
  sqlite3 *other = nullptr;
  sqlite3_open(Native(QStringLiteral("eThumbs.mdb")).toUtf8().constData(), &other);
  ASSERT_EQ(sqlite3_exec(other, "Begin exclusive", nullptr, nullptr, nullptr), SQLITE_OK);
  EXPECT_TRUE(ReportAfterFailure().contains("locked"));
  sqlite3_close(other);
}

TEST_F(Program, AnEmptyLocationFileEndsItWithAReport) {
  QFile::remove(Native(QStringLiteral("eThumbs.mdb")));
  Write(QStringLiteral("SiteConfig.ini"), "");
  EXPECT_TRUE(ReportAfterFailure().contains("Error 62"));
  EXPECT_FALSE(QFile::exists(Native(QStringLiteral("eThumbs.mdb"))));
}

TEST_F(Program, ALocationFileThatCannotBeWrittenEndsItWithAReport) {
  QDir().mkdir(Native(QStringLiteral("SiteConfig.ini")));
  EXPECT_TRUE(ReportAfterFailure().contains("SiteConfig.ini"));
}

TEST_F(Program, ADriveMapThatCannotBeUnderstoodEndsItWithAReportOfTheLine) {
  QDir().mkpath(QFileInfo(DriveMapFile()).path());
  QFile map(DriveMapFile());
  ASSERT_TRUE(map.open(QIODevice::WriteOnly));
  map.write("C: /home/me/windows\nD = elsewhere\n");
  map.close();
  const QByteArray report = ReportAfterFailure();
  map.remove();
  EXPECT_TRUE(report.contains("drives.conf, line 2")) << report.constData();
  EXPECT_FALSE(QFile::exists(Native(QStringLiteral("SiteConfig.ini"))));
}

}  // namespace
}  // namespace velor
