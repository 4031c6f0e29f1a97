// SPDX-License-Identifier: GPL-3.0-or-later
#include "insert/MediaHtml.h"

#include <gtest/gtest.h>

namespace velor {
namespace {

/// A picture of 60 by 40 pixels with the dialog's defaults.
ImageValues Plain() {
  ImageValues values = ValuesOfPicture({QStringLiteral("IMG"), {}});
  values.source = QStringLiteral("img/a b.png");
  values.height = QStringLiteral("40");
  values.width = QStringLiteral("60");
  return values;
}

std::string Html(const ImageValues &values, Dialect dialect) {
  return PictureHtml(values, dialect).toStdString();
}

/// "name=value" of each change, separated by "|".
std::string InWords(const HtmlAttributes &changes) {
  QStringList words;
  for (const auto &[name, value] : changes) words << name + u'=' + value;
  return words.join(u'|').toStdString();
}

HtmlElement Picture(const HtmlAttributes &attributes) {
  return {QStringLiteral("IMG"), attributes};
}

TEST(MediaHtml, ThePagesDialectIsTakenFromItsDoctype) {
  for (const char *html : {"<!DOCTYPE html><p>", " <!-- x -->\n<!doctype HTML >",
                           "<!DOCTYPE html SYSTEM \"about:legacy-compat\">"})
    EXPECT_EQ(DialectOf(QString::fromLatin1(html)), Dialect::Styles) << html;
  for (const char *html :
       {"", "<html>", "<p><!DOCTYPE html>", "<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.01//EN\">"})
    EXPECT_EQ(DialectOf(QString::fromLatin1(html)), Dialect::Attributes) << html;
}

TEST(MediaHtml, APictureHasItsSizeAndNoEmptyAttributes) {
  for (const Dialect dialect : {Dialect::Attributes, Dialect::Styles})
    EXPECT_EQ(Html(Plain(), dialect), "<IMG src=\"img/a b.png\" height=40 width=60>");
  ImageValues unknown = Plain();
  unknown.height.clear();
  unknown.width.clear();
  unknown.alternativeText = QStringLiteral("Tea & cake");
  EXPECT_EQ(Html(unknown, Dialect::Styles), "<IMG src=\"img/a b.png\" alt=\"Tea &amp; cake\">");
  EXPECT_EQ(Html({}, Dialect::Styles), "");
}

TEST(MediaHtml, LooksAreAttributesInOldPagesAndStylesInNewOnes) {
  ImageValues values = Plain();
  values.alignment = QStringLiteral("Left");
  values.border = QStringLiteral("2");
  values.horizontalSpacing = QStringLiteral("5");
  EXPECT_EQ(Html(values, Dialect::Attributes),
            "<IMG src=\"img/a b.png\" align=Left border=2 hspace=5 height=40 width=60>");
  EXPECT_EQ(Html(values, Dialect::Styles),
            "<IMG src=\"img/a b.png\" style=\"float: left; border: 2px solid; margin: 0 5px\" "
            "height=40 width=60>");
}

TEST(MediaHtml, ACentredPictureIsPlacedByItsParagraphOrByItsMargins) {
  ImageValues values = Plain();
  values.alignment = QStringLiteral("Center");
  EXPECT_EQ(Html(values, Dialect::Attributes),
            "<P align=center><IMG src=\"img/a b.png\" height=40 width=60></P>");
  EXPECT_EQ(
      Html(values, Dialect::Styles),
      "<IMG src=\"img/a b.png\" style=\"display: block; margin: 0 auto\" height=40 width=60>");
}

TEST(MediaHtml, EveryAlignmentOfANewPictureIsReadBack) {
  for (const char *name : {"Default", "Left", "Right", "Top", "Texttop", "Middle", "Baseline",
                           "Absbottom", "Center"}) {
    ImageValues values = Plain();
    values.alignment = QString::fromLatin1(name);
    values.border = QStringLiteral("3");
    values.verticalSpacing = QStringLiteral("7");
    const ImageValues read = ValuesOfPicture(Picture(PictureAttributes(values, Dialect::Styles)));
    EXPECT_EQ(read.alignment.toStdString(), name);
    EXPECT_EQ(read.border, QStringLiteral("3"));
    EXPECT_EQ(read.verticalSpacing, QStringLiteral("7"));
    EXPECT_EQ(read.source, values.source);
    EXPECT_EQ(read.width, QStringLiteral("60"));
  }
}

TEST(MediaHtml, OnlyWhatAPersonChangedIsChangedOfAPicture) {
  const HtmlElement picture = Picture({{QStringLiteral("src"), QStringLiteral("a.png")},
                                       {QStringLiteral("style"), QStringLiteral("color:red")},
                                       {QStringLiteral("border"), QStringLiteral("1")},
                                       {QStringLiteral("width"), QStringLiteral("50%")}});
  const ImageValues before = ValuesOfPicture(picture);
  for (const Dialect dialect : {Dialect::Attributes, Dialect::Styles}) {
    EXPECT_EQ(InWords(PictureChanges(picture, before, before, dialect)), "");
    ImageValues after = before;
    after.alternativeText = QStringLiteral("New");
    after.border = QStringLiteral("0");
    EXPECT_EQ(InWords(PictureChanges(picture, before, after, dialect)), "alt=New|border=");
  }
  ImageValues floating = before;
  floating.alignment = QStringLiteral("Right");
  EXPECT_EQ(InWords(PictureChanges(picture, before, floating, Dialect::Attributes)), "align=Right");
  EXPECT_EQ(InWords(PictureChanges(picture, before, floating, Dialect::Styles)),
            "style=color:red; float: right");
}

TEST(MediaHtml, AnAlignmentThatAPictureHasIsChangedWhereItStands) {
  const HtmlElement old = Picture({{QStringLiteral("align"), QStringLiteral("left")}});
  ImageValues before = ValuesOfPicture(old);
  ImageValues after = before;
  after.alignment = QStringLiteral("Right");
  EXPECT_EQ(InWords(PictureChanges(old, before, after, Dialect::Styles)), "align=Right");
  after.alignment = QStringLiteral("Default");
  EXPECT_EQ(InWords(PictureChanges(old, before, after, Dialect::Styles)), "align=");
  after.alignment = QStringLiteral("Center");
  EXPECT_EQ(InWords(PictureChanges(old, before, after, Dialect::Attributes)), "align=");
  EXPECT_EQ(InWords(PictureChanges(old, before, after, Dialect::Styles)),
            "align=|style=display: block; margin: 0 auto");
  const HtmlElement fresh =
      Picture({{QStringLiteral("style"), QStringLiteral("float:left; margin: 0 5px;color:red")}});
  before = ValuesOfPicture(fresh);
  EXPECT_EQ(before.horizontalSpacing, QStringLiteral("5"));
  after = before;
  after.alignment = QStringLiteral("Default");
  EXPECT_EQ(InWords(PictureChanges(fresh, before, after, Dialect::Styles)),
            "style=margin: 0 5px;color:red");
}

TEST(MediaHtml, AVideoIsWrittenAsAnElementOfItsOwn) {
  VideoValues video;
  EXPECT_EQ(VideoHtml(video).toStdString(), "");
  video.source = QStringLiteral("a b.mp4");
  EXPECT_EQ(VideoHtml(video).toStdString(), "<VIDEO src=\"a b.mp4\" controls></VIDEO>");
  video.poster = QStringLiteral("a.jpg");
  video.isLooped = true;
  video.startsItself = true;
  video.hasControls = false;
  video.alignment = QStringLiteral("Center");
  video.height = QStringLiteral("180");
  video.width = QStringLiteral("320");
  EXPECT_EQ(VideoHtml(video).toStdString(),
            "<VIDEO src=\"a b.mp4\" poster=a.jpg style=\"display: block; margin: 0 auto\" "
            "height=180 width=320 loop autoplay></VIDEO>");
}

}  // namespace
}  // namespace velor
