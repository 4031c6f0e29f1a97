// SPDX-License-Identifier: GPL-3.0-or-later
// Bytes and labels mean to us what they mean to the browser engine. Its decoders of the East Asian
// charsets are left out: where an engine is built with the system's conversion tables, as Debian's
// is, these are not the standard's.
#include "page/text/CharsetConverter.h"
#include "page/text/PageEncoding.h"
#include "tests/engine/ComponentFixture.h"

#include <QWebEngineProfile>

#include <random>

namespace velor {
namespace {

class EngineDecoding : public WebEditorTest {
 protected:
  EngineDecoding() { editor_->SetDocumentHTML(QStringLiteral("<p>x")); }

  QString EngineReads(const QString &label, const QByteArray &bytes) {
    return Evaluate(QStringLiteral("new TextDecoder('%1', {ignoreBOM: true}).decode("
                                   "Uint8Array.from(atob('%2'), c => c.charCodeAt(0)))")
                        .arg(label, QString::fromLatin1(bytes.toBase64())))
        .toString();
  }
};

QByteArray RandomBytes() {
  std::mt19937 random(1);
  QByteArray bytes(200'000, Qt::Uninitialized);
  for (char &byte : bytes) byte = static_cast<char>(random() & 0xFF);
  // Where UTF-8 is nearly valid.
  for (int lead = 0xC0; lead < 0x100; ++lead)
    for (const char *trail : {"\x80", "\x80\x80", "\xA0\xBF\x80", "\x90\x80\x80", "\xBF\xBF\xBF<"})
      bytes += static_cast<char>(lead) + QByteArray(trail);
  return bytes;
}

TEST_F(EngineDecoding, IsOursForRandomBytes) {
  const QByteArray bytes = RandomBytes();
  for (const char *name :
       {"utf-8",        "utf-16le",     "utf-16be",     "iso-8859-2",    "iso-8859-3",
        "iso-8859-4",   "iso-8859-5",   "iso-8859-6",   "iso-8859-7",    "iso-8859-8",
        "iso-8859-10",  "iso-8859-13",  "iso-8859-14",  "iso-8859-15",   "koi8-r",
        "macintosh",    "windows-1250", "windows-1251", "windows-1252",  "windows-1254",
        "windows-1256", "windows-1257", "windows-1258", "x-mac-cyrillic"}) {
    const QString charset = QString::fromLatin1(name);
    EXPECT_TRUE(CharsetConverter(charset).Decode(bytes) == EngineReads(charset, bytes)) << name;
  }
}

TEST_F(EngineDecoding, KnowsTheSameLabels) {
  const QStringList labels =
      QStringLiteral(
          "unicode-1-1-utf-8 unicode11utf8 unicode20utf8 utf-8 utf8 x-unicode20utf8 866 cp866 "
          "csibm866 ibm866 csisolatin2 iso-8859-2 iso-ir-101 iso8859-2 iso88592 iso_8859-2 "
          "iso_8859-2:1987 l2 latin2 csisolatin3 iso-8859-3 iso-ir-109 iso8859-3 iso88593 "
          "iso_8859-3 iso_8859-3:1988 l3 latin3 csisolatin4 iso-8859-4 iso-ir-110 iso8859-4 "
          "iso88594 iso_8859-4 iso_8859-4:1988 l4 latin4 csisolatincyrillic cyrillic iso-8859-5 "
          "iso-ir-144 iso8859-5 iso88595 iso_8859-5 iso_8859-5:1988 arabic asmo-708 csiso88596e "
          "csiso88596i csisolatinarabic ecma-114 iso-8859-6 iso-8859-6-e iso-8859-6-i iso-ir-127 "
          "iso8859-6 iso88596 iso_8859-6 iso_8859-6:1987 csisolatingreek ecma-118 elot_928 greek "
          "greek8 iso-8859-7 iso-ir-126 iso8859-7 iso88597 iso_8859-7 iso_8859-7:1987 "
          "sun_eu_greek csiso88598e csisolatinhebrew hebrew iso-8859-8 iso-8859-8-e iso-ir-138 "
          "iso8859-8 iso88598 iso_8859-8 iso_8859-8:1988 visual csiso88598i iso-8859-8-i logical "
          "csisolatin6 iso-8859-10 iso-ir-157 iso8859-10 iso885910 l6 latin6 iso-8859-13 "
          "iso8859-13 iso885913 iso-8859-14 iso8859-14 iso885914 csisolatin9 iso-8859-15 "
          "iso8859-15 iso885915 iso_8859-15 l9 iso-8859-16 cskoi8r koi koi8 koi8-r koi8_r "
          "koi8-ru koi8-u csmacintosh mac macintosh x-mac-roman dos-874 iso-8859-11 iso8859-11 "
          "iso885911 tis-620 windows-874 cp1250 windows-1250 x-cp1250 cp1251 windows-1251 "
          "x-cp1251 ansi_x3.4-1968 ascii cp1252 cp819 csisolatin1 ibm819 iso-8859-1 iso-ir-100 "
          "iso8859-1 iso88591 iso_8859-1 iso_8859-1:1987 l1 latin1 us-ascii windows-1252 "
          "x-cp1252 cp1253 windows-1253 x-cp1253 cp1254 csisolatin5 iso-8859-9 iso-ir-148 "
          "iso8859-9 iso88599 iso_8859-9 iso_8859-9:1989 l5 latin5 windows-1254 x-cp1254 cp1255 "
          "windows-1255 x-cp1255 cp1256 windows-1256 x-cp1256 cp1257 windows-1257 x-cp1257 "
          "cp1258 windows-1258 x-cp1258 x-mac-cyrillic x-mac-ukrainian chinese csgb2312 "
          "csiso58gb231280 gb2312 gb_2312 gb_2312-80 gbk iso-ir-58 x-gbk gb18030 big5 big5-hkscs "
          "cn-big5 csbig5 x-x-big5 cseucpkdfmtjapanese euc-jp x-euc-jp csiso2022jp iso-2022-jp "
          "csshiftjis ms932 ms_kanji shift-jis shift_jis sjis windows-31j x-sjis cseuckr "
          "csksc56011987 euc-kr iso-ir-149 korean ks_c_5601-1987 ks_c_5601-1989 ksc5601 ksc_5601 "
          "windows-949 csiso2022kr hz-gb-2312 iso-2022-cn iso-2022-cn-ext iso-2022-kr "
          "replacement unicodefffe utf-16be csunicode iso-10646-ucs-2 ucs-2 unicode unicodefeff "
          "utf-16 utf-16le x-user-defined")
          .split(u' ');
  ASSERT_EQ(labels.size(), 228);
  for (const QString &label : labels) {
    const QString ours = CharsetForLabel(label);
    EXPECT_FALSE(ours.isEmpty()) << label.toStdString();
    // Labels without a decoder in the engine, and two that the standard added or changed after
    // Debian's engine was built.
    if (ours == u"replacement" || ours == u"iso-8859-16") continue;
    if (label == u"koi8-ru" || label == u"big5-hkscs") continue;
    EXPECT_EQ(ours,
              Evaluate(QStringLiteral("new TextDecoder('%1').encoding").arg(label)).toString())
        << label.toStdString();
  }
}

/// Each with bytes that are valid in few charsets.
TEST_F(EngineDecoding, TakesTheSameDeclarations) {
  QWebEngineProfile profile;
  QWebEnginePage page(&profile);
  const QByteArray filling(2000, 'x');
  int number = 0;
  for (const QByteArray &head :
       {QByteArray("<meta charset=koi8-r>"), "<!--" + filling + "--><meta charset=koi8-r>",
        "<script>//" + filling + "</script><meta charset=koi8-r>",
        "<title>" + filling +
            "</title></head><meta http-equiv=content-type content='a;charset=koi8-r'>",
        "<title>" + filling + "</title><body><meta charset=koi8-r>",
        QByteArray("<noscript><meta charset=koi8-r></noscript>"),
        QByteArray("<template><meta charset=koi8-r></template>"),
        QByteArray("<?xml version='1.0' encoding='koi8-r'?>"),
        QByteArray("<meta charset=x-user-defined>"), QByteArray("<meta charset=utf-16le>"),
        QByteArray("<meta charset='\xA0koi8-r'>"),
        QByteArray("<meta content='a;charset=koi8-r,x' http-equiv=content-type>"),
        QByteArray("\xEF\xBB\xBF<meta charset=koi8-r>"),
        QByteArray("\xFF\xFE<\0m\0e\0t\0a\0 \0c\0h\0a\0r\0s\0e\0t\0=\0b\0i\0g\0005\0>\0", 42)}) {
    const QString name = QStringLiteral("page%1.htm").arg(++number);
    const QByteArray html = head + "<p>\xE9\xEA\xA0\x80 caf\xE9";
    Write(name, html);
    bool ended = false;
    QObject::connect(&page, &QWebEnginePage::loadFinished, [&] { ended = true; });
    page.load(QUrl::fromLocalFile(Native(name)));
    ASSERT_TRUE(WaitFor([&] { return ended; }));
    EXPECT_EQ(DecodePage(html).encoding.charset,
              velor::Evaluate(page, QStringLiteral("document.characterSet")).toString().toLower())
        << head.right(60).toStdString();
  }
}

}  // namespace
}  // namespace velor
