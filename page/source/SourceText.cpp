// SPDX-License-Identifier: GPL-3.0-or-later
#include "page/source/SourceText.h"

#include "page/text/HtmlElements.h"
#include "page/text/HtmlTokens.h"
#include "page/text/MarkupScan.h"
#include "page/text/RawText.h"
#include "page/text/TemplateSigns.h"
#include "page/text/TextCharacters.h"

#include <algorithm>
#include <initializer_list>
#include <optional>
#include <tuple>
#include <unordered_set>
#include <utility>

namespace velor {

struct OpenElement {
  std::shared_ptr<const OpenElement> outer;
  std::uint32_t name = 0;
  int depth = 1;
  QString language;  ///< of the nearest element that says one
  bool hasLanguage = false;
  bool isSeen = true;
  bool isSpelled = true;
  bool isTranslated = true;
};

namespace {

using elements::IsOneOf;
using elements::NameKeyOf;

/// Elements that lie deeper are not told apart from those around them; parsers go no deeper either.
constexpr int DeepestElement = 512;
/// UTF-16 code units; a line that is longer ends at its next blank.
constexpr qsizetype LongestLine = 20'000;
constexpr QChar Masked(0xFFFC);

/// Names of elements in lower case, separated by blanks.
class NameSet {
 public:
  explicit NameSet(QStringView names) {
    for (const QStringView name : names.tokenize(u' ')) keys_.insert(HtmlNameKey(name));
  }
  bool Has(std::uint32_t name) const { return keys_.contains(name); }

 private:
  std::unordered_set<std::uint32_t> keys_;
};

// As engine/bridge/page/dom.js has them.
const NameSet Atoms(
    u"applet audio button canvas embed hr iframe img input isindex marquee meter object progress "
    u"select textarea video svg");
const NameSet Unseen(u"base head link meta noframes noscript param script style template title");
// As engine/bridge/spelling/spelledLines.js has them.
const NameSet NoLanguage(u"code pre kbd samp listing xmp plaintext");

constexpr std::uint32_t Break = NameKeyOf(u"br");
constexpr std::uint32_t Meta = NameKeyOf(u"meta");
constexpr std::uint32_t Paragraph = NameKeyOf(u"p");
constexpr std::uint32_t Item = NameKeyOf(u"li");
constexpr std::uint32_t Terms[] = {NameKeyOf(u"dt"), NameKeyOf(u"dd")};
constexpr std::uint32_t Table = NameKeyOf(u"table");
constexpr std::uint32_t Cells[] = {NameKeyOf(u"td"), NameKeyOf(u"th"), NameKeyOf(u"caption")};
constexpr std::uint32_t Row[] = {NameKeyOf(u"tr")};
constexpr std::uint32_t Sections[] = {NameKeyOf(u"tbody"), NameKeyOf(u"thead"),
                                      NameKeyOf(u"tfoot")};
constexpr std::uint32_t Lists[] = {NameKeyOf(u"ul"), NameKeyOf(u"ol"), NameKeyOf(u"menu"),
                                   NameKeyOf(u"dir"), NameKeyOf(u"dl")};
/// The page's own elements last to its end, wherever their end tags stand.
constexpr std::uint32_t PageElements[] = {elements::Html, elements::Body};

bool IsTablePart(std::uint32_t name) {
  return name == Table || IsOneOf(name, Cells) || IsOneOf(name, Row) || IsOneOf(name, Sections);
}

bool EndsLine(std::uint32_t name) {
  return elements::IsBlock(name) || Atoms.Has(name) || name == Break;
}

bool IsRaw(std::uint32_t name) {
  return IsOneOf(name, elements::RawElements) || IsOneOf(name, elements::TitleElements);
}

bool IsLetterAt(QStringView source, qsizetype at) {
  if (at >= source.size()) return false;
  const int code = source[at].unicode() | 0x20;
  return code >= u'a' && code <= u'z';
}

/// Behind the ">" of the tag whose name ends at `at`; one in server code or in a quoted value does
/// not count.
qsizetype BehindTag(QStringView source, qsizetype at) {
  QChar quote;
  bool isValue = false;
  while (at < source.size()) {
    if (const qsizetype code = EndOfServerCode(source, at); code > at) {
      at = code;
      isValue = false;
      continue;
    }
    const QChar codeUnit = source[at++];
    if (!quote.isNull()) {
      if (codeUnit == quote) quote = QChar();
    } else if (codeUnit == u'>') {
      return at;
    } else if (isValue && (codeUnit == u'"' || codeUnit == u'\'')) {
      quote = codeUnit;
      isValue = false;
    } else if (!IsMarkupSpace(codeUnit)) {
      isValue = codeUnit == u'=';
    }
  }
  return at;
}

/// The attributes of a start tag, which is taken apart only where it may have a wanted one.
class TagAttributes {
 public:
  explicit TagAttributes(QStringView tag) : tag_(tag) {}

