// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QVariant>

namespace velor {

/// A table of values in memory: rows from 1, columns from 0. Reading or writing outside it is error
/// 9 (SubscriptOutOfRange). Copies share their values until one of them changes.
class RowTable {
 public:
  /// Columns 0 to `highestColumn` and no rows.
  explicit RowTable(int highestColumn = -1) : columns_(highestColumn + 1) {}

  /// Makes room for so many rows at once.
  void Reserve(int rows) { values_.reserve(qsizetype{rows} * columns_); }

  /// Appends a row of empty values after the last one; returns its number.
  int AppendRow();

  /// 0 while there are no rows.
  int HighestRow() const;
  int HighestColumn() const { return columns_ - 1; }

  QVariant &At(int row, int column) { return values_[Index(row, column)]; }
  const QVariant &At(int row, int column) const { return values_[Index(row, column)]; }

 private:
  qsizetype Index(int row, int column) const;

  int columns_;
  QList<QVariant> values_;
};

}  // namespace velor
