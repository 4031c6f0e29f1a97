// SPDX-License-Identifier: GPL-3.0-or-later
#include "page/saving/CharsetChange.h"
#include "page/text/CharsetRange.h"
#include "page/text/PageEncoding.h"
#include "tests/support/Checks.h"

namespace velor {
namespace {

using namespace Qt::StringLiterals;

QByteArray WithMeta(const char *charset, const QByteArray &body) {
  return "<html><head><meta charset=\"" + QByteArray(charset) + "\"></head><body>" + body;
}

QString CharsetOf(const QByteArray &bytes) {
  return DecodePage(bytes).encoding.charset;
}

TEST(DecodePage, TakesAByteOrderMarkBeforeAnythingDeclared) {
  const DecodedPage utf8 = DecodePage("\xEF\xBB\xBF" + WithMeta("big5", "\xC3\xA4"));
  EXPECT_EQ(utf8.encoding.charset, "utf-8");
  EXPECT_TRUE(utf8.encoding.byteOrderMark);
  EXPECT_TRUE(utf8.text.startsWith("<html>"));
  EXPECT_TRUE(utf8.text.endsWith(QChar(0xE4)));

  const DecodedPage little = DecodePage(QByteArray("\xFF\xFE<\0p\0>\0\x2D\x4E", 10));
  EXPECT_EQ(little.encoding.charset, "utf-16le");
  EXPECT_EQ(little.text, QString::fromUtf8("<p>中"));
  const DecodedPage big = DecodePage(QByteArray("\xFE\xFF\0<\0p\0>\x4E\x2D", 10));
  EXPECT_EQ(big.encoding.charset, "utf-16be");
  EXPECT_EQ(big.text, QString::fromUtf8("<p>中"));
}

TEST(DecodePage, ReadsUndeclaredBytesAsUtf8WhereTheyAreValid) {
  EXPECT_EQ(CharsetOf("<p>caf\xC3\xA9"), "utf-8");
  EXPECT_EQ(CharsetOf("<p>plain"), "utf-8");
  EXPECT_EQ(CharsetOf(""), "utf-8");
  EXPECT_EQ(CharsetOf("<p>caf\xE9"), "windows-1252");
  EXPECT_EQ(DecodePage("<p>caf\xE9").text, QString::fromUtf8("<p>café"));
}

TEST(DecodePage, ReadsEveryByteOfWindows1252) {
  QByteArray bytes;
  for (int i = 0; i < 256; ++i) bytes += static_cast<char>(i);
  const DecodedPage page = DecodePage(bytes);
  EXPECT_EQ(page.encoding.charset, "windows-1252");
  ASSERT_EQ(page.text.size(), 256);
  EXPECT_FALSE(page.text.contains(QChar(0xFFFD)));
  EXPECT_EQ(page.text[0x81], QChar(0x81));
  EXPECT_EQ(page.text[0x80], QChar(0x20AC));
  EXPECT_EQ(EncodePage(page.text, page.encoding), bytes);
}

TEST(DecodePage, CountsAnUnknownCharsetAsUndeclared) {
  EXPECT_EQ(CharsetOf(WithMeta("klingon", "\xC3\xA9")), "utf-8");
  EXPECT_EQ(CharsetOf(WithMeta("klingon", "\xE9")), "windows-1252");
  // What browsers refuse to show must survive an editor.
  EXPECT_EQ(CharsetOf(WithMeta("iso-2022-kr", "\x1B$)C\x0E!!\x0F")), "utf-8");
}

TEST(DecodePage, GivesReplacementCharactersForBytesThatAreNoText) {
  const DecodedPage page = DecodePage(WithMeta("utf-8", "a\xFF\xC3(b"));
  EXPECT_TRUE(page.text.endsWith(QString::fromUtf8("a\uFFFD\uFFFD(b")));
  EXPECT_TRUE(DecodePage(WithMeta("big5", "a\xA4")).text.endsWith(QString::fromUtf8("a\uFFFD")));
}

TEST(DecodePage, KeepsNulCharactersAndSurvivesGarbage) {
  EXPECT_EQ(DecodePage(QByteArray("a\0b", 3)).text, QString(QLatin1String("a\0b", 3)));
  QByteArray garbage(100'000, Qt::Uninitialized);
  quint32 state = 1;
  for (char &byte : garbage) {
    state = state * 1664525 + 1013904223;
    byte = static_cast<char>(state >> 24);
  }
  for (const char *charset : {"utf-8", "big5", "gbk", "shift_jis", "euc-jp", "euc-kr",
                              "iso-2022-jp", "gb18030", "koi8-r"}) {
    EXPECT_FALSE(DecodePage(WithMeta(charset, garbage)).text.isEmpty()) << charset;
  }
}

TEST(DecodePage, ReadsTwentyMegabytes) {
  const QByteArray row = "<p>\xA4\xA4\xA4\xE5 text</p>\r\n";
  const QByteArray bytes = WithMeta("big5", row.repeated(20 * 1024 * 1024 / row.size()));
  const DecodedPage page = DecodePage(bytes);
  EXPECT_EQ(page.encoding.charset, "big5");
  EXPECT_EQ(EncodePage(page.text, page.encoding), bytes);
}

struct Declaration {
  const char *html;
  const char *charset;
};

class Declarations : public testing::TestWithParam<Declaration> {};

TEST_P(Declarations, AreReadByTheStandardsPrescan) {
  const QByteArray html = GetParam().html;
  EXPECT_EQ(CharsetOf(html + "<p>\xE9"), GetParam().charset);
}

INSTANTIATE_TEST_SUITE_P(
    All, Declarations,
    testing::Values(
        Declaration{"<meta charset=big5>", "big5"}, Declaration{"<META CHARSET='Big5'>", "big5"},
        Declaration{"<meta/charset = \" Latin2 \" >", "iso-8859-2"},
        Declaration{"<meta http-equiv=Content-Type content='text/html; charset=big5'>", "big5"},
        Declaration{"<meta content=\"text/html; charset = 'koi8-r'\" http-equiv=content-type>",
                    "koi8-r"},
        Declaration{"<meta content=\"text/html; charset=koi8-r; x\" http-equiv=content-type>",
                    "koi8-r"},
        Declaration{"<meta content=\"charset charset=gb2312\" http-equiv=content-type>", "gbk"},
        Declaration{"<meta content='text/html; charset=big5'>", "windows-1252"},
        Declaration{"<meta name=a content='text/html; charset=big5'><meta charset=koi8-r>",
                    "koi8-r"},
        Declaration{"<meta charset=nonsense><meta charset=koi8-r>", "koi8-r"},
        Declaration{"<meta charset=nonsense http-equiv=content-type content='a;charset=big5'>",
                    "windows-1252"},
        Declaration{"<meta http-equiv=content-type content='a;charset=big5' charset=koi8-r>",
                    "koi8-r"},
        Declaration{"<meta content='a;charset=big5' content='a;charset=koi8-r' "
                    "http-equiv=content-type>",
                    "big5"},
        Declaration{"<meta content='a;charset=\"big5' http-equiv=content-type>", "windows-1252"},
        Declaration{"<meta http-equiv=content-type content='a;charset=utf-16be'>", "utf-8"},
        Declaration{"<meta charset='\xA0koi8-r'>", "windows-1252"},
        Declaration{"<title><meta charset=big5></title>", "big5"},
        Declaration{"<script>'<meta charset=big5>'</script>", "big5"},
        Declaration{"<meta charset=koi8-r charset=big5>", "koi8-r"},
        Declaration{"<!-- <meta charset=big5> --><meta charset=koi8-r>", "koi8-r"},
        Declaration{"<!--><meta charset=koi8-r>", "koi8-r"},
        Declaration{"<p title='<meta charset=big5>'><meta charset=koi8-r>", "koi8-r"},
        Declaration{"<!doctype x><?php <meta charset=big5 ?><meta charset=koi8-r>", "koi8-r"},
        Declaration{"</p title='<meta charset=big5>'><meta charset=koi8-r>", "koi8-r"},
        Declaration{"<metacharset=big5>", "windows-1252"},
        Declaration{"<meta charset=utf-16>", "utf-8"},
        Declaration{"<meta charset=x-user-defined>", "windows-1252"},
        Declaration{"<?xml version=\"1.0\" encoding=\"iso-8859-2\"?>", "iso-8859-2"},
        Declaration{"<?xml version=\"1.0\" encoding=\"iso-8859-2\"?><meta charset=koi8-r>",
                    "koi8-r"},
        Declaration{"<meta charset=\"big5>", "windows-1252"},
        Declaration{"<meta content='charset=' http-equiv=content-type>", "windows-1252"},
        Declaration{"<", "windows-1252"}, Declaration{"<!--", "windows-1252"}));

TEST(DecodePage, FindsALateDeclarationInTheHeadOnly) {
  const QByteArray meta = "<meta charset=koi8-r>";
  const QByteArray filling(2000, 'x');
  EXPECT_EQ(CharsetOf(QByteArray(1024 - meta.size(), ' ') + meta + "\xE9"), "koi8-r");
  EXPECT_EQ(CharsetOf(QByteArray(1030 - meta.size(), ' ') + meta + "\xE9"), "koi8-r");
  for (const char *before : {"<!--%-->", "<script>'<p>%'</script>", "<title>%</title>",
                             "<style>%</style>", "<meta name=description content='%'>"}) {
    const QByteArray start = QByteArray("<html><head>") + QByteArray(before).replace("%", filling);
    EXPECT_EQ(CharsetOf(start + meta + "\xE9"), "koi8-r") << before;
    EXPECT_EQ(CharsetOf(start + "<META http-equiv=content-type content='a;charset=big5'>\xE9"),
              "big5")
        << before;
    EXPECT_EQ(CharsetOf(start + "<body>" + meta + "\xE9"), "windows-1252") << before;
  }
  EXPECT_EQ(CharsetOf("<p>" + filling + "</p>" + meta + "\xE9"), "windows-1252");
  EXPECT_EQ(CharsetOf("<title>" + filling + "</title></head>" + meta + "\xE9"), "windows-1252");
  EXPECT_EQ(CharsetOf("<title>" + filling + meta + "</title>\xE9"), "windows-1252");
  EXPECT_EQ(CharsetOf("<!--" + filling + meta + "-->\xE9"), "windows-1252");
  EXPECT_EQ(DeclaredEncoding(QString::fromLatin1("<!--" + filling + "-->" + meta)).charset,
            "koi8-r");
}

struct Sample {
  const char *label;
  const char *text;
};

class Charsets : public testing::TestWithParam<Sample> {};

TEST_P(Charsets, RoundTrip) {
  const QString text = QString::fromUtf8(GetParam().text);
  PageEncoding encoding;
  encoding.charset = CharsetForLabel(QString::fromLatin1(GetParam().label));
  ASSERT_FALSE(encoding.charset.isEmpty());
  const QByteArray bytes = EncodePage(text, encoding);
  EXPECT_FALSE(bytes.contains('&')) << bytes.toStdString();

  const QByteArray page = WithMeta(GetParam().label, bytes);
  const DecodedPage decoded = DecodePage(page);
  EXPECT_EQ(decoded.encoding.charset, encoding.charset);
  EXPECT_TRUE(decoded.text.endsWith(text)) << decoded.text.toStdString();
  EXPECT_EQ(EncodePage(decoded.text, decoded.encoding), page);
}

INSTANTIATE_TEST_SUITE_P(
    All, Charsets,
    testing::Values(Sample{"big5", "網頁編輯器 \\ ~"}, Sample{"gb2312", "网页编辑器"},
                    Sample{"gb18030", "网页 ä 😀"}, Sample{"shift_jis", "日本語 ﾃｽﾄ \\~"},
                    Sample{"euc-jp", "日本語テスト"}, Sample{"iso-2022-jp", "日本語 and テスト"},
                    Sample{"euc-kr", "한국어 뷁"}, Sample{"koi8-r", "Привет"},
                    Sample{"koi8-u", "Їжак"}, Sample{"ibm866", "Привет"},
                    Sample{"macintosh", "Ünïcode"}, Sample{"x-mac-cyrillic", "Привет"},
                    Sample{"windows-874", "ไทย"}, Sample{"windows-1250", "Žluťoučký"},
                    Sample{"windows-1251", "Привет"}, Sample{"windows-1252", "“café” €"},
                    Sample{"windows-1253", "Ελληνικά"}, Sample{"windows-1254", "Türkçe ğış"},
                    Sample{"windows-1255", "שלום"}, Sample{"windows-1256", "مرحبا"},
                    Sample{"windows-1257", "Ąžuolas"}, Sample{"windows-1258", "Đông"},
                    Sample{"iso-8859-1", "café"}, Sample{"iso-8859-2", "Žluťoučký"},
                    Sample{"iso-8859-3", "Ħ"}, Sample{"iso-8859-4", "Ą"},
                    Sample{"iso-8859-5", "Привет"}, Sample{"iso-8859-6", "مرحبا"},
                    Sample{"iso-8859-7", "Ελληνικά"}, Sample{"iso-8859-8", "שלום"},
                    Sample{"iso-8859-8-i", "שלום"}, Sample{"iso-8859-9", "Türkçe"},
                    Sample{"iso-8859-10", "Đ"}, Sample{"iso-8859-13", "Ą"},
                    Sample{"iso-8859-14", "Ŵ"}, Sample{"iso-8859-15", "€"},
                    Sample{"utf-8", "網頁 é 😀"}));

TEST(EncodePage, WritesUtf16WithItsMark) {
  for (const char *charset : {"utf-16le", "utf-16be"}) {
    const PageEncoding encoding{QString::fromLatin1(charset), true, LineEnds::Lf};
    const QString text = QString::fromUtf8("<p>網\n😀");
    const DecodedPage page = DecodePage(EncodePage(text, encoding));
    EXPECT_EQ(page.text, text);
    EXPECT_EQ(page.encoding, encoding);
  }
}

TEST(EncodePage, WritesWhatTheCharsetLacksAsDecimalReferences) {
  EXPECT_EQ(EncodePage(QString::fromUtf8("a日b"), {"windows-1252"}), "a&#26085;b");
  EXPECT_EQ(EncodePage(QString::fromUtf8("😀"), {"big5"}), "&#128512;");
  EXPECT_EQ(EncodePage(QString::fromUtf8("日😀é"), {"gbk"}), "\xC8\xD5&#128512;\xA8\xA6");
  EXPECT_EQ(EncodePage(QString::fromUtf8("é日本é"), {"iso-2022-jp"}),
            "&#233;\x1B$BF|K\\\x1B(B&#233;");
  EXPECT_EQ(EncodePage(QString::fromUtf8("ł"), {"shift_jis"}), "&#322;");
  EXPECT_EQ(EncodePage(QString::fromUtf8("中é"), {"big5"}), "\xA4\xA4&#233;");
}

TEST(EncodePage, WritesHalfASurrogatePairAsAReplacementCharacter) {
  const QString broken = u"a"_qs + QChar(0xD83D) + u"b"_qs + QChar(0xDE00);
  EXPECT_EQ(EncodePage(broken, {"utf-8"}),
            "a\xEF\xBF\xBD"
            "b\xEF\xBF\xBD");
  EXPECT_EQ(EncodePage(broken, {"big5"}), "a&#65533;b&#65533;");
}

TEST(EncodePage, KeepsTheMarkOfAUtf8Page) {
  const QByteArray bytes = "\xEF\xBB\xBF<p>\xC3\xA9\r\n";
  const DecodedPage page = DecodePage(bytes);
  EXPECT_EQ(EncodePage(page.text, page.encoding), bytes);
}

TEST(LineEndsOfAPage, AreTheMostCommonForm) {
  const auto ends = [](const char *bytes) { return DecodePage(bytes).encoding.lineEnds; };
  EXPECT_EQ(ends("none"), LineEnds::CrLf);
  EXPECT_EQ(ends("a\nb\nc\r\nd"), LineEnds::Lf);
  EXPECT_EQ(ends("a\r\nb\r\nc\nd"), LineEnds::CrLf);
  EXPECT_EQ(ends("a\rb\rc\n"), LineEnds::Cr);
  EXPECT_EQ(ends("a\r\n\r\n\n\r"), LineEnds::CrLf);
}

TEST(WithLineEnds, GivesEveryBreakTheOneForm) {
  const QString mixed = "a\r\nb\rc\nd\r\r\n\n";
  EXPECT_EQ(WithLineEnds(mixed, LineEnds::Lf), "a\nb\nc\nd\n\n\n");
  EXPECT_EQ(WithLineEnds(mixed, LineEnds::CrLf), "a\r\nb\r\nc\r\nd\r\n\r\n\r\n");
  EXPECT_EQ(WithLineEnds(mixed, LineEnds::Cr), "a\rb\rc\rd\r\r\r");
}

TEST(DeclaredEncoding, IsWhatTheTextSaysOfItself) {
  const PageEncoding big5 = DeclaredEncoding("<meta charset=big5>\r\n");
  EXPECT_EQ(big5, (PageEncoding{"big5", false, LineEnds::CrLf}));
  EXPECT_EQ(DeclaredEncoding(QString::fromUtf8("<p>日本\n")),
            (PageEncoding{"utf-8", false, LineEnds::Lf}));
  EXPECT_EQ(DeclaredEncoding("<meta charset=utf-16le>").charset, "utf-8");
}

TEST(CharsetForLabel, KnowsTheStandardsLabels) {
  EXPECT_EQ(CharsetForLabel("latin1"), "windows-1252");
  EXPECT_EQ(CharsetForLabel(" ISO-8859-1\n"), "windows-1252");
  EXPECT_EQ(CharsetForLabel("ascii"), "windows-1252");
  EXPECT_EQ(CharsetForLabel("gb2312"), "gbk");
  EXPECT_EQ(CharsetForLabel("x-x-big5"), "big5");
  EXPECT_EQ(CharsetForLabel("sjis"), "shift_jis");
  EXPECT_EQ(CharsetForLabel("ks_c_5601-1987"), "euc-kr");
  EXPECT_EQ(CharsetForLabel("unicode"), "utf-16le");
  EXPECT_EQ(CharsetForLabel("iso-2022-kr"), "replacement");
  EXPECT_EQ(CharsetForLabel("\t\n\f\r koi8-r \f"), "koi8-r");
  EXPECT_EQ(CharsetForLabel(u"\u00A0koi8-r"_qs), "");
  EXPECT_EQ(CharsetForLabel("\vkoi8-r"), "");
  EXPECT_EQ(CharsetForLabel(u"\u212Aoi8-r"_qs), "");
  EXPECT_EQ(CharsetForLabel("utf-7"), "");
  EXPECT_EQ(CharsetForLabel(""), "");
}

/// The text, changed for a charset and read again from its bytes.
QString Converted(const char *text, const char *charset) {
  const DecodedPage page = InCharset(QString::fromUtf8(text), QLatin1String(charset));
  const DecodedPage again = DecodePage(EncodePage(page.text, page.encoding));
  EXPECT_EQ(again.encoding.charset, QLatin1String(charset)) << text;
  EXPECT_EQ(again.text, page.text);
  return again.text;
}

TEST(CharsetChange, APageIsReadInEachCharsetThatItIsConvertedTo) {
  const QStringList charsets = AllCharsets();
  EXPECT_EQ(charsets.size(), 38);
  EXPECT_EQ(charsets.front(), "utf-8");
  const QString page = u"<html><head>\r\n<title>t</title></head><body>\r\nText"_s;
  for (const QString &charset : charsets) {
    QString text = page;
    // There and on to each of the three forms of Unicode.
    for (const QString &next : {charset, u"utf-16le"_s, charset, u"utf-8"_s, u"utf-16be"_s}) {
      const DecodedPage changed = InCharset(text, next);
      const DecodedPage again = DecodePage(EncodePage(changed.text, changed.encoding));
      EXPECT_EQ(again.encoding, changed.encoding) << qPrintable(charset);
      EXPECT_EQ(again.text, changed.text) << qPrintable(charset);
      EXPECT_NE(changed.text, text);
      text = changed.text;
    }
  }
}

TEST(CharsetChange, TheDeclarationIsChangedWhereItStands) {
  for (const auto &[before, after] : {
           std::pair{"<meta charset=utf-8><p>", "<meta charset=big5><p>"},
           {"<META CHARSET='UTF-8' id=a>", "<META CHARSET='big5' id=a>"},
           {"<!-- <meta charset=utf-8> --><meta http-equiv=content-type content='text/html; "
            "charset=utf-8'>",
            "<!-- <meta charset=utf-8> --><meta http-equiv=content-type content='text/html; "
            "charset=big5'>"},
           {R"(<?xml version="1.0" encoding="utf-8"?><html><head><meta charset="utf-8"/>)",
            R"(<?xml version="1.0" encoding="big5"?><html><head><meta charset="big5"/>)"},
           {"<title><meta charset=utf-8></title><meta content='charset=x'>",
            "<meta http-equiv=\"Content-Type\" content=\"text/html; charset=big5\"><title><meta "
            "charset=utf-8></title><meta content='charset=x'>"},
       })
    EXPECT_EQ(Converted(before, "big5").toStdString(), after);
}

TEST(CharsetChange, ADeclarationIsPutInWhereNoneIs) {
  const char *const pragma = R"(<meta http-equiv="Content-Type" content="text/html; charset=big5")";
  for (const auto &[before, after] : {
           std::pair{QByteArray("<!DOCTYPE html>\n<html>\n<head>\n  <title>t</title>"),
                     QByteArray("<!DOCTYPE html>\n<html>\n<head>\n  <meta charset=\"big5\">\n  "
                                "<title>t</title>")},
           {"<html>\r\n<body>", QByteArray("<html>\r\n") + pragma + ">\r\n<body>"},
           {"<html xmlns='x'><head/>", QByteArray("<html xmlns='x'><head/>") + pragma + " />"},
           {"<p>a\nb", QByteArray(pragma) + ">\n<p>a\nb"},
           {"a <b>c</b>", QByteArray(pragma) + ">a <b>c</b>"},
           {"<!-- note -->\n<p>a", QByteArray("<!-- note -->\n") + pragma + ">\n<p>a"},
           {"<?php if ($a->b) echo 'x>y'; ?>\n<p>a  \n",
            QByteArray("<?php if ($a->b) echo 'x>y'; ?>\n") + pragma + ">\n<p>a  \n"},
       })
    EXPECT_EQ(Converted(before.constData(), "big5").toStdString(), after.toStdString());
}

TEST(CharsetChange, ADeclarationThatServerCodeMakesStays) {
  const QString text = u"<head><meta charset=\"<?= $c ?>\"><p>a"_s;
  EXPECT_EQ(InCharset(text, u"big5"_s).text, text);
}

TEST(CharsetChange, APageThatIsDeclaredAlreadyIsAnotherTextAllTheSame) {
  EXPECT_EQ(Converted("<meta charset=utf-8>", "utf-8").toStdString(), "<meta charset=UTF-8>");
}

TEST(CharsetChange, TellsWhatACharsetLacksInTheOrderOfThePage) {
  const QString text = u"a\u00E9b\n\u4E2D\U0001F600\u00E9"_s;
  EXPECT_TRUE(CharactersMissing(text, u"utf-8"_s).empty());
  const auto missing = CharactersMissing(text, u"big5"_s);
  ASSERT_EQ(missing.size(), 2U);
  EXPECT_EQ(missing[0].character, u"\u00E9"_s);
  EXPECT_EQ(missing[0].count, 2);
  EXPECT_EQ(missing[0].line, 1);
  EXPECT_EQ(missing[1].character, u"\U0001F600"_s);
  EXPECT_EQ(missing[1].line, 2);
}

}  // namespace
}  // namespace velor
