// SPDX-License-Identifier: GPL-3.0-or-later
#include "projects/RecordsetReader.h"

namespace velor {

void OpenRecordset(Recordset &records, const QString &statement, DatabaseConnection &connection) {
  if (records.State() == ObjectState::Open) records.Close();
  records.SetCursorLocation(CursorLocation::Client);
  records.Open(statement, connection, CursorType::Static, LockType::ReadOnly,
               CommandTypeUnspecified);
}

void ExecuteSql(DatabaseConnection &connection, const QString &statement) {
  connection.Execute(statement, CommandTypeUnspecified);
}

}  // namespace velor
