// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/TextStretch.h"

#include <QString>
#include <QStringList>

#include <vector>

namespace velor {

/// A line of a page's text with the languages of its words.
struct SpelledLine {
  /// From `start` on the text is in that language (a tag as `lang` has it); empty where the page
  /// does not say.
  struct Run {
    qsizetype start = 0;
    QString language = {};

    bool operator==(const Run &) const = default;
  };

  QString text;
  /// In the order of the text. What is before the first one has no language.
  std::vector<Run> runs = {};

  /// The language at an offset; empty where the page does not say.
  QString LanguageAt(qsizetype offset) const {
    QString language;
    for (const Run &run : runs)
      if (run.start <= offset) language = run.language;
    return language;
  }

  bool operator==(const SpelledLine &) const = default;
};

/// A list of words that a person has added.
enum class WordHome {
  Person,  ///< for all pages
  Site,    ///< for the pages of one site
};

/// Judges words by the dictionaries of their languages and by word lists. `siteList` is the file of
/// a site's own words in logic form, which need not exist; empty for a page without a site.
class Spelling {
 public:
  virtual ~Spelling() = default;

  /// The words of the line that are in no dictionary of their language and in no list. A language
  /// without a dictionary has no unknown words. Addresses, file names and words with digits are no
  /// words.
  virtual std::vector<TextStretch> UnknownWords(const SpelledLine &line,
                                                const QString &siteList) = 0;
  /// Words of the language that may be meant, the likeliest first.
  virtual QStringList Suggestions(const QString &word, const QString &language) = 0;
  /// Takes the word for known until the program ends.
  virtual void Ignore(const QString &word) = 0;
  /// Adds the word to a list. Raises RuntimeError where its file cannot be written.
  virtual void Add(const QString &word, WordHome home, const QString &siteList) = 0;
  /// The system's packages with dictionaries for languages that were met and have none; each is
  /// answered once.
  virtual QStringList PackagesToTell() = 0;
};

/// What a person is to be told of languages that were met and have no dictionary, each once.
QStringList MissingDictionaries(Spelling &spelling);

}  // namespace velor
