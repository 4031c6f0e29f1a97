// SPDX-License-Identifier: GPL-3.0-or-later
// The links of a page that goes into another folder.
#include "editor/PageLinks.h"
#include "tests/support/FakeFiles.h"

#include <gtest/gtest.h>

namespace velor {
namespace {

const QString From = QStringLiteral("\\site\\sub\\find.htm");

class PageLinks : public ::testing::Test {
 protected:
  PageLinks() {
    for (const char *file :
         {"\\site\\picture1.png", R"(\site\sub\a b.png)", R"(\site\sub\find.htm)",
          R"(\site\sub\pics\c.png)", R"(\site\news\index.htm)", R"(\site\sub\style.css)"})
      files_.AddFile(QString::fromLatin1(file), file);
  }

  std::vector<BrokenLink> Broken(const char *html, const QString &to) const {
    return BrokenLinks(QString::fromUtf8(html), From, to, files_);
  }
  std::string Adapted(const char *html, const char *to) const {
    return WithAdapted(QString::fromUtf8(html), Broken(html, QString::fromLatin1(to)))
        .toStdString();
  }

  FakeFiles files_;
};

TEST_F(PageLinks, AreFoundWhereTheyLeadToAFileFromTheOldFolderAlone) {
  const auto links = Broken(
      "<link href=style.css><a href='../news/index.htm#top'>x</a><img src=\"../picture1.png\">"
      "<a href=gone.htm>broken before</a><a href=#top>in the page</a><a href='/x.htm'>root</a>"
      "<a href='http://example.com/a.htm'>far</a><a href='mailto:a@example.com'>mail</a>"
      "<body background='a%20b.png'>",
      QStringLiteral("\\site\\find2.htm"));
  ASSERT_EQ(links.size(), 4U);
  EXPECT_EQ(links[0].target, QStringLiteral("\\site\\sub\\style.css"));
  EXPECT_FALSE(links[0].isPicture);
  EXPECT_FALSE(links[1].isPicture);
  EXPECT_TRUE(links[2].isPicture);
  EXPECT_EQ(links[3].target, QStringLiteral("\\site\\sub\\a b.png"));
  EXPECT_TRUE(links[3].isPicture);
}

TEST_F(PageLinks, AreAdaptedInTheSpellingThatTheyHad) {
  EXPECT_EQ(Adapted("<img  SRC = '../picture1.png?a&amp;b#c' >", "\\site\\find2.htm"),
            "<img  SRC = 'picture1.png?a&amp;b#c' >");
  EXPECT_EQ(Adapted("<IMG src=a%20b.png><img src=\"./a b.png\">", "\\site\\find2.htm"),
            "<IMG src=sub/a%20b.png><img src=\"sub/a b.png\">");
  EXPECT_EQ(Adapted("<a href=../news/index.htm>x</a>", "\\site\\news\\find.htm"),
            "<a href=../news/index.htm>x</a>")
      << "leads to the same file from there";
  EXPECT_EQ(Adapted("<img src=pics/c.png>", "\\other\\deep\\find.htm"),
            "<img src=../../site/sub/pics/c.png>");
  EXPECT_EQ(Adapted("<img src=../picture1.png>", "\\other\\find.htm"),
            "<img src=../site/picture1.png>");
  EXPECT_EQ(Adapted("<img src=pics/c.png>", "\\site\\sub\\deep\\find.htm"),
            "<img src=../pics/c.png>");
}

TEST_F(PageLinks, OfAPageThatStaysInItsFolderOrNamesABaseDoNotBreak) {
  EXPECT_TRUE(Broken("<img src=pics/c.png>", QStringLiteral("\\site\\sub\\new.htm")).empty());
  EXPECT_TRUE(Broken("<base href='http://example.com/'><img src=pics/c.png>",
                     QStringLiteral("\\other\\new.htm"))
                  .empty());
}

TEST_F(PageLinks, InTextAndCommentsAreNone) {
  EXPECT_TRUE(Broken("<!-- <img src=pics/c.png> --><script>'<img src=pics/c.png>'</script>"
                     "<textarea><img src=pics/c.png></textarea>",
                     QStringLiteral("\\other\\new.htm"))
                  .empty());
}

TEST_F(PageLinks, InListsOfPicturesAndInStylesAreAdaptedToo) {
  EXPECT_EQ(
      Adapted("<img srcset='pics/c.png 1x, ../picture1.png 2x,gone.png 3x'>", "\\site\\new.htm"),
      "<img srcset='sub/pics/c.png 1x, picture1.png 2x,gone.png 3x'>");
  EXPECT_EQ(Adapted("<img srcset='pics/c.png, ../picture1.png'>", "\\site\\new.htm"),
            "<img srcset='sub/pics/c.png, picture1.png'>");
  EXPECT_EQ(Adapted("<p style=\"background: URL( pics/c.png ) red; list-style-image: "
                    "url(&quot;../picture1.png&quot;)\">",
                    "\\site\\new.htm"),
            "<p style=\"background: URL( sub/pics/c.png ) red; list-style-image: "
            "url(&quot;picture1.png&quot;)\">");
  EXPECT_EQ(Adapted("<style>\n@import 'style.css';\np { background: url(\"a b.png\") }\n</style>"
                    "<p>url(pics/c.png)</p>",
                    "\\site\\new.htm"),
            "<style>\n@import 'sub/style.css';\np { background: url(\"sub/a b.png\") }\n</style>"
            "<p>url(pics/c.png)</p>");
  EXPECT_TRUE(Broken("<p style='background: url(data:image/gif;base64,AA)'>",
                     QStringLiteral("\\site\\new.htm"))
                  .empty());
}

TEST_F(PageLinks, AFolderWhoseNameHasSignsOfStylesAndListsIsWrittenWithoutThem) {
  files_.AddFile(QStringLiteral("\\it's (a), b\\c.png"), "c");
  const QString html = QStringLiteral("<p style='background: url(c.png)'><img srcset='c.png 1x'>");
  const auto links = BrokenLinks(html, QStringLiteral("\\it's (a), b\\old.htm"),
                                 QStringLiteral("\\new.htm"), files_);
  EXPECT_EQ(WithAdapted(html, links).toStdString(),
            "<p style='background: url(it%27s%20%28a%29%2C%20b/c.png)'>"
            "<img srcset='it%27s%20%28a%29%2C%20b/c.png 1x'>");
}

TEST_F(PageLinks, PicturesAreTakenAlongButNeverOverAnotherFile) {
  files_.AddFile(QStringLiteral("\\other\\c.png"), "another picture");
  const char *html = "<img src=pics/c.png><img src='a b.png'><link href=style.css>";
  const QString to = QStringLiteral("\\other\\new.htm");
  auto links = Broken(html, to);
  CopyPictures(links, to, files_);
  EXPECT_EQ(WithAdapted(QString::fromUtf8(html), links).toStdString(),
            "<img src=../site/sub/pics/c.png><img src='a%20b.png'>"
            "<link href=../site/sub/style.css>");
  EXPECT_EQ(files_.Content(QStringLiteral("\\other\\c.png")), "another picture");
  EXPECT_EQ(files_.Content(QStringLiteral("\\other\\a b.png")), "\\site\\sub\\a b.png");
}

}  // namespace
}  // namespace velor
