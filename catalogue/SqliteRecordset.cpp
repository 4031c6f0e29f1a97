// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/SqliteRecordset.h"

#include "catalogue/SqliteConnection.h"
#include "catalogue/SqliteStatement.h"
#include "platform/RuntimeError.h"
#include "platform/Words.h"

#include <algorithm>
#include <optional>
#include <sqlite3.h>

namespace velor {

namespace {

struct DeclaredType {
  const char *start;
  ColumnType type;
};

/// What a declared type begins with, letter case ignored; the first that fits counts.
constexpr DeclaredType DeclaredTypes[] = {
    {"LONGTEXT", ColumnType::LongVarWideChar},
    {"CLOB", ColumnType::LongVarWideChar},
    {"VARCHAR", ColumnType::VarWideChar},
    {"NVARCHAR", ColumnType::VarWideChar},
    {"CHAR", ColumnType::VarWideChar},
    {"NCHAR", ColumnType::VarWideChar},
    {"TEXT", ColumnType::VarWideChar},
    {"BOOL", ColumnType::Boolean},
    {"DATE", ColumnType::Date},
    {"TIMESTAMP", ColumnType::Date},
    {"INT", ColumnType::Integer},
    {"BIGINT", ColumnType::Integer},
    {"SMALLINT", ColumnType::Integer},
    {"TINYINT", ColumnType::Integer},
    {"REAL", ColumnType::Double},
    {"DOUBLE", ColumnType::Double},
    {"FLOAT", ColumnType::Double},
    {"NUMERIC", ColumnType::Double},
    {"DECIMAL", ColumnType::Double},
    {"CURRENCY", ColumnType::Double},
    {"GUID", ColumnType::Guid},
    {"BLOB", ColumnType::LongVarBinary},
};

std::optional<ColumnType> Declared(const char *declaration) {
  const QString text = QString::fromUtf8(declaration);
  for (const DeclaredType &declared : DeclaredTypes) {
    if (text.startsWith(QLatin1String(declared.start), Qt::CaseInsensitive)) return declared.type;
  }
  return std::nullopt;
}

ColumnType TypeOfValue(int storageClass) {
  switch (storageClass) {
    case SQLITE_INTEGER:
      return ColumnType::Integer;
    case SQLITE_FLOAT:
      return ColumnType::Double;
    default:
      return ColumnType::VarWideChar;
  }
}

[[noreturn]] void Fail(ErrorNumber number, const QString &detail) {
  throw RuntimeError::Of(number, QStringLiteral("Recordset"), detail);
}

}  // namespace

void SqliteRecordset::Open(const QString &statement, DatabaseConnection &connection, CursorType,
                           LockType, int) {
  if (state_ == ObjectState::Open) {
    Fail(ErrorNumber::InvalidProcedureCall, Words::tr("the recordset is open already"));
  }
  auto *sqlite = dynamic_cast<SqliteConnection *>(&connection);
  if (sqlite == nullptr) Fail(ErrorNumber::InvalidProcedureCall, statement);
  SqliteStatement prepared(sqlite->BeginStatement(), statement, QStringLiteral("Recordset.Open"),
                           statement);
  sqlite3_stmt *handle = prepared.Handle();
  const int count = sqlite3_column_count(handle);

  RowStore rows(count);
  bool hasRow = prepared.Step();
  std::vector<Column> columns;
  for (int index = 0; index < count; ++index) {
    const ColumnType fallback =
        hasRow ? TypeOfValue(sqlite3_column_type(handle, index)) : ColumnType::VarWideChar;
    columns.push_back({QString::fromUtf8(sqlite3_column_name(handle, index)),
                       Declared(sqlite3_column_decltype(handle, index)).value_or(fallback)});
  }
  for (; hasRow; hasRow = prepared.Step()) rows.Append(handle);
  columns_ = std::move(columns);
  rows_ = std::move(rows);
  row_ = 0;
  state_ = ObjectState::Open;
}

void SqliteRecordset::Close() {
  CheckOpen();
  columns_.clear();
  rows_ = RowStore();
  state_ = ObjectState::Closed;
}

int SqliteRecordset::RecordCount() const {
  CheckOpen();
  return rows_.RowCount();
}

bool SqliteRecordset::EndOfFile() const {
  CheckOpen();
  return row_ >= rows_.RowCount();
}

void SqliteRecordset::MoveNext() {
  CheckRow();
  ++row_;
}

QStringList SqliteRecordset::ColumnNames() const {
  CheckOpen();
  QStringList names;
  for (const Column &column : columns_) names.append(column.name);
  return names;
}

int SqliteRecordset::ColumnIndex(const QString &column) const {
  CheckOpen();
  const auto found = std::find_if(columns_.begin(), columns_.end(), [&column](const Column &known) {
    return known.name.compare(column, Qt::CaseInsensitive) == 0;
  });
  if (found == columns_.end()) Fail(ErrorNumber::ElementNotFound, column);
  return static_cast<int>(found - columns_.begin());
}

QVariant SqliteRecordset::ValueAt(int columnIndex) const {
  CheckRow();
  const ColumnType type = ColumnAt(columnIndex).type;
  const QVariant value = rows_.At(row_, columnIndex);
  const bool isTruth = type == ColumnType::Boolean && value.typeId() == QMetaType::Int;
  return isTruth ? QVariant(value.toInt() != 0 ? -1 : 0) : value;
}

ColumnType SqliteRecordset::TypeAt(int columnIndex) const {
  CheckOpen();
  return ColumnAt(columnIndex).type;
}

void SqliteRecordset::CheckOpen() const {
  if (state_ != ObjectState::Open) {
    Fail(ErrorNumber::ObjectNotSet, Words::tr("the recordset is not open"));
  }
}

void SqliteRecordset::CheckRow() const {
  if (EndOfFile()) Fail(ErrorNumber::InputPastEnd, Words::tr("past the last row"));
}

const SqliteRecordset::Column &SqliteRecordset::ColumnAt(int columnIndex) const {
  if (columnIndex < 0 || static_cast<std::size_t>(columnIndex) >= columns_.size()) {
    Fail(ErrorNumber::SubscriptOutOfRange, Words::tr("no such column"));
  }
  return columns_[static_cast<std::size_t>(columnIndex)];
}

}  // namespace velor
