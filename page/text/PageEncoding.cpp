// SPDX-License-Identifier: GPL-3.0-or-later
#include "page/text/PageEncoding.h"

#include "page/text/CharsetConverter.h"
#include "page/text/CharsetPrescan.h"

namespace velor {

namespace {

struct Mark {
  const char *charset;
  QByteArrayView bytes;
};

constexpr Mark Marks[] = {
    {"utf-8", "\xEF\xBB\xBF"},
    {"utf-16le", "\xFF\xFE"},
    {"utf-16be", "\xFE\xFF"},
};

/// How an XML declaration begins in two bytes a character, where no byte order mark says so.
constexpr Mark XmlStarts[] = {
    {"utf-16le", {"<\0?\0x\0", 6}},
    {"utf-16be", {"\0<\0?\0x", 6}},
};

LineEnds MostCommonLineEnds(QStringView text) {
  qsizetype crLf = 0;
  qsizetype lf = 0;
  qsizetype cr = 0;
  for (qsizetype i = 0; i < text.size(); ++i) {
    if (text[i] == u'\n') {
      ++lf;
    } else if (text[i] == u'\r') {
      const bool isPair = i + 1 < text.size() && text[i + 1] == u'\n';
      ++(isPair ? crLf : cr);
      if (isPair) ++i;
    }
  }
  if (crLf >= lf && crLf >= cr) return LineEnds::CrLf;
  return lf >= cr ? LineEnds::Lf : LineEnds::Cr;
}

DecodedPage Decode(QByteArrayView bytes, const QString &charset) {
  DecodedPage page;
  page.text = CharsetConverter(charset).Decode(bytes);
  page.encoding.charset = charset;
  page.encoding.lineEnds = MostCommonLineEnds(page.text);
  return page;
}

}  // namespace

DecodedPage DecodePage(const QByteArray &bytes) {
  for (const Mark &mark : Marks) {
    if (!bytes.startsWith(mark.bytes)) continue;
    DecodedPage page =
        Decode(QByteArrayView(bytes).sliced(mark.bytes.size()), QString::fromLatin1(mark.charset));
    page.encoding.byteOrderMark = true;
    return page;
  }
  for (const Mark &start : XmlStarts) {
    if (bytes.startsWith(start.bytes)) return Decode(bytes, QString::fromLatin1(start.charset));
  }
  const QString declared = DeclaredCharset(bytes);
  if (!declared.isEmpty()) return Decode(bytes, declared);
  const bool isUtf8 = QByteArrayView(bytes).isValidUtf8();
  return Decode(bytes, isUtf8 ? QStringLiteral("utf-8") : QStringLiteral("windows-1252"));
}

QByteArray EncodePage(const QString &text, const PageEncoding &encoding) {
  const QByteArray bytes = CharsetConverter(encoding.charset).Encode(text);
  if (!encoding.byteOrderMark) return bytes;
  for (const Mark &mark : Marks) {
    if (encoding.charset == QLatin1String(mark.charset)) return mark.bytes.toByteArray() + bytes;
  }
  return bytes;
}

PageEncoding DeclaredEncoding(const QString &text) {
  PageEncoding encoding;
  const QString declared = DeclaredCharset(text.left(LongestHead).toLatin1());
  if (!declared.isEmpty()) encoding.charset = declared;
  encoding.lineEnds = MostCommonLineEnds(text);
  return encoding;
}

PageEncoding EncodingInPlaceOf(const PageEncoding &page, const QString &text) {
  PageEncoding encoding = page;
  encoding.lineEnds = MostCommonLineEnds(text);
  if (page.byteOrderMark) return encoding;
  const QString declared = DeclaredCharset(text.left(LongestHead).toLatin1());
  if (!declared.isEmpty()) encoding.charset = declared;
  return encoding;
}

QString InWords(const PageEncoding &encoding) {
  QString words = encoding.charset;
  if (encoding.byteOrderMark) words += QStringLiteral(" (BOM)");
  switch (encoding.lineEnds) {
    case LineEnds::CrLf:
      return words + QStringLiteral(", CR LF");
    case LineEnds::Lf:
      return words + QStringLiteral(", LF");
    case LineEnds::Cr:
      return words + QStringLiteral(", CR");
  }
  return words;
}

QString WithLineEnds(const QString &text, LineEnds ends) {
  QString result = text;
  result.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(u'\r', u'\n');
  if (ends == LineEnds::CrLf) result.replace(u'\n', QLatin1String("\r\n"));
  if (ends == LineEnds::Cr) result.replace(u'\n', u'\r');
  return result;
}

}  // namespace velor
