// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/JetModule.h"

#include "catalogue/SqliteStatement.h"
#include "catalogue/TextCollation.h"
#include "catalogue/jet/JetFile.h"
#include "platform/RuntimeError.h"
#include "platform/Words.h"

#include <exception>
#include <memory>
#include <optional>
#include <sqlite3.h>

namespace velor {

namespace {

constexpr const char *ModuleName = "jet";

/// One table of the module; SQLite passes it to every function that concerns the table.
struct Table : sqlite3_vtab {
  JetFile *file = nullptr;
  const JetTable *definition = nullptr;
};

struct Cursor : sqlite3_vtab_cursor {
  Table &Of() const { return *static_cast<Table *>(pVtab); }

  std::optional<JetCursor> rows;
  bool atEnd = true;
  /// Only rows with this number in this column, when there is one.
  int column = -1;
  qint64 wanted = 0;
};

Table &From(sqlite3_vtab *table) {
  return *static_cast<Table *>(table);
}

Cursor &From(sqlite3_vtab_cursor *cursor) {
  return *static_cast<Cursor *>(cursor);
}

/// The result code from which DatabaseError makes the same number again.
int ResultCodeOf(const std::exception &error) {
  const auto *known = dynamic_cast<const RuntimeError *>(&error);
  switch (known == nullptr ? ErrorNumber::None : known->Number()) {
    case ErrorNumber::PermissionDenied:
      return SQLITE_BUSY;
    case ErrorNumber::PathFileAccess:
      return SQLITE_READONLY;
    case ErrorNumber::DiskFull:
      return SQLITE_FULL;
    case ErrorNumber::DeviceIoError:
      return SQLITE_IOERR;
    default:
      return SQLITE_ERROR;
  }
}

/// The error's detail, without the sentence of its number, which DatabaseError puts before it
/// again.
QByteArray TextOf(const std::exception &error) {
  const auto *known = dynamic_cast<const RuntimeError *>(&error);
  if (known == nullptr) return error.what();
  QString text = known->Description();
  const QString sentence = Description(static_cast<int>(known->Number())) + QStringLiteral(": ");
  if (text.startsWith(sentence)) text.remove(0, sentence.size());
  return text.toUtf8();
}

/// No exception may cross SQLite: it becomes a result code and the table's message.
template <typename Action>
int Guarded(sqlite3_vtab *table, Action action) {
  try {
    action();
    return SQLITE_OK;
  } catch (const std::exception &error) {
    sqlite3_free(table->zErrMsg);
    table->zErrMsg = sqlite3_mprintf("%s", TextOf(error).constData());
    return ResultCodeOf(error);
  }
}

// Declaring.

QByteArray Quoted(const QString &name) {
  return '"' + name.toUtf8().replace('"', "\"\"") + '"';
}

/// "MEMO" would make SQLite turn texts that look like numbers into numbers.
const char *DeclaredType(JetType type) {
  switch (type) {
    case JetType::Boolean:
      return "BOOLEAN";
    case JetType::Byte:
    case JetType::Short:
    case JetType::Long:
      return "INTEGER";
    case JetType::Currency:
    case JetType::Single:
    case JetType::Double:
    case JetType::Numeric:
      return "DOUBLE";
    case JetType::DateTime:
      return "DATETIME";
    case JetType::Text:
      return "VARCHAR";
    case JetType::Memo:
      return "LONGTEXT";
    case JetType::Guid:
      return "GUID";
    default:
      return "BLOB";
  }
}

bool IsWholeNumber(JetType type) {
  return type == JetType::Byte || type == JetType::Short || type == JetType::Long;
}

bool IsText(JetType type) {
  return type == JetType::Text || type == JetType::Memo;
}

QByteArray Declaration(const JetTable &table) {
  QByteArray columns;
  for (const JetColumn &column : table.columns) {
    if (!columns.isEmpty()) columns += ", ";
    columns += Quoted(column.name) + ' ' + DeclaredType(column.type);
    if (IsText(column.type)) columns += QByteArray(" COLLATE ") + TextCollationName;
  }
  return "Create table x (" + columns + ')';
}

int Connect(sqlite3 *database, void *file, int, const char *const *arguments, sqlite3_vtab **table,
            char **message) {
  auto made = std::make_unique<Table>();
  made->file = static_cast<JetFile *>(file);
  made->definition = made->file->FindTable(QString::fromUtf8(arguments[2]));
  if (made->definition == nullptr) {
    *message = sqlite3_mprintf("no table %s", arguments[2]);
    return SQLITE_ERROR;
  }
  const int result = sqlite3_declare_vtab(database, Declaration(*made->definition).constData());
  if (result == SQLITE_OK) *table = made.release();
  return result;
}

int Disconnect(sqlite3_vtab *table) {
  delete &From(table);
  return SQLITE_OK;
}

// Reading.

/// One equality on a whole number is looked for while scanning; SQLite tests it again.
int ChooseIndex(sqlite3_vtab *table, sqlite3_index_info *info) {
  const JetTable &definition = *From(table).definition;
  const double rows = static_cast<double>(definition.storedRows) + 1;
  info->idxNum = -1;
  info->estimatedCost = rows;
  info->estimatedRows = static_cast<sqlite3_int64>(definition.storedRows);
  for (int i = 0; i < info->nConstraint; ++i) {
    const auto &constraint = info->aConstraint[i];
    if (constraint.usable == 0 || constraint.op != SQLITE_INDEX_CONSTRAINT_EQ ||
        constraint.iColumn < 0 ||
        !IsWholeNumber(definition.columns[static_cast<std::size_t>(constraint.iColumn)].type)) {
      continue;
    }
    info->aConstraintUsage[i].argvIndex = 1;
    info->idxNum = constraint.iColumn;
    // A scan all the same, though with less to hand over.
    info->estimatedCost = rows / 2;
    break;
  }
  return SQLITE_OK;
}

int OpenCursor(sqlite3_vtab *, sqlite3_vtab_cursor **cursor) {
  *cursor = std::make_unique<Cursor>().release();
  return SQLITE_OK;
}

int CloseCursor(sqlite3_vtab_cursor *cursor) {
  delete &From(cursor);
  return SQLITE_OK;
}

void Advance(Cursor &cursor) {
  do {
    cursor.atEnd = !cursor.rows->Next();
  } while (!cursor.atEnd && cursor.column >= 0 &&
           cursor.rows->Integer(cursor.column) != cursor.wanted);
}

/// The whole number that a value equals, a text that reads as one included.
std::optional<qint64> WholeNumber(sqlite3_value *value) {
  switch (sqlite3_value_numeric_type(value)) {
    case SQLITE_INTEGER:
      return sqlite3_value_int64(value);
    case SQLITE_FLOAT: {
      const double number = sqlite3_value_double(value);
      constexpr double Limit = 1e15;
      if (number < -Limit || number > Limit) return std::nullopt;
      const auto whole = static_cast<qint64>(number);
      if (static_cast<double>(whole) != number) return std::nullopt;
      return whole;
    }
    default:
      return std::nullopt;
  }
}

int Filter(sqlite3_vtab_cursor *base, int column, const char *, int, sqlite3_value **values) {
  return Guarded(base->pVtab, [&] {
    Cursor &cursor = From(base);
    cursor.column = column;
    cursor.atEnd = true;
    if (column >= 0) {
      const std::optional<qint64> wanted = WholeNumber(values[0]);
      if (!wanted) return;
      cursor.wanted = *wanted;
    }
    cursor.rows.emplace(cursor.Of().file->Scan(*cursor.Of().definition));
    Advance(cursor);
  });
}

int Next(sqlite3_vtab_cursor *cursor) {
  return Guarded(cursor->pVtab, [&] { Advance(From(cursor)); });
}

int IsAtEnd(sqlite3_vtab_cursor *cursor) {
  return From(cursor).atEnd ? 1 : 0;
}

void SetResult(sqlite3_context *context, const QVariant &value) {
  switch (value.typeId()) {
    case QMetaType::QString: {
      const QByteArray text = value.toString().toUtf8();
      sqlite3_result_text64(context, text.constData(), static_cast<sqlite3_uint64>(text.size()),
                            SQLITE_TRANSIENT, SQLITE_UTF8);
      return;
    }
    case QMetaType::QByteArray: {
      const QByteArray bytes = value.toByteArray();
      sqlite3_result_blob64(context, bytes.constData(), static_cast<sqlite3_uint64>(bytes.size()),
                            SQLITE_TRANSIENT);
      return;
    }
    case QMetaType::Double:
      sqlite3_result_double(context, value.toDouble());
      return;
    default:
      sqlite3_result_null(context);
  }
}

int GiveColumn(sqlite3_vtab_cursor *base, sqlite3_context *context, int column) {
  // An update that leaves the column alone: it comes back as "no change", and a long value is
  // neither read nor written.
  if (sqlite3_vtab_nochange(context) != 0) return SQLITE_OK;
  return Guarded(base->pVtab, [&] {
    const Cursor &cursor = From(base);
    const auto &columns = cursor.Of().definition->columns;
    const JetType type = columns[static_cast<std::size_t>(column)].type;
    if (type != JetType::Boolean && !IsWholeNumber(type)) {
      SetResult(context, cursor.rows->Value(column));
    } else if (const std::optional<qint64> number = cursor.rows->Integer(column)) {
      sqlite3_result_int64(context, *number);
    }
  });
}

int GiveRowId(sqlite3_vtab_cursor *cursor, sqlite3_int64 *rowId) {
  *rowId = From(cursor).rows->RowId();
  return SQLITE_OK;
}

// Writing.

QVariant TextOrNull(sqlite3_value *value) {
  if (sqlite3_value_type(value) == SQLITE_NULL) return {};
  const void *text = sqlite3_value_text(value);
  return QString::fromUtf8(static_cast<const char *>(text), sqlite3_value_bytes(value));
}

/// `values`: the row's identifier before and after, then the columns.
int Update(sqlite3_vtab *base, int count, sqlite3_value **values, sqlite3_int64 *) {
  return Guarded(base, [&] {
    constexpr int FirstColumn = 2;
    const Table &table = From(base);
    const bool changesRow = count > FirstColumn && sqlite3_value_type(values[0]) != SQLITE_NULL &&
                            sqlite3_value_int64(values[0]) == sqlite3_value_int64(values[1]);
    if (!changesRow) {
      throw RuntimeError::Of(ErrorNumber::PathFileAccess, QStringLiteral("Jet"),
                             Words::tr("rows of %1 can be neither added nor deleted in %2")
                                 .arg(table.definition->name, table.file->Path()));
    }
    QList<JetAssignment> assignments;
    for (int column = 0; column < count - FirstColumn; ++column) {
      sqlite3_value *value = values[column + FirstColumn];
      if (sqlite3_value_nochange(value) == 0) assignments.append({column, TextOrNull(value)});
    }
    table.file->UpdateRow(*table.definition, sqlite3_value_int64(values[0]), assignments);
  });
}

int Begin(sqlite3_vtab *table) {
  return Guarded(table, [&] { From(table).file->Begin(); });
}

/// Writes the file; not in xCommit, whose failure SQLite ignores.
int Sync(sqlite3_vtab *table) {
  return Guarded(table, [&] { From(table).file->Commit(); });
}

int Commit(sqlite3_vtab *) {
  return SQLITE_OK;
}

int Rollback(sqlite3_vtab *table) {
  return Guarded(table, [&] { From(table).file->Rollback(); });
}

int Savepoint(sqlite3_vtab *table, int number) {
  return Guarded(table, [&] { From(table).file->Savepoint(number); });
}

int Release(sqlite3_vtab *table, int number) {
  return Guarded(table, [&] { From(table).file->Release(number); });
}

int RollbackTo(sqlite3_vtab *table, int number) {
  return Guarded(table, [&] { From(table).file->RollbackTo(number); });
}

constexpr sqlite3_module Module = {
    .iVersion = 2,
    .xCreate = Connect,
    .xConnect = Connect,
    .xBestIndex = ChooseIndex,
    .xDisconnect = Disconnect,
    .xDestroy = Disconnect,
    .xOpen = OpenCursor,
    .xClose = CloseCursor,
    .xFilter = Filter,
    .xNext = Next,
    .xEof = IsAtEnd,
    .xColumn = GiveColumn,
    .xRowid = GiveRowId,
    .xUpdate = Update,
    .xBegin = Begin,
    .xSync = Sync,
    .xCommit = Commit,
    .xRollback = Rollback,
    .xFindFunction = nullptr,
    .xRename = nullptr,
    .xSavepoint = Savepoint,
    .xRelease = Release,
    .xRollbackTo = RollbackTo,
    .xShadowName = nullptr,
};

/// Denies statements that would change the connection only, not the file, and look as if they had
/// succeeded.
int Authorize(void *, int action, const char *, const char *, const char *, const char *) {
  switch (action) {
    case SQLITE_SELECT:
    case SQLITE_READ:
    case SQLITE_FUNCTION:
    case SQLITE_RECURSIVE:
    case SQLITE_UPDATE:
    case SQLITE_INSERT:
    case SQLITE_DELETE:
    case SQLITE_TRANSACTION:
    case SQLITE_SAVEPOINT:
      return SQLITE_OK;
    default:
      return SQLITE_DENY;
  }
}

}  // namespace

void AttachJetFile(sqlite3 *database, JetFile &file) {
  AddTextCollation(database);
  sqlite3_create_module(database, ModuleName, &Module, &file);
  for (const QString &name : file.TableNames()) {
    const QString statement =
        QString::fromUtf8("Create virtual table " + Quoted(name) + " using " + ModuleName);
    SqliteStatement(database, statement, QStringLiteral("Database.Open"), file.Path()).Step();
  }
  sqlite3_set_authorizer(database, Authorize, nullptr);
}

}  // namespace velor
