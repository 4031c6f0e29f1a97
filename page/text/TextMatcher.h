// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/TextSearch.h"
#include "platform/TextStretch.h"

#include <QRegularExpression>
#include <QString>

#include <vector>

namespace velor {

/// A stretch that a query was found in, and what to put in its place by the query's groups.
struct TextMatch {
  TextStretch place;
  /// The whole match, then the groups of a regular expression.
  QStringList groups;
};

/// Finds the words of a query in a text, as engine/bridge/find/matcher.js does in a page: blanks of
/// plain words stand for any white space, and no match is empty.
class TextMatcher {
 public:
  explicit TextMatcher(const SearchQuery &query);

  /// False where the words are no regular expression.
  bool IsValid() const { return expression_.isValid(); }
  /// The matches in the order of the text; the query's scope is not looked at.
  std::vector<TextMatch> MatchesIn(const QString &text) const;
  /// The text for a match's place: for a regular expression with $1 to $9, $& and $$ filled in.
  QString ReplacementFor(const TextMatch &match, const QString &replacement) const;

 private:
  SearchQuery query_;
  QRegularExpression expression_;
};

}  // namespace velor
