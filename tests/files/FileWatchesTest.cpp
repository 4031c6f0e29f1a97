// SPDX-License-Identifier: GPL-3.0-or-later
// Files watched on a real disk.
#include "files/QtFileWatches.h"
#include "platform/Paths.h"
#include "tests/support/Waiting.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace velor {
namespace {

constexpr int Limit = 10'000;  // milliseconds on a busy machine

class FileWatchesTest : public ::testing::Test {
 protected:
  FileWatchesTest() {
    Write("one");
    watch_->SetFiles({Path()});
  }

  QString Native(const char *name = "a.htm") const {
    return folder_.filePath(QString::fromLatin1(name));
  }
  QString Path() const { return ToLogic(Native()); }
  void Write(const QByteArray &content, const char *name = "a.htm") {
    QFile file(Native(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
  }
  void ExpectTold() {
    EXPECT_TRUE(WaitFor([&] { return !told_.isEmpty(); }, Limit));
    EXPECT_EQ(told_, QStringList(Path()));
    told_.clear();
  }

  QTemporaryDir folder_;
  QStringList told_;
  QtFileWatches watches_;
  std::unique_ptr<FileWatch> watch_ =
      watches_.Begin([this](const QString &path) { told_ << path; });
};

TEST_F(FileWatchesTest, AFileThatIsWrittenIsTold) {
  Write("two");
  ExpectTold();
}

TEST_F(FileWatchesTest, AFileThatIsReplacedIsToldEachTime) {
  for (const char *content : {"two", "three", "four"}) {
    Write(content, "a.new");
    ASSERT_EQ(rename(qPrintable(Native("a.new")), qPrintable(Native())), 0);
    ExpectTold();
  }
}

TEST_F(FileWatchesTest, AFileThatIsRemovedAndComesBackIsToldBothTimes) {
  ASSERT_TRUE(QFile::remove(Native()));
  ExpectTold();
  Write("back");
  ExpectTold();
  Write("and written");
  ExpectTold();
}

TEST_F(FileWatchesTest, AFileThatBecomesReadOnlyIsTold) {
  ASSERT_EQ(chmod(qPrintable(Native()), S_IRUSR), 0);
  ExpectTold();
}

TEST_F(FileWatchesTest, ABurstIsToldOnceAndOtherFilesAreNot) {
  Write("other", "b.htm");
  for (int i = 0; i < 50; ++i) Write(QByteArray(i, 'x'));
  ExpectTold();
}

TEST_F(FileWatchesTest, AWatchThatHasEndedTellsNothing) {
  Write("two");
  watch_.reset();
  EXPECT_FALSE(WaitFor([&] { return !told_.isEmpty(); }, 500));
}

}  // namespace
}  // namespace velor
