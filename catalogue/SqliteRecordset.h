// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "catalogue/RowStore.h"
#include "platform/Database.h"

#include <cstddef>
#include <vector>

namespace velor {

/// Rows copied from the database when the recordset is opened: a later change of the database does
/// not show in it, and it holds no lock.
///
/// Column types follow the declared types (text, long text, date, Boolean, integer, double); a
/// column without one has the type of its first row's value. Booleans are -1 or 0, dates the text
/// that is stored.
class SqliteRecordset final : public Recordset {
 public:
  void SetCursorLocation(CursorLocation) override {}
  void Open(const QString &statement, DatabaseConnection &connection, CursorType cursor,
            LockType lock, int options) override;
  void Close() override;
  ObjectState State() const override { return state_; }

  int RecordCount() const override;
  bool EndOfFile() const override;
  void MoveNext() override;

  QStringList ColumnNames() const override;
  int ColumnIndex(const QString &column) const override;
  QVariant ValueAt(int columnIndex) const override;
  ColumnType TypeAt(int columnIndex) const override;

 private:
  struct Column {
    QString name;
    ColumnType type;
  };

  void CheckOpen() const;
  void CheckRow() const;
  const Column &ColumnAt(int columnIndex) const;

  ObjectState state_ = ObjectState::Closed;
  std::vector<Column> columns_;
  RowStore rows_;
  int row_ = 0;
};

}  // namespace velor
