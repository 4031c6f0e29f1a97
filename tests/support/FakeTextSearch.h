// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/TextSearch.h"

#include <QStringList>

namespace velor {

/// A search that notes its calls and reports a result that the test sets.
class FakeTextSearch final : public TextSearch {
 public:
  QString selectedLine;
  SearchResult result;
  /// The query of the last call.
  SearchQuery query;
  QStringList calls;

  QString SelectedLine() override { return selectedLine; }
  void SetFocus() override { calls << QStringLiteral("SetFocus"); }
  bool CanReplace() const override { return true; }
  void Find(const SearchQuery &wanted, SearchDirection direction) override {
    static const QStringList names{QStringLiteral("Here"), QStringLiteral("Forward"),
                                   QStringLiteral("Backward")};
    Note(wanted, QStringLiteral("Find ") + names[static_cast<int>(direction)]);
  }
  void Recount(const SearchQuery &wanted) override { Note(wanted, QStringLiteral("Recount")); }
  void Replace(const SearchQuery &wanted, const QString &replacement) override {
    Note(wanted, QStringLiteral("Replace ") + replacement);
  }
  void ReplaceAll(const SearchQuery &wanted, const QString &replacement) override {
    Note(wanted, QStringLiteral("ReplaceAll ") + replacement);
  }
  void End() override { calls << QStringLiteral("End"); }

 private:
  void Note(const SearchQuery &wanted, const QString &call) {
    query = wanted;
    calls << call;
    Report(result);
  }
};

}  // namespace velor
