// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/DriveMap.h"
#include "platform/Paths.h"
#include "tests/support/Checks.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace velor {
namespace {

void Touch(const QString &nativePath) {
  QDir().mkpath(QFileInfo(nativePath).path());
  QFile file(nativePath);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
}

TEST(Paths, ExchangeSeparatorsWithoutInventingADrive) {
  EXPECT_EQ(ToLogic("/home/u/site/a.htm"), R"(\home\u\site\a.htm)");
  EXPECT_EQ(ToNative(R"(\home\u\site\a.htm)"), "/home/u/site/a.htm");
  EXPECT_EQ(ToNative(R"(\home\u/site\a.htm)"), "/home/u/site/a.htm");
  EXPECT_EQ(ToLogic("/"), "\\");
  EXPECT_EQ(ToLogic(""), "");
}

TEST(Paths, CarryARealBackslashOfANameThroughAndBack) {
  const QString native = "/home/u/odd\\name.htm";
  const QString logic = ToLogic(native);
  EXPECT_EQ(logic.count(u'\\'), 3);
  EXPECT_TRUE(logic.contains(QChar(0xF05C)));
  EXPECT_EQ(ToNative(logic), native);
}

TEST(Paths, ShowPeopleTheNativeFormOfAPathFromTheRootOnly) {
  EXPECT_EQ(ForPeople(R"(\home\u)"), "/home/u");
  EXPECT_EQ(ForPeople("\\"), "/");
  EXPECT_EQ(ForPeople(R"(\\server\share)"), R"(\\server\share)");
  EXPECT_EQ(ForPeople(R"(C:\Sites)"), R"(C:\Sites)");
  EXPECT_EQ(ForPeople(R"(Files\Home.htm)"), R"(Files\Home.htm)");
  EXPECT_EQ(ForPeople(""), "");
}

TEST(Paths, ReadBothFormsFromPeople) {
  EXPECT_EQ(FromPeople("/home/u"), R"(\home\u)");
  EXPECT_EQ(FromPeople(R"(\home\u)"), R"(\home\u)");
  EXPECT_EQ(FromPeople(R"(C:\Sites)"), R"(C:\Sites)");
  EXPECT_EQ(FromPeople("C:/Sites"), R"(C:\Sites)");
  for (const char *path : {R"(\home\u\a b.htm)", R"(\)", R"(C:\x)", R"(\\s\x)"}) {
    EXPECT_EQ(FromPeople(ForPeople(path)), path);
  }
  const QString odd = ToLogic("/home/odd\\name");
  EXPECT_EQ(FromPeople(ForPeople(odd)), odd);
}

TEST(Paths, AnAddressOnAMappedDriveIsThatFilesHere) {
  UseDriveMap(DriveMap::Parse(QStringLiteral("D: /mnt/d"), QStringLiteral("test")));
  const auto mapped = UrlOfMappedDrive(QUrl(QStringLiteral("file:///D:/pics/a%20%231.png")));
  const auto unmapped = UrlOfMappedDrive(QUrl(QStringLiteral("file:///C:/pics/a.png")));
  const auto local = UrlOfMappedDrive(QUrl(QStringLiteral("file:///home/u/D:/a.png")));
  const auto remote = UrlOfMappedDrive(QUrl(QStringLiteral("http://D:/a.png")));
  UseDriveMap({});
  ASSERT_TRUE(mapped.has_value());
  EXPECT_EQ(mapped->toLocalFile(), "/mnt/d/pics/a #1.png");
  EXPECT_FALSE(unmapped || local || remote);
}

TEST(Paths, RecogniseDriveTexts) {
  EXPECT_TRUE(IsDrivePath(R"(C:\site)"));
  EXPECT_TRUE(IsDrivePath("d:/site"));
  EXPECT_FALSE(IsDrivePath(R"(\C:\site)"));
  EXPECT_FALSE(IsDrivePath("1:2"));
  EXPECT_FALSE(IsDrivePath(""));
}

TEST(Paths, BecomeUrlsWithEverySpecialCharacterEncoded) {
  const QUrl url = ToUrl(R"(\home\a b#1%20?.htm)");
  EXPECT_EQ(QString::fromLatin1(url.toEncoded()), "file:///home/a%20b%231%2520%3F.htm");
  EXPECT_EQ(url.toLocalFile(), "/home/a b#1%20?.htm");
}

TEST(Paths, OfAFolderEndInASlashAndAreEmptyWhereNoneIsNamed) {
  EXPECT_EQ(FolderOfNative("/home/u/a.htm"), "/home/u/");
  EXPECT_EQ(FolderOfNative(R"(/home/u/a\b.htm)"), "/home/u/") << "a backslash is part of the name";
  EXPECT_EQ(FolderOfNative("/home/u/"), "/home/u/");
  EXPECT_EQ(FolderOfNative("/a.htm"), "/");
  EXPECT_EQ(FolderOfNative("a.htm"), "");
  EXPECT_EQ(FolderOfNative(""), "");
}

TEST(FindIgnoringCase, PrefersTheExactName) {
  QTemporaryDir folder;
  Touch(folder.filePath("index.htm"));
  Touch(folder.filePath("Index.htm"));
  EXPECT_EQ(FindIgnoringCase(ToLogic(folder.filePath("Index.htm"))), folder.filePath("Index.htm"));
}

TEST(FindIgnoringCase, MatchesEachComponentWithoutRegardToCase) {
  QTemporaryDir folder;
  Touch(folder.filePath("FILES/home.HTM"));
  EXPECT_EQ(FindIgnoringCase(ToLogic(folder.filePath("Files/Home.htm"))),
            folder.filePath("FILES/home.HTM"));
}

TEST(FindIgnoringCase, LooksBesideAnExactFolderThatLacksTheFile) {
  QTemporaryDir folder;
  QDir().mkpath(folder.filePath("Files"));
  Touch(folder.filePath("files/Home.htm"));
  EXPECT_EQ(FindIgnoringCase(ToLogic(folder.filePath("Files/Home.htm"))),
            folder.filePath("files/Home.htm"));
}

TEST(FindIgnoringCase, GivesTheExactFormWhenNothingMatches) {
  QTemporaryDir folder;
  EXPECT_EQ(FindIgnoringCase(ToLogic(folder.filePath("None/Index.htm"))),
            folder.filePath("None/Index.htm"));
  EXPECT_EQ(FindIgnoringCase(R"(C:\Site\Index.htm)"), "C:/Site/Index.htm");
}

}  // namespace
}  // namespace velor
