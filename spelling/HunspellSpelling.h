// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Spelling.h"
#include "spelling/DictionaryFiles.h"
#include "spelling/SpelledWords.h"
#include "spelling/WordList.h"

#include <QSet>

#include <functional>
#include <map>
#include <memory>

namespace velor {

class Dictionary;
class Files;

/// Where the program finds dictionaries and words.
struct SpellingPlaces {
  QStringList dictionaryFolders;  ///< native
  QString personList;             ///< the person's words, in logic form
};

/// Spelling by Hunspell's dictionaries. A dictionary is read when its language is met first.
class HunspellSpelling final : public Spelling {
 public:
  /// `ownLanguage` answers the language of pages that name none.
  HunspellSpelling(Files &files, const SpellingPlaces &places,
                   std::function<QString()> ownLanguage);
  ~HunspellSpelling() override;

  std::vector<TextStretch> UnknownWords(const SpelledLine &line, const QString &siteList) override;
  QStringList Suggestions(const QString &word, const QString &language) override;
  void Ignore(const QString &word) override;
  void Add(const QString &word, WordHome home, const QString &siteList) override;
  QStringList PackagesToTell() override;

 private:
  /// The dictionary of a language; null where there is none, which is noted for PackagesToTell.
  Dictionary *DictionaryOf(const QString &language);
  WordList &SiteWords(const QString &siteList);
  bool IsListed(const QString &word, const QString &siteList);

  Files &files_;
  DictionaryFiles dictionaryFiles_;
  std::function<QString()> ownLanguage_;
  WordFinder finder_;
  std::map<QString, std::unique_ptr<Dictionary>> dictionaries_;  ///< by name
  std::map<QString, Dictionary *> byLanguage_;
  WordList personWords_;
  std::map<QString, WordList> siteWords_;  ///< by file
  QSet<QString> ignored_;
  QStringList packages_;  ///< not told yet
};

}  // namespace velor
