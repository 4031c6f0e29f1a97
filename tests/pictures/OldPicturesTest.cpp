// SPDX-License-Identifier: GPL-3.0-or-later
#include "pictures/OldPictures.h"

#include <algorithm>
#include <array>
#include <gtest/gtest.h>

namespace velor {
namespace {

struct Sample {
  const char *name;
  const char *ending;
  QByteArray bytes;
};

QByteArray Hex(const char *digits) {
  return QByteArray::fromHex(digits);
}

/// The first bytes of a PCX file's head, and those from its 65th on.
QByteArray PcxHead(const char *first, const char *later) {
  const QByteArray head = Hex(first).leftJustified(64, '\0') + Hex(later);
  return head.leftJustified(128, '\0');
}

/// The same picture as an image program writes it in each format: three pixels by two, all red but
/// for a green one (#00FF80) at (1, 0) and a blue one (#0000FF) at (2, 1).
const Sample &SampleOf(std::size_t index) {
  static const std::array<Sample, 8> samples{{
      {"TGA with run lengths", "tga",
       Hex("00000a000000000000000000030002001820"
           "020000ff80ff000000ff020000ff0000ffff0000")},
      {"TGA from the bottom, without its footer", "tga",
       Hex("000002000000000000000000030002001800"
           "0000ff0000ffff00000000ff80ff000000ff")},
      {"TGA from the right", "tga",
       Hex("000002000000000000000000030002001830"
           "0000ff80ff000000ffff00000000ff0000ff")},
      {"TGA with a table of colours", "tga",
       Hex("000109000003001800000000030002000820"
           "0000ffff000080ff00020002000200 0001")},
      {"PCX in true colour", "pcx",
       PcxHead("0a0501080000000002000100", "00030300") +
           Hex("c1ff00c1ff00c1ff00008000c2ff00c300c200c1ff")},
      {"PCX with 256 colours", "pcx",
       PcxHead("0a0501080000000002000100", "00010300") + Hex("000200c200010c") +
           Hex("ff00000000ff00ff80").leftJustified(768, '\0')},
      {"Sun raster in true colour", "ras",
       Hex("59a66a95000000030000000200000018000000120000000300000000000000 00"
           "ff000000ff80ff000000ff0000ff00000000ff00")},
      {"Sun raster with a table of colours and run lengths", "ras",
       Hex("59a66a95000000030000000200000008000000080000000200000001000000 0c"
           "ff0000ff00ff00ff0080ffff 0001 800300 0200")},
  }};
  return samples[index];
}
constexpr std::size_t SampleCount = 8;

QImage Read(const Sample &sample, const QByteArray &bytes) {
  return ReadOldPicture(bytes, QString::fromLatin1(sample.ending));
}

TEST(OldPictures, ReadTheSamePictureFromEveryFormat) {
  for (std::size_t index = 0; index < SampleCount; ++index) {
    const Sample &sample = SampleOf(index);
    const QImage image = Read(sample, sample.bytes);
    ASSERT_EQ(image.size(), QSize(3, 2)) << sample.name;
    for (int y = 0; y < 2; ++y) {
      for (int x = 0; x < 3; ++x) {
        const QRgb expected = x == 1 && y == 0   ? qRgb(0, 255, 128)
                              : x == 2 && y == 1 ? qRgb(0, 0, 255)
                                                 : qRgb(255, 0, 0);
        EXPECT_EQ(image.pixel(x, y), expected) << sample.name << ' ' << x << ' ' << y;
      }
    }
  }
}

TEST(OldPictures, ReadOneBitAPixel) {
  const QImage pcx = ReadOldPicture(PcxHead("0a0501010000000002000000", "00010200") + Hex("c1a000"),
                                    QStringLiteral("pcx"));
  const QImage ras =
      ReadOldPicture(Hex("59a66a950000000300000001000000010000000200000001000000000000000040 00"),
                     QStringLiteral("ras"));
  for (const QImage &image : {pcx, ras}) {
    ASSERT_EQ(image.size(), QSize(3, 1));
    EXPECT_EQ(image.pixel(0, 0), qRgb(255, 255, 255));
    EXPECT_EQ(image.pixel(1, 0), qRgb(0, 0, 0));
    EXPECT_EQ(image.pixel(2, 0), qRgb(255, 255, 255));
  }
}

TEST(OldPictures, ReadGreyAndTransparentTga) {
  const QImage grey =
      ReadOldPicture(Hex("00000b00000000000000000002000100082081c0"), QStringLiteral("tga"));
  ASSERT_EQ(grey.size(), QSize(2, 1));
  EXPECT_EQ(grey.pixel(1, 0), qRgb(0xC0, 0xC0, 0xC0));
  const QImage clear =
      ReadOldPicture(Hex("0000020000000000000000000100010020280000ff80"), QStringLiteral("tga"));
  EXPECT_EQ(clear.pixel(0, 0), qRgba(255, 0, 0, 128));
}

TEST(OldPictures, APictureCutShortIsNone) {
  for (std::size_t index = 0; index < SampleCount; ++index) {
    const Sample &sample = SampleOf(index);
    const bool hasTableAtEnd = sample.bytes.size() > 768;
    const qsizetype needed = hasTableAtEnd ? 128 + 6 : sample.bytes.size();
    for (qsizetype length = 0; length < needed; ++length)
      EXPECT_TRUE(Read(sample, sample.bytes.left(length)).isNull()) << sample.name << ' ' << length;
  }
}

TEST(OldPictures, AnyBytesAreReadWithoutHarm) {
  for (std::size_t index = 0; index < SampleCount; ++index) {
    const Sample &sample = SampleOf(index);
    const qsizetype touched = std::min<qsizetype>(sample.bytes.size(), 150);
    for (qsizetype place = 0; place < touched; ++place) {
      for (const int value : {0, 1, 127, 128, 255}) {
        QByteArray bytes = sample.bytes;
        bytes[place] = static_cast<char>(value);
        const QImage image = Read(sample, bytes);
        EXPECT_LE(image.width(), 65536) << sample.name << ' ' << place;
      }
    }
  }
}

TEST(OldPictures, OtherEndingsAreLeftToQt) {
  EXPECT_TRUE(ReadOldPicture(SampleOf(0).bytes, QStringLiteral("bmp")).isNull());
}

}  // namespace
}  // namespace velor
