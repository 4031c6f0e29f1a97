// SPDX-License-Identifier: GPL-3.0-or-later
// Whole page files as text, and the parts of a path.
#include "editor/modGeneral.h"
#include "tests/support/Checks.h"
#include "tests/support/FakeFiles.h"

#include <gtest/gtest.h>

namespace velor::modGeneral {
namespace {

const QString Page = QStringLiteral("\\site\\a.htm");

class PageFiles : public ::testing::Test {
 protected:
  PageFiles() { files_.AddFolder(QStringLiteral("\\site")); }

  FakeFiles files_;
};

TEST_F(PageFiles, AreReadWholeInTheirOwnCharset) {
  files_.AddFile(Page, "<meta charset=big5>\r\n\xAF\xF9\r\n");
  EXPECT_EQ(ReadWholeFile(files_, Page), QStringLiteral("<meta charset=big5>\r\n茶\r\n"));
}

TEST_F(PageFiles, AMissingFileIsAnError) {
  EXPECT_EQ(ErrorOf([this] { ReadWholeFile(files_, Page); }), ErrorNumber::FileNotFound);
}

TEST_F(PageFiles, AreWrittenWithALineBreakAfterTheText) {
  WriteTextFile(files_, Page, QStringLiteral("<p>ä</p>"), {});
  EXPECT_EQ(files_.Content(Page), QByteArray("<p>\xC3\xA4</p>\r\n"));
}

TEST_F(PageFiles, AreWrittenInTheCharsetThatTheTextDeclares) {
  WriteTextFile(files_, Page, QStringLiteral("<meta charset=big5>茶"), {});
  EXPECT_EQ(files_.Content(Page), QByteArray("<meta charset=big5>\xAF\xF9\r\n"));
}

TEST_F(PageFiles, AreWrittenAsThePageWasReadWhereTheTextDeclaresNothing) {
  WriteTextFile(files_, Page, QStringLiteral("<p>ä</p>"), {QStringLiteral("windows-1252")});
  EXPECT_EQ(files_.Content(Page), QByteArray("<p>\xE4</p>\r\n"));
}

TEST_F(PageFiles, ReplaceALongerFile) {
  files_.AddFile(Page, QByteArray(5000, 'x'));
  WriteTextFile(files_, Page, QStringLiteral("short"), {});
  EXPECT_EQ(files_.Content(Page), QByteArray("short\r\n"));
}

TEST_F(PageFiles, AFileThatCannotBeWrittenIsAnError) {
  files_.AddFile(Page, "old");
  files_.MakeReadOnly(Page);
  EXPECT_EQ(ErrorOf([this] { WriteTextFile(files_, Page, QStringLiteral("new"), {}); }),
            ErrorNumber::PathFileAccess);
}

TEST(PathParts, TheFileNameIsTheTextAfterTheLastSeparator) {
  EXPECT_EQ(FileNameOfPath(QStringLiteral("C:\\Site\\index.htm")), QStringLiteral("index.htm"));
  EXPECT_EQ(FileNameOfPath(QStringLiteral("index.htm")), QStringLiteral("index.htm"));
  EXPECT_EQ(FileNameOfPath(QStringLiteral("\\site\\")), QString());
}

TEST(PathParts, TheFolderIsTheTextBeforeTheLastSeparator) {
  EXPECT_EQ(FolderOfPath(QStringLiteral("D:\\Data\\other.mdb")), QStringLiteral("D:\\Data"));
  EXPECT_EQ(FolderOfPath(QStringLiteral("\\other.mdb")), QString());
}

TEST(PathParts, ATextWithoutASeparatorHasNoFolder) {
  EXPECT_EQ(ErrorOf([] { FolderOfPath(QStringLiteral("other.mdb")); }),
            ErrorNumber::InvalidProcedureCall);
}

TEST(PathParts, TheTemporaryPathMarksEveryDotFoldersIncluded) {
  EXPECT_EQ(TemporaryPath(QStringLiteral("C:\\Site\\index.htm")),
            QStringLiteral("C:\\Site\\indexTMP.htm"));
  EXPECT_EQ(TemporaryPath(QStringLiteral("C:\\My.Site\\a.b.htm")),
            QStringLiteral("C:\\MyTMP.Site\\aTMP.bTMP.htm"));
  EXPECT_EQ(TemporaryPath(QStringLiteral("\\site\\page")), QStringLiteral("\\site\\page"));
}

}  // namespace
}  // namespace velor::modGeneral
