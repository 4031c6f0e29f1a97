// SPDX-License-Identifier: GPL-3.0-or-later
#include "page/text/CharsetPrescan.h"

#include "page/text/HtmlElements.h"
#include "page/text/HtmlTokens.h"
#include "page/text/PageEncoding.h"

#include <QByteArray>
#include <QList>

#include <optional>

namespace velor {

namespace {

constexpr qsizetype PrescanBytes = 1024;

constexpr bool IsSpace(char c) {
  return c == ' ' || c == '\t' || c == '\n' || c == '\f' || c == '\r';
}
constexpr bool IsLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

struct Attribute {
  QByteArray name;
  QByteArray value;
};

QString KnownCharset(QByteArrayView label) {
  const QString charset = CharsetForLabel(QString::fromLatin1(label));
  if (charset.startsWith(u"utf-16")) return QStringLiteral("utf-8");
  if (charset == u"x-user-defined") return QStringLiteral("windows-1252");
  // The standard shows such pages as one U+FFFD to keep attackers out. An editor that did so would
  // destroy them at the next save; their bytes are ASCII and survive as such.
  if (charset == u"replacement") return {};
  return charset;
}

/// Walks the bytes; every step ends at the end of what may be looked at.
class Prescan {
 public:
  explicit Prescan(QByteArrayView bytes) : bytes_(bytes.first(qMin(bytes.size(), PrescanBytes))) {}

  QString Run() {
    const QString xmlCharset = XmlDeclaration();
    while (!AtEnd()) {
      if (LooksAt("<!--")) {
        at_ += 2;  // the dashes of "<!-->" open and close
        SkipPast("-->");
      } else if (LooksAtMeta()) {
        at_ += 5;
        const QString charset = CharsetOfMeta();
        if (!charset.isEmpty()) return charset;
      } else if (LooksAtTag()) {
        while (!AtEnd() && !IsSpace(Here()) && Here() != '>') ++at_;
        while (NextAttribute()) continue;
      } else if (LooksAt("<!") || LooksAt("</") || LooksAt("<?")) {
        SkipPast(">");
      } else {
        ++at_;
      }
    }
    return xmlCharset;
  }

 private:
  bool AtEnd() const { return at_ >= bytes_.size(); }
  char Here() const { return bytes_[at_]; }
  char At(qsizetype offset) const {
    return at_ + offset < bytes_.size() ? bytes_[at_ + offset] : '\0';
  }
  bool LooksAt(QByteArrayView text) const { return bytes_.sliced(at_).startsWith(text); }
  bool LooksAtMeta() const {
    return at_ + 5 < bytes_.size() &&
           bytes_.sliced(at_, 5).compare("<meta", Qt::CaseInsensitive) == 0 &&
           (IsSpace(At(5)) || At(5) == '/');
  }
  bool LooksAtTag() const {
    return Here() == '<' && (IsLetter(At(1)) || (At(1) == '/' && IsLetter(At(2))));
  }

  void SkipPast(QByteArrayView text) {
    const qsizetype found = bytes_.indexOf(text, at_);
    at_ = found < 0 ? bytes_.size() : found + text.size();
  }
  void SkipSpaces() {
    while (!AtEnd() && IsSpace(Here())) ++at_;
  }

  /// The tag's next attribute, name and value in lower case; nothing at the tag's end.
  std::optional<Attribute> NextAttribute() {
    while (!AtEnd() && (IsSpace(Here()) || Here() == '/')) ++at_;
    if (AtEnd() || Here() == '>') return std::nullopt;
    Attribute attribute;
    while (!AtEnd() && !IsSpace(Here()) && Here() != '/' && Here() != '>' &&
           (Here() != '=' || attribute.name.isEmpty())) {
      attribute.name += Here();
      ++at_;
    }
    attribute.name = attribute.name.toLower();
    SkipSpaces();
    if (AtEnd() || Here() != '=') return attribute;
    ++at_;
    SkipSpaces();
    if (AtEnd()) return std::nullopt;
    if (Here() == '"' || Here() == '\'') {
      const char quote = Here();
      const qsizetype start = ++at_;
      while (!AtEnd() && Here() != quote) ++at_;
      if (AtEnd()) return std::nullopt;
      attribute.value = bytes_.sliced(start, at_ - start).toByteArray().toLower();
      ++at_;
      return attribute;
    }
    while (!AtEnd() && !IsSpace(Here()) && Here() != '>') {
      attribute.value += Here();
      ++at_;
    }
    attribute.value = attribute.value.toLower();
    return attribute;
  }

