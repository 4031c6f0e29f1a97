// SPDX-License-Identifier: GPL-3.0-or-later
#include "insert/LinkPaths.h"
#include "platform/Paths.h"
#include "tests/support/Checks.h"
#include "tests/support/FakeFileDialog.h"
#include "tests/support/UnusualNames.h"

#include <QUrl>

#include <algorithm>
#include <random>
#include <string>

namespace velor {
namespace {

TEST(CountChar, CountsExactMatchesOnly) {
  EXPECT_EQ(CountChar(QStringLiteral("a/b/c"), u'/'), 2);
  EXPECT_EQ(CountChar(QStringLiteral("aAa"), u'a'), 2);
  EXPECT_EQ(CountChar(QString(), u'/'), 0);
}

struct LinkCase {
  const char *page;
  const char *target;
  const char *link;
};

class RelativeLink : public testing::TestWithParam<LinkCase> {};

TEST_P(RelativeLink, IsWhatPagesHave) {
  const LinkCase &row = GetParam();
  EXPECT_EQ(MakeRelativeLink(QString::fromUtf8(row.page), QString::fromUtf8(row.target)),
            QString::fromUtf8(row.link));
}

class LinkToAFile : public testing::TestWithParam<LinkCase> {};

TEST_P(LinkToAFile, IsWhatBrowsePutsIntoTheBox) {
  const LinkCase &row = GetParam();
  EXPECT_EQ(LinkToFile(QString::fromUtf8(row.page), QString::fromUtf8(row.target)),
            QString::fromUtf8(row.link));
}

INSTANTIATE_TEST_SUITE_P(
    OnDrives, RelativeLink,
    testing::Values(LinkCase{"C:\\site\\index.htm", "C:\\site\\a.gif", "a.gif"},
                    LinkCase{"C:\\site\\index.htm", "C:\\site\\img\\a.gif", "img/a.gif"},
                    LinkCase{"C:\\site\\pages\\index.htm", "C:\\site\\a.gif", "../a.gif"},
                    LinkCase{"C:\\site\\pages\\index.htm", "C:\\site\\img\\a.gif", "../img/a.gif"},
                    LinkCase{"C:\\x\\y\\index.htm", "C:\\z\\y\\a.gif", "../../z/y/a.gif"},
                    LinkCase{"C:\\site\\index.htm", "D:\\pics\\a.gif", "file:///D:/pics/a.gif"},
                    // The drives agree but for letter case, and the file's name is lost.
                    LinkCase{"C:\\site\\index.htm", "c:\\site\\a.gif", "../../"},
                    LinkCase{"C:\\Site\\index.htm", "C:\\site\\a.gif", "../site/a.gif"}));

INSTANTIATE_TEST_SUITE_P(
    OnThisSystem, RelativeLink,
    testing::Values(LinkCase{"\\home\\u\\s\\i.htm", "\\home\\u\\s\\img\\a.gif", "img/a.gif"},
                    LinkCase{"\\home\\i.htm", "\\tmp\\a.gif", "../tmp/a.gif"},
                    LinkCase{"\\i.htm", "\\a.gif", "a.gif"},
                    LinkCase{"\\a\\b\\c\\d\\i.htm", "\\x.gif", "../../../../x.gif"},
                    LinkCase{"\\i.htm", "\\a\\b\\c.gif", "a/b/c.gif"}));

INSTANTIATE_TEST_SUITE_P(WithoutAFolderOrATarget, RelativeLink,
                         testing::Values(LinkCase{"C:\\site\\index.htm", "", "file:///"},
                                         LinkCase{"\\home\\i.htm", "", "file:///"},
                                         LinkCase{"", "", ""},
                                         LinkCase{"", "\\tmp\\a.gif", "file:////tmp/a.gif"},
                                         LinkCase{"page.htm", "x.gif", "file:///x.gif"},
                                         LinkCase{"page.htm", "picture.gif", ""}));

INSTANTIATE_TEST_SUITE_P(WithUnusualNames, RelativeLink,
                         testing::Values(LinkCase{"\\s\\i.htm", "\\s\\a b'\"#%&.gif",
                                                  "a b'\"#%&.gif"},
                                         LinkCase{"\\s\\i.htm", "\\s\\圖片\\猫.gif", "圖片/猫.gif"},
                                         LinkCase{"\\s\\i.htm", "\\s\\a/b.gif", "a/b.gif"}));

TEST(MakeRelativeLink, TakesSegmentsAfterTheFirstDifferenceAsDifferent) {
  EXPECT_EQ(
      MakeRelativeLink(QStringLiteral("\\a\\same\\i.htm"), QStringLiteral("\\b\\same\\x.gif")),
      QStringLiteral("../../b/same/x.gif"));
}

TEST(MakeRelativeLink, OverflowsBeyondSixteenBitsOfDepth) {
  const QString deep = QStringLiteral("\\d").repeated(32768) + QStringLiteral("\\i.htm");
  EXPECT_EQ(ErrorOf([&] { MakeRelativeLink(deep, QStringLiteral("\\a.gif")); }),
            ErrorNumber::Overflow);
}

TEST(MakeRelativeLink, ResolvedAgainstThePageLeadsToTheFile) {
  std::mt19937 random(20240229);
  const auto path = [&random](const QString &file) {
    static const QStringList names = {QStringLiteral("a"), QStringLiteral("b"),
                                      QStringLiteral("c")};
    QString text;
    for (auto depth = random() % 6; depth > 0; --depth) {
      text += u'\\' + names[static_cast<qsizetype>(random() % 3)];
    }
    return text + u'\\' + file;
  };
  for (int i = 0; i < 5000; ++i) {
    const QString page = path(QStringLiteral("page.htm"));
    const QString target = path(QStringLiteral("x.gif"));
    const QString link = MakeRelativeLink(page, target);
    EXPECT_EQ(ToUrl(page).resolved(QUrl(link)).path(), ToUrl(target).path())
        << page.toStdString() << " " << target.toStdString() << " " << link.toStdString();
  }
}

TEST(MakeAbsoluteLink, TurnsEveryBackslash) {
  EXPECT_EQ(MakeAbsoluteLink(QStringLiteral("D:\\pics\\a b.gif")),
            QStringLiteral("file:///D:/pics/a b.gif"));
  EXPECT_EQ(MakeAbsoluteLink({}), QStringLiteral("file:///"));
}

INSTANTIATE_TEST_SUITE_P(
    AsItIsPutIntoABox, LinkToAFile,
    testing::Values(
        // As MakeRelativeLink and MakeAbsoluteLink have it.
        LinkCase{"\\s\\i.htm", "\\s\\a b'&%<>|;=+@,!$()[]{}^`~.gif",
                 "a b'&%<>|;=+@,!$()[]{}^`~.gif"},
        LinkCase{"\\s\\i.htm", "\\s\\圖片\\猫 50%.gif", "圖片/猫 50%.gif"},
        LinkCase{"\\s\\i.htm", "", "file:///"}, LinkCase{"", "", "file:///"},
        LinkCase{"C:\\s\\i.htm", "D:\\pics\\a b.gif", "file:///D:/pics/a b.gif"},
        LinkCase{"", "\\tmp\\a b.gif", "file:////tmp/a b.gif"},
        LinkCase{"\\s\\i.htm", "\\s\\a:b\\c:d.gif", "a%3Ab/c:d.gif"},
        // With what would lead elsewhere encoded.
        LinkCase{"\\s\\i.htm", "\\s\\img\\pic #1.png", "img/pic %231.png"},
        LinkCase{"\\s\\i.htm", "\\s\\what?.png", "what%3F.png"},
        LinkCase{"\\s\\i.htm", "\\s\\50%25 off.png", "50%2525 off.png"},
        LinkCase{"\\s\\i.htm", "\\s\\5%2 %e %%aF.png", "5%2 %e %%25aF.png"},
        LinkCase{"\\s\\i.htm", "\\s\\\"a\"\t\n\x7f.png", "%22a%22%09%0A%7F.png"},
        LinkCase{"\\s\\i.htm", "\\s\\\xc2\x85.png", "%C2%85.png"},
        LinkCase{"\\s\\i.htm",
                 "\\s\\a\xef\x81\x9c"
                 "b.png",
                 "a%5Cb.png"},
        LinkCase{"\\s\\i.htm", "\\s\\ a .png ", "%20a .png%20"},
        LinkCase{"C:\\s\\i.htm", "D:\\p#\\a?.gif", "file:///D:/p%23/a%3F.gif"},
        LinkCase{"", "\\tmp\\#.gif", "file:////tmp/%23.gif"}));

TEST(LinkToFile, ResolvedAgainstThePageLeadsToTheFile) {
  UnusualNames names(20240301);
  for (int i = 0; i < 5000; ++i) {
    const QString page = names.Path({});
    const QString target = names.Path({});
    const QString link = LinkToFile(page, target);
    // QUrl does not take these.
    const std::u32string characters = (page + target).toStdU32String();
    if (std::any_of(characters.begin(), characters.end(),
                    [](char32_t c) { return QChar::isNonCharacter(c); }))
      continue;
    // On the others QUrl and the engine agree:
    // RealInsert.LinksToFilesOfUnusualNamesLeadTheEngineToThem.
    ASSERT_EQ(FileOfLink(page, link), target)
        << page.toStdString() << " " << target.toStdString() << " " << link.toStdString();
  }
}

TEST(BrowseForFile, AsksForAnExistingFile) {
  FakeFileDialog dialog;
  dialog.ExpectOpen(QStringLiteral("\\tmp\\a.gif"));
  EXPECT_EQ(BrowseForFile(dialog, QStringLiteral("All Files *.*|*.*")),
            QStringLiteral("\\tmp\\a.gif"));
  EXPECT_EQ(dialog.shownFilter, QStringLiteral("All Files *.*|*.*"));
  EXPECT_EQ(dialog.shownFlags, 4096);
  EXPECT_TRUE(dialog.shownCancelError);
}

TEST(BrowseForFile, GivesTheEmptyNameWhenCancelledThoughTheDialogKeepsTheOldOne) {
  FakeFileDialog dialog;
  dialog.ExpectOpen(QStringLiteral("\\tmp\\a.gif"));
  dialog.ExpectCancelledOpen();
  BrowseForFile(dialog, {});
  EXPECT_EQ(BrowseForFile(dialog, {}), QString());
  EXPECT_EQ(dialog.FileName, QStringLiteral("\\tmp\\a.gif"));
}

class BrokenFileDialog final : public FileDialog {
 public:
  QString ShowOpen() override {
    throw RuntimeError::Of(ErrorNumber::PathNotFound, QStringLiteral("test"));
  }
  QString ShowSave() override { return {}; }
};

TEST(BrowseForFile, GivesTheEmptyNameWhenTheDialogFails) {
  BrokenFileDialog dialog;
  EXPECT_EQ(BrowseForFile(dialog, {}), QString());
}

}  // namespace
}  // namespace velor
