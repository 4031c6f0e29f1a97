// SPDX-License-Identifier: GPL-3.0-or-later
#include "insert/PictureLoading.h"
#include "platform/Paths.h"
#include "tests/support/Checks.h"

#include <QFile>
#include <QImageReader>
#include <QTemporaryDir>

namespace velor {
namespace {

constexpr QSize Bounds(320, 180);

class PictureLoadingTest : public testing::Test {
 protected:
  QString Path(const QString &name) const { return ToLogic(folder.filePath(name)); }

  QString Save(const QString &name, QSize size) const {
    QImage image(size, QImage::Format_RGB32);
    image.fill(Qt::darkGreen);
    EXPECT_TRUE(image.save(folder.filePath(name)));
    return Path(name);
  }

  QTemporaryDir folder;
};

TEST_F(PictureLoadingTest, KeepsASmallPictureAsItIs) {
  const LoadedPicture picture = LoadPicture(Save(QStringLiteral("a b#%.png"), {40, 30}), Bounds);
  EXPECT_EQ(picture.pixels, QSize(40, 30));
  EXPECT_EQ(picture.preview.size(), QSize(40, 30));
}

TEST_F(PictureLoadingTest, ScalesALargePictureIntoTheBounds) {
  for (const char *name : {"a.png", "a.jpg", "a.bmp"}) {
    const LoadedPicture picture = LoadPicture(Save(QString::fromUtf8(name), {1600, 1200}), Bounds);
    EXPECT_EQ(picture.pixels, QSize(1600, 1200)) << name;
    EXPECT_EQ(picture.preview.size(), QSize(240, 180)) << name;
  }
}

TEST_F(PictureLoadingTest, KnowsTheSizeOfAPictureTooLargeToDecode) {
  // Only the header says how large it is; decoding would take hundreds of megabytes.
  const QString path = Save(QStringLiteral("big.bmp"), {8, 8});
  QFile file(ToNative(path));
  ASSERT_TRUE(file.open(QIODevice::ReadWrite));
  ASSERT_TRUE(file.seek(18));
  const quint32 sides[] = {10000, 10000};
  file.write(reinterpret_cast<const char *>(sides), sizeof sides);
  file.close();
  const LoadedPicture picture = LoadPicture(path, Bounds);
  EXPECT_EQ(picture.pixels, QSize(10000, 10000));
  EXPECT_TRUE(picture.preview.isNull());
}

TEST_F(PictureLoadingTest, DecodesAPictureOfAHundredMegapixelsAtThePreviewsSize) {
  {
    QImage image(10000, 10000, QImage::Format_Grayscale8);
    image.fill(128);
    ASSERT_TRUE(image.save(folder.filePath(QStringLiteral("big.jpg"))));
  }
  // Decoded whole it would take a hundred.
  const int usualLimit = QImageReader::allocationLimit();
  QImageReader::setAllocationLimit(16);
  const LoadedPicture picture = LoadPicture(Path(QStringLiteral("big.jpg")), Bounds);
  QImageReader::setAllocationLimit(usualLimit);
  EXPECT_EQ(picture.pixels, QSize(10000, 10000));
  EXPECT_EQ(picture.preview.size(), QSize(180, 180));
}

TEST_F(PictureLoadingTest, LoadsTiff) {
  const LoadedPicture picture = LoadPicture(Save(QStringLiteral("a.tif"), {640, 360}), Bounds);
  EXPECT_EQ(picture.pixels, QSize(640, 360));
  EXPECT_EQ(picture.preview.size(), Bounds);
}

TEST_F(PictureLoadingTest, LoadsTga) {
  QFile file(folder.filePath(QStringLiteral("a.tga")));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  // Uncompressed true colour, 3 by 2 pixels of 24 bits, from the top down.
  file.write(QByteArray::fromHex("000002000000000000000000030002001820"));
  file.write(QByteArray::fromHex("0000ff").repeated(6));
  file.write(QByteArray(8, '\0') + QByteArray("TRUEVISION-XFILE.") + '\0');
  file.close();
  const LoadedPicture picture = LoadPicture(Path(QStringLiteral("a.tga")), Bounds);
  EXPECT_EQ(picture.pixels, QSize(3, 2));
  EXPECT_EQ(picture.preview.pixelColor(2, 1), QColor(Qt::red));
}

TEST_F(PictureLoadingTest, LoadsWhatQtHasNoReaderFor) {
  // Without a footer, with run lengths.
  QFile file(folder.filePath(QStringLiteral("old.TGA")));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(QByteArray::fromHex("00000a000000000000000000030002001820850000ff"));
  file.close();
  const LoadedPicture picture = LoadPicture(Path(QStringLiteral("old.TGA")), {2, 2});
  EXPECT_EQ(picture.pixels, QSize(3, 2));
  EXPECT_EQ(picture.preview.size(), QSize(2, 1));
  EXPECT_EQ(picture.preview.pixelColor(1, 0), QColor(Qt::red));
}

TEST(PreviewRatio, ShowsASmallPictureAsPagesDoAndALargeOneWithAllPixels) {
  EXPECT_EQ(PreviewRatio({40, 30}, Bounds, 1), 1);
  EXPECT_EQ(PreviewRatio({40, 30}, Bounds, 2), 1);
  EXPECT_EQ(PreviewRatio({640, 360}, Bounds, 2), 2);
  EXPECT_EQ(PreviewRatio({480, 30}, Bounds, 2), 1.5);
}

TEST_F(PictureLoadingTest, KeepsAThinPictureVisible) {
  const LoadedPicture picture = LoadPicture(Save(QStringLiteral("line.png"), {4000, 1}), Bounds);
  EXPECT_EQ(picture.preview.size(), QSize(320, 1));
}

TEST_F(PictureLoadingTest, GivesNoPictureForNoName) {
  const LoadedPicture picture = LoadPicture({}, Bounds);
  EXPECT_TRUE(picture.pixels.isEmpty());
  EXPECT_TRUE(picture.preview.isNull());
}

TEST_F(PictureLoadingTest, RaisesForAMissingFile) {
  EXPECT_EQ(ErrorOf([&] { LoadPicture(Path(QStringLiteral("none.png")), Bounds); }),
            ErrorNumber::FileNotFound);
}

TEST_F(PictureLoadingTest, RaisesForAFileThatIsNoPicture) {
  QFile file(folder.filePath(QStringLiteral("text.png")));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("not a picture at all");
  file.close();
  EXPECT_EQ(ErrorOf([&] { LoadPicture(Path(QStringLiteral("text.png")), Bounds); }),
            ErrorNumber::InvalidProcedureCall);
}

TEST_F(PictureLoadingTest, RaisesForAPictureCutShort) {
  QFile file(ToNative(Save(QStringLiteral("cut.png"), {200, 200})));
  ASSERT_TRUE(file.resize(60));
  EXPECT_EQ(ErrorOf([&] { LoadPicture(Path(QStringLiteral("cut.png")), Bounds); }),
            ErrorNumber::InvalidProcedureCall);
}

}  // namespace
}  // namespace velor
