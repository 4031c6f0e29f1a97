// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "catalogue/jet/JetBytes.h"
#include "catalogue/jet/JetTable.h"

#include <QByteArray>
#include <QVariant>

#include <optional>
#include <vector>

namespace velor {

/// Gives access to the columns in one row's bytes, whose offsets Parse has checked. The bytes must
/// outlive it.
class JetRow {
 public:
  JetRow() = default;

  /// Nothing for bytes that cannot be a row of that table.
  static std::optional<JetRow> Parse(const JetTable &table, JetBytes bytes);

  /// Whether the variable data ends right before its offsets, and every column that is not null has
  /// its place in the row.
  bool IsWhole(const JetTable &table) const;

  /// A Boolean is never null.
  bool IsNull(const JetColumn &column) const;
  /// The column's bit in the null mask, which is the value of a Boolean.
  bool Bit(const JetColumn &column) const;
  /// The stored bytes of a column; empty for null and for what lies outside the row.
  JetBytes Field(const JetColumn &column) const;

  /// A copy of the row with other bytes in one variable column (nothing: null). Everything else
  /// keeps its bytes, those of deleted columns too. A row that ends before the column is made
  /// longer. The result can be longer than a row may be.
  QByteArray Replace(const JetTable &table, const JetColumn &column,
                     const std::optional<QByteArray> &value) const;

 private:
  /// Whether the row is long enough to have the column.
  bool HasPlace(const JetColumn &column) const;
  std::size_t VariableOffset(int index) const;
  std::size_t FixedDataEnd() const;

  JetBytes bytes_;
  int columns_ = 0;
  int variables_ = 0;
  /// A table without variable columns has rows without their offsets.
  bool offsetsPresent_ = false;
  /// Where the null mask begins.
  std::size_t mask_ = 0;
};

/// The value of a column that is held in the row itself (not Memo or Ole); see JetCursor::Value.
QVariant JetFieldValue(const JetColumn &column, const JetRow &row);

}  // namespace velor
