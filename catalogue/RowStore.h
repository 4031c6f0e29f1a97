// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QVariant>

#include <cstdint>
#include <vector>

struct sqlite3_stmt;

namespace velor {

/// The values of a query's rows in little memory: sixteen bytes a value, and the texts one behind
/// the other in the database's encoding. A value becomes a QVariant when it is asked for; most
/// values of "Select *" never are.
class RowStore {
 public:
  explicit RowStore(int columns = 0) : columns_(columns) {}

  /// Appends the row that the statement stands on.
  void Append(sqlite3_stmt *statement);

  int RowCount() const;

  /// Null, an int (a qlonglong where it takes one), a double or a text. `row` and `column` from 0
  /// and within the store.
  QVariant At(int row, int column) const;

 private:
  struct Cell {
    union {
      std::int64_t integer;
      double real;
      qsizetype start;
    };
    /// In bytes.
    std::int32_t length;
    /// SQLite's storage class.
    std::int32_t kind;
  };

  Cell Read(sqlite3_stmt *statement, int column);

  int columns_;
  std::vector<Cell> cells_;
  QByteArray texts_;
};

}  // namespace velor
