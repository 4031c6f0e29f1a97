// SPDX-License-Identifier: GPL-3.0-or-later
#include "spelling/HunspellSpelling.h"

#include "spelling/Dictionary.h"

#include <utility>

namespace velor {

namespace {

constexpr QChar SoftHyphen(0x00AD);
constexpr QChar TypographicApostrophe(0x2019);

/// The word as dictionaries have it.
QString AsInDictionaries(QStringView word) {
  QString plain = word.toString();
  plain.remove(SoftHyphen);
  return plain.replace(TypographicApostrophe, u'\'');
}

bool IsHyphen(QChar sign) {
  return sign == u'-' || sign == QChar(0x2010) || sign == QChar(0x2011);
}

/// The word that this one is a part of by hyphens ("vis-à-vis").
QString Hyphenated(const QString &text, TextStretch place) {
  const auto isPart = [&text](qsizetype at) {
    return at >= 0 && at < text.size() && (text[at].isLetter() || IsHyphen(text[at]));
  };
  while (isPart(place.start - 1)) --place.start;
  while (isPart(place.end)) ++place.end;
  QString word = AsInDictionaries(QStringView(text).sliced(place.start, place.end - place.start));
  for (QChar &sign : word)
    if (IsHyphen(sign)) sign = u'-';
  return word;
}

/// Whether the dictionary has a word of a text, alone or with the signs around it that belong to
/// it.
bool Knows(Dictionary &dictionary, const QString &text, const TextStretch &place,
           const QString &word) {
  if (dictionary.Has(word)) return true;
  const QChar before = place.start > 0 ? text[place.start - 1] : QChar();
  const QChar behind = place.end < text.size() ? text[place.end] : QChar();
  if (behind == u'.' && dictionary.Has(word + u'.')) return true;
  return (IsHyphen(before) || IsHyphen(behind)) && dictionary.Has(Hyphenated(text, place));
}

}  // namespace

HunspellSpelling::HunspellSpelling(Files &files, const SpellingPlaces &places,
                                   std::function<QString()> ownLanguage)
    : files_(files),
      dictionaryFiles_(places.dictionaryFolders),
      ownLanguage_(std::move(ownLanguage)),
      personWords_(files, places.personList) {}

HunspellSpelling::~HunspellSpelling() = default;

Dictionary *HunspellSpelling::DictionaryOf(const QString &language) {
  const QString wanted = language.isEmpty() ? ownLanguage_() : language;
  if (const auto known = byLanguage_.find(wanted); known != byLanguage_.end()) return known->second;
  const QString name = dictionaryFiles_.NameFor(wanted);
  Dictionary *dictionary = nullptr;
  if (name.isEmpty()) {
    const QString package = PackageFor(wanted);
    if (!package.isEmpty()) packages_ << package;
  } else {
    auto &place = dictionaries_[name];
    if (!place)
      place = std::make_unique<Dictionary>(dictionaryFiles_.AffixFile(name),
                                           dictionaryFiles_.WordFile(name));
    dictionary = place.get();
  }
  byLanguage_.emplace(wanted, dictionary);
  return dictionary;
}

WordList &HunspellSpelling::SiteWords(const QString &siteList) {
  return siteWords_.try_emplace(siteList, files_, siteList).first->second;
}

bool HunspellSpelling::IsListed(const QString &word, const QString &siteList) {
  return ignored_.contains(word) || personWords_.Has(word) ||
         (!siteList.isEmpty() && SiteWords(siteList).Has(word));
}

std::vector<TextStretch> HunspellSpelling::UnknownWords(const SpelledLine &line,
                                                        const QString &siteList) {
  std::vector<TextStretch> unknown;
  for (const TextStretch &place : finder_.SpelledWords(line.text)) {
    Dictionary *dictionary = DictionaryOf(line.LanguageAt(place.start));
    if (dictionary == nullptr) continue;
    const QString word =
        AsInDictionaries(QStringView(line.text).sliced(place.start, place.end - place.start));
    if (!Knows(*dictionary, line.text, place, word) && !IsListed(word, siteList))
      unknown.push_back(place);
  }
  return unknown;
}

QStringList HunspellSpelling::Suggestions(const QString &word, const QString &language) {
  Dictionary *dictionary = DictionaryOf(language);
  return dictionary == nullptr ? QStringList() : dictionary->Suggestions(AsInDictionaries(word));
}

void HunspellSpelling::Ignore(const QString &word) {
  ignored_.insert(AsInDictionaries(word));
}

void HunspellSpelling::Add(const QString &word, WordHome home, const QString &siteList) {
  WordList &list = home == WordHome::Person ? personWords_ : SiteWords(siteList);
  list.Add(AsInDictionaries(word));
}

QStringList HunspellSpelling::PackagesToTell() {
  // One package may serve several languages.
  QStringList packages = std::exchange(packages_, {});
  packages.removeDuplicates();
  return packages;
}

}  // namespace velor
