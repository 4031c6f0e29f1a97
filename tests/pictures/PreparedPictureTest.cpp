// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/PreparedPicture.h"
#include "platform/RuntimeError.h"
#include "tests/pictures/FakeHeic.h"
#include "tests/pictures/PictureFiles.h"
#include "tests/support/Checks.h"

#include <QImageReader>

#include <gtest/gtest.h>

Q_IMPORT_PLUGIN(FakeHeicPlugin)

namespace velor {
namespace {

TEST(PreparedPicture, AScreenshotBecomesPngAndAPhotoWhatIsChosen) {
  EXPECT_EQ(PreparePicture(RedAndBlue(300, 200), {}).ending, QStringLiteral("png"));
  const PreparedPicture photo = PreparePicture(Photo(300, 200), {});
  EXPECT_EQ(photo.ending, QStringLiteral("jpg"));
  EXPECT_EQ(photo.size, QSize(300, 200));
  EXPECT_EQ(PreparePicture(Photo(300, 200), {PhotoFormat::WebP}).ending, QStringLiteral("webp"));
  QImage transparent = Photo(300, 200).convertToFormat(QImage::Format_ARGB32);
  transparent.setPixel(3, 3, 0);
  const PreparedPicture png = PreparePicture(transparent, {});
  EXPECT_EQ(png.ending, QStringLiteral("png"));
  EXPECT_EQ(QImage::fromData(png.bytes).convertToFormat(QImage::Format_ARGB32), transparent);
}

TEST(PreparedPicture, ATurnedPhotoIsSetUpright) {
  const QByteArray file = JpegWith(CodedAs("JPG", RedAndBlue(64, 32)), ExifSegment(6));
  const PreparedPicture picture = PreparePicture(file, QStringLiteral("jpg"), {});
  EXPECT_EQ(picture.size, QSize(32, 64));
  EXPECT_FALSE(picture.bytes.contains("Exif"));
  const QImage image = QImage::fromData(picture.bytes);
  EXPECT_EQ(image.size(), QSize(32, 64));
  EXPECT_GT(qRed(image.pixel(16, 8)), 200);
  EXPECT_GT(qBlue(image.pixel(16, 56)), 200);
}

TEST(PreparedPicture, AnUprightPhotoIsNotCodedAnew) {
  const QByteArray plain = CodedAs("JPG", Photo(64, 32));
  EXPECT_EQ(PreparePicture(JpegWith(plain, ExifSegment(1)), {}, {}).bytes, plain);
}

TEST(PreparedPicture, WhereDetailsAreKeptTheFileStaysAsItIs) {
  const QByteArray file = JpegWith(CodedAs("JPG", Photo(64, 32)), ExifSegment(6));
  const PreparedPicture picture = PreparePicture(file, {}, {.details = PictureDetails::Keep});
  EXPECT_EQ(picture.bytes, file);
  EXPECT_EQ(picture.size, QSize(32, 64));
}

TEST(PreparedPicture, APictureOfAnInstalledReaderIsCodedAnew) {
  ASSERT_TRUE(QImageReader::supportedImageFormats().contains("heic"));
  const PreparedPicture picture = PreparePicture("heic and more", QStringLiteral("heic"), {});
  EXPECT_EQ(picture.ending, QStringLiteral("png"));
  EXPECT_EQ(QImage::fromData(picture.bytes).size(), QSize(20, 10));
  EXPECT_EQ(picture.notice,
            QStringLiteral("It was a HEIC file, which browsers do not show, and is PNG now."));
}

TEST(PreparedPicture, OldKindsThatNoPluginReadsAreCodedAnew) {
  // Run lengths, 2 by 1 pixels, 24 bits: both red.
  const QByteArray tga = QByteArray::fromHex(
      "00000a000000000000000000020001001820"
      "810000ff");
  const PreparedPicture picture = PreparePicture(tga, QStringLiteral("TGA"), {});
  EXPECT_EQ(picture.ending, QStringLiteral("png"));
  EXPECT_EQ(QImage::fromData(picture.bytes).convertToFormat(QImage::Format_RGB32),
            PlainPicture(2, 1, Qt::red));
  EXPECT_TRUE(picture.notice.contains(QStringLiteral("TGA")));
}

TEST(PreparedPicture, WhatBrowsersDoNotShowIsCodedAnew) {
  for (const char *format : {"BMP", "TIFF"}) {
    const QByteArray file = CodedAs(format, RedAndBlue(20, 10));
    if (file.isEmpty()) continue;  // no plugin writes it
    const PreparedPicture picture = PreparePicture(file, {}, {});
    EXPECT_EQ(picture.ending, QStringLiteral("png")) << format;
    EXPECT_EQ(QImage::fromData(picture.bytes).convertToFormat(QImage::Format_RGB32),
              RedAndBlue(20, 10));
    EXPECT_TRUE(picture.notice.contains(QString::fromLatin1(format))) << format;
  }
}

TEST(PreparedPicture, AGifAndADrawingStayAsTheyAreAndScriptsAreTold) {
  const QByteArray gif =
      QByteArray::fromBase64("R0lGODlhAQABAIAAAAAAAP///yH5BAEAAAAALAAAAAABAAEAAAIBRAA7");
  EXPECT_EQ(PreparePicture(gif, {}, {}).bytes, gif);
  EXPECT_EQ(PreparePicture(gif, {}, {}).ending, QStringLiteral("gif"));
  const QByteArray drawing =
      R"(<svg xmlns="http://www.w3.org/2000/svg" width="30" height="20"><g/></svg>)";
  const PreparedPicture plain = PreparePicture(drawing, QStringLiteral("svg"), {});
  EXPECT_EQ(plain.bytes, drawing);
  EXPECT_EQ(plain.size, QSize(30, 20));
  EXPECT_TRUE(plain.notice.isEmpty());
  const QByteArray active = QByteArray(drawing).replace("<g/>", "<g onload=\"x()\"/>");
  const PreparedPicture told = PreparePicture(active, QStringLiteral("svg"), {});
  EXPECT_EQ(told.bytes, active);
  EXPECT_TRUE(told.notice.contains(QStringLiteral("scripts")));
}

TEST(PreparedPicture, WhatIsNoPictureIsRefused) {
  for (const QByteArray &file : {QByteArray(), QByteArray("some text"), QByteArray("%PDF-1.4")})
    EXPECT_EQ(ErrorOf([&] { PreparePicture(file, QStringLiteral("png"), {}); }),
              ErrorNumber::InvalidProcedureCall);
}

}  // namespace
}  // namespace velor
