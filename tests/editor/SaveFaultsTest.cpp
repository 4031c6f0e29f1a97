// SPDX-License-Identifier: GPL-3.0-or-later
// Whatever call fails while a page is saved, its file is the old or the new one, a failure is told,
// and the text is in the journal until it is in the file.
#include "tests/editor/Sitting.h"

#include <memory>
#include <string>
#include <unistd.h>

namespace velor {
namespace {

const QByteArray Old = "<p>old</p>";
const QByteArray Foreign = "<p>somebody else's</p>";
const QString Changed = QStringLiteral("<p>changed</p>");
constexpr bool AsBefore = false;
constexpr bool UnderNewName = true;

enum class Way { Plain, UnderANewName, InPlace, OverAnothersVersion };

/// With a page that was changed, which its journal holds.
struct ChangedSitting : Sitting {
  explicit ChangedSitting(const QString &file) : Sitting(file) {
    Component().Edit(Changed);
    Page().Journal().Flush();
  }
};

class SaveFaults : public Sittings {
 protected:
  void Prepare(Way way) {
    Sittings::Prepare(Old);
    target_ = way == Way::UnderANewName ? folder_->filePath(QStringLiteral("other.htm")) : page_;
    if (way == Way::UnderANewName) Write(target_, Old);
    if (way != Way::InPlace) return;
    const QByteArray second = QFile::encodeName(folder_->filePath(QStringLiteral("second.htm")));
    ASSERT_EQ(link(QFile::encodeName(page_).constData(), second.constData()), 0);
  }
  QByteArray Target() const { return Content(target_); }

  /// One save in which the call with that number fails, and what it left. False where the save
  /// needed fewer calls.
  bool SaveWith(Way way, int number, int error, FaultyCalls::Lasting lasting) {
    Prepare(way);
    auto run = std::make_unique<ChangedSitting>(page_);
    const bool isForeign = way == Way::OverAnothersVersion;
    if (isForeign) Write(target_, Foreign);
    const QByteArray before = isForeign ? Foreign : Old;
    if (way == Way::UnderANewName) run->dialog.ExpectSave(ToLogic(target_));
    run->calls.FailAt(number, error, lasting);
    const std::int32_t result = run->Save(way == Way::UnderANewName ? UnderNewName : AsBefore);
    const bool hasFailed = run->calls.calls >= number;
    run->calls.FailNoMore();
    const bool isTold = result != 0 || !run->mainWindow.reports.isEmpty();
    run.reset();

    const QByteArray there = Target();
    if (there != Changed.toUtf8()) {
      EXPECT_TRUE(isTold);
      EXPECT_TRUE(IsRecovered(Changed));
      EXPECT_TRUE(there == before || IsKept(before)) << there.toStdString();
    } else if (isForeign) {
      EXPECT_TRUE(IsKept(Foreign));
    }
    return hasFailed;
  }

  QString target_;
};

class AnySaveFault : public SaveFaults, public testing::WithParamInterface<Way> {};

TEST_P(AnySaveFault, LeavesAWholeFileTellsItAndLosesNoText) {
  for (const auto lasting : {FaultyCalls::Lasting::Once, FaultyCalls::Lasting::FromThenOn}) {
    for (const int error : {ENOSPC, EIO, EROFS, EDQUOT}) {
      int number = 0;
      bool hasFailed = true;
      while (hasFailed) {
        SCOPED_TRACE(testing::Message() << error << ' ' << ++number);
        ASSERT_LT(number, 100);
        hasFailed = SaveWith(GetParam(), number, error, lasting);
      }
      EXPECT_GT(number, 6);
    }
  }
}

std::string NameOf(const testing::TestParamInfo<Way> &info) {
  switch (info.param) {
    case Way::Plain:
      return "Plain";
    case Way::UnderANewName:
      return "UnderANewName";
    case Way::InPlace:
      return "InPlace";
    case Way::OverAnothersVersion:
      return "OverAnothersVersion";
  }
  return {};
}

INSTANTIATE_TEST_SUITE_P(Ways, AnySaveFault,
                         testing::Values(Way::Plain, Way::UnderANewName, Way::InPlace,
                                         Way::OverAnothersVersion),
                         NameOf);

TEST_F(SaveFaults, ATemporaryCopyThatCannotBeWrittenCostsNoText) {
  for (int number = 1;; ++number) {
    SCOPED_TRACE(number);
    ASSERT_LT(number, 100);
    Prepare(Way::Plain);
    ChangedSitting run(page_);
    run.calls.FailAt(number, EIO);
    EXPECT_EQ(run.Page().CreatorHTML(), Changed);
    EXPECT_EQ(Target(), Old);
    if (run.calls.calls >= number) continue;
    EXPECT_GT(number, 3);
    break;
  }
}

TEST_F(SaveFaults, AChangeOfTheSameSizeAndTimeIsAnotherVersionToo) {
  Prepare(Way::Plain);
  ChangedSitting run(page_);
  const QDateTime time = QFileInfo(page_).lastModified();
  const QByteArray sameSize = "<p>OLD</p>";
  Write(page_, sameSize);
  QFile file(page_);
  ASSERT_TRUE(file.open(QIODevice::ReadWrite));
  ASSERT_TRUE(file.setFileTime(time, QFileDevice::FileModificationTime));
  file.close();
  EXPECT_EQ(run.Save(AsBefore), 0);
  EXPECT_EQ(Target(), Changed.toUtf8());
  EXPECT_TRUE(IsKept(sameSize));
}

TEST_F(SaveFaults, AFileThatIsGoneIsWrittenAnewAndTheStatusBarSaysSo) {
  Prepare(Way::Plain);
  ChangedSitting run(page_);
  ASSERT_TRUE(QFile::rename(page_, folder_->filePath(QStringLiteral("elsewhere.htm"))));
  EXPECT_EQ(run.Save(AsBefore), 0);
  EXPECT_EQ(Target(), Changed.toUtf8());
  ASSERT_EQ(run.mainWindow.reports.size(), 1);
  EXPECT_EQ(run.mainWindow.reports[0],
            page_ + QStringLiteral(" was no longer there. It was written anew"));
}

TEST_F(SaveFaults, AFolderThatIsGoneIsToldAndTheTextIsKept) {
  Prepare(Way::Plain);
  const QString site = folder_->filePath(QStringLiteral("site"));
  ASSERT_TRUE(QDir().mkpath(site));
  const QString page = site + QStringLiteral("/page.htm");
  Write(page, Old);
  {
    ChangedSitting run(page);
    ASSERT_TRUE(QDir(site).removeRecursively());
    EXPECT_EQ(run.Save(AsBefore), 0);
    ASSERT_EQ(run.mainWindow.reports.size(), 1);
    EXPECT_TRUE(
        run.mainWindow.reports[0].startsWith(page + QStringLiteral(" could not be saved: ")));
    run.Page().MarkKill();
    run.Page().close();
  }
  EXPECT_FALSE(QDir(site).exists());
  EXPECT_TRUE(IsRecovered(Changed));
}

}  // namespace
}  // namespace velor
