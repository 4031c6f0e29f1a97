// SPDX-License-Identifier: GPL-3.0-or-later
#include "spelling/SpelledWords.h"

#include <QRegularExpression>

#include <algorithm>
#include <unicode/ubrk.h>

namespace velor {

namespace {

/// What stands in a text and is not written in words.
const QRegularExpression &Addresses() {
  static const QRegularExpression pattern(
      QStringLiteral(R"((?:[A-Za-z][A-Za-z0-9+.-]*://|www\.|mailto:)\S+|\S+@\S+\.\S+)"
                     R"(|(?<!\S)(?:~|\.{1,2})?/\S+|\S*\\\S+|(?<!\S)[@#]\w+)"),
      QRegularExpression::UseUnicodePropertiesOption);
  return pattern;
}

std::vector<TextStretch> AddressesIn(const QString &text) {
  std::vector<TextStretch> found;
  if (!std::any_of(text.begin(), text.end(), [](QChar sign) {
        return sign == u'/' || sign == u'@' || sign == u'\\' || sign == u'#' || sign == u'.' ||
               sign == u':';
      }))
    return found;
  for (const auto &match : Addresses().globalMatch(text))
    found.push_back({match.capturedStart(), match.capturedEnd()});
  return found;
}

/// Signs that ICU takes for parts of a word, and that no dictionary knows in one: "example.com",
/// "file_name".
bool IsOfNoWord(QChar sign) {
  return sign.isDigit() || sign == u'.' || sign == u'_' || sign == u':';
}

}  // namespace

void WordFinder::Close::operator()(UBreakIterator *iterator) const {
  ubrk_close(iterator);
}

WordFinder::WordFinder() {
  UErrorCode error = U_ZERO_ERROR;
  iterator_.reset(ubrk_open(UBRK_WORD, "", nullptr, 0, &error));
}

WordFinder::~WordFinder() = default;

std::vector<WordFinder::Found> WordFinder::Find(const QString &text) {
  std::vector<Found> found;
  UErrorCode error = U_ZERO_ERROR;
  ubrk_setText(iterator_.get(), reinterpret_cast<const UChar *>(text.utf16()),
               static_cast<std::int32_t>(text.size()), &error);
  if (U_FAILURE(error)) return found;
  std::int32_t start = ubrk_first(iterator_.get());
  for (std::int32_t end = ubrk_next(iterator_.get()); end != UBRK_DONE;
       start = end, end = ubrk_next(iterator_.get())) {
    const int kind = ubrk_getRuleStatus(iterator_.get());
    if (kind < UBRK_WORD_NUMBER) continue;
    found.push_back({{start, end}, kind >= UBRK_WORD_LETTER && kind < UBRK_WORD_LETTER_LIMIT});
  }
  return found;
}

std::vector<TextStretch> WordFinder::Words(const QString &text) {
  std::vector<TextStretch> words;
  for (const Found &each : Find(text)) words.push_back(each.place);
  return words;
}

std::vector<TextStretch> WordFinder::SpelledWords(const QString &text) {
  std::vector<TextStretch> words;
  const std::vector<TextStretch> addresses = AddressesIn(text);
  auto address = addresses.begin();
  for (const auto &[place, isOfLetters] : Find(text)) {
    while (address != addresses.end() && address->end <= place.start) ++address;
    const bool isInAddress = address != addresses.end() && address->start < place.end;
    const QStringView word = QStringView(text).sliced(place.start, place.end - place.start);
    if (!isOfLetters || isInAddress || word.size() < 2) continue;
    if (std::any_of(word.begin(), word.end(), IsOfNoWord)) continue;
    words.push_back(place);
  }
  return words;
}

}  // namespace velor
