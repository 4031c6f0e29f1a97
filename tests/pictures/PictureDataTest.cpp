// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/PictureData.h"
#include "tests/pictures/PictureFiles.h"

#include <QColorSpace>

#include <gtest/gtest.h>

namespace velor {
namespace {

const QByteArray Tells = "SERIAL-4711";

QImage Decoded(const QByteArray &file) {
  return QImage::fromData(file);
}

TEST(PictureData, AJpegLosesItsDetailsAndNoPixel) {
  QImage image = Photo(64, 48);
  image.setColorSpace(QColorSpace::AdobeRgb);
  const QByteArray plain = CodedAs("JPG", image);
  const QByteArray full =
      JpegWith(plain, ExifSegment(1) + Segment(0xED, "Photoshop " + Tells) +
                          Segment(0xFE, "by " + Tells) + Segment(0xE2, "MPF " + Tells)) +
      "behind the end: " + Tells;
  ASSERT_TRUE(full.contains(Tells));
  const QByteArray bare = WithoutPictureData(full);
  EXPECT_FALSE(bare.contains(Tells));
  EXPECT_FALSE(bare.contains("Exif"));
  EXPECT_EQ(bare, plain);
  EXPECT_EQ(Decoded(bare).colorSpace(), Decoded(full).colorSpace());
  EXPECT_EQ(Decoded(bare), Decoded(plain));
}

TEST(PictureData, APngLosesItsTextsAndKeepsItsColours) {
  QImage image = PlainPicture(20, 10);
  image.setColorSpace(QColorSpace::DisplayP3);
  const QByteArray plain = CodedAs("PNG", image);
  image.setText(QStringLiteral("Author"), QString::fromLatin1(Tells));
  const QByteArray full = CodedAs("PNG", image);
  ASSERT_TRUE(full.contains(Tells));
  EXPECT_EQ(WithoutPictureData(full), plain);
}

TEST(PictureData, AWebPLosesItsDetails) {
  const QByteArray simple = CodedAs("WEBP", PlainPicture(16, 16));
  ASSERT_FALSE(simple.isEmpty()) << "the toolkit's picture plugins are not installed";
  const auto chunk = [](const char *name, const QByteArray &content) {
    const auto length = qToLittleEndian(static_cast<quint32>(content.size()));
    return QByteArray(name, 4) + QByteArray(reinterpret_cast<const char *>(&length), 4) + content +
           QByteArray(content.size() % 2, '\0');
  };
  const QByteArray flags = QByteArray("\x0C\0\0\0\x0F\0\0\x0F\0\0", 10);
  const QByteArray body = "WEBP" + chunk("VP8X", flags) + simple.mid(12) +
                          chunk("EXIF", Exif(1) + "x") + chunk("XMP ", Tells);
  const auto size = qToLittleEndian(static_cast<quint32>(body.size()));
  const QByteArray full = "RIFF" + QByteArray(reinterpret_cast<const char *>(&size), 4) + body;
  const QByteArray bare = WithoutPictureData(full);
  EXPECT_FALSE(bare.contains(Tells));
  EXPECT_EQ(bare[20], '\0');
  EXPECT_EQ(qFromLittleEndian<quint32>(bare.constData() + 4) + 8, quint32(bare.size()));
  EXPECT_EQ(Decoded(bare), Decoded(simple));
}

TEST(PictureData, WhatIsCutOffOrDamagedNeverFailsAndOtherKindsStay) {
  const QByteArray jpeg = JpegWith(CodedAs("JPG", Photo(24, 24)), ExifSegment(6));
  const QByteArray png = CodedAs("PNG", Photo(24, 24));
  for (const QByteArray &file : {jpeg, png}) {
    for (qsizetype length = 0; length < file.size(); ++length)
      WithoutPictureData(file.left(length));
    for (qsizetype at = 0; at < file.size(); ++at) {
      QByteArray damaged = file;
      damaged[at] = char(damaged[at] ^ 0xFF);
      WithoutPictureData(damaged);
    }
  }
  const QByteArray gif = "GIF89a" + Tells;
  EXPECT_EQ(WithoutPictureData(gif), gif);
}

}  // namespace
}  // namespace velor
