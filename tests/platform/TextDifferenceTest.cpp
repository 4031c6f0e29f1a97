// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/TextDifference.h"

#include <gtest/gtest.h>
#include <random>

namespace velor {

namespace {

QString Applied(const QString &before, const QString &after) {
  const auto difference = TextDifference::Between(before, after);
  return QString(before).replace(difference.start, difference.removed,
                                 difference.InsertedIn(after).toString());
}

TEST(TextDifference, OneStretchLeadsFromAnyTextToAnyOther) {
  std::mt19937 random(5);
  const QString fill(10'000, u'x');
  for (int round = 0; round < 300; ++round) {
    QString before = fill.left(static_cast<qsizetype>(random() % 10'000));
    QString after = before;
    for (int change = 0; change < 2; ++change)
      after.replace(static_cast<qsizetype>(random() % (before.size() + 1U)),
                    static_cast<qsizetype>(random() % 3),
                    QStringLiteral("xyz").left(static_cast<qsizetype>(random() % 4)));
    ASSERT_EQ(Applied(before, after), after);
  }
}

TEST(TextDifference, IsNoLongerThanTheChange) {
  const QString before = QString(5000, u'a') + QStringLiteral("bc") + QString(5000, u'a');
  const QString after = QString(5000, u'a') + QStringLiteral("bdc") + QString(5000, u'a');
  const auto difference = TextDifference::Between(before, after);
  EXPECT_EQ(difference.start, 5001);
  EXPECT_EQ(difference.removed, 0);
  EXPECT_EQ(difference.InsertedIn(after), u"d");
}

TEST(TextDifference, NeverCutsACharacterInTwo) {
  // The two differ in their second code unit, and the next two in their first.
  EXPECT_EQ(TextDifference::Between(u"a\U0001F600b", u"a\U0001F601b").start, 1);
  EXPECT_EQ(TextDifference::Between(u"a\U0001F600b", u"a\U0001F601b").removed, 2);
  EXPECT_EQ(TextDifference::Between(u"a\U0001F600b", u"a\U0001FA00b").inserted, 2);
  EXPECT_EQ(TextDifference::Between(u"a\U0001F600b", u"a\U0001FA00b").removed, 2);
}

TEST(TextDifference, OfATextWithItselfIsEmpty) {
  const auto difference = TextDifference::Between(u"same", u"same");
  EXPECT_EQ(difference.removed, 0);
  EXPECT_EQ(difference.inserted, 0);
}

QString Carried(const QString &before, const QString &after, const QString &other) {
  const auto change = CarriedChange(before, after, other);
  if (!change) return QStringLiteral("none");
  return QString(other).replace(change->place.start, change->place.end - change->place.start,
                                change->text);
}

TEST(CarriedChange, IsMadeBeforeAndBehindTheOtherTextsOwnChangeAndInTheSameText) {
  const QString before = QStringLiteral("one two three");
  const QString first = QStringLiteral("ONE! two three");
  const QString last = QStringLiteral("one two 3");
  const QString both = QStringLiteral("ONE! two 3");
  EXPECT_EQ(Carried(before, first, last), both);
  EXPECT_EQ(Carried(before, last, first), both);
  EXPECT_EQ(Carried(before, last, before), last);
  EXPECT_EQ(Carried(before, QStringLiteral("two three"), last), QStringLiteral("two 3"));
}

TEST(CarriedChange, IsNoneWhereBothChangedOnePlaceOrPlacesThatTouch) {
  const QString before = QStringLiteral("one two three");
  const QString none = QStringLiteral("none");
  EXPECT_EQ(Carried(before, QStringLiteral("one 2 three"), QStringLiteral("one zwei three")), none);
  EXPECT_EQ(Carried(before, QStringLiteral("one. two three"), QStringLiteral("one, two three")),
            none);
  EXPECT_EQ(Carried(before, QString(), QStringLiteral("one two 3")), none);
}

}  // namespace

}  // namespace velor
