// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/WebSearch.h"

#include "engine/BridgeScript.h"
#include "engine/LiveDocument.h"
#include "engine/NoticeQueue.h"

#include <QVariantMap>

namespace velor {

namespace {

using namespace std::chrono_literals;

/// Asking for the selected text delays the find bar no longer than this.
constexpr std::chrono::milliseconds SelectionLimit = 400ms;

/// The query as engine/bridge/types.d.ts has it.
QString InScript(const SearchQuery &query) {
  return ScriptValue(
      QVariantMap{{QStringLiteral("words"), query.words},
                  {QStringLiteral("matchCase"), query.letterCase == LetterCase::Matched},
                  {QStringLiteral("wholeWords"), query.edges == WordEdges::Whole},
                  {QStringLiteral("ignoreAccents"), query.accents == Accents::Ignored},
                  {QStringLiteral("expression"), query.syntax == WordSyntax::Expression},
                  {QStringLiteral("inSelection"), query.scope == SearchScope::Selection}});
}

QString InScript(SearchDirection direction) {
  switch (direction) {
    case SearchDirection::Here:
      return QStringLiteral("'here'");
    case SearchDirection::Forward:
      return QStringLiteral("'next'");
    case SearchDirection::Backward:
      return QStringLiteral("'previous'");
  }
  return {};
}

SearchResult ResultFrom(const QVariantMap &answer) {
  SearchResult result;
  result.count = answer[QStringLiteral("count")].toInt();
  result.current = answer[QStringLiteral("current")].toInt();
  result.isInvalid = answer[QStringLiteral("invalid")].toBool();
  const QVariant replaced = answer[QStringLiteral("replaced")];
  if (replaced.isValid()) result.replaced = replaced.toInt();
  return result;
}

}  // namespace

QString WebSearch::SelectedLine() {
  if (document_.View() == nullptr) return {};
  const auto answer = document_.View()->Ask(QStringLiteral("velor.selectedLine()"), SelectionLimit);
  return answer ? answer->toString() : QString();
}

void WebSearch::SetFocus() {
  if (document_.View() != nullptr) document_.View()->SetFocus();
}

void WebSearch::Run(const QString &call) {
  if (document_.View() == nullptr) return;
  document_.View()->Run(call, [this](const QVariant &answer) {
    const SearchResult result = ResultFrom(answer.toMap());
    notices_.Post(Notice::Search, [this, result] { Report(result); });
  });
}

void WebSearch::Find(const SearchQuery &query, SearchDirection direction) {
  Run(QStringLiteral("velor.find(%1,%2)").arg(InScript(query), InScript(direction)));
}

void WebSearch::Recount(const SearchQuery &query) {
  Run(QStringLiteral("velor.find(%1,'stay')").arg(InScript(query)));
}

void WebSearch::Replace(const SearchQuery &query, const QString &replacement) {
  Run(QStringLiteral("velor.replaceFound(%1,%2)").arg(InScript(query), ScriptValue(replacement)));
}

void WebSearch::ReplaceAll(const SearchQuery &query, const QString &replacement) {
  Run(QStringLiteral("velor.replaceAll(%1,%2)").arg(InScript(query), ScriptValue(replacement)));
}

void WebSearch::End() {
  document_.Run(QStringLiteral("velor.endFind()"));
}

}  // namespace velor
