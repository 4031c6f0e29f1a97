// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/jet/JetUpdater.h"

#include "catalogue/jet/JetDataPage.h"
#include "catalogue/jet/JetLongValue.h"
#include "catalogue/jet/JetRow.h"
#include "catalogue/jet/JetTableRows.h"
#include "catalogue/jet/JetText.h"
#include "catalogue/jet/JetUsageMap.h"
#include "platform/RuntimeError.h"
#include "platform/Words.h"

#include <array>
#include <optional>

namespace velor {

namespace {

[[noreturn]] void Raise(ErrorNumber number, const QString &detail) {
  throw RuntimeError::Of(number, QStringLiteral("Database.Execute"), detail);
}

[[noreturn]] void Refuse(const JetTable &table, const JetColumn &column, const QString &why) {
  Raise(ErrorNumber::InvalidProcedureCall,
        Words::tr("the column %1 of the table %2 cannot be set: %3")
            .arg(column.name, table.name, why));
}

void CheckColumn(const JetTable &table, const JetColumn &column) {
  if (column.type != JetType::Text && column.type != JetType::Memo) {
    Refuse(table, column, Words::tr("only text can be changed"));
  }
  if (column.storage == JetStorageKind::Fixed) {
    Refuse(table, column, Words::tr("it is of fixed length"));
  }
  if (column.indexed == JetIndexed::Yes) {
    Refuse(table, column, Words::tr("it is in an index"));
  }
}

std::optional<QByteArray> StoredValue(const JetTable &table, const JetColumn &column,
                                      const QVariant &value) {
  if (!value.isValid()) return std::nullopt;
  const QString text = value.toString();
  if (column.type == JetType::Text && text.size() * 2 > column.length) {
    Refuse(table, column,
           Words::tr("the text has %1 characters, and %2 are the most")
               .arg(QString::number(text.size()), QString::number(column.length / 2)));
  }
  const auto content = EncodeJetText(text, column.compression);
  if (!content) {
    Refuse(table, column, Words::tr("the text holds a character that cannot be stored"));
  }
  if (column.type == JetType::Text) return content;
  if (content->size() > jet::LongValueInlineMaximum) {
    Refuse(
        table, column,
        Words::tr("the text takes %1 bytes, and %2 are the most that are changed here")
            .arg(QString::number(content->size()), QString::number(jet::LongValueInlineMaximum)));
  }
  return InlineJetLongValue(*content);
}

/// Whether the row can stand in the slot in place of what is there.
bool Fits(const jet::Page &page, int slot, qsizetype bytes) {
  const JetSlots slots(page);
  return slots.FreeBytes() + static_cast<qsizetype>(slots.Row(slot).size()) >= bytes;
}

bool HasRoom(const jet::Page &page, int bytes) {
  const JetSlots slots(page);
  return slots.Count() < jet::MaximumSlots && slots.FreeBytes() >= bytes + jet::SlotBytes;
}

}  // namespace

void JetUpdater::Update(const JetTable &table, JetRowId row,
                        const QList<JetAssignment> &assignments) {
  const JetPlace home = HomeOf(row);
  const auto page = ReadJetTablePage(pager_, table, home.page);
  if (!page || home.slot >= JetSlots(*page).Count() || !JetSlots(*page).IsHome(home.slot)) {
    Raise(ErrorNumber::InvalidProcedureCall,
          Words::tr("the row of the table %1 is no longer there").arg(table.name));
  }
  JetFoundRow current = FindJetRow(pager_, home);
  if (current.flags & jet::SlotPointer) current = FollowJetPointer(pager_, table, current.bytes);
  if (!JetRow::Parse(table, current.bytes)) {
    NoteDamagedRow(pager_, table, home);
    Raise(ErrorNumber::DeviceIoError,
          Words::tr("the row of the table %1 is damaged").arg(table.name));
  }

  QByteArray changed(reinterpret_cast<const char *>(current.bytes.data()),
                     static_cast<qsizetype>(current.bytes.size()));
  std::vector<QByteArray> replacedLongValues;
  for (const JetAssignment &assignment : assignments) {
    const JetColumn &column = table.columns[static_cast<std::size_t>(assignment.column)];
    CheckColumn(table, column);
    const auto value = StoredValue(table, column, assignment.value);
    const auto parsed = JetRow::Parse(table, BytesOf(changed));
    if (const JetBytes old = parsed->Field(column);
        column.type == JetType::Memo && !parsed->IsNull(column)) {
      replacedLongValues.emplace_back(reinterpret_cast<const char *>(old.data()),
                                      static_cast<qsizetype>(old.size()));
    }
    changed = parsed->Replace(table, column, value);
  }
  if (changed.size() > jet::MaximumRowBytes) {
    Raise(ErrorNumber::InvalidProcedureCall,
          Words::tr("a row of the table %1 would become too long").arg(table.name));
  }

  for (const QByteArray &value : replacedLongValues) FreeJetLongValue(pager_, BytesOf(value));
  const JetPlace place = current.place;
  if (Fits(*current.page, place.slot, changed.size())) {
    ReplaceJetRow(pager_.Modify(place.page), place.slot, current.flags, BytesOf(changed));
    return;
  }
  const JetPlace moved = Add(table, changed);
  std::array<unsigned char, jet::PointerBytes> pointer;
  PutPlace(pointer.data(), moved);
  ReplaceJetRow(pager_.Modify(home.page), home.slot, jet::SlotPointer, pointer);
  if (place != home) {
    ReplaceJetRow(pager_.Modify(place.page), place.slot, jet::SlotDeleted, {});
  }
}

JetPlace JetUpdater::Add(const JetTable &table, const QByteArray &row) {
  const jet::PageNumber page = FindRoom(table, static_cast<int>(row.size()));
  const int slot = AddJetRow(pager_.Modify(page), jet::SlotMoved, BytesOf(row));
  return {page, slot};
}

/// A page that has too little room for one row is not asked again: rows that grow are alike.
jet::PageNumber JetUpdater::FindRoom(const JetTable &table, int bytes) {
  auto [entry, isNew] = rooms_.try_emplace(table.definitionPage);
  Room &room = entry->second;
  if (isNew) room.pages = JetUsageMap(pager_, table.freeMap, JetBit::Clear).Pages().numbers;
  for (; room.next < room.pages.size(); ++room.next) {
    const auto page = ReadJetTablePage(pager_, table, room.pages[room.next]);
    if (page && HasRoom(*page, bytes)) return room.pages[room.next];
  }
  room.pages.push_back(AppendPage(table));
  return room.pages.back();
}

jet::PageNumber JetUpdater::AppendPage(const JetTable &table) {
  const jet::PageNumber number = AppendJetPage(pager_);
  InitializeDataPage(pager_.Modify(number), table.definitionPage);
  JetUsageMap(pager_, table.ownedMap, JetBit::Clear).Put(number, JetBit::Set);
  JetUsageMap(pager_, table.freeMap, JetBit::Clear).Put(number, JetBit::Set);
  return number;
}

}  // namespace velor
