// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Database.h"

#include <QString>

/// Queries and changes of the catalogue. All raise the database's RuntimeErrors.
namespace velor {

/// Opens `records` with the rows of a query, after closing it where it is open. The cursor is
/// client-side, static and read-only, so that RecordCount is known at once.
void OpenRecordset(Recordset &records, const QString &statement, DatabaseConnection &connection);

/// Runs a statement that returns no rows, outside of any transaction.
void ExecuteSql(DatabaseConnection &connection, const QString &statement);

}  // namespace velor