  /// The value of the first attribute of that name; nothing where there is none.
  std::optional<QString> Value(QStringView name) {
    if (!tag_.contains(name, Qt::CaseInsensitive)) return std::nullopt;
    if (!isRead_) parts_ = ReadHtmlTag(tag_, 0);
    isRead_ = true;
    for (const HtmlAttributeSlice &each : parts_.attributes)
      if (each.NameIn(tag_).compare(name, Qt::CaseInsensitive) == 0)
        return HtmlAttributeValue(each.ValueIn(tag_));
    return std::nullopt;
  }
  bool Says(QStringView name, QStringView value) {
    const auto said = Value(name);
    return said && said->compare(value, Qt::CaseInsensitive) == 0;
  }

 private:
  QStringView tag_;
  HtmlTagParts parts_;
  bool isRead_ = false;
};

/// The offset behind the template sign at `at`, of those forms that design view keeps whole
/// (engine/bridge/page/signs.js); `at` itself where none begins.
qsizetype EndOfSign(QStringView source, qsizetype at) {
  const QStringView rest = source.sliced(at, std::min<qsizetype>(4, source.size() - at));
  const auto begins = [rest](std::initializer_list<QStringView> forms) {
    return std::any_of(forms.begin(), forms.end(),
                       [rest](QStringView form) { return rest.startsWith(form); });
  };
  if (!begins({u"{{", u"{%", u"{#", u"${", u"$!{", u"#{", u"<#", u"<@"})) return at;
  return TemplateSigns(source).EndOf(at, SignPlace::InTag);
}

}  // namespace

bool SourceTextState::operator==(const SourceTextState &other) const {
  const OpenElement *one = innermost.get();
  const OpenElement *two = other.innermost.get();
  for (; one != two; one = one->outer.get(), two = two->outer.get()) {
    if (one == nullptr || two == nullptr) return false;
    const auto looks = [](const OpenElement &of) {
      return std::tie(of.name, of.language, of.hasLanguage, of.isSeen, of.isSpelled,
                      of.isTranslated);
    };
    if (looks(*one) != looks(*two)) return false;
  }
  return pageLanguage == other.pageLanguage;
}

TextStretch SourceTextLine::SourceOf(qsizetype index) const {
  const auto behind =
      std::upper_bound(pieces.begin(), pieces.end(), index,
                       [](qsizetype wanted, const Piece &piece) { return wanted < piece.at; });
  const Piece &piece = *std::prev(behind);
  if (piece.length > 0) return {piece.start, piece.start + piece.length};
  const qsizetype start = piece.start + index - piece.at;
  return {start, start + 1};
}

std::vector<TextStretch> SourceTextLine::SourceOf(const TextStretch &stretch) const {
  std::vector<TextStretch> parts;
  for (qsizetype index = stretch.start; index < stretch.end; ++index) {
    const TextStretch place = SourceOf(index);
    if (!parts.empty() && place.start <= parts.back().end)
      parts.back().end = std::max(parts.back().end, place.end);
    else
      parts.push_back(place);
  }
  return parts;
}

SourceTextReader::SourceTextReader(QStringView source, qsizetype at, SourceTextState state)
    : source_(source), at_(at), state_(std::move(state)) {}

SourceTextLine SourceTextReader::Next() {
  line_ = {.begin = at_};
  bool hasEnded = false;
  while (!IsAtEnd() && !hasEnded) {
    if (source_[at_] != u'<' || EndOfSign(source_, at_) > at_) {
      ReadText();
      hasEnded = line_.spelled.text.size() > LongestLine && !IsAtEnd() && source_[at_] != u'<';
    } else {
      hasEnded = ReadMarkup();
    }
    if (!hasEnded || !QStringView(line_.spelled.text).trimmed().isEmpty()) continue;
    line_ = {.begin = line_.begin};
    hasEnded = false;
  }
  line_.end = at_;
  return std::exchange(line_, {});
}

void SourceTextReader::Append(QStringView text, qsizetype start, qsizetype length) {
  const OpenElement *around = state_.innermost.get();
  if (around != nullptr && !around->isSeen) return;
  const qsizetype at = line_.spelled.text.size();
  const QString language =
      around != nullptr && around->hasLanguage ? around->language : state_.pageLanguage;
  auto &runs = line_.spelled.runs;
  if (language != (runs.empty() ? QString() : runs.back().language)) runs.push_back({at, language});
  const bool isJudged = around == nullptr || (around->isSpelled && around->isTranslated);
  if (!isJudged && line_.spelled.text.endsWith(Masked)) return;
  line_.pieces.push_back({at, start, isJudged ? length : text.size()});
  if (isJudged)
    line_.spelled.text += text;
  else
    line_.spelled.text += Masked;
}

void SourceTextReader::ReadText() {
  qsizetype start = at_;
  const auto take = [&] {
    if (at_ > start) Append(source_.sliced(start, at_ - start), start);
  };
  for (; !IsAtEnd(); ++at_) {
    const QChar codeUnit = source_[at_];
    const bool isLong = line_.spelled.text.size() + at_ - start > LongestLine;
    if (isLong && IsMarkupSpace(codeUnit)) {
      ++at_;
      return take();
    }
    if (codeUnit == u'<' || codeUnit == u'{' || codeUnit == u'$' || codeUnit == u'#') {
      const qsizetype end = EndOfSign(source_, at_);
      if (codeUnit == u'<' && end == at_) return take();
      if (end == at_) continue;
      take();
      Append(QStringView(&Masked, 1), at_, end - at_);
      at_ = end - 1;
    } else if (codeUnit == u'&') {
      const TextCharacter character = CharacterAt(source_, at_);
      if (character.length <= 1) continue;
      take();
      const char32_t text[] = {character.first, character.second};
      Append(QString::fromUcs4(text, character.second == 0 ? 1 : 2), at_, character.length);
      at_ += character.length - 1;
    } else {
      continue;
    }
    start = at_ + 1;
  }
  take();
}

bool SourceTextReader::ReadMarkup() {
  const QStringView rest = source_.sliced(at_);
  if (const qsizetype code = EndOfServerCode(source_, at_); code > at_) {
    at_ = code;
  } else if (rest.startsWith(u"<!--")) {
    at_ = EndOfComment(source_, at_);
  } else if (IsLetterAt(source_, at_ + 1)) {
    return ReadTag(false);
  } else if (rest.startsWith(u"</") && IsLetterAt(source_, at_ + 2)) {
    return ReadTag(true);
  } else if (rest.startsWith(u"<!") || rest.startsWith(u"<?") || rest.startsWith(u"</")) {
    at_ = BehindNext(source_, u">", at_);
  } else {
    Append(rest.first(1), at_);
    ++at_;
  }
  return false;
}

bool SourceTextReader::ReadTag(bool isEndTag) {
  const qsizetype start = at_;
  const qsizetype nameStart = at_ + (isEndTag ? 2 : 1);
  qsizetype nameEnd = nameStart;
  while (nameEnd < source_.size() && !IsMarkupSpace(source_[nameEnd]) && source_[nameEnd] != u'>' &&
         source_[nameEnd] != u'/' && source_[nameEnd] != u'<')
    ++nameEnd;
  const QStringView name = source_.sliced(nameStart, nameEnd - nameStart);
  const std::uint32_t key = HtmlNameKey(name);
  at_ = BehindTag(source_, nameEnd);
  if (isEndTag) {
    Leave(key);
  } else if (IsRaw(key)) {
    at_ = BehindTag(source_, EndOfRawText(source_, at_, name));
  } else if (key == elements::Plaintext) {
    at_ = source_.size();
  } else {
    Enter(name, source_.sliced(start, at_ - start));
  }
  return EndsLine(key);
}

void SourceTextReader::Enter(QStringView name, QStringView tag) {
  const std::uint32_t key = HtmlNameKey(name);
  EndImplied(key);
  TagAttributes attributes(tag);
  if (key == Meta && state_.pageLanguage.isEmpty() &&
      attributes.Says(u"http-equiv", u"content-language"))
    state_.pageLanguage =
        attributes.Value(u"content").value_or(QString()).section(u',', 0, 0).trimmed();
  const OpenElement *around = state_.innermost.get();
  const bool isTooDeep = around != nullptr && around->depth >= DeepestElement;
  if (IsOneOf(key, elements::VoidElements) || isTooDeep) return;
  auto element =
      around == nullptr ? std::make_shared<OpenElement>() : std::make_shared<OpenElement>(*around);
  element->outer = state_.innermost;
  element->name = key;
  element->depth = around == nullptr ? 1 : around->depth + 1;
  if (const auto language = attributes.Value(u"lang")) {
    element->language = language->trimmed();
    element->hasLanguage = true;
  }
  if (const auto translate = attributes.Value(u"translate"))
    element->isTranslated = translate->compare(u"no", Qt::CaseInsensitive) != 0;
  if (Unseen.Has(key)) element->isSeen = false;
  if (NoLanguage.Has(key) || Atoms.Has(key) || attributes.Says(u"spellcheck", u"false") ||
      attributes.Says(u"contenteditable", u"false"))
    element->isSpelled = false;
  state_.innermost = std::move(element);
}

void SourceTextReader::Leave(std::uint32_t name) {
  if (IsOneOf(name, PageElements)) return;
  const auto isBound = [isPart = IsTablePart(name)](std::uint32_t around) {
    return around == Table || (!isPart && IsOneOf(around, Cells));
  };
  for (const auto *at = &state_.innermost; *at; at = &(*at)->outer) {
    if ((*at)->name == name) {
      // A copy first: the element that is left holds the one outside of it.
      const auto outer = (*at)->outer;
      state_.innermost = outer;
      return;
    }
    if (isBound((*at)->name)) return;
  }
}

void SourceTextReader::EndImplied(std::uint32_t name) {
  const auto end = [this](const auto &ends, const auto &bounds) {
    for (const OpenElement *at = state_.innermost.get(); at != nullptr; at = at->outer.get()) {
      if (ends(at->name)) {
        const auto outer = at->outer;
        state_.innermost = outer;
        return;
      }
      if (bounds(at->name)) return;
    }
  };
  const auto isOf = [](const auto &names) {
    return [&names](std::uint32_t each) { return IsOneOf(each, names); };
  };
  const auto isTable = [](std::uint32_t each) { return each == Table; };
  const auto isListOrTable = [](std::uint32_t each) {
    return IsOneOf(each, Lists) || IsTablePart(each);
  };
  if (IsOneOf(name, Sections)) return end(isOf(Sections), isTable);
  if (IsOneOf(name, Row)) return end(isOf(Row), isTable);
  if (IsOneOf(name, Cells)) {
    return end(isOf(Cells), [](std::uint32_t each) { return IsOneOf(each, Row) || each == Table; });
  }
  if (name == Item) end([](std::uint32_t each) { return each == Item; }, isListOrTable);
  if (IsOneOf(name, Terms)) end(isOf(Terms), isListOrTable);
  if (elements::IsBlock(name))
    end([](std::uint32_t each) { return each == Paragraph; }, IsTablePart);
}

}  // namespace velor
