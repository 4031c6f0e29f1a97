// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Database.h"

#include <QString>

/// How every reader and writer of the catalogue goes to the database. Failures are RuntimeErrors of
/// the database's and pass through.
namespace velor {

/// Runs a query on `records`, closed first where it is open from the query before: client-side,
/// static, read-only, so that the row count is known at once.
void OpenRecordset(Recordset &records, const QString &statement, DatabaseConnection &connection);

/// Runs a statement that returns nothing. There is no transaction around it.
void ExecuteSql(DatabaseConnection &connection, const QString &statement);

}  // namespace velor
