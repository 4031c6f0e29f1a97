// SPDX-License-Identifier: GPL-3.0-or-later
// Whatever the disk does while a file is replaced, its old or its new content is there, whole, and
// a failure is an error.
#include "platform/Paths.h"
#include "platform/qt/QtFiles.h"
#include "platform/qt/StateFolder.h"
#include "platform/qt/files/ReplacedFiles.h"
#include "tests/support/Checks.h"
#include "tests/support/FaultyCalls.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <sys/wait.h>
#include <sys/xattr.h>

namespace velor {
namespace {

using Call = FaultyCalls::Call;

const QByteArray Old(3000, 'o');
const QByteArray New(5000, 'n');

class FileFaults : public testing::Test {
 protected:
  FileFaults() {
    qputenv("XDG_STATE_HOME", folder_.filePath("state").toLocal8Bit());
    Write("a.htm", Old);
  }
  ~FileFaults() override { qputenv("XDG_STATE_HOME", stateHome_); }

  QByteArray Name(const QString &name) const { return QFile::encodeName(folder_.filePath(name)); }
  void Write(const QString &name, const QByteArray &content) const {
    QFile file(folder_.filePath(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
  }
  QByteArray Read(const QString &name) const {
    QFile file(folder_.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
  }
  void Replace() { files_.ReplaceAll(ToLogic(folder_.filePath("a.htm")), New); }
  ErrorNumber ErrorOfReplacing() {
    return ErrorOf([this] { Replace(); });
  }
  void GiveASecondName() const {
    ASSERT_EQ(link(Name("a.htm").constData(), Name("b.htm").constData()), 0);
  }
  /// The versions kept, oldest first.
  static QStringList Kept() {
    return QDir(StateFolder() + "/replaced").entryList({"*.htm"}, QDir::Files, QDir::Name);
  }
  static QByteArray Content(const QString &kept) {
    QFile file(StateFolder() + "/replaced/" + kept);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << kept.toStdString();
    return file.readAll();
  }
  QStringList Names() const {
    return QDir(folder_.path()).entryList(QDir::Files | QDir::Hidden, QDir::Name);
  }

  QByteArray stateHome_ = qgetenv("XDG_STATE_HOME");
  QTemporaryDir folder_;
  FaultyCalls calls_;
  QtFiles files_{calls_};
};

struct Fault {
  Call call;
  int errnoValue;
  ErrorNumber number;
};

class AnyFault : public FileFaults, public testing::WithParamInterface<Fault> {};

TEST_P(AnyFault, LeavesTheOldFileAndNothingElseAndIsAnError) {
  calls_.Fail(GetParam().call, GetParam().errnoValue);
  EXPECT_EQ(ErrorOfReplacing(), GetParam().number);
  calls_.FailNoMore();
  EXPECT_EQ(Read("a.htm"), Old);
  EXPECT_EQ(Names(), QStringList("a.htm"));
  Replace();
  EXPECT_EQ(Read("a.htm"), New);
}

TEST_P(AnyFault, LeavesAFileWithASecondNameWholeToo) {
  GiveASecondName();
  calls_.Fail(GetParam().call, GetParam().errnoValue);
  const ErrorNumber number = ErrorOfReplacing();
  calls_.FailNoMore();
  // Where the disk does not even take the old content back, it lies among the replaced versions.
  const QByteArray there = Read("b.htm");
  if (there == New) {
    EXPECT_EQ(number, ErrorNumber::None);
  } else if (there != Old) {
    ASSERT_EQ(Kept().size(), 1);
    EXPECT_EQ(Content(Kept()[0]), Old);
  }
  if (there != New) {
    EXPECT_EQ(number, GetParam().number);
  }
}

INSTANTIATE_TEST_SUITE_P(Calls, AnyFault,
                         testing::Values(Fault{Call::Open, ENOSPC, ErrorNumber::DiskFull},
                                         Fault{Call::Open, EIO, ErrorNumber::DeviceIoError},
                                         Fault{Call::Write, ENOSPC, ErrorNumber::DiskFull},
                                         Fault{Call::Write, EDQUOT, ErrorNumber::DiskFull},
                                         Fault{Call::Write, EIO, ErrorNumber::DeviceIoError},
                                         Fault{Call::Sync, EIO, ErrorNumber::DeviceIoError},
                                         Fault{Call::Sync, ENOSPC, ErrorNumber::DiskFull},
                                         Fault{Call::Rename, EIO, ErrorNumber::DeviceIoError},
                                         Fault{Call::Rename, ENOSPC, ErrorNumber::DiskFull}));

TEST_F(FileFaults, AReadOnlyFileSystemIsAnError) {
  calls_.Fail(Call::Open, EROFS);
  EXPECT_EQ(ErrorOfReplacing(), ErrorNumber::PathFileAccess);
  EXPECT_EQ(Read("a.htm"), Old);
}

TEST_F(FileFaults, AFolderThatDoesNotReachTheDiskIsAnErrorAlthoughTheNewFileIsThere) {
  calls_.Fail(Call::Sync, EIO, 1);
  EXPECT_EQ(ErrorOfReplacing(), ErrorNumber::DeviceIoError);
  EXPECT_EQ(Read("a.htm"), New);
}

TEST_F(FileFaults, ShortWritesAreContinued) {
  calls_.longestWrite = 7;
  Replace();
  EXPECT_EQ(Read("a.htm"), New);
  GiveASecondName();
  files_.ReplaceAll(ToLogic(folder_.filePath("b.htm")), Old);
  EXPECT_EQ(Read("a.htm"), Old);
}

TEST_F(FileFaults, APlaceThatCannotBeRenamedOverIsWrittenInPlace) {
  calls_.Fail(Call::Rename, EBUSY, 0, 1);
  Replace();
  EXPECT_EQ(Read("a.htm"), New);
  EXPECT_TRUE(Kept().isEmpty());
  EXPECT_EQ(Names(), QStringList("a.htm"));
}

TEST_F(FileFaults, ExtendedAttributesAreKept) {
  const QByteArray value = "somebody's";
  if (setxattr(Name("a.htm").constData(), "user.note", value.constData(),
               static_cast<size_t>(value.size()), 0) != 0) {
    ASSERT_EQ(errno, ENOTSUP);
    return;  // this file system has none
  }
  Replace();
  QByteArray kept(100, '\0');
  kept.truncate(getxattr(Name("a.htm").constData(), "user.note", kept.data(), 100));
  EXPECT_EQ(kept, value);

  calls_.Fail(Call::Attribute, EPERM);
  files_.ReplaceAll(ToLogic(folder_.filePath("a.htm")), Old);
  kept.resize(100);
  kept.truncate(getxattr(Name("a.htm").constData(), "user.note", kept.data(), 100));
  EXPECT_EQ(kept, value);
  EXPECT_EQ(Read("a.htm"), Old);
}

/// Replaces the file in a process that ends before its `step`-th call; false when it got through.
template <typename Replacing>
bool DiesAt(FaultyCalls &calls, int step, Replacing replace) {
  const pid_t child = fork();
  if (child == 0) {
    calls.KillBefore(step);
    replace();
    _exit(0);
  }
  int status = 0;
  waitpid(child, &status, 0);
  return WIFSIGNALED(status);
}

TEST_F(FileFaults, AProcessThatEndsAtAnyStepLeavesTheOldOrTheNewFile) {
  int step = 1;
  int olds = 0;
  for (; DiesAt(calls_, step, [this] { Replace(); }); ++step) {
    const QByteArray there = Read("a.htm");
    EXPECT_TRUE(there == Old || there == New) << "step " << step;
    olds += there == Old ? 1 : 0;
    Write("a.htm", Old);
  }
  EXPECT_GE(step, 5);
  EXPECT_GE(olds, 4);
  EXPECT_EQ(Read("a.htm"), New);
}

TEST_F(FileFaults, AProcessThatEndsWhileItWritesInPlaceLeavesTheOldContentAmongTheReplaced) {
  GiveASecondName();
  int step = 1;
  for (; DiesAt(calls_, step, [this] { Replace(); }); ++step) {
    const QByteArray there = Read("b.htm");
    if (there != Old && there != New) {
      ASSERT_FALSE(Kept().isEmpty()) << "step " << step;
      EXPECT_EQ(Content(Kept().constLast()), Old) << "step " << step;
    }
    QFile again(folder_.filePath("a.htm"));
    ASSERT_TRUE(again.open(QIODevice::WriteOnly));
    again.write(Old);
  }
  EXPECT_GE(step, 10);
  EXPECT_EQ(Read("b.htm"), New);
}

TEST_F(FileFaults, ReplacedVersionsArePrivateAndSayWhereTheyComeFrom) {
  ReplacedFiles replaced;
  const QString kept = replaced.Keep("\\site\\my page.htm", "the content");
  EXPECT_EQ(Content(QFileInfo(kept).fileName()), "the content");
  const QByteArray origin = Content(QFileInfo(kept).fileName() + ".from");
  EXPECT_TRUE(origin.startsWith("/site/my page.htm\n2")) << origin.toStdString();
  const auto othersRights =
      QFile::ReadGroup | QFile::ReadOther | QFile::WriteGroup | QFile::WriteOther;
  EXPECT_FALSE(QFile::permissions(kept) & othersRights);
  EXPECT_FALSE(QFile::permissions(StateFolder() + "/replaced") & othersRights);
}

TEST_F(FileFaults, OnlyTheNewestReplacedVersionsAreKept) {
  ReplacedFiles replaced;
  for (int i = 0; i < ReplacedFiles::MostVersions + 3; ++i)
    replaced.Keep("\\site\\a.htm", QByteArray::number(i));
  const QStringList kept = Kept();
  ASSERT_EQ(kept.size(), ReplacedFiles::MostVersions);
  EXPECT_EQ(Content(kept[0]), "3");
  EXPECT_EQ(Content(kept.constLast()), QByteArray::number(ReplacedFiles::MostVersions + 2));
}

}  // namespace
}  // namespace velor
