// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/SourceSearch.h"

#include <algorithm>

namespace velor {

namespace {

using Matches = std::vector<TextMatch>;

/// The match to go to; there is one.
const TextMatch &Next(const Matches &matches, const TextStretch &selected,
                      SearchDirection direction) {
  const auto firstFrom = [&matches](qsizetype position) {
    return std::partition_point(matches.begin(), matches.end(), [position](const TextMatch &match) {
      return match.place.start < position;
    });
  };
  if (direction == SearchDirection::Backward) {
    const auto behind = firstFrom(selected.start);
    return behind == matches.begin() ? matches.back() : *std::prev(behind);
  }
  const auto next = firstFrom(direction == SearchDirection::Here ? selected.start : selected.end);
  return next == matches.end() ? matches.front() : *next;
}

}  // namespace

QString SourceSearch::SelectedLine() {
  const QString selected = source_.SelectedText();
  return selected.contains(u'\n') || selected.contains(u'\r') ? QString() : selected;
}

std::vector<TextMatch> SourceSearch::Matches(const SearchQuery &query) {
  if (query.scope == SearchScope::Everything) {
    scope_.reset();
  } else if (!scope_) {
    scope_ = source_.Selection();
  }
  std::vector<TextMatch> matches = TextMatcher(query).MatchesIn(source_.Text());
  if (!scope_) return matches;
  std::erase_if(matches, [this](const TextMatch &match) {
    return match.place.start < scope_->start || match.place.end > scope_->end;
  });
  return matches;
}

void SourceSearch::Show(const std::vector<TextMatch> &matches, const SearchQuery &query,
                        std::optional<int> replaced) {
  std::vector<TextStretch> places;
  places.reserve(matches.size());
  for (const TextMatch &match : matches) places.push_back(match.place);
  source_.MarkStretches(places);
  const auto current = std::find(places.begin(), places.end(), source_.Selection());
  SearchResult result;
  result.count = static_cast<int>(places.size());
  if (current != places.end()) result.current = static_cast<int>(current - places.begin()) + 1;
  result.isInvalid = !TextMatcher(query).IsValid();
  result.replaced = replaced;
  Report(result);
}

void SourceSearch::Find(const SearchQuery &query, SearchDirection direction) {
  const std::vector<TextMatch> matches = Matches(query);
  if (!matches.empty()) source_.Select(Next(matches, source_.Selection(), direction).place);
  Show(matches, query);
}

void SourceSearch::Recount(const SearchQuery &query) {
  Show(Matches(query), query);
}

void SourceSearch::Replace(const SearchQuery &query, const QString &replacement) {
  const TextMatcher matcher(query);
  for (const TextMatch &match : Matches(query)) {
    if (!CanReplace() || match.place != source_.Selection()) continue;
    const QString text = matcher.ReplacementFor(match, replacement);
    source_.ReplaceParts({{match.place, text}});
    const qsizetype end = match.place.start + text.size();
    if (scope_) scope_->end += end - match.place.end;
    source_.Select({end, end});
    break;
  }
  Find(query, SearchDirection::Forward);
}

void SourceSearch::ReplaceAll(const SearchQuery &query, const QString &replacement) {
  const TextMatcher matcher(query);
  std::vector<TextReplacement> parts;
  if (CanReplace()) {
    for (const TextMatch &match : Matches(query)) {
      parts.push_back({match.place, matcher.ReplacementFor(match, replacement)});
      if (scope_) scope_->end += parts.back().text.size() - (match.place.end - match.place.start);
    }
  }
  if (!parts.empty()) source_.ReplaceParts(parts);
  Show(Matches(query), query, static_cast<int>(parts.size()));
}

void SourceSearch::End() {
  scope_.reset();
  source_.MarkStretches({});
}

}  // namespace velor
