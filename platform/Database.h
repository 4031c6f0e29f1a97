// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>

#include <memory>

namespace velor {

/// State of a connection or recordset, with ADO's numbers.
enum class ObjectState : int { Closed = 0, Open = 1 };

/// ADO's constants, as the statements' callers pass them.
enum class CursorLocation : int { Client = 3 };
enum class CursorType : int { Static = 3 };
enum class LockType : int { ReadOnly = 1 };
inline constexpr int CommandTypeUnspecified = -1;

/// Column type codes of ADO (DataTypeEnum) that readers tell apart; others are passed through.
enum class ColumnType : int {
  Integer = 3,
  Double = 5,
  Date = 7,
  Boolean = 11,
  Guid = 72,
  VarChar = 200,
  LongVarChar = 201,
  VarWideChar = 202,
  LongVarWideChar = 203,
  LongVarBinary = 205,
};

class DatabaseConnection;

/// The rows of one query, read whole when opened, walked from the first to end-of-file.
class Recordset {
 public:
  virtual ~Recordset() = default;

  virtual void SetCursorLocation(CursorLocation location) = 0;
  /// Raises RuntimeError when it is open already or the statement fails.
  virtual void Open(const QString &statement, DatabaseConnection &connection, CursorType cursor,
                    LockType lock, int options) = 0;
  virtual void Close() = 0;
  virtual ObjectState State() const = 0;

  virtual int RecordCount() const = 0;
  virtual bool EndOfFile() const = 0;
  virtual void MoveNext() = 0;

  /// In the statement's order; none for a statement that returns no rows.
  virtual QStringList ColumnNames() const = 0;
  /// The place of the column of that name among the columns, letter case ignored; raises for an
  /// unknown one.
  virtual int ColumnIndex(const QString &column) const = 0;
  /// The current row's value in that column. A null QVariant is SQL's null, a Boolean -1 or 0, a
  /// date its text. Raises past the last row.
  virtual QVariant ValueAt(int columnIndex) const = 0;
  virtual ColumnType TypeAt(int columnIndex) const = 0;

  /// The same by the column's name.
  QVariant Value(const QString &column) const { return ValueAt(ColumnIndex(column)); }
  ColumnType Type(const QString &column) const { return TypeAt(ColumnIndex(column)); }
};

/// One connection to the catalogue database.
class DatabaseConnection {
 public:
  virtual ~DatabaseConnection() = default;

  /// `connectionText` is the provider text that ends with "Data Source=" and the file's path in
  /// logic form. A missing, damaged or locked file raises RuntimeError that names the file and the
  /// cause; a missing file is never created.
  virtual void Open(const QString &connectionText, const QString &user, const QString &password,
                    int options) = 0;
  virtual ObjectState State() const = 0;
  /// What opening the file did that the person should know (an interrupted change was taken back,
  /// say); empty as a rule.
  virtual QString Notice() const { return {}; }

  /// What is missing or damaged in the file, as far as it can be told by reading all of it, in one
  /// sentence for people; empty for a sound file. What is there can be read; nothing can be
  /// changed.
  virtual QString Defect() { return {}; }

  /// Runs a statement that returns no rows. Raises when it fails.
  virtual void Execute(const QString &statement, int options) = 0;

  virtual std::unique_ptr<Recordset> CreateRecordset() = 0;
};

}  // namespace velor
