// SPDX-License-Identifier: GPL-3.0-or-later
#include "spelling/DictionaryFiles.h"

#include <QDir>

#include <array>
#include <string_view>
#include <utility>

namespace velor {

namespace {

/// The region that counts where a language is named without one, or without a dictionary of its
/// region. Other languages go without.
constexpr auto MainRegions = std::to_array<std::pair<std::string_view, std::string_view>>({
    {"de", "DE"},
    {"en", "US"},
    {"es", "ES"},
    {"fr", "FR"},
    {"pt", "PT"},
});

/// The dictionaries that Debian has as "hunspell-NAME".
constexpr auto PackagedNames = std::to_array<std::string_view>(
    {"af", "an",    "ar",    "be",    "bg",  "bn",    "bo",    "br",    "bs",    "ca",    "cs",
     "da", "de-at", "de-ch", "de-de", "dz",  "el",    "en-au", "en-ca", "en-gb", "en-us", "en-za",
     "es", "eu",    "fr",    "gd",    "gl",  "gu",    "gug",   "he",    "hi",    "hr",    "hu",
     "id", "is",    "it",    "kk",    "kmr", "ko",    "lo",    "lt",    "lv",    "ml",    "mn",
     "ne", "nl",    "no",    "oc",    "pl",  "pt-br", "pt-pt", "ro",    "ru",    "si",    "sk",
     "sl", "sr",    "sv",    "sw",    "te",  "th",    "tr",    "uk",    "uz",    "vi"});

QString Text(std::string_view text) {
  return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
}

/// The parts of a tag that name dictionaries: the language in small letters, and the region, the
/// main one where the tag has none.
struct Locale {
  QString language;
  QString region = {};
  QString mainRegion = {};
};

Locale LocaleOf(const QString &tag) {
  QStringList parts = QString(tag).replace(u'_', u'-').split(u'-');
  Locale locale{.language = parts.takeFirst().toLower()};
  // Norwegian pages say which of the two; its dictionaries are one package.
  for (const QString &part : std::as_const(parts)) {
    if (part.size() == 2) locale.region = part.toUpper();
    if (part.size() == 2 || part.size() == 1) break;
  }
  for (const auto &[language, region] : MainRegions)
    if (Text(language) == locale.language) locale.mainRegion = Text(region);
  return locale;
}

}  // namespace

DictionaryFiles::DictionaryFiles(const QStringList &folders) : folders_(folders) {
  for (const QString &folder : folders) {
    const QDir files(folder);
    for (const QString &file : files.entryList({QStringLiteral("*.dic")}, QDir::Files)) {
      const QString name = file.chopped(4);
      if (files.exists(name + QStringLiteral(".aff")) && !names_.contains(name)) names_ << name;
    }
  }
  names_.sort();
}

QString DictionaryFiles::NameFor(const QString &language) const {
  const Locale locale = LocaleOf(language);
  if (locale.language.isEmpty()) return {};
  const QString beginning = locale.language + u'_';
  for (const QString &wanted :
       {beginning + locale.region, beginning + locale.mainRegion, locale.language}) {
    if (names_.contains(wanted)) return wanted;
  }
  for (const QString &name : names_)
    if (name.startsWith(beginning)) return name;
  return {};
}

QString DictionaryFiles::FileOf(const QString &name, const char *ending) const {
  for (const QString &folder : folders_) {
    const QString file = folder + u'/' + name;
    if (QFile::exists(file + QStringLiteral(".dic")) &&
        QFile::exists(file + QStringLiteral(".aff")))
      return file + QString::fromLatin1(ending);
  }
  return {};
}

QString DictionaryFiles::AffixFile(const QString &name) const {
  return FileOf(name, ".aff");
}

QString DictionaryFiles::WordFile(const QString &name) const {
  return FileOf(name, ".dic");
}

QString PackageFor(const QString &language) {
  Locale locale = LocaleOf(language);
  if (locale.language == QStringLiteral("nb") || locale.language == QStringLiteral("nn"))
    locale.language = QStringLiteral("no");
  const QString beginning = locale.language + u'-';
  for (const QString &wanted : {beginning + locale.region.toLower(),
                                beginning + locale.mainRegion.toLower(), locale.language}) {
    for (const std::string_view name : PackagedNames)
      if (Text(name) == wanted) return QStringLiteral("hunspell-") + wanted;
  }
  return {};
}

}  // namespace velor
