// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <memory>
#include <string>

class Hunspell;
struct UConverter;

namespace velor {

/// A dictionary of Hunspell's form: the words of one language. Reading its files takes some tens of
/// milliseconds.
class Dictionary {
 public:
  /// Native paths.
  Dictionary(const QString &affixFile, const QString &wordFile);
  ~Dictionary();
  Dictionary(const Dictionary &) = delete;
  Dictionary &operator=(const Dictionary &) = delete;

  bool Has(const QString &word);
  /// The likeliest first.
  QStringList Suggestions(const QString &word);

 private:
  struct CloseConverter {
    void operator()(UConverter *converter) const;
  };

  /// The word in the dictionary's charset; empty where that lacks one of its characters.
  std::string Encoded(const QString &word);
  QString Decoded(const std::string &bytes);

  std::unique_ptr<Hunspell> hunspell_;
  std::unique_ptr<UConverter, CloseConverter> converter_;
  QHash<QString, bool> answers_;
};

}  // namespace velor
