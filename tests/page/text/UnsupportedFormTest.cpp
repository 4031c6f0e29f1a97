// SPDX-License-Identifier: GPL-3.0-or-later
#include "page/text/UnsupportedForm.h"

#include <QByteArray>

#include <gtest/gtest.h>

namespace velor {

namespace {

constexpr const char16_t *const Page = u"<html>\r\n<p>one caf\u00e9 \u65e5</p></html>\r\n";

enum class Order { Little, Big };
QByteArray InFourBytes(Order order, const QByteArray &mark = {}) {
  QByteArray bytes = mark;
  for (const QChar codeUnit : QStringView(Page)) {
    const char low = static_cast<char>(codeUnit.unicode() & 0xFF);
    const char high = static_cast<char>(codeUnit.unicode() >> 8);
    const char little[] = {low, high, 0, 0};
    const char big[] = {0, 0, high, low};
    bytes.append(order == Order::Little ? little : big, 4);
  }
  return bytes;
}

TEST(UnsupportedForms, KnowFourBytesACharacterByTheirMarkOrByThemselves) {
  for (const QByteArray &bytes :
       {InFourBytes(Order::Little, QByteArray("\xFF\xFE\0\0", 4)), InFourBytes(Order::Little),
        InFourBytes(Order::Big, QByteArray("\0\0\xFE\xFF", 4)), InFourBytes(Order::Big)})
    EXPECT_EQ(UnsupportedFormOf(bytes), UnsupportedForm::Utf32);
}

TEST(UnsupportedForms, KnowUtf7ByItsMarkOrDeclaration) {
  for (const char *bytes :
       {"+/v8-<p>one", "<meta charset=utf-7><p>+AGEAYg-",
        "<META HTTP-EQUIV=Content-Type CONTENT=\"text/html; charset=UTF-7\"><p>",
        "<?xml version='1.0' encoding='utf-7'?><p>"})
    EXPECT_EQ(UnsupportedFormOf(bytes), UnsupportedForm::Utf7) << bytes;
}

TEST(UnsupportedForms, KnowThePagesOfMainframes) {
  // <html><p>one two three</p></html> in code page 037
  const QByteArray bytes =
      QByteArray::fromHex("4C88A394936E4C976E969585 40A3A696 40A3889985854C61976E4C6188A394936E");
  EXPECT_EQ(UnsupportedFormOf(bytes), UnsupportedForm::Ebcdic);
}

TEST(UnsupportedForms, KnowFilesThatAreNoText) {
  QByteArray noise;
  for (int at = 0; at < 3000; ++at) noise += static_cast<char>((at * 7919) >> 3);
  for (const QByteArray &bytes :
       {QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16), QByteArray("GIF89a\x01\0\x01\0", 10),
        QByteArray("PK\x03\x04"), QByteArray("%PDF-1.4\nwords"), QByteArray("\0\0\0\0\0\0\0\0", 8),
        noise})
    EXPECT_EQ(UnsupportedFormOf(bytes), UnsupportedForm::Binary) << bytes.left(8).toHex().data();
}

TEST(UnsupportedForms, LetPagesPass) {
  const QByteArray utf16 =
      QByteArray::fromRawData(reinterpret_cast<const char *>(Page), QStringView(Page).size() * 2);
  for (const QByteArray &bytes :
       {QByteArray(), QByteArray("<"), QByteArray("<p>one"), QByteArray("\xEF\xBB\xBF<p>one"),
        "\xFF\xFE" + utf16, utf16, QByteArray("<p>caf\xE9 \xFF\xFE\x81"),
        QByteArray("<p>a NUL \0 and the end \x1a", 23), QByteArray("\x1b$BF|K\\\x1b(B <p>\f"),
        QByteArray("Lorem ipsum, no tag at all"), QByteArray("L\xE9on"), QByteArray("plain +/v8"),
        QByteArray("<meta charset=utf-8><p>of utf-7"), QByteArray("MZ, GIF8 and PK are words")})
    EXPECT_EQ(UnsupportedFormOf(bytes), std::nullopt) << bytes.toHex().data();
}

TEST(UnsupportedForms, AreSaidInWords) {
  EXPECT_EQ(InWords(UnsupportedForm::Utf32),
            QStringLiteral("UTF-32, which is none of the charsets that pages may have"));
  EXPECT_EQ(InWords(UnsupportedForm::Binary), QStringLiteral("a binary file, which is no text"));
}

}  // namespace

}  // namespace velor
