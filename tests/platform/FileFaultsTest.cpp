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

#include <algorithm>
#include <optional>
#include <sys/file.h>
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
                                         Fault{Call::Close, EIO, ErrorNumber::DeviceIoError},
                                         Fault{Call::Close, EDQUOT, ErrorNumber::DiskFull},
                                         Fault{Call::Rename, EIO, ErrorNumber::DeviceIoError},
                                         Fault{Call::Rename, ENOSPC, ErrorNumber::DiskFull}));

/// Every single call of every way to replace a file, failing in every way that disks fail.
class EveryCall : public FileFaults {
 protected:
  enum class Way { OldFile, NewFile, ThroughALink, InPlace };

  void Prepare(Way way) {
    scratch_.emplace();
    page_ = scratch_->filePath("page.htm");
    const QString real = way == Way::ThroughALink ? scratch_->filePath("real.htm") : page_;
    if (way != Way::NewFile) {
      QFile file(real);
      ASSERT_TRUE(file.open(QIODevice::WriteOnly));
      file.write(Old);
    }
    if (way == Way::ThroughALink) {
      ASSERT_TRUE(QFile::link(real, page_));
    }
    if (way == Way::InPlace) {
      const QByteArray second = QFile::encodeName(scratch_->filePath("second.htm"));
      ASSERT_EQ(link(QFile::encodeName(page_).constData(), second.constData()), 0);
    }
  }
  ErrorNumber ErrorOfReplacingIt() {
    return ErrorOf([this] { files_.ReplaceAll(ToLogic(page_), New); });
  }
  /// Empty for a file that is not there.
  QByteArray Content() const {
    QFile file(page_);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }
  QStringList Fragments() const {
    return QDir(scratch_->path()).entryList({".velor-*"}, QDir::Files | QDir::Hidden);
  }
  /// The call that a failure was put in place of.
  Call FailedCall(int number) const { return calls_.order[static_cast<std::size_t>(number - 1)]; }

  /// What a save may go on without: the room taken ahead, where the system cannot take it, and
  /// tidying up. Where a new file cannot be given what the old one has, it is written in place.
  static bool CanDoWithout(Call call, int errnoValue) {
    switch (call) {
      case Call::Reserve:
        return errnoValue != ENOSPC && errnoValue != EDQUOT;
      case Call::Unlink:
      case Call::Owner:
      case Call::Mode:
      case Call::Attribute:
        return true;
      case Call::Open:
        return errnoValue == EROFS;
      default:
        return false;
    }
  }

  static constexpr std::initializer_list<Way> Ways{Way::OldFile, Way::NewFile, Way::ThroughALink,
                                                   Way::InPlace};
  static constexpr std::initializer_list<int> Errors{ENOSPC, EIO, EROFS, EDQUOT};
  static constexpr int Most = 100;

  std::optional<QTemporaryDir> scratch_;
  QString page_;
};

TEST_F(EveryCall, ThatFailsOnceLeavesTheOldFileAndIsAnErrorOrIsMadeGood) {
  for (const Way way : Ways) {
    for (const int error : Errors) {
      int number = 1;
      for (;; ++number) {
        SCOPED_TRACE(testing::Message() << static_cast<int>(way) << ' ' << error << ' ' << number);
        ASSERT_LT(number, Most);
        Prepare(way);
        calls_.FailAt(number, error);
        const ErrorNumber raised = ErrorOfReplacingIt();
        const bool hasFailed = calls_.calls >= number;
        calls_.FailNoMore();
        EXPECT_EQ(Fragments(), QStringList());
        if (!hasFailed) break;
        if (raised == ErrorNumber::None) {
          EXPECT_EQ(Content(), New);
          EXPECT_TRUE(CanDoWithout(FailedCall(number), error));
          continue;
        }
        // After the rename there is but the folder left to be synced.
        const bool isAfterRename =
            calls_.order.back() == Call::Sync && way != Way::InPlace &&
            std::count(calls_.order.begin(), calls_.order.end(), Call::Rename) == 1 &&
            Content() == New;
        const bool isAtTheEnd = FailedCall(number) == Call::Close && Content() == New;
        EXPECT_TRUE(isAfterRename || isAtTheEnd ||
                    Content() == (way == Way::NewFile ? QByteArray() : Old));
      }
      EXPECT_GE(number, 6) << "calls";
    }
  }
}

