// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/jet/JetRow.h"

#include <algorithm>

namespace velor {

namespace {

constexpr std::size_t Number = sizeof(quint16);

std::size_t MaskBytes(int columns) {
  return static_cast<std::size_t>(columns + 7) / 8;
}

void AppendNumber(QByteArray &row, qsizetype number) {
  unsigned char bytes[Number];
  jet::Put(bytes, static_cast<quint16>(number));
  Append(row, bytes);
}

/// Bytes up to the end of the last fixed column.
std::size_t FixedEnd(const JetTable &table) {
  int end = 0;
  for (const JetColumn &column : table.columns) {
    if (column.storage == JetStorageKind::Fixed && column.type != JetType::Boolean) {
      end = std::max(end, column.fixedOffset + column.length);
    }
  }
  return static_cast<std::size_t>(jet::RowFixedData + end);
}

void SetBit(std::vector<unsigned char> &mask, int number, bool on) {
  const auto bit = static_cast<unsigned char>(1 << number % 8);
  unsigned char &byte = mask[static_cast<std::size_t>(number / 8)];
  byte = static_cast<unsigned char>(on ? byte | bit : byte & ~bit);
}

}  // namespace

std::optional<JetRow> JetRow::Parse(const JetTable &table, JetBytes bytes) {
  if (bytes.size() < Number) return std::nullopt;
  JetRow row;
  row.bytes_ = bytes;
  row.columns_ = jet::Get<quint16>(bytes.data());
  if (row.columns_ == 0 || row.columns_ > table.maximumColumns) return std::nullopt;
  const std::size_t mask = MaskBytes(row.columns_);
  if (bytes.size() < jet::RowFixedData + mask) return std::nullopt;
  row.mask_ = bytes.size() - mask;
  if (table.variableColumns == 0) return row;

  if (row.mask_ < jet::RowFixedData + 2 * Number) return std::nullopt;
  row.offsetsPresent_ = true;
  row.variables_ = jet::Get<quint16>(bytes.data() + row.mask_ - Number);
  const std::size_t offsets = (static_cast<std::size_t>(row.variables_) + 2) * Number;
  if (row.mask_ < jet::RowFixedData + offsets) return std::nullopt;
  std::size_t previous = jet::RowFixedData;
  for (int index = 0; index <= row.variables_; ++index) {
    const std::size_t offset = row.VariableOffset(index);
    if (offset < previous || offset > row.mask_ - offsets) return std::nullopt;
    previous = offset;
  }
  return row;
}

/// Where a variable column begins; at their number: where the last one ends.
std::size_t JetRow::VariableOffset(int index) const {
  return jet::Get<quint16>(bytes_.data() + mask_ - (static_cast<std::size_t>(index) + 2) * Number);
}

std::size_t JetRow::FixedDataEnd() const {
  return offsetsPresent_ ? VariableOffset(0) : mask_;
}

bool JetRow::IsWhole(const JetTable &table) const {
  const std::size_t numbers = (static_cast<std::size_t>(variables_) + 2) * Number;
  if (offsetsPresent_ && VariableOffset(variables_) != mask_ - numbers) return false;
  return std::all_of(table.columns.begin(), table.columns.end(), [this](const JetColumn &column) {
    return column.type == JetType::Boolean || IsNull(column) || HasPlace(column);
  });
}

bool JetRow::HasPlace(const JetColumn &column) const {
  if (column.storage == JetStorageKind::Fixed) {
    const int end = jet::RowFixedData + column.fixedOffset + column.length;
    return static_cast<std::size_t>(end) <= FixedDataEnd();
  }
  if (column.variableIndex >= variables_) return false;
  // A compressed text begins with a mark of two bytes.
  return column.type != JetType::Text ||
         Field(column).size() <= static_cast<std::size_t>(column.length) + 2;
}

bool JetRow::Bit(const JetColumn &column) const {
  if (column.number >= columns_) return false;
  return bytes_[mask_ + static_cast<std::size_t>(column.number / 8)] >> column.number % 8 & 1;
}

bool JetRow::IsNull(const JetColumn &column) const {
  return column.type != JetType::Boolean && !Bit(column);
}

JetBytes JetRow::Field(const JetColumn &column) const {
  if (!Bit(column)) return {};
  if (column.storage == JetStorageKind::Variable) {
    if (column.variableIndex >= variables_) return {};
    const std::size_t begin = VariableOffset(column.variableIndex);
    return bytes_.subspan(begin, VariableOffset(column.variableIndex + 1) - begin);
  }
  const auto begin = static_cast<std::size_t>(jet::RowFixedData + column.fixedOffset);
  const auto length = static_cast<std::size_t>(column.length);
  if (begin + length > FixedDataEnd()) return {};
  return bytes_.subspan(begin, length);
}

QByteArray JetRow::Replace(const JetTable &table, const JetColumn &column,
                           const std::optional<QByteArray> &value) const {
  const bool extends = column.number >= columns_;
  const int columns = extends ? table.columns.back().number + 1 : columns_;
  const int variables = std::max(variables_, column.variableIndex + 1);

  QByteArray row;
  AppendNumber(row, columns);
  Append(row, bytes_.subspan(jet::RowFixedData, FixedDataEnd() - jet::RowFixedData));
  if (extends) {
    row.resize(std::max(row.size(), static_cast<qsizetype>(FixedEnd(table))), '\0');
  }

  std::vector<qsizetype> offsets;
  for (int index = 0; index < variables; ++index) {
    offsets.push_back(row.size());
    if (index == column.variableIndex) {
      if (value) Append(row, BytesOf(*value));
    } else if (index < variables_) {
      const std::size_t begin = VariableOffset(index);
      Append(row, bytes_.subspan(begin, VariableOffset(index + 1) - begin));
    }
  }
  AppendNumber(row, row.size());
  std::for_each(offsets.rbegin(), offsets.rend(),
                [&row](qsizetype offset) { AppendNumber(row, offset); });
  AppendNumber(row, variables);

  const JetBytes oldMask = bytes_.subspan(mask_);
  std::vector<unsigned char> mask(oldMask.begin(), oldMask.end());
  mask.resize(MaskBytes(columns));
  for (int number = columns_; number < columns; ++number) SetBit(mask, number, false);
  SetBit(mask, column.number, value.has_value());
  Append(row, mask);
  return row;
}

}  // namespace velor
