// SPDX-License-Identifier: GPL-3.0-or-later
// What only a real file system has: modes, owners, links, full disks.
#include "files/QtFiles.h"
#include "platform/Paths.h"
#include "tests/support/Checks.h"
#include "tests/support/Hindrances.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <sys/stat.h>
#include <unistd.h>

namespace velor {
namespace {

constexpr uid_t Stranger = 12345;

class QtFilesTest : public testing::Test {
 protected:
  QString Native(const QString &name) const { return folder_.filePath(name); }
  QString Path(const QString &name) const { return ToLogic(Native(name)); }

  void Write(const QString &name, const QByteArray &content, mode_t mode = 0644) {
    QFile file(Native(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(content);
    file.close();
    SetMode(name, mode);
  }
  void SetMode(const QString &name, mode_t mode) {
    ASSERT_EQ(chmod(Native(name).toLocal8Bit().constData(), mode), 0);
  }
  struct stat Status(const QString &name) const {
    struct stat status {};
    EXPECT_EQ(lstat(Native(name).toLocal8Bit().constData(), &status), 0);
    return status;
  }
  QByteArray Read(const QString &name) const {
    QFile file(Native(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
  }
  /// Everything in the folder, so that no temporary file can hide.
  QStringList Names() const {
    return QDir(folder_.path())
        .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                   QDir::Name);
  }
  /// Lets ordinary users into the folder, which is private to its maker at first.
  void OpenFolder(mode_t mode) { SetMode(".", mode); }

  QtFiles files_;
  QTemporaryDir folder_;
};

TEST_F(QtFilesTest, ReplacesByRenamingAndLeavesNothingBehind) {
  Write("a.htm", "old");
  const ino_t before = Status("a.htm").st_ino;
  files_.ReplaceAll(Path("a.htm"), "new");
  EXPECT_NE(Status("a.htm").st_ino, before);
  EXPECT_EQ(Read("a.htm"), "new");
  EXPECT_EQ(Names(), QStringList("a.htm"));
}

TEST_F(QtFilesTest, GivesANewFileTheModeThatTheUserAsksFor) {
  const mode_t before = umask(027);
  files_.ReplaceAll(Path("a.htm"), "x");
  umask(before);
  EXPECT_EQ(Status("a.htm").st_mode & 07777, 0640u);
}

TEST_F(QtFilesTest, KeepsModeAndOwner) {
  Write("a.htm", "old", 0606);
  if (geteuid() == 0) {
    ASSERT_EQ(chown(Native("a.htm").toLocal8Bit().constData(), Stranger, Stranger), 0);
  }
  const struct stat before = Status("a.htm");
  files_.ReplaceAll(Path("a.htm"), "new");
  const struct stat after = Status("a.htm");
  EXPECT_EQ(after.st_mode, before.st_mode);
  EXPECT_EQ(after.st_uid, before.st_uid);
  EXPECT_EQ(after.st_gid, before.st_gid);
  EXPECT_EQ(Read("a.htm"), "new");
}

TEST_F(QtFilesTest, WritesThroughSymbolicLinksAndKeepsThem) {
  QDir(folder_.path()).mkdir("sub");
  Write("sub/real.htm", "old");
  ASSERT_TRUE(QFile::link("sub/real.htm", Native("one.htm")));
  ASSERT_TRUE(QFile::link(Native("one.htm"), Native("two.htm")));
  files_.ReplaceAll(Path("two.htm"), "new");
  EXPECT_TRUE(S_ISLNK(Status("one.htm").st_mode));
  EXPECT_TRUE(S_ISLNK(Status("two.htm").st_mode));
  EXPECT_TRUE(S_ISREG(Status("sub/real.htm").st_mode));
  EXPECT_EQ(Read("sub/real.htm"), "new");
}

TEST_F(QtFilesTest, CreatesWhatADanglingLinkPointsTo) {
  ASSERT_TRUE(QFile::link("later.htm", Native("link.htm")));
  EXPECT_FALSE(files_.FileExists(Path("link.htm")));
  files_.ReplaceAll(Path("link.htm"), "x");
  EXPECT_TRUE(S_ISLNK(Status("link.htm").st_mode));
  EXPECT_EQ(Read("later.htm"), "x");
}

TEST_F(QtFilesTest, RefusesLinksThatRunInACircle) {
  ASSERT_TRUE(QFile::link("b.htm", Native("a.htm")));
  ASSERT_TRUE(QFile::link("a.htm", Native("b.htm")));
  EXPECT_EQ(ErrorOf([&] { files_.ReplaceAll(Path("a.htm"), "x"); }), ErrorNumber::PathNotFound);
}

TEST_F(QtFilesTest, WritesAHardLinkedFileInPlace) {
  Write("a.htm", "old and long");
  ASSERT_EQ(
      link(Native("a.htm").toLocal8Bit().constData(), Native("b.htm").toLocal8Bit().constData()),
      0);
  files_.ReplaceAll(Path("a.htm"), "new");
  EXPECT_EQ(Read("b.htm"), "new");
  EXPECT_EQ(Status("a.htm").st_ino, Status("b.htm").st_ino);
  files_.ReplaceAll(Path("b.htm"), "new and longer than ever");
  EXPECT_EQ(Read("a.htm"), "new and longer than ever");
}

TEST_F(QtFilesTest, RefusesAFileWithoutAnyWriteBit) {
  Write("a.htm", "old", 0444);
  EXPECT_TRUE(files_.IsReadOnly(Path("a.htm")));
  EXPECT_EQ(ErrorOf([&] { files_.ReplaceAll(Path("a.htm"), "new"); }), ErrorNumber::PathFileAccess);
  EXPECT_EQ(Read("a.htm"), "old");
  ASSERT_TRUE(QFile::link("a.htm", Native("link.htm")));
  EXPECT_TRUE(files_.IsReadOnly(Path("link.htm")));
}

TEST_F(QtFilesTest, WritesInPlaceWhereNothingCanBeCreated) {
  Write("a.htm", "old", 0666);
  OpenFolder(0555);
  {
    const AsOrdinaryUser user;
    EXPECT_FALSE(files_.FolderWritable(Path("b.htm")));
    EXPECT_FALSE(files_.IsReadOnly(Path("a.htm")));
    files_.ReplaceAll(Path("a.htm"), "new");
    EXPECT_EQ(ErrorOf([&] { files_.ReplaceAll(Path("b.htm"), "x"); }), ErrorNumber::PathFileAccess);
  }
  OpenFolder(0755);
  EXPECT_EQ(Read("a.htm"), "new");
  EXPECT_EQ(Names(), QStringList("a.htm"));
}

TEST_F(QtFilesTest, WritesAStrangersFileInPlaceAndLeavesItTheirs) {
  if (geteuid() != 0) return;  // only the superuser can make a stranger's file
  Write("a.htm", "old", 0666);
  ASSERT_EQ(chown(Native("a.htm").toLocal8Bit().constData(), Stranger, Stranger), 0);
  OpenFolder(0777);
  const ino_t before = Status("a.htm").st_ino;
  {
    const AsOrdinaryUser user;
    files_.ReplaceAll(Path("a.htm"), "new");
  }
  EXPECT_EQ(Status("a.htm").st_uid, Stranger);
  EXPECT_EQ(Status("a.htm").st_ino, before);
  EXPECT_EQ(Read("a.htm"), "new");
  EXPECT_EQ(Names(), QStringList("a.htm"));
}

TEST_F(QtFilesTest, TakesAFileThatRefusesTheUserAsReadOnly) {
  if (geteuid() != 0) return;  // only the superuser can make a stranger's file
  Write("a.htm", "old", 0644);
  OpenFolder(0777);
  const AsOrdinaryUser user;
  EXPECT_TRUE(files_.IsReadOnly(Path("a.htm")));
  EXPECT_EQ(ErrorOf([&] { files_.ReplaceAll(Path("a.htm"), "new"); }), ErrorNumber::PathFileAccess);
  EXPECT_EQ(Read("a.htm"), "old");
}

TEST_F(QtFilesTest, RefusesAFileThatCannotBeRead) {
  Write("a.htm", "secret", 0000);
  OpenFolder(0755);
  const AsOrdinaryUser user;
  EXPECT_EQ(ErrorOf([&] { files_.ReadAll(Path("a.htm")); }), ErrorNumber::PathFileAccess);
}

TEST_F(QtFilesTest, LeavesTheOldFileWholeOnAFullDisk) {
  Write("a.htm", "old");
  {
    const FileSizeLimit limit(1000);
    EXPECT_EQ(ErrorOf([&] { files_.ReplaceAll(Path("a.htm"), QByteArray(5000, 'x')); }),
              ErrorNumber::DiskFull);
    EXPECT_EQ(ErrorOf([&] { files_.ReplaceAll(Path("new.htm"), QByteArray(5000, 'x')); }),
              ErrorNumber::DiskFull);
  }
  EXPECT_EQ(Read("a.htm"), "old");
  EXPECT_EQ(Names(), QStringList("a.htm"));
}

TEST_F(QtFilesTest, LeavesAHardLinkedFileWholeOnAFullDisk) {
  Write("a.htm", "old");
  ASSERT_EQ(
      link(Native("a.htm").toLocal8Bit().constData(), Native("b.htm").toLocal8Bit().constData()),
      0);
  {
    const FileSizeLimit limit(1000);
    EXPECT_EQ(ErrorOf([&] { files_.ReplaceAll(Path("a.htm"), QByteArray(5000, 'x')); }),
              ErrorNumber::DiskFull);
  }
  EXPECT_EQ(Read("a.htm"), "old");
}

TEST_F(QtFilesTest, ReportsADeviceWithoutRoomAsAFullDisk) {
  ASSERT_TRUE(QFile::link("/dev/full", Native("full.htm")));
  EXPECT_EQ(ErrorOf([&] { files_.ReplaceAll(Path("full.htm"), "x"); }), ErrorNumber::DiskFull);
}

TEST_F(QtFilesTest, NeverWaitsForAPipe) {
  ASSERT_EQ(mkfifo(Native("pipe").toLocal8Bit().constData(), 0666), 0);
  EXPECT_EQ(ErrorOf([&] { files_.ReadAll(Path("pipe")); }), ErrorNumber::PathFileAccess);
  EXPECT_NE(ErrorOf([&] { files_.ReplaceAll(Path("pipe"), "x"); }), ErrorNumber::None);
}

TEST_F(QtFilesTest, RefusesANameThatTheSystemWouldCutShort) {
  Write("a.htm", "old");
  const QString path = Path("a.htm") + QChar(0) + "b";
  EXPECT_EQ(ErrorOf([&] { files_.ReplaceAll(path, "x"); }), ErrorNumber::PathFileAccess);
  EXPECT_EQ(ErrorOf([&] { files_.Delete(path); }), ErrorNumber::PathFileAccess);
  EXPECT_EQ(Read("a.htm"), "old");
}

TEST_F(QtFilesTest, SeesAFileThatGrowsWhileItIsRead) {
  // Files of /proc claim to be empty.
  EXPECT_FALSE(files_.ReadAll(R"(\proc\self\status)").isEmpty());
}

TEST_F(QtFilesTest, ReadsARealBackslashInAName) {
  Write("odd\\name.htm", "x");
  EXPECT_EQ(files_.ReadAll(Path("odd\\name.htm")), "x");
}

TEST_F(QtFilesTest, DeletesALinkAndNotItsTarget) {
  Write("a.htm", "x");
  ASSERT_TRUE(QFile::link("a.htm", Native("link.htm")));
  files_.Delete(Path("link.htm"));
  EXPECT_EQ(Names(), QStringList("a.htm"));
}

}  // namespace
}  // namespace velor
