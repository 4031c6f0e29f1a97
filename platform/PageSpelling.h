// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Spelling.h"

#include <QString>

#include <optional>
#include <vector>

namespace velor {

/// A word of a page that is in no dictionary and no list.
struct UnknownWord {
  QString word;
  QString language;  ///< as the page says it; empty where it does not

  bool operator==(const UnknownWord &) const = default;
};

/// The word at a place that Spelling::UnknownWords answered for the line.
inline UnknownWord UnknownWordAt(const SpelledLine &line, const TextStretch &place) {
  return {line.text.sliced(place.start, place.end - place.start), line.LanguageAt(place.start)};
}

/// The spelling of a page in design view, or of a page's text in its source. Waves under unknown
/// words are drawn over the page and are never in it; each correction is one undo step.
class PageSpelling {
 public:
  virtual ~PageSpelling() = default;

  /// Judges words by `spelling` from now on, which outlives the page; null for no spelling.
  virtual void Use(Spelling *spelling, const QString &siteList) = 0;
  /// Whether unknown words have waves; they have none without Use.
  virtual void ShowWaves(bool on) = 0;
  /// To be called when words were added or ignored.
  virtual void CheckAgain() = 0;

  virtual void SetFocus() = 0;
  /// False where words can be shown only: Correct and CorrectAll change nothing there.
  virtual bool CanCorrect() const = 0;

  // These wait for the page, and answer nothing where it does not answer.
  /// The unknown word that is selected, or that the caret is in or at.
  virtual std::optional<UnknownWord> AtCaret() = 0;
  /// Selects the first unknown word behind the selection, around the page's end, and scrolls it
  /// into view.
  virtual std::optional<UnknownWord> SelectNext() = 0;
  /// All unknown words in the order of the page.
  virtual std::vector<UnknownWord> All() = 0;
  /// Puts `other` in the place of the word that AtCaret or SelectNext answered last; the caret goes
  /// behind it. False where the page has changed since.
  virtual bool Correct(const QString &other) = 0;
  /// Puts `other` in the place of an unknown word wherever the page has it; answers how often.
  virtual int CorrectAll(const QString &word, const QString &other) = 0;
};

}  // namespace velor
