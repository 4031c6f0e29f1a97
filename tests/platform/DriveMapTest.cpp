// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/DriveMap.h"
#include "tests/support/Checks.h"
#include "tests/support/MappedDrives.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace velor {
namespace {

/// The error of a drive map text; none when it is taken.
QString ObjectionTo(const char *text) {
  try {
    DriveMap::Parse(QString::fromUtf8(text), "drives.conf");
  } catch (const RuntimeError &error) {
    EXPECT_EQ(error.Number(), ErrorNumber::TypeMismatch);
    return error.Description();
  }
  return {};
}

TEST(DriveMap, LeavesPathsAloneWithoutDrives) {
  EXPECT_EQ(ToLogic("/home/me/windows/a.htm"), R"(\home\me\windows\a.htm)");
  EXPECT_TRUE(IsOnUnknownDrive(R"(C:\Sites)"));
}

TEST(DriveMap, TakesAMappedDriveForItsFolderInBothDirections) {
  const MappedDrives drives("C: /home/me/windows");
  EXPECT_EQ(ToNative(R"(C:\Sites\Shop)"), "/home/me/windows/Sites/Shop");
  EXPECT_EQ(ToNative("c:/Sites/Shop"), "/home/me/windows/Sites/Shop");
  EXPECT_EQ(ToNative(R"(C:\)"), "/home/me/windows/");
  EXPECT_EQ(ToNative("C:"), "/home/me/windows");
  EXPECT_EQ(ToLogic("/home/me/windows/Sites/Shop"), R"(C:\Sites\Shop)");
  EXPECT_EQ(ToLogic("/home/me/windows"), R"(C:\)");
  EXPECT_FALSE(IsOnUnknownDrive(R"(c:\Sites)"));
  EXPECT_TRUE(IsOnUnknownDrive(R"(D:\Sites)"));
}

TEST(DriveMap, LeavesPathsOutsideItsFoldersAlone) {
  const MappedDrives drives("C: /home/me/windows");
  EXPECT_EQ(ToLogic("/home/me/windowsill/a.htm"), R"(\home\me\windowsill\a.htm)");
  EXPECT_EQ(ToNative(R"(\home\me\windows\a.htm)"), "/home/me/windows/a.htm");
  EXPECT_EQ(ToNative(R"(D:\a.htm)"), "D:/a.htm");
}

TEST(DriveMap, CallsAPathByTheDriveThatHoldsItMostClosely) {
  const MappedDrives drives("D: /\nC: /home/me\nE: /home/me/music/");
  EXPECT_EQ(ToLogic("/etc/x"), R"(D:\etc\x)");
  EXPECT_EQ(ToLogic("/home/me/a.htm"), R"(C:\a.htm)");
  EXPECT_EQ(ToLogic("/home/me/music/b"), R"(E:\b)");
  for (const char *path : {"/etc/x", "/home/me/a.htm", "/home/me/music/b"}) {
    EXPECT_EQ(ToNative(ToLogic(path)), path);
  }
}

TEST(DriveMap, CarriesABackslashOfANameThroughAndBack) {
  const MappedDrives drives("C: /home/me");
  const QString native = "/home/me/odd\\name";
  EXPECT_EQ(ToLogic(native), QStringLiteral("C:\\odd\uF05Cname"));
  EXPECT_EQ(ToNative(ToLogic(native)), native);
}

TEST(DriveMap, ReadsEitherFormFromPeople) {
  const MappedDrives drives("C: /home/me");
  EXPECT_EQ(FromPeople("/home/me/a.htm"), R"(C:\a.htm)");
  EXPECT_EQ(FromPeople(R"(C:\a.htm)"), R"(C:\a.htm)");
  EXPECT_EQ(ForPeople(R"(C:\a.htm)"), R"(C:\a.htm)");
  EXPECT_EQ(ToUrl(R"(C:\a b.htm)").toLocalFile(), "/home/me/a b.htm");
}

TEST(DriveMap, FindsTheProgramsNamesOnADriveIgnoringLetterCase) {
  QTemporaryDir folder;
  ASSERT_TRUE(QDir(folder.path()).mkpath("sites/SHOP"));
  const MappedDrives drives("C: " + folder.path());
  EXPECT_EQ(FindIgnoringCase(R"(C:\Sites\Shop)"), folder.filePath("sites/SHOP"));
}

TEST(DriveMap, PassesOverCommentsAndBlanks) {
  const MappedDrives drives("# The shop's machine\r\n\r\n  c:   /x y \r\n");
  EXPECT_EQ(ToNative(R"(C:\a)"), "/x y/a");
}

TEST(DriveMap, NamesTheLineThatMapsNothing) {
  EXPECT_EQ(ObjectionTo("# fine\nC: /x"), QString());
  for (const char *line : {"C: relative", "C /x", "CD: /x", "1: /x", "C:", "/x"}) {
    const QString objection = ObjectionTo((std::string("# fine\n") + line).c_str());
    EXPECT_TRUE(objection.contains("drives.conf, line 2")) << line;
    EXPECT_TRUE(objection.contains(line)) << objection.toStdString();
  }
  EXPECT_TRUE(ObjectionTo("C: /x\nc: /y").contains("line 2: drive C:"));
}

class DriveMapFileTest : public testing::Test {
 protected:
  ~DriveMapFileTest() override { UseDriveMap({}); }
  QString Write(const char *text) {
    const QString name = folder_.filePath("drives.conf");
    QFile file(name);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
    return name;
  }

  QTemporaryDir folder_;
};

TEST_F(DriveMapFileTest, LiesBesideTheSettings) {
  EXPECT_TRUE(DriveMapFile().endsWith("/Company/drives.conf"));
  EXPECT_TRUE(DriveMapFile().startsWith(qEnvironmentVariable("XDG_CONFIG_HOME")));
}

TEST_F(DriveMapFileTest, IsUsedWhereThereIsOne) {
  EXPECT_FALSE(UseDriveMapFile(Write("Z: /über\n")));
  EXPECT_EQ(ToNative(R"(Z:\a)"), QStringLiteral("/über/a"));
  EXPECT_FALSE(UseDriveMapFile(folder_.filePath("none")));
  EXPECT_TRUE(IsOnUnknownDrive("Z:\\a"));
}

TEST_F(DriveMapFileTest, IsNotTakenWhereALineIsWrong) {
  const QString name = Write("C: /x\nD = /y\n");
  const auto error = UseDriveMapFile(name);
  ASSERT_TRUE(error);
  EXPECT_TRUE(error->Description().contains(name + ", line 2"));
  EXPECT_TRUE(IsOnUnknownDrive("C:\\a"));
}

TEST_F(DriveMapFileTest, IsNotTakenWhereItCannotBeRead) {
  const auto error = UseDriveMapFile(folder_.path());
  ASSERT_TRUE(error);
  EXPECT_EQ(error->Number(), ErrorNumber::PathFileAccess);
}

}  // namespace
}  // namespace velor
