// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <functional>
#include <optional>
#include <utility>

namespace velor {

enum class SearchDirection {
  Here,  ///< forward from the selection's start: a match stays selected while its text is typed
  Forward,
  Backward,
};
enum class LetterCase { Ignored, Matched };
enum class WordEdges { Anywhere, Whole };
enum class Accents { Matched, Ignored };
enum class WordSyntax { Plain, Expression };
enum class SearchScope {
  Everything,
  /// What was selected when this scope was asked for first, until another one is.
  Selection,
};

/// What is searched for.
struct SearchQuery {
  QString words = {};
  LetterCase letterCase = LetterCase::Ignored;
  WordEdges edges = WordEdges::Anywhere;
  Accents accents = Accents::Matched;
  /// Whether `words` is a regular expression; its replacement may hold $1 to $9 and $& then.
  WordSyntax syntax = WordSyntax::Plain;
  SearchScope scope = SearchScope::Everything;

  bool operator==(const SearchQuery &) const = default;
};

/// What a search has come to.
struct SearchResult {
  int count = 0;
  int current = 0;                   ///< number of the match that is selected, from 1; 0 for none
  bool isInvalid = false;            ///< the words are no regular expression
  std::optional<int> replaced = {};  ///< by ReplaceAll

  bool operator==(const SearchResult &) const = default;
};

/// Finds and replaces in what a view shows. Each match is marked until End; the current one is the
/// selection, and is scrolled into view. A search that reaches an end goes on at the other one.
class TextSearch {
 public:
  using Listener = std::function<void(const SearchResult &)>;

  virtual ~TextSearch() = default;
  /// Called with the result of each call of Find, Replace and ReplaceAll, in it or later.
  void SetListener(Listener listener) { listener_ = std::move(listener); }

  /// The selected text where it lies in one line; empty otherwise.
  virtual QString SelectedLine() = 0;
  virtual void SetFocus() = 0;
  virtual bool CanReplace() const = 0;

  virtual void Find(const SearchQuery &query, SearchDirection direction) = 0;
  /// Counts and marks the matches again; the selection stays.
  virtual void Recount(const SearchQuery &query) = 0;
  /// Replaces the selection where it is a match, as one undo step, and finds the next match.
  virtual void Replace(const SearchQuery &query, const QString &replacement) = 0;
  /// Replaces every match as one undo step.
  virtual void ReplaceAll(const SearchQuery &query, const QString &replacement) = 0;
  /// Removes the marks.
  virtual void End() = 0;

 protected:
  void Report(const SearchResult &result) const {
    if (listener_) listener_(result);
  }

 private:
  Listener listener_;
};

}  // namespace velor
