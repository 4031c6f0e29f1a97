// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/SqliteConnection.h"

#include "catalogue/CatalogueFile.h"
#include "catalogue/JetModule.h"
#include "catalogue/SqliteRecordset.h"
#include "catalogue/SqliteStatement.h"
#include "catalogue/jet/JetFile.h"
#include "files/PosixJetStorage.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"
#include "platform/Words.h"

#include <QFile>

#include <sqlite3.h>

namespace velor {

namespace {

/// How long a statement waits for another program that is just writing; one that holds the file for
/// longer is reported as the cause.
constexpr int BusyMilliseconds = 500;

QString Source() {
  return QStringLiteral("Database.Open");
}

/// A file without any write bit is read-only for the superuser too.
int OpenFlags(const QString &file) {
  constexpr QFile::Permissions AnyWrite = QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;
  return QFile::permissions(file) & AnyWrite ? SQLITE_OPEN_READWRITE : SQLITE_OPEN_READONLY;
}

QString DataSource(const QString &connectionText) {
  static const QString key = QStringLiteral("Data Source=");
  const qsizetype start = connectionText.indexOf(key, 0, Qt::CaseInsensitive);
  if (start < 0) {
    throw RuntimeError::Of(ErrorNumber::InvalidProcedureCall, Source(), connectionText);
  }
  return connectionText.mid(start + key.size());
}

std::unique_ptr<sqlite3, SqliteClose> OpenDatabase(const QString &name, int flags) {
  sqlite3 *handle = nullptr;
  // The program has one thread.
  const int result =
      sqlite3_open_v2(name.toUtf8().constData(), &handle, flags | SQLITE_OPEN_NOMUTEX, nullptr);
  std::unique_ptr<sqlite3, SqliteClose> opened(handle);
  if (result != SQLITE_OK) throw DatabaseError(handle, Source(), name);
  sqlite3_extended_result_codes(handle, 1);
  sqlite3_busy_timeout(handle, BusyMilliseconds);
  // Opening reads nothing; a damaged or locked file shows at the first read.
  SqliteStatement(handle, QStringLiteral("Select count(*) from sqlite_master"), Source(), name)
      .Step();
  return opened;
}

}  // namespace

void SqliteClose::operator()(sqlite3 *database) const {
  sqlite3_close_v2(database);
}

SqliteConnection::SqliteConnection() = default;
SqliteConnection::~SqliteConnection() = default;

void SqliteConnection::Open(const QString &connectionText, const QString &, const QString &, int) {
  if (database_) {
    throw RuntimeError::Of(ErrorNumber::InvalidProcedureCall, Source(),
                           Words::tr("the connection is open already"));
  }
  const QString file = FindIgnoringCase(DataSource(connectionText));
  if (KindOfCatalogue(file) == CatalogueKind::Sqlite) {
    database_ = OpenDatabase(file, OpenFlags(file));
    return;
  }
  auto jet = JetFile::Open(OpenJetStorage(file));
  auto database = OpenDatabase(QStringLiteral(":memory:"), SQLITE_OPEN_READWRITE);
  AttachJetFile(database.get(), *jet);
  jet_ = std::move(jet);
  database_ = std::move(database);
}

ObjectState SqliteConnection::State() const {
  return database_ ? ObjectState::Open : ObjectState::Closed;
}

void SqliteConnection::Execute(const QString &statement, int) {
  SqliteStatement prepared(BeginStatement(), statement, QStringLiteral("Database.Execute"),
                           statement);
  while (prepared.Step()) {
  }
}

std::unique_ptr<Recordset> SqliteConnection::CreateRecordset() {
  return std::make_unique<SqliteRecordset>();
}

QString SqliteConnection::Notice() const {
  return jet_ ? jet_->Notice() : QString();
}

QString SqliteConnection::Defect() {
  if (!jet_) return {};
  jet_->Refresh();
  const QString damage = jet_->Damage();
  if (damage.isEmpty()) return {};
  return Words::tr(
             "The catalogue %1 is not whole: %2. What is left of it is shown, and nothing can be "
             "changed in it; put a whole copy in its place")
      .arg(jet_->Path(), damage);
}

sqlite3 *SqliteConnection::BeginStatement() {
  if (!database_) {
    throw RuntimeError::Of(ErrorNumber::ObjectNotSet, QStringLiteral("Database"),
                           Words::tr("the connection is not open"));
  }
  if (jet_) jet_->Refresh();
  return database_.get();
}

}  // namespace velor
