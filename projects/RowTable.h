// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QVariant>

#include <vector>

namespace velor {

/// A table of values in memory: rows from 1, columns from 0. Reading or writing outside it is error
/// 9 (SubscriptOutOfRange).
class RowTable {
 public:
  /// Columns 0 to `highestColumn` and no rows.
  explicit RowTable(int highestColumn = -1) : columns_(highestColumn + 1) {}

  /// Appends a row of empty values after the last one; returns its number.
  int AppendRow();

  /// 0 while there are no rows.
  int HighestRow() const;
  int HighestColumn() const { return columns_ - 1; }

  QVariant &At(int row, int column) { return values_[Index(row, column)]; }
  const QVariant &At(int row, int column) const { return values_[Index(row, column)]; }

 private:
  std::size_t Index(int row, int column) const;

  int columns_;
  std::vector<QVariant> values_;
};

}  // namespace velor
