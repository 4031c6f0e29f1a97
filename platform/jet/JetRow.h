// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/jet/JetTable.h"

#include <QByteArray>
#include <QVariant>

#include <optional>
#include <span>
#include <vector>

namespace velor {

using JetBytes = std::span<const unsigned char>;

/// One row's bytes, taken apart. Every offset in it is checked before it is followed.
class JetRow {
 public:
  JetRow() = default;

  /// Nothing for bytes that cannot be a row of that table.
  static std::optional<JetRow> Parse(const JetTable &table, JetBytes bytes);

  /// A Boolean is never null.
  bool IsNull(const JetColumn &column) const;
  bool Bit(const JetColumn &column) const;
  /// The stored bytes of a column; empty for null and for what lies outside the row.
  JetBytes Field(const JetColumn &column) const;

  /// The row with one variable column's bytes exchanged (nothing: null); everything else keeps its
  /// bytes, those of deleted columns too. A row that ends before the column is made longer.
  static QByteArray Replace(const JetTable &table, JetBytes bytes, const JetColumn &column,
                            const std::optional<QByteArray> &value);

 private:
  std::size_t VariableOffset(int index) const;

  JetBytes bytes_;
  int columns_ = 0;
  int variables_ = 0;
  std::size_t mask_ = 0;
};

/// The value of a column that is held in the row itself (not Memo or Ole); see JetCursor::Value.
QVariant JetFieldValue(const JetColumn &column, const JetRow &row);

}  // namespace velor
