// SPDX-License-Identifier: GPL-3.0-or-later
// The decoders of the Encoding Standard: what its indexes hold, and what becomes of bytes that are
// no text.
#include "page/text/CharsetConverter.h"
#include "page/text/CharsetIndex.h"
#include "page/text/PageEncoding.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace velor {
namespace {

using namespace Qt::StringLiterals;

struct Size {
  const char *charset;
  std::ptrdiff_t pairs;
};

void PrintTo(const Size &size, std::ostream *out) {
  *out << size.charset;
}

std::ptrdiff_t Count(const std::vector<char32_t> &characters) {
  return std::count_if(characters.begin(), characters.end(), [](char32_t c) { return c != 0; });
}

class Indexes : public ::testing::TestWithParam<Size> {};

TEST_P(Indexes, HaveAsManyCharactersAsTheStandards) {
  EXPECT_EQ(Count(IndexOf(QLatin1String(GetParam().charset)).pairs), GetParam().pairs);
}

// Big5 less the four letters with accents that it has no character for; JIS X 0208 with half-width
// katakana in EUC-JP, with what a user may define in Shift_JIS.
INSTANTIATE_TEST_SUITE_P(All, Indexes,
                         ::testing::Values(Size{"big5", 18590}, Size{"euc-kr", 17048},
                                           Size{"gbk", 23940}, Size{"gb18030", 23940},
                                           Size{"euc-jp", 7336 + 63},
                                           Size{"shift_jis", 7724 + 1880}));

TEST(TheIndexOfEucJp, HasTheStandardsSupplement) {
  EXPECT_EQ(Count(IndexOf(QStringLiteral("euc-jp")).triples), 6067);
}

struct Reading {
  const char *charset;
  QByteArray bytes;
  QString text;
};

void PrintTo(const Reading &reading, std::ostream *out) {
  *out << reading.charset << ' ' << reading.bytes.toHex(' ').constData();
}

class Readings : public ::testing::TestWithParam<Reading> {};

TEST_P(Readings, AreTheStandards) {
  const Reading &reading = GetParam();
  CharsetConverter converter{QString::fromLatin1(reading.charset)};
  EXPECT_EQ(converter.Decode(reading.bytes), reading.text);
}

TEST_P(Readings, TellWhereEachCharacterBegins) {
  const Reading &reading = GetParam();
  CharsetConverter converter{QString::fromLatin1(reading.charset)};
  std::vector<std::int32_t> offsets;
  const QString text = converter.Decode(reading.bytes, offsets);
  ASSERT_EQ(static_cast<qsizetype>(offsets.size()), text.size());
  EXPECT_TRUE(std::is_sorted(offsets.begin(), offsets.end()));
  for (qsizetype codeUnit = 0; codeUnit < text.size(); ++codeUnit) {
    const char byte = reading.bytes[offsets[static_cast<std::size_t>(codeUnit)]];
    if (text[codeUnit].unicode() >= 0x80) continue;
    EXPECT_EQ(text[codeUnit], QLatin1Char(byte));
  }
}

INSTANTIATE_TEST_SUITE_P(
    OfOneByte, Readings,
    ::testing::Values(Reading{"windows-1252", "\x80\x81\x8D\x9D\xFF", u"€\u0081\u008D\u009Dÿ"_qs},
                      Reading{"windows-1253", "\xAA\xD2\xFF\xC1", u"\uFFFD\uFFFD\uFFFDΑ"_qs},
                      Reading{"windows-1255", "\xCA\xD9", u"\u05BA\uFFFD"_qs},
                      Reading{"windows-874", "\xDB\xFC\xDF", u"\uFFFD\uFFFD฿"_qs},
                      Reading{"iso-8859-16", "\x80\xA4\xA5\xAA\xBA\xC3\xDE\xE3\xFE\xFF",
                              u"\u0080€„ȘșĂȚățÿ"_qs},
                      Reading{"koi8-u", "\xAE\xBE\xA4", u"ўЎє"_qs},
                      Reading{"ibm866", "\x1A\x1C\x7F\x80", u"\x1A\x1C\x7FА"_qs},
                      Reading{"macintosh", "\xDB\xF0\xBD", u"€\uF8FFΩ"_qs},
                      Reading{"x-mac-cyrillic", "\xA2\xB6\xFF", u"Ґґ€"_qs},
                      Reading{"iso-8859-8-i", "\xE0\xFD\xA1", u"א\u200E\uFFFD"_qs}));

INSTANTIATE_TEST_SUITE_P(
    Big5, Readings,
    ::testing::Values(Reading{"big5", "\xA4\xA4\x87\x40\x8E\x69\x88\x62\x88\xA5", u"中䏰箸Ê̄ê̌"_qs},
                      Reading{"big5", "\x87\xA4\x88\x40\xC8\xA3", u"龗㇀龱"_qs},
                      // A byte of ASCII is never swallowed, one beyond it is.
                      Reading{"big5", "\x81\x40\xA4<p>\xA4\"\x80\xFF\xA4\xFF!\xA4",
                              u"\uFFFD@\uFFFD<p>\uFFFD\"\uFFFD\uFFFD\uFFFD!\uFFFD"_qs}));

INSTANTIATE_TEST_SUITE_P(Korean, Readings,
                         ::testing::Values(Reading{"euc-kr", "\xB0\xA1\x81\x41\xC8\xFE",
                                                   u"가갂힝"_qs},
                                           Reading{"euc-kr", "\x80\xFF\xC9\xA1\xB0<\xB0\xFF>\xB0",
                                                   u"\uFFFD\uFFFD\uFFFD\uFFFD<\uFFFD>\uFFFD"_qs}));

INSTANTIATE_TEST_SUITE_P(
    Chinese, Readings,
    ::testing::Values(Reading{"gbk", "\x80\xC4\xE3\x81\x40\xA3\xA0", u"€你丂\u3000"_qs},
                      Reading{"gb18030", "\xA6\xD9\xFE\x59\xA8\xBC\xFE\x51", u"︐龴ḿ\uE816"_qs},
                      Reading{"gb18030",
                              "\x81\x30\x81\x30\x94\x39\xFC\x36\x90\x30\x81\x30\x81\x35\xF4\x37",
                              u"\u0080😀\U00010000\uE7C7"_qs},
                      Reading{"gbk", "\x94\x39\xFC\x36\x84\x31\xA4\x37", u"😀\uFFFD"_qs},
                      Reading{"gbk", "\xC4<\xFF\x81\x30<\x81\x30\x81<\x81\x30\x81\x30\xC4",
                              u"\uFFFD<\uFFFD\uFFFD0<\uFFFD0\uFFFD<\u0080\uFFFD"_qs},
                      Reading{"gbk", "a\x81\x30\x81", u"a\uFFFD"_qs},
                      Reading{"gbk", "a\x81\x30", u"a\uFFFD"_qs}));

INSTANTIATE_TEST_SUITE_P(
    Japanese, Readings,
    ::testing::Values(
        Reading{"shift_jis", "\x93\xFA\x96\x7B\xB1\x5C\x7E\x80\xED\x40\xF0\x40",
                u"日本ｱ\\~\u0080纊\uE000"_qs},
        Reading{"shift_jis", "\x1A\x1C\x7F\x81<\xA0\xFD\x81\xFD!\x81",
                u"\x1A\x1C\x7F\uFFFD<\uFFFD\uFFFD\uFFFD!\uFFFD"_qs},
        Reading{"euc-jp", "\xC6\xFC\x8E\xB1\x8F\xB0\xA1\xAD\xA1", u"日ｱ丂①"_qs},
        Reading{"euc-jp", "\x80\x9F\xFF\x8E\xE0\x8F<\x8F\xA1<\x8F\xF3\xA1\xC6>\xC6\xFF.\x8F\xA1",
                u"\uFFFD\uFFFD\uFFFD\uFFFD\uFFFD<\uFFFD<\uFFFD\uFFFD>\uFFFD.\uFFFD"_qs},
        Reading{"iso-2022-jp", "a\x1b$BF|K\\\x1b(Bb\x1b(J\\~\x1b(I1\x1b$@F|", u"a日本b¥‾ｱ日"_qs},
        // An escape sequence that is none, two in a row, one within a character.
        Reading{"iso-2022-jp", "\x1b(X\x1b$B\x1b(Ba\x1b$BF\x1b(B\xE9\x0E\x1b$BF",
                u"\uFFFD(X\uFFFDa\uFFFD\uFFFD\uFFFD\uFFFD"_qs},
        Reading{"iso-2022-jp", "\x1b$BF|\n\x1b", u"日\uFFFD\uFFFD"_qs}));

TEST(Written, IsWhatEveryReaderOfTheCharsetKnows) {
  const auto written = [](const char *charset, const QString &text) {
    return CharsetConverter(QLatin1String(charset)).Encode(text);
  };
  EXPECT_EQ(written("iso-8859-16", u"șț€"_qs), "\xBA\xFE\xA4");
  EXPECT_EQ(written("koi8-u", u"ў"_qs), "\xAE");
  EXPECT_EQ(written("shift_jis", u"纊ｱ\x7F"_qs), "\xFA\x5C\xB1\x7F");
  EXPECT_EQ(written("shift_jis", u"¥‾\uE000"_qs), "&#165;&#8254;&#57344;");
  EXPECT_EQ(written("big5", u"十卅═"_qs), "\xA4\x51\xA4\xCA\xF9\xF9");
  EXPECT_EQ(written("big5", u"䏰"_qs), "&#17392;");
  EXPECT_EQ(written("euc-jp", u"日ｱ丂"_qs), "\xC6\xFC\x8E\xB1&#19970;");
  EXPECT_EQ(written("iso-2022-jp", u"日ｱ\x1b日"_qs), "\x1b$BF|\x1b(B&#65393;&#27;\x1b$BF|\x1b(B");
  EXPECT_EQ(written("gbk", u"€\u3000\u0080"_qs), "\xA2\xE3\xA1\xA1&#128;");
  EXPECT_EQ(written("gb18030", u"€\u0080😀"_qs), "\xA2\xE3\x81\x30\x81\x30\x94\x39\xFC\x36");
}

/// Every character of the BMP, in every charset: what is written is read as the same.
TEST(Written, ReadsBack) {
  QString all;
  for (int codeUnit = 0x20; codeUnit < 0xFFFE; ++codeUnit)
    if (!QChar(codeUnit).isSurrogate()) all += QChar(codeUnit);
  for (const char *charset :
       {"ibm866", "iso-8859-2", "iso-8859-16", "koi8-u", "macintosh", "windows-874", "windows-1252",
        "windows-1253", "windows-1255", "big5", "gbk", "gb18030", "euc-jp", "euc-kr", "shift_jis",
        "iso-2022-jp", "utf-8", "utf-16le"}) {
    CharsetConverter converter{QString::fromLatin1(charset)};
    QString writable;
    for (const QChar codeUnit : all)
      if (converter.FirstReference(QStringView(&codeUnit, 1)) < 0) writable += codeUnit;
    EXPECT_TRUE(converter.Decode(converter.Encode(writable)) == writable) << charset;
  }
}

}  // namespace
}  // namespace velor
