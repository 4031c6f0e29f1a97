// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/SqliteStatement.h"

#include "files/LockHolder.h"
#include "platform/Words.h"

#include <QByteArrayView>

#include <sqlite3.h>

namespace velor {

namespace {

/// The program's number for a primary result code.
ErrorNumber NumberOf(int resultCode) {
  switch (resultCode & 0xff) {
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      return ErrorNumber::PermissionDenied;
    case SQLITE_CANTOPEN:
    case SQLITE_READONLY:
    case SQLITE_PERM:
    case SQLITE_AUTH:
      return ErrorNumber::PathFileAccess;
    case SQLITE_FULL:
      return ErrorNumber::DiskFull;
    case SQLITE_NOMEM:
      return ErrorNumber::OutOfStringSpace;
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
    case SQLITE_IOERR:
      return ErrorNumber::DeviceIoError;
    default:
      return ErrorNumber::InvalidProcedureCall;
  }
}

}  // namespace

RuntimeError DatabaseError(sqlite3 *database, const QString &source, const QString &subject) {
  const ErrorNumber number = NumberOf(sqlite3_extended_errcode(database));
  const QString cause = QString::fromUtf8(sqlite3_errmsg(database));
  // The tables of a Jet file belong to a database without a file; their errors name it themselves.
  const char *name = sqlite3_db_filename(database, "main");
  const QString file = QString::fromUtf8(name);
  QString text = cause;
  if (!file.isEmpty()) {
    const QString holder = LockHolder(file);
    text = number != ErrorNumber::PermissionDenied
               ? Words::tr("the catalogue %1: %2").arg(file, cause)
               : Words::tr(
                     "the catalogue %1 is locked by %2; close it there, or wait until it has "
                     "written, and try again")
                     .arg(file, holder.isEmpty() ? Words::tr("another program") : holder);
  }
  if (subject != file) text += QStringLiteral("\n\n%1").arg(subject);
  return RuntimeError::Of(number, source, text);
}

SqliteStatement::SqliteStatement(sqlite3 *database, const QString &text, const QString &source,
                                 const QString &subject)
    : database_(database), source_(source), subject_(subject) {
  const QByteArray bytes = text.toUtf8();
  sqlite3_stmt *statement = nullptr;
  const char *rest = nullptr;
  const int result = sqlite3_prepare_v2(database, bytes.constData(), static_cast<int>(bytes.size()),
                                        &statement, &rest);
  statement_.reset(statement);
  if (result != SQLITE_OK) throw DatabaseError(database_, source_, subject_);
  const bool isOne = statement != nullptr && QByteArrayView(rest).trimmed().isEmpty();
  if (!isOne) {
    throw RuntimeError::Of(ErrorNumber::InvalidProcedureCall, source_,
                           Words::tr("not one statement: %1").arg(subject_));
  }
}

bool SqliteStatement::Step() {
  switch (sqlite3_step(statement_.get())) {
    case SQLITE_ROW:
      return true;
    case SQLITE_DONE:
      return false;
    default:
      throw DatabaseError(database_, source_, subject_);
  }
}

void SqliteStatement::Finalize::operator()(sqlite3_stmt *statement) const {
  sqlite3_finalize(statement);
}

}  // namespace velor
