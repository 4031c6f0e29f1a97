// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace velor {

/// The dictionaries that lie in some folders, found by language.
class DictionaryFiles {
 public:
  /// Native folders; the first one that has a dictionary gives it.
  explicit DictionaryFiles(const QStringList &folders);

  /// The name of the dictionary for a language tag, of its region where there is one ("de-AT" by
  /// de_AT, else by de_DE, else by any other of German); empty where there is none.
  QString NameFor(const QString &language) const;
  /// The native files of a dictionary that NameFor answered.
  QString AffixFile(const QString &name) const;
  QString WordFile(const QString &name) const;

 private:
  QString FileOf(const QString &name, const char *ending) const;

  QStringList folders_;
  QStringList names_;  ///< sorted
};

/// Debian's package with the dictionary of a language; empty for a language that has none, Chinese
/// and Japanese say.
QString PackageFor(const QString &language);

}  // namespace velor
