// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/RowStore.h"

#include <QString>

#include <limits>
#include <sqlite3.h>

namespace velor {

namespace {

QVariant IntegerValue(std::int64_t value) {
  using Limits = std::numeric_limits<int>;
  if (value >= Limits::min() && value <= Limits::max()) return static_cast<int>(value);
  return static_cast<qlonglong>(value);
}

}  // namespace

void RowStore::Append(sqlite3_stmt *statement) {
  for (int column = 0; column < columns_; ++column) cells_.push_back(Read(statement, column));
}

RowStore::Cell RowStore::Read(sqlite3_stmt *statement, int column) {
  Cell cell = {{0}, 0, sqlite3_column_type(statement, column)};
  switch (cell.kind) {
    case SQLITE_NULL:
      break;
    case SQLITE_INTEGER:
      cell.integer = sqlite3_column_int64(statement, column);
      break;
    case SQLITE_FLOAT:
      cell.real = sqlite3_column_double(statement, column);
      break;
    default: {
      const void *text = sqlite3_column_text(statement, column);
      cell.start = texts_.size();
      cell.length = sqlite3_column_bytes(statement, column);
      texts_.append(static_cast<const char *>(text), cell.length);
    }
  }
  return cell;
}

int RowStore::RowCount() const {
  return columns_ == 0 ? 0 : static_cast<int>(cells_.size() / static_cast<std::size_t>(columns_));
}

QVariant RowStore::At(int row, int column) const {
  const auto index = static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_) +
                     static_cast<std::size_t>(column);
  const Cell &cell = cells_[index];
  switch (cell.kind) {
    case SQLITE_NULL:
      return {};
    case SQLITE_INTEGER:
      return IntegerValue(cell.integer);
    case SQLITE_FLOAT:
      return cell.real;
    default:
      return QString::fromUtf8(texts_.constData() + cell.start, cell.length);
  }
}

}  // namespace velor
