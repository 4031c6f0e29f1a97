// SPDX-License-Identifier: GPL-3.0-or-later
// A file is replaced on a disk that fails: afterwards it has its whole old or its whole new
// content, and a failure raises an error.
#include "files/ReplacedFiles.h"
#include "tests/files/FileFaultsFixture.h"

#include <sys/xattr.h>

namespace velor {
namespace {

using Call = FaultyCalls::Call;

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
                                         Fault{Call::Close, EIO, ErrorNumber::DeviceIoError},
                                         Fault{Call::Close, EDQUOT, ErrorNumber::DiskFull},
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
  const QString kept = replaced.Store("\\site\\my page.htm", "the content");
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
    replaced.Store("\\site\\a.htm", QByteArray::number(i));
  const QStringList kept = Kept();
  ASSERT_EQ(kept.size(), ReplacedFiles::MostVersions);
  EXPECT_EQ(Content(kept[0]), "3");
  EXPECT_EQ(Content(kept.constLast()), QByteArray::number(ReplacedFiles::MostVersions + 2));
}

TEST_F(FileFaults, TwoProcessesKeepTheirVersionsSideBySide) {
  constexpr int Each = 30;
  const auto keep = [](char who) {
    ReplacedFiles replaced;
    for (int i = 0; i < Each; ++i) replaced.Store("\\site\\a.htm", who + QByteArray::number(i));
  };
  const pid_t child = fork();
  if (child == 0) {
    keep('c');
    _exit(0);
  }
  keep('p');
  int status = 0;
  waitpid(child, &status, 0);
  QStringList contents;
  for (const QString &kept : Kept()) contents << QString::fromUtf8(Content(kept));
  EXPECT_EQ(contents.size(), 2 * Each);
  EXPECT_EQ(contents.removeDuplicates(), 0);
}

TEST_F(FileFaults, APageOnAnotherFileSystemIsKeptAndReplaced) {
  QTemporaryDir other("/dev/shm/velor-XXXXXX");
  ASSERT_TRUE(other.isValid());
  const QString page = other.filePath("page.htm");
  const QString second = other.filePath("second.htm");
  files_.ReplaceAll(ToLogic(page), Old);
  ASSERT_EQ(link(QFile::encodeName(page).constData(), QFile::encodeName(second).constData()), 0);
  EXPECT_EQ(Content(QFileInfo(ReplacedFiles().Store(ToLogic(page), Old)).fileName()), Old);
  files_.ReplaceAll(ToLogic(page), New);
  EXPECT_EQ(files_.ReadAll(ToLogic(second)), New);
}

}  // namespace
}  // namespace velor
