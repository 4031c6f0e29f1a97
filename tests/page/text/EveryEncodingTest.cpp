// SPDX-License-Identifier: GPL-3.0-or-later
// A word changed in a page of each encoding of the web: every other byte stays, text or not.
#include "page/saving/FaithfulPage.h"
#include "page/saving/PageVerifier.h"
#include "tests/support/Checks.h"

#include <gtest/gtest.h>

namespace velor {

namespace {

/// The pages below are written out as an engine would write them, so they are their own documents.
class Echo : public PageVerifier {
 public:
  std::optional<QString> Serialisation(const QString &text) override {
    return WithLineEnds(text, LineEnds::Lf);
  }
};

/// The page with "one" made "one more".
SavedPage Save(const QByteArray &file) {
  FaithfulPage page({file, DecodePage(file), {}});
  Echo echo;
  page.SetBaseline(*echo.Serialisation(page.TextToLoad()));
  EXPECT_EQ(page.Compose(page.Baseline(), echo).page.bytes, file);
  QString now = page.Baseline();
  now.replace(QStringLiteral(" one "), QStringLiteral(" one more "));
  EXPECT_NE(now, page.Baseline());
  return page.Compose(now, echo);
}

QByteArray Edited(QByteArray file) {
  return file.replace(" one ", " one more ");
}

/// Every byte above ASCII before every other that is no sign of markup, valid in a charset or not.
QByteArray EveryPair() {
  QByteArray bytes;
  for (int lead = 0x80; lead <= 0xFF; ++lead) {
    for (int trail = 0x40; trail <= 0xFF; ++trail) {
      bytes += static_cast<char>(lead);
      bytes += static_cast<char>(trail);
      if (trail % 16 == 0) bytes += ' ';
    }
    bytes += "\r\n";
  }
  return bytes;
}

/// Between two words that a converter meets in its first state.
QByteArray Page(const QByteArray &label, const QByteArray &content) {
  const QByteArray meta = label.isEmpty() ? label : "<meta charset=\"" + label + "\">";
  return "<html><head>" + meta + "</head><body><p>" + content +
         "  \r\n one two\n</p>\r\n<p>last  " + content + "  end</p>\r</body></html>";
}

class EncodingsOfTheWeb : public ::testing::TestWithParam<const char *> {};

TEST_P(EncodingsOfTheWeb, KeepEveryByteThatWasNotEdited) {
  const QByteArray file = Page(GetParam(), EveryPair());
  ASSERT_EQ(DecodePage(file).encoding.charset, QLatin1String(GetParam()));
  const SavedPage saved = Save(file);
  EXPECT_EQ(saved.rung, SaveRung::Edits);
  EXPECT_TRUE(saved.page.bytes == Edited(file));
}

INSTANTIATE_TEST_SUITE_P(
    All, EncodingsOfTheWeb,
    ::testing::Values("utf-8", "ibm866", "iso-8859-2", "iso-8859-3", "iso-8859-4", "iso-8859-5",
                      "iso-8859-6", "iso-8859-7", "iso-8859-8", "iso-8859-8-i", "iso-8859-10",
                      "iso-8859-13", "iso-8859-14", "iso-8859-15", "iso-8859-16", "koi8-r",
                      "koi8-u", "macintosh", "windows-874", "windows-1250", "windows-1251",
                      "windows-1252", "windows-1253", "windows-1254", "windows-1255",
                      "windows-1256", "windows-1257", "windows-1258", "x-mac-cyrillic", "gbk",
                      "gb18030", "big5", "euc-jp", "iso-2022-jp", "shift_jis", "euc-kr"));

TEST(EveryEncoding, KeepsStatesAndWhatIsNoText) {
  const QByteArray file = Page("iso-2022-jp", "\x1b$BF|K\\\x1b(J \x1b(I12\x1b(B \x1b$@\xFF!\x1b(B");
  EXPECT_EQ(Save(file).page.bytes, Edited(file));
}

TEST(EveryEncoding, KeepsAnUndeclaredPage) {
  for (const QByteArray &content : {QByteArray("caf\xC3\xA9"), QByteArray("caf\xE9 \x81\xFF"),
                                    QByteArray("plain"), QByteArray("\xEF\xBF\xBD")}) {
    const QByteArray file = Page({}, content);
    EXPECT_EQ(Save(file).page.bytes, Edited(file));
  }
}

TEST(EveryEncoding, KeepsAPageWhoseLabelNobodyReads) {
  for (const char *label : {"klingon", "replacement", "iso-2022-kr", "x-user-defined", "utf-16"}) {
    const QByteArray file = Page(label, "caf\xE9 \x81\xFF");
    EXPECT_EQ(Save(file).page.bytes, Edited(file)) << label;
  }
}

enum class Order { Little, Big };

QByteArray TwoBytesEach(const QString &text, Order order) {
  QByteArray bytes;
  for (const QChar codeUnit : text) {
    const char low = static_cast<char>(codeUnit.unicode() & 0xFF);
    const char high = static_cast<char>(codeUnit.unicode() >> 8);
    bytes += order == Order::Little ? low : high;
    bytes += order == Order::Little ? high : low;
  }
  return bytes;
}

TEST(EveryEncoding, KeepsTwoBytesEachWithHalvesOfPairsAndALastByte) {
  const QString text = QString::fromLatin1(Page({}, "abc")) + QChar(0xD83D);
  QString content = text;
  content.replace(QStringLiteral("abc"), QString::fromUtf16(u"\u65e5\U0001F600") + QChar(0xDC00));
  for (const Order order : {Order::Little, Order::Big}) {
    const QByteArray mark = order == Order::Little ? "\xFF\xFE" : "\xFE\xFF";
    const QByteArray file = mark + TwoBytesEach(content, order) + 'x';
    QString edited = content;
    edited.replace(QStringLiteral(" one "), QStringLiteral(" one more "));
    EXPECT_EQ(Save(file).page.bytes, mark + TwoBytesEach(edited, order) + 'x');
  }
}

TEST(EveryEncoding, KeepsTwoBytesEachThatOnlyAnXmlDeclarationTells) {
  for (const Order order : {Order::Little, Order::Big}) {
    const QString content =
        QStringLiteral("<?xml version=\"1.0\"?>") + QString::fromLatin1(Page({}, "caf\xE9"));
    const QByteArray declared = TwoBytesEach(content, order);
    EXPECT_TRUE(DecodePage(declared).encoding.charset.startsWith(u"utf-16"));
    QString edited = content;
    edited.replace(QStringLiteral(" one "), QStringLiteral(" one more "));
    EXPECT_EQ(Save(declared).page.bytes, TwoBytesEach(edited, order));
  }
}

/// A page with the marked place "@" filled in, both in the file and in the document.
ErrorNumber ErrorOfAdding(const QByteArray &page, const QString &addition, QByteArray *bytes) {
  const QByteArray file = QByteArray(page).replace("@", "");
  FaithfulPage faithful({file, DecodePage(file), {}});
  Echo echo;
  faithful.SetBaseline(*echo.Serialisation(faithful.TextToLoad()));
  QString now = QString::fromLatin1(page);
  now.replace(u'@', addition);
  const ErrorNumber error = ErrorOf(
      [&] { *bytes = BytesForText(faithful.Original(), now, faithful.Original().page.encoding); });
  EXPECT_EQ(faithful.Compose(faithful.Baseline(), echo).page.bytes, file);
  return error;
}

TEST(WhatTheCharsetLacks, IsAReferenceWhereOneStandsForIt) {
  const QByteArray head = "<html><head><meta charset=big5>";
  for (const QByteArray &place :
       {QByteArray("<title>a@</title></head><body>b"), QByteArray("</head><body><p>a@b"),
        QByteArray("</head><body><p title=\"a@\">b"), QByteArray("</head><body><p title=a@>b"),
        QByteArray("</head><body><textarea>a@</textarea>"),
        QByteArray("</head><body><?php x ?>a@<% y %>")}) {
    QByteArray bytes;
    EXPECT_EQ(ErrorOfAdding(head + place, QStringLiteral("\U0001F600"), &bytes), ErrorNumber::None);
    EXPECT_EQ(bytes, head + QByteArray(place).replace("@", "&#128512;"));
  }
}

TEST(WhatTheCharsetLacks, IsRefusedWhereNoReferenceStandsForIt) {
  const QByteArray head = "<html><head><meta charset=big5>";
  for (const QByteArray &place :
       {QByteArray("<script>'a@'</script>"), QByteArray("<style>/*a@*/</style>"),
        QByteArray("<!-- a@ -->"), QByteArray("<p a@=1>b"), QByteArray("<a@>b"),
        QByteArray("<p class='<?= 'a@' ?>'>b"), QByteArray("<% a@ %>b"),
        QByteArray("<?php 'a@' ?>b"), QByteArray("<xmp>a@</xmp>")}) {
    QByteArray bytes;
    EXPECT_EQ(ErrorOfAdding(head + place, QStringLiteral("\u0142"), &bytes),
              ErrorNumber::InvalidProcedureCall)
        << place.toStdString();
  }
}

}  // namespace

}  // namespace velor
