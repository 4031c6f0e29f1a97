// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/jet/JetCatalog.h"

#include "catalogue/jet/JetCursor.h"
#include "catalogue/jet/JetDefinition.h"
#include "catalogue/jet/JetTableRows.h"
#include "platform/RuntimeError.h"
#include "platform/Words.h"

#include <set>

namespace velor {

namespace {

constexpr qint64 TableObject = 1;
/// Flags of a table that is the system's or hidden.
constexpr qint64 SystemFlags = 0x80000002;
/// The definition's page in an object's id.
constexpr qint64 PageOfId = 0xFFFFFF;

}  // namespace

std::vector<JetTable> ReadJetTables(JetPager &pager, const QString &path) {
  const auto objects = ReadJetDefinition(pager, jet::CatalogPage, QStringLiteral("MSysObjects"));
  const int id = objects ? objects->ColumnIndex(QStringLiteral("Id")) : -1;
  const int name = objects ? objects->ColumnIndex(QStringLiteral("Name")) : -1;
  const int type = objects ? objects->ColumnIndex(QStringLiteral("Type")) : -1;
  const int flags = objects ? objects->ColumnIndex(QStringLiteral("Flags")) : -1;
  if (id < 0 || name < 0 || type < 0 || flags < 0) {
    throw RuntimeError::Of(
        ErrorNumber::DeviceIoError, QStringLiteral("Database.Open"),
        Words::tr("The catalogue %1 cannot be opened: its list of tables is damaged").arg(path));
  }

  std::vector<JetTable> tables;
  std::set<jet::PageNumber> seen;
  JetCursor cursor(pager, *objects, JetTablePages(pager, *objects));
  while (cursor.Next()) {
    if (cursor.Integer(type) != TableObject || cursor.Integer(flags).value_or(0) & SystemFlags) {
      continue;
    }
    const auto page = static_cast<jet::PageNumber>(cursor.Integer(id).value_or(0) & PageOfId);
    if (!seen.insert(page).second) continue;
    const QString tableName = cursor.Value(name).toString();
    if (auto table = ReadJetDefinition(pager, page, tableName)) {
      tables.push_back(*std::move(table));
    } else {
      pager.NoteDamage(Words::tr("the definition of the table %1 is damaged").arg(tableName));
    }
  }
  return tables;
}

}  // namespace velor
