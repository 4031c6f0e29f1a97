// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/DocumentHistory.h"

#include <gtest/gtest.h>

namespace velor {

namespace {

using Direction = DocumentHistory::Direction;

DocumentHistory::Original Page(const char *bytes) {
  return std::make_shared<FaithfulPage>(PageOriginal{bytes, DecodePage(bytes), {}});
}

class Documents : public ::testing::Test {
 protected:
  Documents() { history_.Load(Page("one")); }
  QByteArray Current() const { return history_.Current()->Original().bytes; }

  DocumentHistory history_;
};

TEST_F(Documents, UndoAndRedoStepOverALoadAndBack) {
  history_.KeepForUndo(QStringLiteral("one, edited"));
  history_.Load(Page("two"));
  EXPECT_TRUE(history_.HasEarlier());
  EXPECT_EQ(history_.Step(Direction::Earlier, QStringLiteral("two, edited")),
            QStringLiteral("one, edited"));
  EXPECT_EQ(Current(), "one");
  EXPECT_FALSE(history_.HasEarlier());
  EXPECT_EQ(history_.Step(Direction::Later, QStringLiteral("one, edited")),
            QStringLiteral("two, edited"));
  EXPECT_EQ(Current(), "two");
}

TEST_F(Documents, WhereNothingIsKeptThereIsNoStepAndTheCurrentDocumentStays) {
  EXPECT_EQ(history_.Step(Direction::Earlier, QStringLiteral("one")), std::nullopt);
  EXPECT_EQ(history_.Step(Direction::Later, QStringLiteral("one")), std::nullopt);
  EXPECT_EQ(Current(), "one");
}

TEST_F(Documents, AnotherLoadEndsWhatCouldBeRedone) {
  history_.KeepForUndo(QStringLiteral("one"));
  history_.Load(Page("two"));
  history_.Step(Direction::Earlier, QStringLiteral("two"));
  history_.KeepForUndo(QStringLiteral("one"));
  EXPECT_FALSE(history_.HasLater());
}

TEST_F(Documents, AnExchangeWithinThePageIsTakenBackWithItsBytes) {
  const int generation = history_.NewGeneration();
  history_.AddGeneration(generation, Page("two"));
  EXPECT_EQ(Current(), "two");
  history_.ShowGeneration(0);
  EXPECT_EQ(Current(), "one");
  history_.ShowGeneration(generation);
  EXPECT_EQ(Current(), "two");
}

TEST_F(Documents, AGenerationOfAnEarlierPageChangesNothing) {
  const int generation = history_.NewGeneration();
  history_.AddGeneration(generation, Page("two"));
  history_.Load(Page("three"));
  history_.ShowGeneration(generation);
  EXPECT_EQ(Current(), "three");
}

TEST_F(Documents, TooManyLargeDocumentsAreForgottenFromTheFarEndAndTheNearestStays) {
  const QString large(20'000'000, u'x');
  for (const char *next : {"two", "three"}) {
    history_.KeepForUndo(large);
    history_.Load(Page(next));
  }
  EXPECT_EQ(history_.Step(Direction::Earlier, {})->size(), large.size());
  EXPECT_EQ(Current(), "two");
  EXPECT_FALSE(history_.HasEarlier());
}

}  // namespace

}  // namespace velor
