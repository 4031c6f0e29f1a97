// SPDX-License-Identifier: GPL-3.0-or-later
#include "page/text/TextMatcher.h"

#include <memory>
#include <unicode/ubrk.h>

namespace velor {

namespace {

bool IsAsciiLetter(QChar letter) {
  return letter.unicode() < 0x80 && (letter.isLetterOrNumber() || letter == u'_');
}

/// The words with any white space where they have blanks.
QString PlainPattern(const QString &words) {
  static const QRegularExpression blanks(QStringLiteral("\\s+"));
  QStringList escaped;
  for (const QString &word : words.split(blanks)) escaped << QRegularExpression::escape(word);
  return escaped.join(QStringLiteral("\\s+"));
}

/// A text without accents, and for each of its code units the offset of the character that it comes
/// from; empty where both are the same.
struct FoldedText {
  QString text;
  std::vector<qsizetype> origins;
};

FoldedText WithoutAccents(const QString &text) {
  FoldedText folded;
  folded.text.reserve(text.size());
  for (qsizetype at = 0; at < text.size();) {
    const qsizetype length = text[at].isHighSurrogate() && at + 1 < text.size() ? 2 : 1;
    QString bare = text.mid(at, length);
    if (bare[0].unicode() >= 0x80) {
      bare = bare.normalized(QString::NormalizationForm_D);
      static const QRegularExpression marks(QStringLiteral("\\p{M}+"),
                                            QRegularExpression::UseUnicodePropertiesOption);
      bare.remove(marks);
    }
    folded.text += bare;
    folded.origins.insert(folded.origins.end(), static_cast<std::size_t>(bare.size()), at);
    at += length;
  }
  folded.origins.push_back(text.size());
  return folded;
}

/// Says where words of a text begin and end.
class WordBoundaries {
 public:
  explicit WordBoundaries(const QString &text) : text_(text), iterator_(nullptr, &ubrk_close) {}

  bool IsAt(qsizetype position) {
    if (position <= 0 || position >= text_.size()) return true;
    if (IsAsciiLetter(text_[position - 1]) && IsAsciiLetter(text_[position])) return false;
    if (!iterator_) {
      UErrorCode error = U_ZERO_ERROR;
      iterator_.reset(ubrk_open(UBRK_WORD, "", reinterpret_cast<const UChar *>(text_.utf16()),
                                static_cast<std::int32_t>(text_.size()), &error));
      if (U_FAILURE(error)) return true;
    }
    return ubrk_isBoundary(iterator_.get(), static_cast<std::int32_t>(position)) != 0;
  }

 private:
  const QString &text_;
  std::unique_ptr<UBreakIterator, void (*)(UBreakIterator *)> iterator_;
};

}  // namespace

TextMatcher::TextMatcher(const SearchQuery &query) : query_(query) {
  const QString words =
      query.accents == Accents::Ignored ? WithoutAccents(query.words).text : query.words;
  expression_.setPattern(query.syntax == WordSyntax::Expression ? words : PlainPattern(words));
  QRegularExpression::PatternOptions options =
      QRegularExpression::UseUnicodePropertiesOption | QRegularExpression::MultilineOption;
  if (query.letterCase == LetterCase::Ignored) options |= QRegularExpression::CaseInsensitiveOption;
  expression_.setPatternOptions(options);
}

std::vector<TextMatch> TextMatcher::MatchesIn(const QString &text) const {
  std::vector<TextMatch> found;
  if (!IsValid() || query_.words.isEmpty()) return found;
  const FoldedText folded =
      query_.accents == Accents::Ignored ? WithoutAccents(text) : FoldedText{text, {}};
  const auto origin = [&folded](qsizetype at) {
    return folded.origins.empty() ? at : folded.origins[static_cast<std::size_t>(at)];
  };
  WordBoundaries boundaries(text);
  auto matches = expression_.globalMatch(folded.text);
  while (matches.hasNext()) {
    const QRegularExpressionMatch match = matches.next();
    const TextStretch place{origin(match.capturedStart()), origin(match.capturedEnd())};
    if (match.capturedLength() == 0) continue;
    const bool isWhole = query_.edges == WordEdges::Anywhere ||
                         (boundaries.IsAt(place.start) && boundaries.IsAt(place.end));
    if (isWhole) found.push_back({place, match.capturedTexts()});
  }
  return found;
}

QString TextMatcher::ReplacementFor(const TextMatch &match, const QString &replacement) const {
  if (query_.syntax == WordSyntax::Plain) return replacement;
  QString filled;
  for (qsizetype at = 0; at < replacement.size(); ++at) {
    const QChar next = at + 1 < replacement.size() ? replacement[at + 1] : QChar();
    const bool isGroup = next == u'&' || (next >= u'1' && next <= u'9');
    if (replacement[at] != u'$' || (next != u'$' && !isGroup)) {
      filled += replacement[at];
      continue;
    }
    ++at;
    if (next == u'$') filled += next;
    if (isGroup) filled += match.groups.value(next == u'&' ? 0 : next.digitValue());
  }
  return filled;
}

}  // namespace velor
