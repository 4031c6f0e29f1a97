// SPDX-License-Identifier: GPL-3.0-or-later
#include "files/QtFiles.h"
#include "pictures/PicturePlaces.h"
#include "platform/Paths.h"
#include "tests/support/UnusualNames.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <gtest/gtest.h>

namespace velor {
namespace {

class PicturePlaces : public ::testing::Test {
 protected:
  QString Logic(const char *name) const {
    return ToLogic(folder.filePath(QString::fromLatin1(name)));
  }
  void Write(const char *name) const {
    const QString path = folder.filePath(QString::fromLatin1(name));
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
  }
  QString Folder(const QString &html) const {
    return PictureFolder({Logic("site/a/page.htm")}, html, files);
  }

  QTemporaryDir folder;
  QtFiles files;
};

TEST_F(PicturePlaces, APictureGoesWhereMostOfThePagesPicturesLie) {
  for (const char *file : {"site/a/page.htm", "site/a/one/1.png", "site/a/two/2.png",
                           "site/a/two/3 x.png", "site/a/images/4.png", "out/5.png"})
    Write(file);
  EXPECT_EQ(Folder("<img src=one/1.png><IMG SRC='two/2.png'><img src=\"two/3%20x.png?v=1\">"),
            Logic("site/a/two"));
  EXPECT_EQ(Folder("<img src=../../out/5.png><img src=http://a.test/b.png><img src=no/6.png>"),
            Logic("site/a/images"));
}

TEST_F(PicturePlaces, WithoutPicturesItGoesToImagesAndElseBesideThePage) {
  Write("site/a/page.htm");
  EXPECT_EQ(Folder({}), Logic("site/a"));
  QDir().mkpath(folder.filePath(QStringLiteral("site/images")));
  EXPECT_EQ(PictureFolder({Logic("site/a/page.htm"), Logic("site")}, {}, files),
            Logic("site/images"));
  QDir().mkpath(folder.filePath(QStringLiteral("site/a/images")));
  EXPECT_EQ(Folder({}), Logic("site/a/images"));
}

TEST_F(PicturePlaces, AFolderThatIsALinkOutOfTheSiteIsNoneOfIts) {
  Write("site/a/page.htm");
  Write("out/1.png");
  QFile::link(folder.filePath(QStringLiteral("out")),
              folder.filePath(QStringLiteral("site/a/images")));
  EXPECT_EQ(Folder({}), Logic("site/a"));
  EXPECT_EQ(Folder("<img src=images/1.png>"), Logic("site/a"));
  EXPECT_FALSE(LiesInSite({Logic("site/a/page.htm")}, Logic("site/a/images/1.png")));
}

TEST_F(PicturePlaces, TheSiteIsTheProjectsFolderOrThePagesAndWhatIsBelow) {
  for (const char *file : {"site/a/page.htm", "site/a/b/1.png", "site/2.png", "sites/3.png"})
    Write(file);
  const PageSite alone{Logic("site/a/page.htm")};
  const PageSite project{Logic("site/a/page.htm"), Logic("site")};
  EXPECT_TRUE(LiesInSite(alone, Logic("site/a/b/1.png")));
  EXPECT_FALSE(LiesInSite(alone, Logic("site/2.png")));
  EXPECT_TRUE(LiesInSite(project, Logic("site/2.png")));
  EXPECT_FALSE(LiesInSite(project, Logic("sites/3.png")));
}

TEST_F(PicturePlaces, NamesAreShortLowerCaseAscii) {
  const auto stem = [](const char16_t *name) {
    return PictureStem(QString::fromUtf16(name), QStringLiteral("My Page.htm"));
  };
  EXPECT_EQ(stem(u"Garden.JPG"), QStringLiteral("garden"));
  EXPECT_EQ(stem(u"Grüße aus Łódź (2).jpeg"), QStringLiteral("grusse-aus-lodz-2"));
  EXPECT_EQ(stem(u"a#b?c%41\"d'.png"), QStringLiteral("a-b-c-41-d"));
  EXPECT_EQ(stem(u"写真.png"), QStringLiteral("my-page"));
  EXPECT_EQ(stem(u".hidden"), QStringLiteral("hidden"));
  EXPECT_EQ(stem(u"CON.png"), QStringLiteral("con-picture"));
  EXPECT_EQ(stem(u"lpt1.png"), QStringLiteral("lpt1-picture"));
  EXPECT_EQ(PictureStem({}, {}), QStringLiteral("picture"));
  EXPECT_LE(PictureStem(QString(300, u'x'), {}).size(), 60);
}

TEST_F(PicturePlaces, EveryAddressLeadsBackToItsFile) {
  UnusualNames names(4711);
  for (int i = 0; i < 500; ++i) {
    const QString page = names.Path({});
    const QString picture = names.Path({});
    // The toolkit's URLs replace what Unicode calls no character.
    const auto isNone = [](char32_t c) { return QChar::isNonCharacter(c); };
    const QList<uint> characters = (page + picture).toUcs4();
    if (std::any_of(characters.begin(), characters.end(), isNone)) continue;
    const QString address = PictureAddress(page, picture);
    EXPECT_EQ(FileOfAddress(page, address), picture)
        << page.toStdString() << ' ' << address.toStdString();
    EXPECT_EQ(FileOfAddress({}, PictureAddress({}, picture)), picture) << picture.toStdString();
    EXPECT_FALSE(address.contains(u'"') || address.contains(u'\'') || address.contains(u'&') ||
                 address.contains(u' ') || address.contains(u',') || address.contains(u'('))
        << address.toStdString();
  }
}

}  // namespace
}  // namespace velor
