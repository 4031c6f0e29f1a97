// SPDX-License-Identifier: GPL-3.0-or-later
// Every call by which a file is replaced, failing in every way in which disks fail.
#include "tests/files/FileFaultsFixture.h"

#include <algorithm>
#include <optional>

namespace velor {
namespace {

using Call = FaultyCalls::Call;

/// Fails each call of each way to replace a file, with each error that disks give.
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

  /// Whether a save succeeds although this call fails: allocating blocks ahead where the file
  /// system cannot, and cleaning up. Where a new file cannot get the old one's owner, mode or
  /// attributes, the old file is written in place.
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
        // After the rename only the sync of the folder remains.
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
  // The old content and its path are synced before a byte of the file changes.
  std::vector<Call> inPlace;
  for (int i = 0; i < 2; ++i) inPlace.insert(inPlace.end(), renamed.begin(), renamed.end());
  inPlace.insert(inPlace.end(), {Call::Write, Call::Truncate, Call::Sync, Call::Close});
  EXPECT_EQ(order(Way::InPlace), inPlace);
}

}  // namespace
}  // namespace velor
