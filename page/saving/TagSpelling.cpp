// SPDX-License-Identifier: GPL-3.0-or-later
#include "page/saving/TagSpelling.h"

#include "page/saving/MovedTokens.h"
#include "page/text/HtmlElements.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <string_view>

namespace velor {

namespace {

using Number = std::int32_t;

/// Maximum number of tokens that are looked at on each side of a place.
constexpr Number Sight = 4000;

/// Whether a parser reads the value as a whole where no quotes stand around it.
bool NeedsNoQuotes(QStringView value) {
  static constexpr QStringView Breaking = u" \t\r\n\f\"'=<>`";
  return !value.isEmpty() && !value.endsWith(u'/') &&
         std::none_of(value.begin(), value.end(),
                      [](QChar codeUnit) { return Breaking.contains(codeUnit); });
}

/// Whether an attribute says all by being there, as authors write it.
bool NeedsNoValue(QStringView name) {
  static constexpr std::u16string_view Names[] = {
      u"allowfullscreen", u"async",       u"autofocus", u"autoplay", u"checked",
      u"compact",         u"controls",    u"default",   u"defer",    u"disabled",
      u"hidden",          u"ismap",       u"loop",      u"multiple", u"muted",
      u"noshade",         u"nowrap",      u"open",      u"readonly", u"required",
      u"reversed",        u"playsinline", u"selected"};
  return std::any_of(std::begin(Names), std::end(Names), [&](std::u16string_view each) {
    return name == QStringView(each.data(), static_cast<qsizetype>(each.size()));
  });
}

bool HasLetter(QStringView name) {
  return std::any_of(name.begin(), name.end(), [](QChar codeUnit) { return codeUnit.isLetter(); });
}

TagSpelling::Case CaseOf(QStringView name) {
  const bool hasLower =
      std::any_of(name.begin(), name.end(), [](QChar codeUnit) { return codeUnit.isLower(); });
  return hasLower ? TagSpelling::Case::Lower : TagSpelling::Case::Upper;
}

bool IsMasked(QStringView text, QStringView maskStem) {
  return !maskStem.isEmpty() && text.contains(maskStem);
}

QString InCase(QStringView name, TagSpelling::Case letters, QStringView maskStem) {
  const bool stays = letters == TagSpelling::Case::Lower || IsMasked(name, maskStem);
  return stays ? name.toString() : name.toString().toUpper();
}

/// Calls `look` with the tags near a token until it answers true.
void LookAround(const TokenText &source, Number number,
                const std::function<bool(const HtmlToken &)> &look) {
  const Number start = std::clamp<Number>(number, 0, source.Count());
  for (Number at = start - 1; at >= std::max<Number>(0, start - Sight); --at) {
    if (source.At(at).IsTag() && source.At(at).isFree && look(source.At(at))) return;
  }
  for (Number at = start; at < std::min(source.Count(), start + Sight); ++at) {
    if (source.At(at).IsTag() && source.At(at).isFree && look(source.At(at))) return;
  }
}

/// Takes the details of a spelling from one tag after the other, each from the first that has it.
class SpellingReader {
 public:
  explicit SpellingReader(const TokenText &source) : source_(source) {}

  /// Whether every detail is found.
  bool Read(const HtmlToken &token) {
    const bool isVoid = elements::IsOneOf(token.name, elements::VoidElements);
    const QStringView html = QStringView(source_.text).first(token.End());
    const HtmlTagParts tag = ReadHtmlTag(html, token.offset);
    // Of all of the page, which says less than a block beside the place.
    const bool isFrame = IsFrameTag(token) || token.name == elements::Title;
    const bool showsCase = isFrame || elements::IsCommonBlock(token.name);
    if (showsCase && !(isFrame ? hasFrameCase_ : hasCase_)) {
      (isFrame ? hasFrameCase_ : hasCase_) = true;
      (isFrame ? frameCase_ : found_.tagNames) = CaseOf(html.sliced(tag.name, tag.nameLength));
    }
    if (isVoid && !hasVoidEnd_) {
      hasVoidEnd_ = true;
      found_.voidEnd =
          tag.isSelfClosing ? TagSpelling::VoidEnd::Slash : TagSpelling::VoidEnd::Plain;
    }
    // New attributes are written behind the last one.
    for (auto at = tag.attributes.rbegin(); at != tag.attributes.rend(); ++at)
      ReadAttribute(html, *at);
    return hasCase_ && hasVoidEnd_ && hasAttributeCase_ && hasQuote_ && hasBareQuote_;
  }
  TagSpelling Found() const {
    TagSpelling found = found_;
    if (!hasCase_) found.tagNames = frameCase_;
    return found;
  }

