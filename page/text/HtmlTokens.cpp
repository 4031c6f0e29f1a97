// SPDX-License-Identifier: GPL-3.0-or-later
#include "page/text/HtmlTokens.h"

#include "page/text/HtmlElements.h"
#include "page/text/RawText.h"
#include "page/text/TextCharacters.h"
#include "platform/TextDifference.h"

#include <QSet>

#include <algorithm>

namespace velor {

namespace {

using namespace elements;

/// Running 64-bit hash of text and numbers.
class Key {
 public:
  explicit Key(std::uint64_t seed) : value_((seed + 1) * Factor) {}
  void Add(std::uint64_t part) {
    value_ = (value_ ^ part) * Factor;
    value_ ^= value_ >> 29;
  }
  void AddLower(QStringView text) {
    for (const QChar codeUnit : text) Add(Lower(codeUnit.unicode()));
  }
  std::uint64_t Value() const { return value_; }

  static char16_t Lower(char16_t codeUnit) {
    return codeUnit >= u'A' && codeUnit <= u'Z' ? static_cast<char16_t>(codeUnit | 0x20) : codeUnit;
  }

 private:
  static constexpr std::uint64_t Factor = 0x9E3779B97F4A7C15ULL;
  std::uint64_t value_;
};

bool IsLetter(QChar codeUnit) {
  const int code = codeUnit.unicode() | 0x20;
  return code >= u'a' && code <= u'z';
}

bool IsEastAsian(char32_t character) {
  return (character >= 0x2E80 && character <= 0x9FFF) ||
         (character >= 0xAC00 && character <= 0xD7AF) ||
         (character >= 0xF900 && character <= 0xFAFF) ||
         (character >= 0xFF00 && character <= 0xFFEF) || character >= 0x20000;
}

enum class TextClass { Letter, Blank, LineBreak, Sign, Nothing };

TextClass ClassOf(char32_t character) {
  switch (character) {
    case 0:
      return TextClass::Nothing;
    case u'\n':
    case u'\r':
      return TextClass::LineBreak;
    case u' ':
    case u'\t':
    case u'\f':
      return TextClass::Blank;
    default:
      break;
  }
  if (character < 0x80) {
    const char32_t lower = character | 0x20;
    const bool isLetter =
        (lower >= u'a' && lower <= u'z') || (character >= u'0' && character <= u'9');
    return isLetter ? TextClass::Letter : TextClass::Sign;
  }
  if (IsEastAsian(character)) return TextClass::Sign;
  return QChar::isLetterOrNumber(character) || QChar::isMark(character) ? TextClass::Letter
                                                                        : TextClass::Sign;
}

class Tokenizer {
 public:
  Tokenizer(QStringView html, HtmlOrigin origin) : html_(html), origin_(origin) {
    tokens_.reserve(static_cast<std::size_t>(html.size() / 4));
  }

  std::vector<HtmlToken> Run() {
    return RunUntil([](qsizetype) { return false; });
  }

  /// From a free tag's place up to a place in which a free tag may begin and that is the end.
  template <typename IsEnd>
  std::vector<HtmlToken> RunUntil(IsEnd isEnd, qsizetype from = 0) {
    at_ = from;
    while (at_ < html_.size()) {
      if (html_[at_] == u'<' && foreign_.empty() && isEnd(at_)) break;
      if (html_[at_] != u'<' || !Markup()) Text(html_.size());
    }
    return std::move(tokens_);
  }

 private:
  struct Foreign {
    std::uint32_t name;
    bool holdsHtml;
  };

  bool Has(qsizetype at, QStringView text) const {
    return html_.sliced(std::min(at, html_.size())).startsWith(text, Qt::CaseInsensitive);
  }
  QStringView NameOf(const HtmlTagParts &parts) const {
    return html_.sliced(parts.name, parts.nameLength);
  }
  bool InForeign() const { return !foreign_.empty() && !foreign_.back().holdsHtml; }

  HtmlToken &Push(HtmlTokenKind kind, qsizetype end, std::uint64_t key) {
    HtmlToken token;
    token.kind = kind;
    token.key = key;
    token.offset = static_cast<std::int32_t>(at_);
    token.length = static_cast<std::int32_t>(end - at_);
    tokens_.push_back(token);
    at_ = end;
    return tokens_.back();
  }

