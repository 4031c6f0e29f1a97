// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/ProgramFolder.h"
#include "tests/support/Checks.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace velor {
namespace {

class ProgramFolder : public ::testing::Test {
 protected:
  ProgramFolder() {
    qputenv("XDG_DATA_HOME", QFile::encodeName(Native(QStringLiteral("data"))));
    QDir(folder_.path()).mkpath(QStringLiteral("bin"));
  }
  ~ProgramFolder() override {
    qunsetenv("VELOR_PROGRAM_FOLDER");
    QFile::setPermissions(Native(QStringLiteral("bin")),
                          QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  }

  QString Native(const QString &name) const { return QDir(folder_.path()).filePath(name); }
  QString Bin() const { return Native(QStringLiteral("bin")); }
  QString Data() const { return Native(QStringLiteral("data/velor-web-creator")); }
  void MakeBinReadOnly() { QFile::setPermissions(Bin(), QFile::ReadOwner | QFile::ExeOwner); }
  void InstallSampleMaker() {
    ASSERT_TRUE(QFile::copy(QStringLiteral(VELOR_SAMPLE_MAKER),
                            Bin() + QStringLiteral("/velor-sample-site")));
  }

  QTemporaryDir folder_;
};

TEST_F(ProgramFolder, IsTheOneThatTheEnvironmentNames) {
  qputenv("VELOR_PROGRAM_FOLDER", QFile::encodeName(Native(QStringLiteral("chosen/"))));
  EXPECT_EQ(PrepareProgramFolder(Bin()), Native(QStringLiteral("chosen")));
}

TEST_F(ProgramFolder, ARootKeepsItsSeparator) {
  qputenv("VELOR_PROGRAM_FOLDER", "/");
  EXPECT_EQ(PrepareProgramFolder(Bin()), QStringLiteral("/"));
}

TEST_F(ProgramFolder, IsTheExecutablesFolderWhenThatIsWritable) {
  EXPECT_EQ(PrepareProgramFolder(Bin()), Bin());
  EXPECT_FALSE(QFileInfo::exists(Data()));
}

TEST_F(ProgramFolder, IsTheDataFolderOfAnInstalledProgramThoughItsFolderIsWritable) {
  QDir(folder_.path()).mkpath(QStringLiteral("share/velor-web-creator"));
  InstallSampleMaker();
  EXPECT_EQ(PrepareProgramFolder(Bin()), Data());
  EXPECT_TRUE(QFileInfo(Data() + QStringLiteral("/eThumbs.mdb")).isFile());
}

TEST_F(ProgramFolder, IsTheDataFolderFilledWithTheSampleWhenTheExecutablesIsReadOnly) {
  InstallSampleMaker();
  MakeBinReadOnly();
  EXPECT_EQ(PrepareProgramFolder(Bin()), Data());
  EXPECT_TRUE(QFileInfo(Data() + QStringLiteral("/eThumbs.mdb")).isFile());
  EXPECT_TRUE(QFileInfo(Data() + QStringLiteral("/eImages")).isDir());
}

TEST_F(ProgramFolder, ADataFolderThatExistsIsNotFilledAgain) {
  InstallSampleMaker();
  MakeBinReadOnly();
  QDir().mkpath(Data());
  EXPECT_EQ(PrepareProgramFolder(Bin()), Data());
  EXPECT_TRUE(QDir(Data()).isEmpty());
}

TEST_F(ProgramFolder, WithoutASampleMakerTheDataFolderStaysEmpty) {
  MakeBinReadOnly();
  EXPECT_EQ(PrepareProgramFolder(Bin()), Data());
  EXPECT_TRUE(QDir(Data()).isEmpty());
}

}  // namespace
}  // namespace velor