TEST_F(EveryCall, FromWhichOnTheDiskIsDeadLeavesTheOldContentSomewhere) {
  for (const Way way : Ways) {
    for (const int error : Errors) {
      for (int number = 1;; ++number) {
        SCOPED_TRACE(testing::Message() << static_cast<int>(way) << ' ' << error << ' ' << number);
        ASSERT_LT(number, Most);
        Prepare(way);
        QDir(StateFolder() + "/replaced").removeRecursively();
        calls_.FailAt(number, error, FaultyCalls::Lasting::FromThenOn);
        const ErrorNumber raised = ErrorOfReplacingIt();
        const bool hasFailed = calls_.calls >= number;
        calls_.FailNoMore();
        if (!hasFailed) break;
        if (Content() == New || way == Way::NewFile) continue;
        EXPECT_NE(raised, ErrorNumber::None);
        if (Content() == Old) continue;
        ASSERT_EQ(Kept().size(), 1);
        EXPECT_EQ(FileFaults::Content(Kept()[0]), Old);
      }
    }
  }
}

TEST_F(EveryCall, ThatASignalInterruptsIsMadeAgain) {
  for (const Way way : Ways) {
    for (int number = 1;; ++number) {
      SCOPED_TRACE(testing::Message() << static_cast<int>(way) << ' ' << number);
      ASSERT_LT(number, Most);
      Prepare(way);
      calls_.FailAt(number, EINTR);
      EXPECT_EQ(ErrorOfReplacingIt(), ErrorNumber::None);
      EXPECT_EQ(Content(), New);
      EXPECT_EQ(Kept(), QStringList());
      if (calls_.calls < number) break;
    }
  }
}

TEST_F(EveryCall, ContentGoesToTheDiskBeforeTheNameAndTheNameBeforeTheFolder) {
  const auto order = [this](Way way) {
    Prepare(way);
    calls_.FailAt(0, 0);
    EXPECT_EQ(ErrorOfReplacingIt(), ErrorNumber::None);
    std::vector<Call> made;
    for (const Call call : calls_.order) {
      if (call == Call::Write || call == Call::Sync || call == Call::Close ||
          call == Call::Rename || call == Call::Truncate)
        made.push_back(call);
    }
    return made;
  };
  const std::vector<Call> renamed{Call::Write, Call::Sync, Call::Close, Call::Rename, Call::Sync};
  EXPECT_EQ(order(Way::OldFile), renamed);
  EXPECT_EQ(order(Way::NewFile), renamed);
  EXPECT_EQ(order(Way::ThroughALink), renamed);
  // Where it comes from, and the old content, are on the disk before a byte of the file changes.
  std::vector<Call> inPlace;
  for (int i = 0; i < 2; ++i) inPlace.insert(inPlace.end(), renamed.begin(), renamed.end());
  inPlace.insert(inPlace.end(), {Call::Write, Call::Truncate, Call::Sync, Call::Close});
  EXPECT_EQ(order(Way::InPlace), inPlace);
}

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

