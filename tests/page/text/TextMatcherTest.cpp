// SPDX-License-Identifier: GPL-3.0-or-later
#include "page/text/TextMatcher.h"

#include <gtest/gtest.h>

namespace velor {
namespace {

QStringList Found(const SearchQuery &query, const QString &text) {
  QStringList found;
  for (const TextMatch &match : TextMatcher(query).MatchesIn(text))
    found << text.sliced(match.place.start, match.place.end - match.place.start);
  return found;
}

TEST(TextMatcher, WordsAreFoundWhateverTheirCase) {
  EXPECT_EQ(Found({.words = "one"}, "one ONE"), (QStringList{"one", "ONE"}));
  EXPECT_EQ(Found({.words = "one", .letterCase = LetterCase::Matched}, "one ONE"),
            QStringList{"one"});
}

TEST(TextMatcher, PlainWordsAreNoExpression) {
  EXPECT_EQ(Found({.words = "a.c*"}, "abc a.c*"), QStringList{"a.c*"});
}

TEST(TextMatcher, ABlankIsAnyWhiteSpace) {
  EXPECT_EQ(Found({.words = "one two"}, "one\r\n  two"), QStringList{"one\r\n  two"});
}

TEST(TextMatcher, WholeWordsAreThoseOfTheLanguage) {
  const SearchQuery query{.words = QStringLiteral("\u0434\u043e\u043c"), .edges = WordEdges::Whole};
  EXPECT_EQ(Found(query, QStringLiteral("\u0434\u043e\u043c\u0430 \u0434\u043e\u043c.")).size(), 1);
  EXPECT_EQ(Found({.words = "one", .edges = WordEdges::Whole}, "phone one, ones"),
            QStringList{"one"});
}

TEST(TextMatcher, AccentsAreIgnoredOnBothSides) {
  const SearchQuery query{.words = QStringLiteral("caf\u00e9"), .accents = Accents::Ignored};
  EXPECT_EQ(Found(query, QStringLiteral("cafe Cafe\u0301 CAF\u00c9!")),
            (QStringList{"cafe", QStringLiteral("Cafe\u0301"), QStringLiteral("CAF\u00c9")}));
}

TEST(TextMatcher, AnExpressionFillsItsGroupsIn) {
  const SearchQuery query{.words = "(\\w)(\\d)", .syntax = WordSyntax::Expression};
  const TextMatcher matcher(query);
  const auto matches = matcher.MatchesIn("a1");
  ASSERT_EQ(matches.size(), 1U);
  EXPECT_EQ(matcher.ReplacementFor(matches[0], "$2$1 $& $$ $x"), "1a a1 $ $x");
}

TEST(TextMatcher, WhatIsNoExpressionFindsNothing) {
  const SearchQuery query{.words = "(a", .syntax = WordSyntax::Expression};
  EXPECT_FALSE(TextMatcher(query).IsValid());
  EXPECT_TRUE(Found(query, "(a").isEmpty());
  EXPECT_TRUE(Found({.words = "x*", .syntax = WordSyntax::Expression}, "abc").isEmpty());
}

}  // namespace
}  // namespace velor
