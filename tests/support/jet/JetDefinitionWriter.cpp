// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/jet/JetDefinitionWriter.h"

#include "tests/support/jet/JetRowWriter.h"

#include <algorithm>

namespace velor::fixture {

namespace {

constexpr quint32 Magic = 0x659;
constexpr int PageHeader = 8;
constexpr int IndexColumnSlots = 10;

void AddName(QByteArray &bytes, const QString &name) {
  Add16(bytes, static_cast<quint32>(2 * name.size()));
  for (const QChar character : name) Add16(bytes, character.unicode());
}

int DeclaredLength(const FixtureColumn &column, const ColumnPlace &place) {
  if (column.type == CellType::Boolean) return 1;
  return column.type == CellType::Text ? 2 * column.length : place.fixedLength;
}

/// The 55 bytes from the row count up to the counts per index.
void AddHeader(QByteArray &bytes, const FixtureTable &table, const DefinitionParts &parts,
               const std::vector<ColumnPlace> &places) {
  const auto variables = std::count_if(places.begin(), places.end(),
                                       [](const ColumnPlace &place) { return place.variable; });
  const auto columns = static_cast<quint32>(table.columns.size());
  const auto indexes = static_cast<quint32>(table.indexes.size());
  Add32(bytes, 0);  // the length, filled in at the end
  Add32(bytes, Magic);
  Add32(bytes, parts.rows);
  Add32(bytes, 0);
  Add32(bytes, 1);
  bytes.append(12, '\0');
  bytes += static_cast<char>(parts.kind);
  Add16(bytes, columns);
  Add16(bytes, static_cast<quint32>(variables));
  Add16(bytes, columns);
  Add32(bytes, indexes);
  Add32(bytes, indexes);
  for (const quint32 map : {parts.maps.owned, parts.maps.free}) Add32(bytes, map);
}

void AddColumn(QByteArray &bytes, int number, const FixtureColumn &column,
               const ColumnPlace &place) {
  const bool text = column.type == CellType::Text || column.type == CellType::Memo;
  bytes += static_cast<char>(column.type);
  Add32(bytes, Magic);
  Add16(bytes, number);
  Add16(bytes, place.variableIndex);
  Add16(bytes, number);
  Add32(bytes, text ? 0x0409 : 0);
  bytes += place.variable ? '\x02' : '\x03';
  bytes += text && column.form == TextForm::Compressed ? '\x01' : '\0';
  Add32(bytes, 0);
  Add16(bytes, place.fixedOffset);
  Add16(bytes, DeclaredLength(column, place));
}

void AddIndex(QByteArray &bytes, int column, const UsageMaps &maps, quint32 root) {
  Add32(bytes, 0x783);
  for (int i = 0; i < IndexColumnSlots; ++i) {
    Add16(bytes, i == 0 ? column : 0xFFFF);
    bytes += i == 0 ? '\x01' : '\0';
  }
  Add32(bytes, maps.owned);
  Add32(bytes, root);
  bytes.append(10, '\0');
}

void AddIndexUse(QByteArray &bytes, int number) {
  Add32(bytes, Magic);
  Add32(bytes, number);
  Add32(bytes, number);
  bytes += '\0';
  Add32(bytes, 0xFFFFFFFF);
  bytes.append(11, '\0');
}

}  // namespace

void WriteDefinition(JetPageSet &pages, quint32 page, const FixtureTable &table,
                     const DefinitionParts &parts) {
  const std::vector<ColumnPlace> places = PlacesOf(table.columns);
  const int indexes = static_cast<int>(table.indexes.size());
  QByteArray bytes;
  AddHeader(bytes, table, parts, places);
  for (int i = 0; i < indexes; ++i) {
    Add32(bytes, 0);
    Add32(bytes, parts.rows);
    Add32(bytes, 0);
  }
  for (int i = 0; i < static_cast<int>(table.columns.size()); ++i)
    AddColumn(bytes, i, table.columns[i], places[i]);
  for (const FixtureColumn &column : table.columns) AddName(bytes, column.name);
  for (int i = 0; i < indexes; ++i)
    AddIndex(bytes, table.indexes[i].column, parts.indexMaps[i], parts.indexRoots[i]);
  for (int i = 0; i < indexes; ++i) AddIndexUse(bytes, i);
  for (const FixtureIndex &index : table.indexes) AddName(bytes, index.name);
  for (const auto &[column, maps] : parts.memoMaps) {
    Add16(bytes, column);
    Add32(bytes, maps.owned);
    Add32(bytes, maps.free);
  }
  Add16(bytes, 0xFFFF);
  bytes.append(8, '\0');
  Put32(bytes, 0, static_cast<quint32>(bytes.size()));

  constexpr qsizetype PerPage = JetPageSize - PageHeader;
  for (qsizetype start = 0; start < bytes.size(); start += PerPage) {
    const QByteArray part = bytes.mid(start, PerPage);
    const bool more = start + PerPage < bytes.size();
    const quint32 next = more ? pages.Append() : 0;
    Put16(pages.At(page), 0, 0x0102);
    Put16(pages.At(page), 2, static_cast<quint32>(PerPage - part.size()));
    Put32(pages.At(page), 4, next);
    pages.At(page).replace(PageHeader, part.size(), part);
    page = next;
  }
}

}  // namespace velor::fixture
