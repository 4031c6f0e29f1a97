// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/jet/JetChecker.h"

#include "tests/support/jet/JetCheckedTable.h"

namespace velor::fixture {

namespace {

/// Pages where a definition begins: those of its type that none goes on at.
std::set<quint32> DefinitionPages(const JetCheckedPages &pages) {
  std::set<quint32> definitions;
  std::set<quint32> continuations;
  for (quint32 page = 2; page < pages.Count(); ++page) {
    if (pages.TypeOf(page) != 2 || pages.IsFree(page)) continue;
    definitions.insert(page);
    continuations.insert(Get32(pages.At(page), 4));
  }
  for (const quint32 page : continuations) definitions.erase(page);
  return definitions;
}

}  // namespace

QStringList JetComplaints(const QByteArray &file) {
  JetCheckedPages pages(file);
  const std::set<quint32> definitions = DefinitionPages(pages);
  if (!definitions.count(2)) pages.Complain(QStringLiteral("page 2 holds no definition"));
  for (const quint32 page : definitions) {
    const std::optional<CheckedDefinition> table = ReadDefinition(pages, page);
    if (!table) continue;
    const CheckedRows rows = CheckRows(pages, *table);
    CheckMemos(pages, *table, rows);
    CheckIndexes(pages, *table, rows);
  }
  return pages.Complaints();
}

}  // namespace velor::fixture