  /// Reads what begins with the "<" at `at_`; false where that is text.
  bool Markup() {
    if (at_ + 1 >= html_.size()) return false;
    const QChar next = html_[at_ + 1];
    if (IsLetter(next)) {
      StartTag();
    } else if (next == u'/' && at_ + 2 < html_.size()) {
      if (IsLetter(html_[at_ + 2]))
        EndTag();
      else
        BogusComment(at_ + 2);
    } else if (next == u'!') {
      Declaration();
    } else if (next == u'?') {
      BogusComment(at_ + 1);
    } else {
      return false;
    }
    return true;
  }

  void Declaration() {
    if (Has(at_, u"<!--")) {
      RealComment();
    } else if (Has(at_, u"<!doctype")) {
      const qsizetype close = html_.indexOf(u'>', at_);
      Push(HtmlTokenKind::Doctype, close < 0 ? html_.size() : close + 1,
           Key(static_cast<std::uint64_t>(HtmlTokenKind::Doctype)).Value());
    } else if (InForeign() && html_.sliced(at_).startsWith(u"<![CDATA[")) {
      at_ += 9;
      const qsizetype close = html_.indexOf(u"]]>", at_);
      const qsizetype end = close < 0 ? html_.size() : close;
      while (at_ < end) Run(end, References::AreText);
      at_ = close < 0 ? html_.size() : close + 3;
    } else {
      BogusComment(at_ + 2);
    }
  }

  void Comment(qsizetype data, qsizetype dataEnd, qsizetype end) {
    Key key(static_cast<std::uint64_t>(HtmlTokenKind::Comment));
    for (qsizetype at = data; at < dataEnd; ++at) {
      char16_t codeUnit = html_[at].unicode();
      if (codeUnit == u'\r') {
        if (at + 1 < dataEnd && html_[at + 1] == u'\n') ++at;
        codeUnit = u'\n';
      }
      key.Add(codeUnit == 0 ? char16_t{QChar::ReplacementCharacter} : codeUnit);
    }
    Push(HtmlTokenKind::Comment, end, key.Value());
  }

  void BogusComment(qsizetype data) {
    const qsizetype close = html_.indexOf(u'>', data);
    if (close == data && html_[at_ + 1] == u'/') {
      Push(HtmlTokenKind::Comment, close + 1, 0);
      return;
    }
    Comment(data, close < 0 ? html_.size() : close, close < 0 ? html_.size() : close + 1);
  }

  void RealComment() {
    const qsizetype data = at_ + 4;
    if (Has(data, u">")) return Comment(data, data, data + 1);
    if (Has(data, u"->")) return Comment(data, data, data + 2);
    for (qsizetype dash = html_.indexOf(u"--", data); dash >= 0;
         dash = html_.indexOf(u"--", dash + 1)) {
      if (Has(dash + 2, u">")) return Comment(data, dash, dash + 3);
      if (Has(dash + 2, u"!>")) return Comment(data, dash, dash + 4);
    }
    Comment(data, html_.size(), html_.size());
  }

  static std::uint64_t TagKey(QStringView html, const HtmlTagParts &parts, std::uint32_t name) {
    Key key(static_cast<std::uint64_t>(HtmlTokenKind::StartTag));
    key.Add(name);
    QSet<std::uint64_t> seen;
    for (const HtmlAttributeSlice &attribute : parts.attributes) {
      Key attributeName(0);
      attributeName.AddLower(attribute.NameIn(html));
      if (parts.attributes.size() > 1) {
        if (seen.contains(attributeName.Value())) continue;
        seen.insert(attributeName.Value());
      }
      key.Add(attributeName.Value());
      const QStringView value = attribute.ValueIn(html);
      const bool isPlain = !value.contains(u'&') && !value.contains(u'\r');
      const QString resolved = isPlain ? QString() : HtmlAttributeValue(value);
      for (const QChar codeUnit : isPlain ? value : QStringView(resolved))
        key.Add(codeUnit.unicode());
    }
    return key.Value();
  }

