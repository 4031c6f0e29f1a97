// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/jet/JetCursor.h"

#include "catalogue/jet/JetDataPage.h"
#include "catalogue/jet/JetLongValue.h"
#include "catalogue/jet/JetTableRows.h"
#include "catalogue/jet/JetText.h"

#include <algorithm>

namespace velor {

JetCursor::JetCursor(JetPager &pager, const JetTable &table, std::vector<jet::PageNumber> pages)
    : pager_(&pager), table_(&table), pages_(std::move(pages)) {}

bool JetCursor::NextPage() {
  while (nextPage_ < pages_.size()) {
    const jet::PageNumber number = pages_[nextPage_++];
    page_ = ReadJetTablePage(*pager_, *table_, number);
    if (!page_) continue;
    home_ = {number, -1};
    return true;
  }
  page_.reset();
  return false;
}

bool JetCursor::Next() {
  if (!page_ && !NextPage()) return false;
  for (;;) {
    const JetSlots slots(*page_);
    while (++home_.slot < slots.Count()) {
      if (!slots.IsHome(home_.slot)) continue;
      movedPage_.reset();
      JetBytes bytes = slots.Row(home_.slot);
      if (slots.Flags(home_.slot) & jet::SlotPointer) {
        JetFoundRow moved = FollowJetPointer(*pager_, *table_, bytes);
        movedPage_ = std::move(moved.page);
        bytes = moved.bytes;
      }
      const auto row = JetRow::Parse(*table_, bytes);
      if (!row) {
        NoteDamagedRow(*pager_, *table_, home_);
        continue;
      }
      row_ = *row;
      return true;
    }
    if (!NextPage()) return false;
  }
}

JetRowId JetCursor::RowId() const {
  return RowIdOf(home_);
}

bool JetCursor::IsNull(int column) const {
  return row_.IsNull(table_->columns[static_cast<std::size_t>(column)]);
}

std::optional<qint64> JetCursor::Integer(int column) const {
  const JetColumn &definition = table_->columns[static_cast<std::size_t>(column)];
  if (definition.type == JetType::Boolean) return row_.Bit(definition);
  const JetBytes field = row_.Field(definition);
  switch (definition.type) {
    case JetType::Byte:
      if (field.size() >= sizeof(quint8)) return field[0];
      break;
    case JetType::Short:
      if (field.size() >= sizeof(qint16)) return jet::Get<qint16>(field.data());
      break;
    case JetType::Long:
      if (field.size() >= sizeof(qint32)) return jet::Get<qint32>(field.data());
      break;
    default:
      break;
  }
  return std::nullopt;
}

bool JetCursor::IsWhole() const {
  return row_.IsWhole(*table_) &&
         std::all_of(table_->columns.begin(), table_->columns.end(),
                     [this](const JetColumn &column) { return HasLongValue(column); });
}

/// Where the column holds long values: whether all of this one is there.
bool JetCursor::HasLongValue(const JetColumn &column) const {
  if (column.type != JetType::Memo && column.type != JetType::Ole) return true;
  const JetBytes field = row_.Field(column);
  return field.empty() || ReadJetLongValue(*pager_, field);
}

QVariant JetCursor::Value(int column) const {
  const JetColumn &definition = table_->columns[static_cast<std::size_t>(column)];
  if (definition.type != JetType::Memo && definition.type != JetType::Ole) {
    return JetFieldValue(definition, row_);
  }
  if (row_.IsNull(definition)) return {};
  const auto content = ReadJetLongValue(*pager_, row_.Field(definition));
  if (!content) {
    NoteDamagedRow(*pager_, *table_, home_);
    return {};
  }
  if (definition.type == JetType::Ole) return *content;
  return DecodeJetText({reinterpret_cast<const unsigned char *>(content->constData()),
                        static_cast<std::size_t>(content->size())});
}

}  // namespace velor
