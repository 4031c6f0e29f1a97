// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/jet/JetCheckedTable.h"

#include <algorithm>

namespace velor::fixture {

namespace {

constexpr quint32 MemoPageOwner = 0x4C41564C;
constexpr int BooleanType = 1;
constexpr int OleType = 11;
constexpr int MemoType = 12;

QString NameOf(const CheckedDefinition &table) {
  return QStringLiteral("table %1").arg(table.page);
}

QString PlaceOf(quint32 address) {
  return QStringLiteral("row %1 of page %2").arg(SlotOf(address)).arg(PageOf(address));
}

/// The columns of a row's bytes; nothing when its offsets do not fit together.
std::optional<CheckedFields> FieldsOf(const QByteArray &bytes, const CheckedDefinition &table) {
  if (bytes.size() < 3) return {};
  const int columns = Get16(bytes, 0);
  const int mask = static_cast<int>(bytes.size()) - (columns + 7) / 8;
  if (columns == 0 || columns > table.maximumColumns || mask < 2) return {};
  const bool anyVariable = std::any_of(table.columns.begin(), table.columns.end(),
                                       [](const CheckedColumn &column) { return column.variable; });
  std::vector<int> offsets;  // one more than there are variable columns
  int fixedEnd = mask;
  if (anyVariable) {
    const int variables = mask >= 4 ? Get16(bytes, mask - 2) : 0xFFFF;
    const int table16 = mask - 2 - 2 * (variables + 1);
    if (table16 < 2) return {};
    for (int i = 0; i <= variables; ++i) offsets.push_back(Get16(bytes, mask - 4 - 2 * i));
    if (!std::is_sorted(offsets.begin(), offsets.end()) || offsets.front() < 2 ||
        offsets.back() != table16)
      return {};
    fixedEnd = offsets.front();
  }
  CheckedFields row;
  for (const CheckedColumn &column : table.columns) {
    if (column.number >= columns || column.type == BooleanType) continue;
    if (!BitAt(bytes, mask, column.number)) continue;
    if (column.variable) {
      if (column.variableIndex + 1 >= static_cast<int>(offsets.size())) return {};
      const int start = offsets[column.variableIndex];
      row.fields[column.number] = bytes.mid(start, offsets[column.variableIndex + 1] - start);
      if (column.type == 10 && row.fields[column.number].size() > column.length + 2) return {};
    } else {
      if (2 + column.fixedOffset + column.length > fixedEnd) return {};
      row.fields[column.number] = bytes.mid(2 + column.fixedOffset, column.length);
    }
  }
  return row;
}

/// The parts of a memo value, from the address of the first; empty with a complaint when broken.
qsizetype FollowChain(JetCheckedPages &pages, quint32 address, const QString &whose,
                      const std::set<quint32> &owned, std::set<quint32> &used, bool chained) {
  qsizetype length = 0;
  while (address != 0) {
    if (!used.insert(address).second) {
      pages.Complain(QStringLiteral("%1: %2 is used twice").arg(whose, PlaceOf(address)));
      return length;
    }
    if (!owned.count(PageOf(address)))
      pages.Complain(
          QStringLiteral("%1: page %2 is not the column's").arg(whose).arg(PageOf(address)));
    const QByteArray part = pages.RowBytes(address, whose);
    if (chained && part.size() < 4) return length;
    length += part.size() - (chained ? 4 : 0);
    address = chained ? Get32(part, 0) : 0;
  }
  return length;
}

}  // namespace

CheckedRows CheckRows(JetCheckedPages &pages, const CheckedDefinition &table) {
  const QString name = NameOf(table);
  const std::set<quint32> owned = pages.MapMembers(table.ownedMap, name + QStringLiteral("'s map"));
  const std::set<quint32> free =
      pages.MapMembers(table.freeMap, name + QStringLiteral("'s free map"));
  if (!std::includes(owned.begin(), owned.end(), free.begin(), free.end()))
    pages.Complain(name + QStringLiteral(": a page of the free map is not the table's"));
  for (quint32 page = 1; page < pages.Count(); ++page)
    if (pages.TypeOf(page) == 1 && Get32(pages.At(page), 4) == table.page && !pages.IsFree(page) &&
        page != 1 && !owned.count(page))
      pages.Complain(QStringLiteral("%1: page %2 is not in its map").arg(name).arg(page));

  CheckedRows rows;
  std::set<quint32> movedTo;
  std::set<quint32> pointedAt;
  for (const quint32 page : owned) {
    pages.Use(page, name);
    if (pages.TypeOf(page) != 1 || Get32(pages.At(page), 4) != table.page)
      pages.Complain(QStringLiteral("%1: page %2 is another's").arg(name).arg(page));
    const std::vector<CheckedRow> &slotRows = pages.RowsOf(page);
    for (quint32 slot = 0; slot < slotRows.size(); ++slot) {
      const quint32 home = RowAddress(page, slot);
      quint32 place = home;
      if (slotRows[slot].state == RowState::MovedHere) movedTo.insert(home);
      if (slotRows[slot].state == RowState::MovedHere || slotRows[slot].state == RowState::Deleted)
        continue;
      if (slotRows[slot].state == RowState::Pointer) {
        place = Get32(pages.At(page), slotRows[slot].start);
        if (!pointedAt.insert(place).second)
          pages.Complain(QStringLiteral("%1: two rows moved to %2").arg(name, PlaceOf(place)));
      }
      const std::optional<CheckedFields> fields = FieldsOf(pages.RowBytes(place, name), table);
      if (!fields) pages.Complain(QStringLiteral("%1: %2 is no row").arg(name, PlaceOf(place)));
      rows[home] = fields.value_or(CheckedFields());
    }
  }
  if (movedTo != pointedAt)
    pages.Complain(QStringLiteral("%1: %2 rows moved away, but %3 arrived")
                       .arg(name)
                       .arg(pointedAt.size())
                       .arg(movedTo.size()));
  if (rows.size() != table.rows)
    pages.Complain(
        QStringLiteral("%1 counts %2 rows, but has %3").arg(name).arg(table.rows).arg(rows.size()));
  return rows;
}

void CheckMemos(JetCheckedPages &pages, const CheckedDefinition &table, const CheckedRows &rows) {
  for (const CheckedColumn &column : table.columns) {
    if (column.type != MemoType && column.type != OleType) continue;
    const QString name = QStringLiteral("%1, column %2").arg(NameOf(table)).arg(column.number);
    const auto maps = table.memoMaps.find(column.number);
    if (maps == table.memoMaps.end()) {
      pages.Complain(name + QStringLiteral(" has no maps"));
      continue;
    }
    const std::set<quint32> owned = pages.MapMembers(maps->second.first, name);
    const std::set<quint32> free = pages.MapMembers(maps->second.second, name);
    if (!std::includes(owned.begin(), owned.end(), free.begin(), free.end()))
      pages.Complain(name + QStringLiteral(": a page of the free map is not the column's"));
    for (const quint32 page : owned) {
      pages.Use(page, name);
      if (pages.TypeOf(page) != 1 || Get32(pages.At(page), 4) != MemoPageOwner)
        pages.Complain(QStringLiteral("%1: page %2 holds no long values").arg(name).arg(page));
    }
    std::set<quint32> used;
    for (const auto &[home, row] : rows) {
      const auto field = row.fields.find(column.number);
      if (field == row.fields.end() || field->second.isEmpty()) continue;
      const QString whose = QStringLiteral("%1, %2").arg(name, PlaceOf(home));
      const QByteArray &header = field->second;
      if (header.size() < 12) {
        pages.Complain(whose + QStringLiteral(": the long value's header is short"));
        continue;
      }
      const quint32 kind = Get32(header, 0) & 0xC0000000;
      const auto length = static_cast<qsizetype>(Get32(header, 0) & 0x3FFFFFFF);
      const qsizetype found =
          kind == 0x80000000 ? header.size() - 12
                             : FollowChain(pages, Get32(header, 4), whose, owned, used, kind == 0);
      if (found != length)
        pages.Complain(QStringLiteral("%1: a long value of %2 bytes has %3")
                           .arg(whose)
                           .arg(length)
                           .arg(found));
    }
    qsizetype held = 0;
    for (const quint32 page : owned)
      held += std::count_if(pages.RowsOf(page).begin(), pages.RowsOf(page).end(),
                            [](const CheckedRow &row) {
                              return row.state != RowState::Deleted && row.start != row.end;
                            });
    if (held != static_cast<qsizetype>(used.size()))
      pages.Complain(QStringLiteral("%1: %2 parts of long values are kept, %3 used")
                         .arg(name)
                         .arg(held)
                         .arg(used.size()));
  }
}

}  // namespace velor::fixture
