// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "page/text/TextMatcher.h"
#include "platform/SourceControl.h"
#include "platform/TextSearch.h"

#include <optional>
#include <vector>

namespace velor {

/// Finds and replaces in a source control: in all of its text, tags and comments too.
class SourceSearch final : public TextSearch {
 public:
  /// `source` outlives the search.
  SourceSearch(SourceControl &source, SourceAccess access) : source_(source), access_(access) {}

  QString SelectedLine() override;
  void SetFocus() override { source_.SetFocus(); }
  bool CanReplace() const override { return access_ == SourceAccess::Edit; }
  void Find(const SearchQuery &query, SearchDirection direction) override;
  void Recount(const SearchQuery &query) override;
  void Replace(const SearchQuery &query, const QString &replacement) override;
  void ReplaceAll(const SearchQuery &query, const QString &replacement) override;
  void End() override;

 private:
  /// The matches of the query in its scope.
  std::vector<TextMatch> Matches(const SearchQuery &query);
  /// Marks the matches and reports them.
  void Show(const std::vector<TextMatch> &matches, const SearchQuery &query,
            std::optional<int> replaced = std::nullopt);

  SourceControl &source_;
  SourceAccess access_;
  std::optional<TextStretch> scope_;
};

}  // namespace velor