 private:
  void ReadAttribute(QStringView html, const HtmlAttributeSlice &attribute) {
    if (!hasAttributeCase_ && HasLetter(attribute.NameIn(html))) {
      hasAttributeCase_ = true;
      found_.attributeNames = CaseOf(attribute.NameIn(html));
    }
    if (attribute.value < 0) return;
    if (!hasQuote_ && attribute.quote != 0) {
      hasQuote_ = true;
      found_.quote = attribute.quote;
    }
    if (!hasBareQuote_ && NeedsNoQuotes(attribute.ValueIn(html))) {
      hasBareQuote_ = true;
      found_.bareQuote = attribute.quote;
    }
  }

  const TokenText &source_;
  TagSpelling found_;
  TagSpelling::Case frameCase_ = TagSpelling::Case::Lower;
  bool hasCase_ = false;
  bool hasFrameCase_ = false;
  bool hasVoidEnd_ = false;
  bool hasAttributeCase_ = false;
  bool hasQuote_ = false;
  bool hasBareQuote_ = false;
};

}  // namespace

TagSpelling SpellingNear(const TokenText &source, Number number) {
  SpellingReader reader(source);
  LookAround(source, number, [&](const HtmlToken &token) { return reader.Read(token); });
  return reader.Found();
}

QString QuotedValue(QStringView value, char16_t quote, QStringView maskStem) {
  if (quote == 0 && NeedsNoQuotes(value) && !IsMasked(value, maskStem)) return value.toString();
  if (quote != u'\'') return u'"' + value.toString() + u'"';
  const QString apostrophes = value.toString().replace(u'\'', QLatin1String("&#39;"));
  return u'\'' + apostrophes + u'\'';
}

QString SpelledAttribute(QStringView name, QStringView value, const TagSpelling &spelling,
                         QStringView maskStem) {
  const QString written = u' ' + InCase(name, spelling.attributeNames, maskStem);
  // A page whose tags end in slashes is XML, where an attribute has a value.
  const bool isXml = spelling.voidEnd == TagSpelling::VoidEnd::Slash;
  if (value.isEmpty() && !isXml && NeedsNoValue(name)) return written;
  const char16_t quote = NeedsNoQuotes(value)    ? spelling.bareQuote
                         : value.contains(u'\'') ? u'"'
                                                 : spelling.quote;
  return written + u'=' + QuotedValue(value, quote, maskStem);
}

QString Spelled(QStringView tag, const TagSpelling &spelling, QStringView maskStem) {
  const HtmlTagParts parts = ReadHtmlTag(tag, 0);
  const QStringView name = tag.sliced(parts.name, parts.nameLength);
  const std::uint32_t key = HtmlNameKey(name);
  if (key == elements::Svg || key == elements::Math) return tag.toString();
  QString text = tag.first(parts.name).toString() + InCase(name, spelling.tagNames, maskStem);
  for (const HtmlAttributeSlice &attribute : parts.attributes)
    text += SpelledAttribute(attribute.NameIn(tag), attribute.ValueIn(tag), spelling, maskStem);
  const bool isVoid = elements::IsOneOf(key, elements::VoidElements) && !tag.startsWith(u"</");
  if (isVoid && spelling.voidEnd == TagSpelling::VoidEnd::Slash) text += QLatin1String(" /");
  return text += tag.sliced(parts.end - 1);
}

}  // namespace velor
