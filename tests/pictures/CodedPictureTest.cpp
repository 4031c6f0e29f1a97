// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/CodedPicture.h"
#include "platform/RuntimeError.h"
#include "tests/pictures/PictureFiles.h"
#include "tests/support/Checks.h"

#include <QImageReader>
#include <QRect>

#include <gtest/gtest.h>

namespace velor {
namespace {

TEST(CodedPicture, AFileIsResizedTurnedAndCroppedInItsOwnFormat) {
  for (const char *format : {"jpeg", "png", "webp"}) {
    const QByteArray file = CodedAs(format, RedAndBlue(64, 32));
    const auto formatOf = [](QByteArray bytes) {
      QBuffer buffer(&bytes);
      return QImageReader(&buffer).format();
    };
    const QByteArray small = Resized(file, {16, 8});
    EXPECT_EQ(formatOf(small), format);
    EXPECT_EQ(QImage::fromData(small).size(), QSize(16, 8));
    const QImage turned = QImage::fromData(Turned(file, Turn::Right));
    ASSERT_EQ(turned.size(), QSize(32, 64));
    EXPECT_GT(qRed(turned.pixel(16, 8)), 200) << format;
    EXPECT_GT(qBlue(QImage::fromData(Turned(file, Turn::Left)).pixel(16, 8)), 200) << format;
    const QImage part = QImage::fromData(Cropped(file, {{40, 4, 100, 10}}));
    ASSERT_EQ(part.size(), QSize(24, 10));
    EXPECT_GT(qBlue(part.pixel(12, 5)), 200) << format;
    const QImage turnedPart = QImage::fromData(Cropped(file, {{0, 0, 10, 20}, 1}));
    ASSERT_EQ(turnedPart.size(), QSize(10, 20));
    EXPECT_GT(qRed(turnedPart.pixel(5, 10)), 200) << format;
  }
}

TEST(CodedPicture, ATurnedPhotoIsChangedAsItIsSeen) {
  const QByteArray file = JpegWith(CodedAs("JPG", RedAndBlue(64, 32)), ExifSegment(6));
  EXPECT_EQ(QImage::fromData(Resized(file, {16, 32})).size(), QSize(16, 32));
  EXPECT_EQ(QImage::fromData(Cropped(file, {{0, 0, 32, 10}})).size(), QSize(32, 10));
}

TEST(CodedPicture, OtherKindsAndEmptyPartsAreRefused) {
  const QByteArray gif =
      QByteArray::fromBase64("R0lGODlhAQABAIAAAAAAAP///yH5BAEAAAAALAAAAAABAAEAAAIBRAA7");
  EXPECT_FALSE(CanBeChanged(gif));
  EXPECT_FALSE(CanBeChanged("text"));
  EXPECT_EQ(ErrorOf([&] { Resized(gif, {3, 3}); }), ErrorNumber::InvalidProcedureCall);
  EXPECT_EQ(ErrorOf([&] {
              Cropped(CodedAs("PNG", RedAndBlue(8, 8)), {{20, 20, 5, 5}});
            }),
            ErrorNumber::InvalidProcedureCall);
}

}  // namespace
}  // namespace velor
