// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/jet/JetTableRows.h"

#include "catalogue/jet/JetCursor.h"
#include "catalogue/jet/JetUsageMap.h"
#include "platform/Words.h"

#include <algorithm>
#include <iterator>
#include <set>

namespace velor {

namespace {

bool BelongsTo(const jet::Page &page, const JetTable &table) {
  return page[0] == static_cast<unsigned char>(jet::PageType::Data) &&
         jet::Get<quint32>(page.data() + jet::DataOwner) == table.definitionPage;
}

/// No two columns share a place, so that a change of one cannot change another.
void CheckColumns(JetPager &pager, const JetTable &table) {
  std::set<int> numbers;
  std::set<int> variable;
  for (const JetColumn &column : table.columns) {
    const bool isVariable = column.storage == JetStorageKind::Variable;
    if (numbers.insert(column.number).second &&
        (!isVariable || variable.insert(column.variableIndex).second)) {
      continue;
    }
    pager.NoteDamage(Words::tr("the column %1 of the table %2 shares its place with another")
                         .arg(column.name, table.name));
  }
}

/// The pages with room for rows are among the table's, and the map of all free pages, from which
/// pages that are added have to be taken, is there.
void CheckFreeMaps(JetPager &pager, const JetTable &table,
                   const std::vector<jet::PageNumber> &owned) {
  const JetPages free = JetUsageMap(pager, table.freeMap, JetBit::Clear).Pages();
  if (free.soundness == JetSoundness::Damaged ||
      !std::includes(owned.begin(), owned.end(), free.numbers.begin(), free.numbers.end())) {
    pager.NoteDamage(
        Words::tr("the map of the pages with room of the table %1 is damaged").arg(table.name));
  }
  const JetPages unused = JetUsageMap(pager, {jet::GlobalMapPage, 0}, JetBit::Set).Pages();
  if (unused.soundness == JetSoundness::Damaged) {
    pager.NoteDamage(Words::tr("the map of the free pages is damaged"));
  }
  std::vector<jet::PageNumber> both;
  std::set_intersection(owned.begin(), owned.end(), unused.numbers.begin(), unused.numbers.end(),
                        std::back_inserter(both));
  if (!both.empty()) {
    pager.NoteDamage(Words::tr("page %1 of the table %2 is marked as free")
                         .arg(QString::number(both.front()), table.name));
  }
}

/// Every row that has moved is pointed at from one home slot.
void CheckMovedRows(JetPager &pager, const JetTable &table,
                    const std::vector<jet::PageNumber> &owned) {
  std::set<JetPlace> pointedAt;
  std::set<JetPlace> moved;
  bool twice = false;
  for (const jet::PageNumber number : owned) {
    const auto page = ReadJetTablePage(pager, table, number);
    if (!page) continue;
    const JetSlots rows(*page);
    for (int slot = 0; slot < rows.Count(); ++slot) {
      const quint16 flags = rows.Flags(slot);
      if (flags == jet::SlotMoved) moved.insert({number, slot});
      if (flags == jet::SlotPointer && rows.Row(slot).size() >= jet::PointerBytes) {
        twice |= !pointedAt.insert(PlaceAt(rows.Row(slot).data())).second;
      }
    }
  }
  if (!twice && pointedAt == moved) return;
  pager.NoteDamage(
      Words::tr("rows of the table %1 that have moved are lost or doubled").arg(table.name));
}

}  // namespace

std::vector<jet::PageNumber> JetTablePages(JetPager &pager, const JetTable &table) {
  JetPages pages = JetUsageMap(pager, table.ownedMap, JetBit::Clear).Pages();
  if (pages.soundness == JetSoundness::Damaged) {
    pager.NoteDamage(Words::tr("the map of the pages of the table %1 is damaged").arg(table.name));
  }
  return std::move(pages.numbers);
}

std::shared_ptr<const jet::Page> ReadJetTablePage(JetPager &pager, const JetTable &table,
                                                  jet::PageNumber number) {
  auto page = pager.Read(number);
  if (page && !BelongsTo(*page, table)) {
    pager.NoteDamage(Words::tr("page %1 is no data page of the table %2, as it should be")
                         .arg(QString::number(number), table.name));
    return nullptr;
  }
  if (page && !JetSlots(*page).AreSound()) {
    pager.NoteDamage(
        Words::tr("page %1 of the table %2 is damaged").arg(QString::number(number), table.name));
    return nullptr;
  }
  return page;
}

JetFoundRow FollowJetPointer(JetPager &pager, const JetTable &table, JetBytes home) {
  if (home.size() < jet::PointerBytes) return {};
  JetFoundRow moved = FindJetRow(pager, PlaceAt(home.data()));
  if (!moved.page || moved.flags != jet::SlotMoved || !BelongsTo(*moved.page, table)) return {};
  return moved;
}

void NoteDamagedRow(JetPager &pager, const JetTable &table, const JetPlace &home) {
  pager.NoteDamage(Words::tr("row %1 on page %2 of the table %3 is damaged")
                       .arg(QString::number(home.slot), QString::number(home.page), table.name));
}

void CheckJetTable(JetPager &pager, const JetTable &table) {
  const std::vector<jet::PageNumber> pages = JetTablePages(pager, table);
  CheckColumns(pager, table);
  CheckFreeMaps(pager, table, pages);
  CheckMovedRows(pager, table, pages);
  JetCursor cursor(pager, table, pages);
  quint32 rows = 0;
  for (; cursor.Next(); ++rows) {
    if (!cursor.IsWhole()) NoteDamagedRow(pager, table, HomeOf(cursor.RowId()));
  }
  if (rows == table.storedRows) return;
  pager.NoteDamage(Words::tr("the table %1 should have %2 rows, but %3 are there")
                       .arg(table.name, QString::number(table.storedRows), QString::number(rows)));
}

}  // namespace velor