  /// The charset named in a content attribute: "text/html; charset=big5".
  static QString CharsetOfContent(const QByteArray &content) {
    qsizetype at = 0;
    do {
      at = content.indexOf("charset", at);
      if (at < 0) return {};
      at += 7;
      while (at < content.size() && IsSpace(content[at])) ++at;
    } while (at < content.size() && content[at] != '=');
    if (at >= content.size()) return {};
    QByteArray value = content.sliced(at + 1).trimmed();
    if (value.startsWith('"') || value.startsWith('\'')) {
      const qsizetype end = value.indexOf(value[0], 1);
      return end < 0 ? QString() : KnownCharset(value.sliced(1, end - 1));
    }
    qsizetype end = 0;
    while (end < value.size() && !IsSpace(value[end]) && value[end] != ';') ++end;
    return KnownCharset(value.first(end));
  }

  QString CharsetOfMeta() {
    enum class Pragma { Unknown, Needed, NotNeeded };
    Pragma pragma = Pragma::Unknown;
    bool isContentType = false;
    QString charset;
    QList<QByteArray> seen;
    while (const auto attribute = NextAttribute()) {
      if (seen.contains(attribute->name)) continue;
      seen += attribute->name;
      if (attribute->name == "http-equiv") {
        isContentType = attribute->value == "content-type";
      } else if (attribute->name == "content" && pragma == Pragma::Unknown) {
        charset = CharsetOfContent(attribute->value);
        if (!charset.isEmpty()) pragma = Pragma::Needed;
      } else if (attribute->name == "charset") {
        charset = KnownCharset(attribute->value);
        pragma = Pragma::NotNeeded;
      }
    }
    if (AtEnd()) return {};  // cut off within the tag: nobody knows how it goes on
    return pragma == Pragma::NotNeeded || isContentType ? charset : QString();
  }

  /// The encoding in <?xml ... encoding="..."?> at the very start.
  QString XmlDeclaration() const {
    if (!LooksAt("<?xml")) return {};
    const qsizetype end = bytes_.indexOf('>');
    const QByteArrayView declaration = bytes_.first(qMax(end, qsizetype{0}));
    qsizetype at = declaration.indexOf("encoding");
    if (at < 0) return {};
    const auto skipControls = [&] {
      while (at < declaration.size() && declaration[at] >= 0 && declaration[at] <= ' ') ++at;
    };
    at += 8;
    skipControls();
    if (at >= declaration.size() || declaration[at] != '=') return {};
    ++at;
    skipControls();
    if (at >= declaration.size() || (declaration[at] != '"' && declaration[at] != '\'')) return {};
    const qsizetype close = declaration.indexOf(declaration[at], at + 1);
    return close < 0 ? QString() : KnownCharset(declaration.sliced(at + 1, close - at - 1));
  }

  QByteArrayView bytes_;
  qsizetype at_ = 0;
};

/// The charset of a meta element in the head, wherever the head ends.
QString LateCharset(QByteArrayView bytes) {
  using namespace elements;
  static constexpr std::uint32_t Meta = NameKeyOf(u"meta");
  static constexpr std::uint32_t HeadElements[] = {
      Script,
      Meta,
      Head,
      NameKeyOf(u"html"),
      NameKeyOf(u"title"),
      NameKeyOf(u"style"),
      NameKeyOf(u"link"),
      NameKeyOf(u"base"),
      NameKeyOf(u"object"),
      NameKeyOf(u"noscript"),
  };
  const QByteArrayView start = bytes.first(qMin(bytes.size(), LongestHead));
  for (const HtmlToken &token : TokenizeHtml(QString::fromLatin1(start))) {
    if (!token.IsTag()) continue;
    const bool isStart = token.kind == HtmlTokenKind::StartTag;
    if (!IsOneOf(token.name, HeadElements) || (token.name == Head && !isStart)) return {};
    if (token.name != Meta || !isStart) continue;
    const QString charset = Prescan(start.sliced(token.offset, token.length)).Run();
    if (!charset.isEmpty()) return charset;
  }
  return {};
}

}  // namespace

QString DeclaredCharset(QByteArrayView bytes) {
  const QString early = Prescan(bytes).Run();
  return early.isEmpty() && bytes.size() > PrescanBytes ? LateCharset(bytes) : early;
}

}  // namespace velor
