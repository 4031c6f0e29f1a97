// SPDX-License-Identifier: GPL-3.0-or-later
// What every kind of file watches promises: those on the disk, and the fake that the tests use.
#include "files/QtFileWatches.h"
#include "platform/Paths.h"
#include "tests/support/FakeFileWatches.h"
#include "tests/support/Waiting.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace velor {
namespace {

constexpr int Limit = 10'000;  // milliseconds on a busy machine
constexpr int Quiet = 500;     // in which nothing may be told

/// A folder with a.htm and b.htm, and the ways in which other programs change them.
struct RealWorld {
  QString Path(const char *name) const {
    return ToLogic(folder.filePath(QString::fromLatin1(name)));
  }
  void Change(const char *name) {
    QFile file(folder.filePath(QString::fromLatin1(name)));
    ASSERT_TRUE(file.open(QIODevice::Append));
    file.write("more");
  }

  QTemporaryDir folder;
  QtFileWatches watches;
};

struct FakeWorld {
  static QString Path(const char *name) {
    return QStringLiteral("\\site\\") + QString::fromLatin1(name);
  }
  void Change(const char *name) { watches.Change(Path(name)); }

  FakeFileWatches watches;
};

template <typename World>
class FileWatchesContract : public ::testing::Test {
 protected:
  FileWatchesContract() {
    world.Change("a.htm");
    watch->SetFiles({world.Path("a.htm")});
    EXPECT_FALSE(IsTold(Quiet)) << "what was before is not told";
  }
  bool IsTold(int limit = Limit) {
    return WaitFor([&] { return !told.isEmpty(); }, limit);
  }

  World world;
  QStringList told;
  std::unique_ptr<FileWatch> watch =
      world.watches.Begin([this](const QString &path) { told << path; });
};

using Worlds = ::testing::Types<RealWorld, FakeWorld>;
TYPED_TEST_SUITE(FileWatchesContract, Worlds);

TYPED_TEST(FileWatchesContract, AChangeIsToldFromTheEventLoopByThePathThatWasGiven) {
  this->world.Change("a.htm");
  EXPECT_TRUE(this->told.isEmpty());
  EXPECT_TRUE(this->IsTold());
  EXPECT_EQ(this->told, QStringList(this->world.Path("a.htm")));
}

TYPED_TEST(FileWatchesContract, ABurstIsToldOnce) {
  for (int i = 0; i < 20; ++i) this->world.Change("a.htm");
  EXPECT_TRUE(this->IsTold());
  (void)WaitFor([&] { return this->told.size() > 1; }, Quiet);
  EXPECT_EQ(this->told.size(), 1);
}

TYPED_TEST(FileWatchesContract, OtherFilesOfTheFolderAreNotTold) {
  this->world.Change("b.htm");
  EXPECT_FALSE(this->IsTold(Quiet));
}

TYPED_TEST(FileWatchesContract, AFileThatIsNotThereYetIsToldWhenItComes) {
  this->watch->SetFiles({this->world.Path("a.htm"), this->world.Path("b.htm")});
  this->world.Change("b.htm");
  EXPECT_TRUE(this->IsTold());
  EXPECT_EQ(this->told, QStringList(this->world.Path("b.htm")));
}

TYPED_TEST(FileWatchesContract, OtherFilesTakeThePlaceOfThoseBefore) {
  this->watch->SetFiles({this->world.Path("b.htm")});
  this->world.Change("a.htm");
  EXPECT_FALSE(this->IsTold(Quiet));
}

TYPED_TEST(FileWatchesContract, AWatchThatHasEndedTellsNothing) {
  this->world.Change("a.htm");
  this->watch.reset();
  EXPECT_FALSE(this->IsTold(Quiet));
}

TYPED_TEST(FileWatchesContract, AListenerMayEndItsWatch) {
  this->watch = this->world.watches.Begin([this](const QString &path) {
    this->told << path;
    this->watch.reset();
  });
  this->watch->SetFiles({this->world.Path("a.htm")});
  this->world.Change("a.htm");
  EXPECT_TRUE(this->IsTold());
  this->world.Change("a.htm");
  (void)WaitFor([&] { return this->told.size() > 1; }, Quiet);
  EXPECT_EQ(this->told.size(), 1);
}

}  // namespace
}  // namespace velor
