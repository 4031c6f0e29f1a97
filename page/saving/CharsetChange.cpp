// SPDX-License-Identifier: GPL-3.0-or-later
#include "page/saving/CharsetChange.h"

#include "page/saving/ByteSplice.h"
#include "page/saving/PageMask.h"
#include "page/text/HtmlElements.h"
#include "page/text/HtmlTokens.h"

#include <QRegularExpression>

#include <optional>

namespace velor {

namespace {

using elements::NameKeyOf;

/// UTF-16 code units of the masked text.
struct Stretch {
  qsizetype start = 0;
  qsizetype length = 0;
};

/// The charsets' names in a head, and where a declaration can be put in.
struct Declarations {
  std::vector<Stretch> names;
  qsizetype place = 0;
  /// Whether the place is behind a tag or doctype rather than before what comes first.
  bool isBehind = false;
  bool isXhtml = false;
  bool isHtml5 = false;
};

std::optional<Stretch> NameIn(QStringView value, qsizetype offset,
                              const QRegularExpression &pattern) {
  const auto match = pattern.match(value);
  if (!match.hasMatch()) return std::nullopt;
  return Stretch{offset + match.capturedStart(1), match.capturedLength(1)};
}

/// The name of a charset in a META element.
std::optional<Stretch> NameInMeta(QStringView text, const HtmlTagParts &tag) {
  static const QRegularExpression inContent(QStringLiteral("charset\\s*=\\s*[\"']?([^\\s;\"']+)"),
                                            QRegularExpression::CaseInsensitiveOption);
  bool isContentType = false;
  std::optional<Stretch> inPragma;
  for (const HtmlAttributeSlice &attribute : tag.attributes) {
    const QStringView value = attribute.ValueIn(text);
    const auto is = [name = attribute.NameIn(text)](QStringView wanted) {
      return name.compare(wanted, Qt::CaseInsensitive) == 0;
    };
    if (is(u"charset") && !value.trimmed().isEmpty())
      return Stretch{attribute.value, attribute.valueLength};
    if (is(u"http-equiv"))
      isContentType = value.trimmed().compare(u"content-type", Qt::CaseInsensitive) == 0;
    if (is(u"content")) inPragma = NameIn(value, attribute.value, inContent);
  }
  return isContentType ? inPragma : std::nullopt;
}

Declarations DeclarationsIn(const QString &text) {
  static const QRegularExpression inXml(
      QStringLiteral("^<\\?xml\\b[^>]*?\\bencoding\\s*=\\s*[\"']([^\"']+)"));
  Declarations found;
  const auto putBehind = [&found](const HtmlToken &token) {
    found.place = token.End();
    found.isBehind = true;
  };
  bool isStarted = false;
  for (const HtmlToken &token : TokenizeHtml(text)) {
    const QStringView slice = QStringView(text).sliced(token.offset, token.length);
    if (token.kind == HtmlTokenKind::Comment) {
      if (const auto name = NameIn(slice, token.offset, inXml); name && token.offset == 0)
        found.names.push_back(*name);
    } else if (token.kind == HtmlTokenKind::Doctype) {
      putBehind(token);
      found.isXhtml = slice.contains(u"xhtml", Qt::CaseInsensitive);
      found.isHtml5 = !slice.contains(u"public", Qt::CaseInsensitive);
    }
    if (!isStarted && (token.IsTag() || token.kind == HtmlTokenKind::Word)) {
      if (!found.isBehind) found.place = token.offset;
      isStarted = true;
    }
    if (!token.IsTag()) continue;
    const bool isHead = token.name == NameKeyOf(u"head");
    if (token.name == NameKeyOf(u"body") || token.name == NameKeyOf(u"frameset") ||
        (isHead && token.kind == HtmlTokenKind::EndTag))
      break;
    if (isHead || token.name == NameKeyOf(u"html")) {
      putBehind(token);
      found.isXhtml = found.isXhtml || slice.contains(u"xmlns", Qt::CaseInsensitive);
    } else if (token.name == NameKeyOf(u"meta")) {
      if (const auto name = NameInMeta(text, ReadHtmlTag(text, token.offset)))
        found.names.push_back(*name);
    }
  }
  return found;
}

/// The declaration with what parts it from the text around.
QString DeclarationFor(const Declarations &found, const QString &text, const QString &name) {
  const QString end = found.isXhtml ? QStringLiteral(" />") : QStringLiteral(">");
  const QString meta =
      (found.isHtml5
           ? QStringLiteral("<meta charset=\"%1\"")
           : QStringLiteral("<meta http-equiv=\"Content-Type\" content=\"text/html; charset=%1\""))
          .arg(name) +
      end;
  // On a line of its own, indented as the next one is.
  static const QRegularExpression line(QStringLiteral("\\G(\\r\\n|\\r|\\n)[ \\t]*"));
  const QString next = line.match(text, found.place).captured();
  if (found.isBehind) return next + meta;
  static const QRegularExpression anyLineBreak(QStringLiteral("\\r\\n|\\r|\\n"));
  return meta + anyLineBreak.match(text).captured();
}

QString WithDeclared(const QString &text, const QString &name) {
  using Edge = PageMask::Edge;
  const PageMask mask(text);
  const Declarations found = DeclarationsIn(mask.MaskedText());
  std::vector<TextPatch> patches;
  if (found.names.empty()) {
    const qsizetype place = mask.ToSource(found.place, found.isBehind ? Edge::End : Edge::Start);
    patches.push_back({place, place, DeclarationFor(found, mask.MaskedText(), name)});
  }
  for (const Stretch &one : found.names) {
    const qsizetype start = mask.ToSource(one.start, Edge::Start);
    if (!mask.IsServerCode(start))
      patches.push_back({start, mask.ToSource(one.start + one.length, Edge::End), name});
  }
  return Patched(text, patches);
}

}  // namespace

DecodedPage InCharset(const QString &text, const QString &charset) {
  const bool isUtf16 = charset.startsWith(u"utf-16");
  const QString name = isUtf16 ? QStringLiteral("utf-16") : charset;
  DecodedPage page;
  page.text = WithDeclared(text, name);
  // The page's mark or bytes said otherwise than its declaration, which stays: in capitals it is
  // another text, which undo can take back.
  if (page.text == text) page.text = WithDeclared(text, name.toUpper());
  page.encoding = DeclaredEncoding(page.text);
  page.encoding.charset = charset;
  page.encoding.byteOrderMark = isUtf16;
  return page;
}

}  // namespace velor
