// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/jet/JetTableRows.h"

#include "platform/jet/JetCursor.h"
#include "platform/jet/JetUsageMap.h"

namespace velor {

namespace {

bool BelongsTo(const jet::Page &page, const JetTable &table) {
  return page[0] == static_cast<unsigned char>(jet::PageType::Data) &&
         jet::Get<quint32>(page.data() + jet::DataOwner) == table.definitionPage;
}

}  // namespace

std::vector<jet::PageNumber> JetTablePages(JetPager &pager, const JetTable &table) {
  JetPages pages = JetUsageMap(pager, table.ownedMap, JetBit::Clear).Pages();
  if (pages.soundness == JetSoundness::Damaged) {
    pager.NoteDamage(
        QStringLiteral("the map of the pages of the table %1 is damaged").arg(table.name));
  }
  return std::move(pages.numbers);
}

std::shared_ptr<const jet::Page> ReadJetTablePage(JetPager &pager, const JetTable &table,
                                                  jet::PageNumber number) {
  auto page = pager.Read(number);
  if (page && !BelongsTo(*page, table)) {
    pager.NoteDamage(QStringLiteral("page %1 is no data page of the table %2, as it should be")
                         .arg(QString::number(number), table.name));
    return nullptr;
  }
  if (page && !JetSlots(*page).AreSound()) {
    pager.NoteDamage(QStringLiteral("page %1 of the table %2 is damaged")
                         .arg(QString::number(number), table.name));
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
  pager.NoteDamage(QStringLiteral("row %1 on page %2 of the table %3 is damaged")
                       .arg(QString::number(home.slot), QString::number(home.page), table.name));
}

void CheckJetTable(JetPager &pager, const JetTable &table) {
  JetCursor cursor(pager, table, JetTablePages(pager, table));
  quint32 rows = 0;
  while (cursor.Next()) ++rows;
  if (rows == table.storedRows) return;
  pager.NoteDamage(QStringLiteral("the table %1 should have %2 rows, but %3 are there")
                       .arg(table.name, QString::number(table.storedRows), QString::number(rows)));
}

}  // namespace velor
