// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/jet/JetDefinition.h"

#include "catalogue/jet/JetBytes.h"
#include "catalogue/jet/JetDataPage.h"
#include "catalogue/jet/JetText.h"

#include <algorithm>
#include <set>

namespace velor {

namespace {

constexpr int MaximumPages = 256;
constexpr int HighestColumn = 255;

/// The definition's bytes, those of the chained pages appended to the first page's; empty when the
/// chain leads to a page of another type or does not end.
std::vector<unsigned char> ReadBytes(JetPager &pager, jet::PageNumber number) {
  std::vector<unsigned char> bytes;
  for (int count = 0; number != 0; ++count) {
    const auto page = pager.Read(number);
    if (!page || count == MaximumPages ||
        (*page)[0] != static_cast<unsigned char>(jet::PageType::Definition)) {
      return {};
    }
    bytes.insert(bytes.end(), page->begin() + (count == 0 ? 0 : jet::ContinuedData), page->end());
    number = jet::Get<quint32>(page->data() + jet::DefinitionNext);
  }
  return bytes;
}

/// Walks the definition; a step past its end makes it fail, and it stays failed.
class Walk {
 public:
  explicit Walk(const std::vector<unsigned char> &bytes) : bytes_(bytes) {}

  /// The next bytes, or nullptr.
  const unsigned char *Next(std::size_t count) {
    if (failed_ || count > bytes_.size() - at_) {
      failed_ = true;
      return nullptr;
    }
    at_ += count;
    return bytes_.data() + at_ - count;
  }

 private:
  const std::vector<unsigned char> &bytes_;
  std::size_t at_ = 0;
  bool failed_ = false;
};

JetColumn ColumnOf(const unsigned char *record) {
  JetColumn column;
  column.type = static_cast<JetType>(record[jet::ColumnTypeAt]);
  column.number = jet::Get<quint16>(record + jet::ColumnNumberAt);
  column.variableIndex = jet::Get<quint16>(record + jet::ColumnVariableAt);
  column.scale = record[jet::ColumnScaleAt];
  column.fixedOffset = jet::Get<quint16>(record + jet::ColumnFixedOffsetAt);
  column.length = jet::Get<quint16>(record + jet::ColumnLengthAt);
  if (record[jet::ColumnFlagsAt] & jet::ColumnFixedFlag) column.storage = JetStorageKind::Fixed;
  if (record[jet::ColumnExtraAt] & jet::ColumnCompressedFlag) {
    column.compression = JetCompression::WherePossible;
  }
  return column;
}

bool ReadColumns(Walk &walk, int count, JetTable &table) {
  for (int index = 0; index < count; ++index) {
    const unsigned char *record = walk.Next(jet::ColumnRecordBytes);
    if (!record) return false;
    table.columns.push_back(ColumnOf(record));
    const JetColumn &column = table.columns.back();
    if (column.number >= HighestColumn || column.variableIndex >= HighestColumn) return false;
  }
  for (JetColumn &column : table.columns) {
    const unsigned char *length = walk.Next(sizeof(quint16));
    if (!length) return false;
    const auto bytes = jet::Get<quint16>(length);
    const unsigned char *name = walk.Next(bytes);
    if (!name) return false;
    column.name = DecodeJetText({name, bytes});
  }
  return true;
}

std::optional<std::set<int>> ReadIndexedColumns(Walk &walk, quint32 count) {
  std::set<int> numbers;
  for (quint32 index = 0; index < count; ++index) {
    const unsigned char *record = walk.Next(jet::IndexRecordBytes);
    if (!record) return std::nullopt;
    for (int column = 0; column < jet::IndexColumns; ++column) {
      const auto number =
          jet::Get<quint16>(record + jet::IndexColumnsAt + column * jet::IndexColumnBytes);
      if (number != jet::NoIndexColumn) numbers.insert(number);
    }
  }
  return numbers;
}

}  // namespace

std::optional<JetTable> ReadJetDefinition(JetPager &pager, jet::PageNumber page,
                                          const QString &name) {
  const std::vector<unsigned char> bytes = ReadBytes(pager, page);
  Walk walk(bytes);
  const unsigned char *head = walk.Next(jet::DefinitionHead);
  if (!head) return std::nullopt;

  JetTable table;
  table.name = name;
  table.definitionPage = page;
  table.storedRows = jet::Get<quint32>(head + jet::DefinitionRows);
  table.maximumColumns = jet::Get<quint16>(head + jet::MaximumColumns);
  table.variableColumns = jet::Get<quint16>(head + jet::VariableColumns);
  table.ownedMap = PlaceAt(head + jet::OwnedMap);
  table.freeMap = PlaceAt(head + jet::FreeMap);

  const auto indexes = jet::Get<quint32>(head + jet::IndexCount);
  if (indexes > bytes.size() / jet::IndexRecordBytes) return std::nullopt;
  walk.Next(static_cast<std::size_t>(indexes) * jet::IndexHeadBytes);
  if (!ReadColumns(walk, jet::Get<quint16>(head + jet::ColumnCount), table)) return std::nullopt;
  const auto indexed = ReadIndexedColumns(walk, indexes);
  if (!indexed || table.columns.empty()) return std::nullopt;
  for (JetColumn &column : table.columns) {
    if (indexed->count(column.number)) column.indexed = JetIndexed::Yes;
  }
  std::sort(table.columns.begin(), table.columns.end(),
            [](const JetColumn &a, const JetColumn &b) { return a.number < b.number; });
  if (table.columns.back().number >= table.maximumColumns) return std::nullopt;
  return table;
}

}  // namespace velor