TEST_F(FileFaults, TwoProcessesKeepTheirVersionsSideBySide) {
  constexpr int each = 30;
  const auto keep = [](char who) {
    ReplacedFiles replaced;
    for (int i = 0; i < each; ++i) replaced.Keep("\\site\\a.htm", who + QByteArray::number(i));
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
  EXPECT_EQ(contents.size(), 2 * each);
  EXPECT_EQ(contents.removeDuplicates(), 0);
}

TEST_F(FileFaults, APageOnAnotherFileSystemIsKeptAndReplaced) {
  QTemporaryDir other("/dev/shm/velor-XXXXXX");
  ASSERT_TRUE(other.isValid());
  const QString page = other.filePath("page.htm");
  const QString second = other.filePath("second.htm");
  files_.ReplaceAll(ToLogic(page), Old);
  ASSERT_EQ(link(QFile::encodeName(page).constData(), QFile::encodeName(second).constData()), 0);
  EXPECT_EQ(Content(QFileInfo(ReplacedFiles().Keep(ToLogic(page), Old)).fileName()), Old);
  files_.ReplaceAll(ToLogic(page), New);
  EXPECT_EQ(files_.ReadAll(ToLogic(second)), New);
}

/// What a killed process left beside a page.
class LeftSiblings : public FileFaults {
 protected:
  const QString Left = ".velor-0123456789abcdef.tmp";

  void Leave(const QString &name, qint64 secondsAgo = 3600) const {
    Write(name, "half");
    QFile file(folder_.filePath(name));
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(file.setFileTime(QDateTime::currentDateTime().addSecs(-secondsAgo),
                                 QFileDevice::FileModificationTime));
  }
  bool IsThere(const QString &name) const { return Names().contains(name); }
};

TEST_F(LeftSiblings, GoWithTheNextSaveInTheirFolder) {
  Leave(Left);
  Leave(".velor-1.tmp");
  Replace();
  EXPECT_EQ(Names(), QStringList("a.htm"));
}

TEST_F(LeftSiblings, OfAProcessKilledInTheMiddleOfASaveGo) {
  int step = 1;
  while (DiesAt(calls_, step, [this] { Replace(); }) && Names().size() == 1) ++step;
  ASSERT_EQ(Names().size(), 2);
  const QString left = Names()[0];
  Leave(left);
  Replace();
  EXPECT_EQ(Names(), QStringList("a.htm"));
}

TEST_F(LeftSiblings, StayWhileTheirProcessIsAtWork) {
  Leave(Left);
  QFile working(folder_.filePath(Left));
  ASSERT_TRUE(working.open(QIODevice::ReadOnly));
  ASSERT_EQ(flock(working.handle(), LOCK_EX | LOCK_NB), 0);
  Replace();
  EXPECT_TRUE(IsThere(Left));
  working.close();
  Replace();
  EXPECT_FALSE(IsThere(Left));
}

TEST_F(LeftSiblings, StayWhileTheyAreSoNewThatTheyMayBeAboutToBeClaimed) {
  Leave(Left, 5);
  Replace();
  EXPECT_TRUE(IsThere(Left));
}

TEST_F(LeftSiblings, OfStrangersStay) {
  QStringList strangers{
      ".velor-.tmp",       ".velor-notes.tmp", ".velor-0123456789ABCDEF.tmp", "velor-12.tmp",
      ".velor-12.tmp.bak", ".velor-12.htm",    ".velor-00123456789abcdef.tmp"};
  for (const QString &name : strangers) Leave(name);
  ASSERT_TRUE(QFile::link(folder_.filePath("a.htm"), folder_.filePath(".velor-2.tmp")));
  ASSERT_TRUE(QDir(folder_.path()).mkdir(".velor-3.tmp"));
  Leave(".velor-4.tmp");
  GiveASecondName();
  ASSERT_EQ(link(Name(".velor-4.tmp").constData(), Name("also.txt").constData()), 0);
  if (geteuid() == 0) {
    Leave(".velor-5.tmp");
    ASSERT_EQ(chown(Name(".velor-5.tmp").constData(), 65534, 65534), 0);
    strangers << ".velor-5.tmp";
  }
  ASSERT_TRUE(QFile::remove(folder_.filePath("b.htm")));
  Replace();
  for (const QString &name : strangers) EXPECT_TRUE(IsThere(name)) << name.toStdString();
  EXPECT_TRUE(IsThere(".velor-2.tmp"));
  EXPECT_TRUE(IsThere(".velor-4.tmp"));
  EXPECT_TRUE(QDir(folder_.filePath(".velor-3.tmp")).exists());
}

}  // namespace
}  // namespace velor
