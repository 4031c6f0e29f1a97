// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/TextStretch.h"

#include <QString>

#include <memory>
#include <vector>

struct UBreakIterator;

namespace velor {

/// Finds the words of a text by the rules of Unicode (ICU).
class WordFinder {
 public:
  WordFinder();
  ~WordFinder();
  WordFinder(const WordFinder &) = delete;
  WordFinder &operator=(const WordFinder &) = delete;

  /// All words: what has a letter, a digit or an ideograph in it.
  std::vector<TextStretch> Words(const QString &text);
  /// Those whose spelling can be judged: words of two letters and more, without digits, and outside
  /// of addresses, file names, and names that begin with "@" or "#".
  std::vector<TextStretch> SpelledWords(const QString &text);

 private:
  struct Close {
    void operator()(UBreakIterator *iterator) const;
  };
  struct Found {
    TextStretch place;
    bool isOfLetters;
  };

  std::vector<Found> Find(const QString &text);

  std::unique_ptr<UBreakIterator, Close> iterator_;
};

}  // namespace velor