  void StartTag() {
    const HtmlTagParts parts = ReadHtmlTag(html_, at_);
    const std::uint32_t name = HtmlNameKey(NameOf(parts));
    if (!parts.isClosed) {  // a parser drops a tag that the text's end cuts off
      Push(HtmlTokenKind::Comment, html_.size(), 0);
      return;
    }
    const bool isFree = foreign_.empty();
    const bool isHtml = EnterElement(name, parts.isSelfClosing);
    qsizetype end = parts.end;
    if (isHtml && IsOneOf(name, BreakDroppers) && end < html_.size() &&
        (html_[end] == u'\n' || html_[end] == u'\r'))
      end += CharacterAt(html_, end).length;
    HtmlToken &token = Push(HtmlTokenKind::StartTag, end, TagKey(html_, parts, name));
    token.name = name;
    token.isStrong = true;
    token.isFree = isFree;
    if (!isHtml) return;
    if (name == Plaintext) {
      const qsizetype close = origin_ == HtmlOrigin::Serialisation
                                  ? html_.lastIndexOf(QStringLiteral("</plaintext>"))
                                  : html_.size();
      Raw(close < at_ ? html_.size() : close);
    } else if (IsOneOf(name, RawElements)) {
      Raw(EndOfRawText(html_, at_, NameOf(parts)));
    } else if (IsOneOf(name, TitleElements)) {
      const qsizetype textEnd = EndOfRawText(html_, at_, NameOf(parts));
      while (at_ < textEnd) Run(textEnd, References::AreResolved);
    }
  }

  void EndTag() {
    const HtmlTagParts parts = ReadHtmlTag(html_, at_);
    const std::uint32_t name = HtmlNameKey(NameOf(parts));
    if (!parts.isClosed) {
      Push(HtmlTokenKind::Comment, html_.size(), 0);
      return;
    }
    const bool isFree = foreign_.empty();
    for (std::size_t depth = foreign_.size(); depth > 0; --depth) {
      if (foreign_[depth - 1].name != name) continue;
      foreign_.resize(depth - 1);
      break;
    }
    Key key(static_cast<std::uint64_t>(HtmlTokenKind::EndTag));
    key.Add(name);
    HtmlToken &token = Push(HtmlTokenKind::EndTag, parts.end, key.Value());
    token.name = name;
    token.isStrong = true;
    token.isFree = isFree;
  }

  /// Keeps track of foreign content; false for an element of that kind.
  bool EnterElement(std::uint32_t name, bool isSelfClosing) {
    if (InForeign() && (IsOneOf(name, Breakouts) || name == Font)) {
      while (InForeign()) foreign_.pop_back();
    }
    const bool isRoot = name == Svg || name == Math;
    if (!isRoot && !InForeign()) return true;
    if (!isSelfClosing) foreign_.push_back({name, !isRoot && IsOneOf(name, IntegrationPoints)});
    return false;
  }

  /// Reads raw text, a token a line.
  void Raw(qsizetype end) {
    while (at_ < end) {
      qsizetype lineEnd = at_;
      Key key(static_cast<std::uint64_t>(HtmlTokenKind::Raw));
      for (; lineEnd < end && ClassOf(html_[lineEnd].unicode()) != TextClass::LineBreak;
           ++lineEnd) {
        const char16_t codeUnit = html_[lineEnd].unicode();
        key.Add(codeUnit == 0 ? char16_t{QChar::ReplacementCharacter} : codeUnit);
      }
      if (lineEnd > at_) {
        const bool isStrong = lineEnd - at_ > 2;
        Push(HtmlTokenKind::Raw, lineEnd, key.Value()).isStrong = isStrong;
      }
      if (at_ < end) PushLineBreak(CharacterAt(html_, at_).length);
    }
  }

  void PushLineBreak(qsizetype length) {
    Push(HtmlTokenKind::LineBreak, at_ + length,
         Key(static_cast<std::uint64_t>(HtmlTokenKind::LineBreak)).Value());
  }

  /// Text up to the next "<" or the end.
  void Text(qsizetype end) {
    do Run(end, References::AreResolved);
    while (at_ < end && html_[at_] != u'<');
  }

