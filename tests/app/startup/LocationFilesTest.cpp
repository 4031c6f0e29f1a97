// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/startup/LocationFiles.h"
#include "tests/support/Checks.h"
#include "tests/support/FakeFiles.h"

#include <gtest/gtest.h>

namespace velor {
namespace {

const QString File = QStringLiteral("\\program\\SiteConfig.ini");

class LocationFiles : public ::testing::Test {
 protected:
  LocationFiles() { files_.AddFolder(QStringLiteral("\\program")); }

  QByteArray Written(const QString &location) {
    WriteLocation(files_, File, location);
    return files_.Content(File).value_or(QByteArray());
  }
  QString Read(const QByteArray &content) {
    files_.AddFile(File, content);
    return ReadLocation(files_, File);
  }

  FakeFiles files_;
};

TEST_F(LocationFiles, HoldThePathInQuotesAndALineEndAndNothingElse) {
  EXPECT_EQ(Written(QStringLiteral("C:\\Sites")), QByteArray("\"C:\\Sites\"\r\n"));
}

TEST_F(LocationFiles, ShowPeopleTheNativeFormInUtf8) {
  EXPECT_EQ(Written(QStringLiteral("\\home\\u\\Gärten, alle")),
            QByteArray("\"/home/u/G\xC3\xA4rten, alle\"\r\n"));
}

TEST_F(LocationFiles, WhatIsThereAlreadyIsNotWrittenAgain) {
  Written(QStringLiteral("\\a"));
  files_.FailNextWrite(ErrorNumber::DiskFull);
  EXPECT_EQ(Written(QStringLiteral("\\a")), QByteArray("\"/a\"\r\n"));
  EXPECT_EQ(ErrorOf([this] { Written(QStringLiteral("\\b")); }), ErrorNumber::DiskFull);
}

TEST_F(LocationFiles, WritingReplacesALongerContent) {
  files_.AddFile(File, QByteArray(1000, 'x'));
  EXPECT_EQ(Written(QStringLiteral("\\a")), QByteArray("\"/a\"\r\n"));
}

TEST_F(LocationFiles, ReadBackWhatWasWritten) {
  for (const char16_t *path : {u"\\", u"\\home\\u\\茶館", u"C:\\Sites", u"C:\\", u"\\a, b",
                               u"relative", u"\\\\host\\share", u"\\with\xF05C\\slash"}) {
    const QString location = QString::fromUtf16(path);
    WriteLocation(files_, File, location);
    EXPECT_EQ(ReadLocation(files_, File), location);
  }
}

TEST_F(LocationFiles, AQuotedItemIsTakenWithoutItsQuotes) {
  EXPECT_EQ(Read("\"C:\\Sites\"\r\n"), QStringLiteral("C:\\Sites"));
}

TEST_F(LocationFiles, AQuotedItemMayHoldACommaAndOuterBlanks) {
  EXPECT_EQ(Read("\" C:\\a, b \"\r\n"), QStringLiteral(" C:\\a, b "));
}

TEST_F(LocationFiles, AnUnquotedItemEndsAtTheFirstComma) {
  EXPECT_EQ(Read("  C:\\a,b"), QStringLiteral("C:\\a"));
}

TEST_F(LocationFiles, AnUnquotedItemEndsAtTheLineEnd) {
  EXPECT_EQ(Read("C:\\a b\r\nC:\\c"), QStringLiteral("C:\\a b"));
  EXPECT_EQ(Read("/a\n/c"), QStringLiteral("\\a"));
}

TEST_F(LocationFiles, OnlyTheFirstItemCounts) {
  EXPECT_EQ(Read("\"C:\\a\",\"C:\\b\"\r\n\"C:\\c\"\r\n"), QStringLiteral("C:\\a"));
}

TEST_F(LocationFiles, AQuoteThatIsNeverClosedEndsAtTheLineEnd) {
  EXPECT_EQ(Read("\"C:\\a\r\nC:\\b"), QStringLiteral("C:\\a"));
}

TEST_F(LocationFiles, BothFormsOfAPathAreRead) {
  EXPECT_EQ(Read("\"/home/u\""), QStringLiteral("\\home\\u"));
  EXPECT_EQ(Read("\"\\home\\u\""), QStringLiteral("\\home\\u"));
}

TEST_F(LocationFiles, AnEmptyFileHasNoItem) {
  EXPECT_EQ(ErrorOf([this] { Read(""); }), ErrorNumber::InputPastEnd);
}

TEST_F(LocationFiles, AnEmptyFirstItemIsTheEmptyText) {
  EXPECT_EQ(Read("\"\"\r\n"), QString());
  EXPECT_EQ(Read("\r\n"), QString());
}

TEST_F(LocationFiles, BytesThatAreNoUtf8AreReadByteForCharacter) {
  EXPECT_EQ(Read("\"/caf\xE9\"\r\n"), QStringLiteral("\\café"));
}

TEST_F(LocationFiles, AMissingFileIsAnError) {
  EXPECT_EQ(ErrorOf([this] { ReadLocation(files_, File); }), ErrorNumber::FileNotFound);
}

}  // namespace
}  // namespace velor
