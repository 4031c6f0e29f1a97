// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Spelling.h"

#include <QRegularExpression>
#include <QSet>

#include <utility>

namespace velor {

/// Spelling for which a word is known where it is in `known`.
class FakeSpelling final : public Spelling {
 public:
  QSet<QString> known;
  QStringList suggestions;
  QStringList packages;
  /// The lines that were judged, and the lists that words were added to.
  std::vector<SpelledLine> judged;
  QStringList added;

  std::vector<TextStretch> UnknownWords(const SpelledLine &line, const QString &) override {
    judged.push_back(line);
    static const QRegularExpression word(QStringLiteral("\\w+"),
                                         QRegularExpression::UseUnicodePropertiesOption);
    std::vector<TextStretch> unknown;
    for (const auto &match : word.globalMatch(line.text))
      if (!known.contains(match.captured()))
        unknown.push_back({match.capturedStart(), match.capturedEnd()});
    return unknown;
  }
  QStringList Suggestions(const QString &, const QString &) override { return suggestions; }
  void Ignore(const QString &word) override { known.insert(word); }
  void Add(const QString &word, WordHome, const QString &siteList) override {
    known.insert(word);
    added << siteList;
  }
  QStringList PackagesToTell() override { return std::exchange(packages, {}); }
};

}  // namespace velor