  enum class References { AreResolved, AreText };

  /// Reads one token of text, at least one character.
  void Run(qsizetype end, References references) {
    const auto read = [&](qsizetype at) {
      if (references == References::AreText && html_[at] == u'&') return TextCharacter{u'&', 0, 1};
      return CharacterAt(html_, at);
    };
    const TextCharacter first = read(at_);
    const TextClass kind = ClassOf(first.first);
    if (kind == TextClass::Nothing) {
      at_ += first.length;
      return;
    }
    if (kind == TextClass::LineBreak) {
      PushLineBreak(first.length);
      return;
    }
    const HtmlTokenKind tokenKind =
        kind == TextClass::Blank ? HtmlTokenKind::Blank : HtmlTokenKind::Word;
    Key key(static_cast<std::uint64_t>(tokenKind));
    key.Add(first.first);
    if (first.second != 0) key.Add(first.second);
    qsizetype tokenEnd = at_ + first.length;
    qsizetype characters = 1;
    while (tokenEnd < end && html_[tokenEnd] != u'<') {
      const TextCharacter next = read(tokenEnd);
      const TextClass nextKind = ClassOf(next.first);
      // A combining mark belongs to the character before it; a NUL is skipped.
      if (nextKind == TextClass::Nothing && kind == TextClass::Letter) {
        tokenEnd += next.length;
        continue;
      }
      if (kind == TextClass::Sign ? !QChar::isMark(next.first) : nextKind != kind) break;
      key.Add(next.first);
      if (next.second != 0) key.Add(next.second);
      tokenEnd += next.length;
      ++characters;
    }
    Push(tokenKind, tokenEnd, key.Value()).isStrong = kind == TextClass::Letter && characters > 2;
  }

  QStringView html_;
  HtmlOrigin origin_;
  qsizetype at_ = 0;
  std::vector<HtmlToken> tokens_;
  std::vector<Foreign> foreign_;
};

}  // namespace

std::uint32_t HtmlNameKey(QStringView name) {
  if (name.compare(u"image", Qt::CaseInsensitive) == 0) return NameKeyOf(u"img");
  std::uint32_t key = 2166136261U;
  for (const QChar codeUnit : name) key = (key ^ Key::Lower(codeUnit.unicode())) * 16777619U;
  return key | 1U;
}

std::vector<HtmlToken> TokenizeHtml(QStringView text, HtmlOrigin origin) {
  return Tokenizer(text, origin).Run();
}

std::vector<HtmlToken> TokenizeHtmlLike(QStringView text, QStringView before,
                                        std::vector<HtmlToken> tokens, HtmlOrigin origin) {
  const auto difference = TextDifference::Between(before, text);
  const qsizetype removedEnd = difference.start + difference.removed;
  const qsizetype shift = text.size() - before.size();
  // What stands before a tag was read to its end when the tag began, so that it stays as it is.
  auto first =
      std::upper_bound(tokens.begin(), tokens.end(), difference.start,
                       [](qsizetype place, const HtmlToken &token) { return place < token.End(); });
  do {
    if (first == tokens.begin()) return TokenizeHtml(text, origin);
    --first;
  } while (!first->isFree);
  auto rest = std::lower_bound(
      first, tokens.end(), removedEnd,
      [](const HtmlToken &token, qsizetype place) { return token.offset < place; });
  bool isInStep = false;
  const auto rejoins = [&](qsizetype place) {
    if (place < removedEnd + shift) return false;
    while (rest != tokens.end() && rest->offset + shift < place) ++rest;
    isInStep = rest != tokens.end() && rest->offset + shift == place && rest->isFree;
    return isInStep;
  };
  const std::vector<HtmlToken> fresh = Tokenizer(text, origin).RunUntil(rejoins, first->offset);
  if (!isInStep) rest = tokens.end();
  for (auto token = rest; token != tokens.end(); ++token)
    token->offset += static_cast<std::int32_t>(shift);
  const auto gap = tokens.erase(first, rest);
  tokens.insert(gap, fresh.begin(), fresh.end());
  return tokens;
}

}  // namespace velor
