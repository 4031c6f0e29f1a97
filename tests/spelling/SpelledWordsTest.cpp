// SPDX-License-Identifier: GPL-3.0-or-later
#include "spelling/SpelledWords.h"

#include <QStringList>

#include <gtest/gtest.h>

namespace velor {
namespace {

QStringList Parts(const QString &text, const std::vector<TextStretch> &places) {
  QStringList parts;
  for (const TextStretch &place : places)
    parts << text.sliced(place.start, place.end - place.start);
  return parts;
}

QStringList Spelled(const QString &text) {
  return Parts(text, WordFinder().SpelledWords(text));
}

TEST(SpelledWords, ATextIsCutIntoItsWords) {
  EXPECT_EQ(Spelled(QStringLiteral("It's one, two - three.")),
            (QStringList{"It's", "one", "two", "three"}));
  EXPECT_EQ(
      Spelled(QStringLiteral("well-known na\u00efve don\u2019t")),
      (QStringList{"well", "known", QStringLiteral("na\u00efve"), QStringLiteral("don\u2019t")}));
}

TEST(SpelledWords, SingleLettersAndWordsWithDigitsAreLeftOut) {
  EXPECT_EQ(Spelled(QStringLiteral("a mp3 file in 2nd x86 place 42")),
            (QStringList{"file", "in", "place"}));
}

TEST(SpelledWords, AddressesFileNamesAndNamesWithSignsAreLeftOut) {
  EXPECT_EQ(
      Spelled(QStringLiteral("see https://example.com/xyzzy, www.qwrt.de or example.com now")),
      (QStringList{"see", "or", "now"}));
  EXPECT_EQ(Spelled(QStringLiteral("mail anna@exmple.org the file /usr/lcal/x.txt or C:\\Tmp\\qq")),
            (QStringList{"mail", "the", "file", "or"}));
  EXPECT_EQ(Spelled(QStringLiteral("@someone said #hashtg and file_name")),
            (QStringList{"said", "and"}));
  EXPECT_EQ(Spelled(QStringLiteral("this and/or that")),
            (QStringList{"this", "and", "or", "that"}));
}

TEST(SpelledWords, WhatThePageLeavesOutPartsWords) {
  EXPECT_EQ(Spelled(QStringLiteral("one\ufffc\ufffctwo")), (QStringList{"one", "two"}));
}

TEST(SpelledWords, IdeographsAreWordsButNoSpelledOnes) {
  const QString text = QStringLiteral("\u65e5\u672c and 42 more");
  EXPECT_EQ(Spelled(text), (QStringList{"and", "more"}));
  EXPECT_GE(WordFinder().Words(text).size(), 4U);
}

TEST(SpelledWords, AFinderFindsInOneTextAfterTheOther) {
  WordFinder finder;
  EXPECT_EQ(finder.SpelledWords(QStringLiteral("one two")).size(), 2U);
  EXPECT_EQ(finder.SpelledWords(QString()).size(), 0U);
  EXPECT_EQ(finder.SpelledWords(QStringLiteral("three")).size(), 1U);
}

}  // namespace
}  // namespace velor
