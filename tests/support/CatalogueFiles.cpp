// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/CatalogueFiles.h"

#include "tests/support/jet/JetWriter.h"

#include <QDateTime>
#include <QFile>

#include <cmath>
#include <gtest/gtest.h>
#include <sqlite3.h>

namespace velor {

namespace {

using fixture::Cell;
using fixture::CellType;
using fixture::Days;
using fixture::FixtureColumn;
using fixture::FixtureFile;
using fixture::FixtureTable;

const QDateTime &DayZero() {
  static const QDateTime zero(QDate(1899, 12, 30), QTime(0, 0), Qt::UTC);
  return zero;
}

QString DateText(Days days) {
  const QDateTime time = DayZero().addSecs(std::llround(days.value * 86400));
  return time.toString(time.time() == QTime(0, 0) ? QStringLiteral("yyyy-MM-dd")
                                                  : QStringLiteral("yyyy-MM-dd HH:mm:ss"));
}

const char *DeclaredType(CellType type) {
  switch (type) {
    case CellType::Boolean:
      return "BOOLEAN";
    case CellType::Short:
    case CellType::Long:
      return "INTEGER";
    case CellType::Double:
      return "DOUBLE";
    case CellType::DateTime:
      return "DATETIME";
    case CellType::Memo:
      return "LONGTEXT COLLATE NOCASE";
    default:
      return "VARCHAR COLLATE NOCASE";
  }
}

/// Gives one parameter of a statement its value.
struct Bind {
  sqlite3_stmt *statement;
  int index;

  void operator()(std::monostate) const { sqlite3_bind_null(statement, index); }
  void operator()(bool value) const { sqlite3_bind_int(statement, index, value ? 1 : 0); }
  void operator()(qint32 value) const { sqlite3_bind_int(statement, index, value); }
  void operator()(double value) const { sqlite3_bind_double(statement, index, value); }
  void operator()(Days value) const { (*this)(DateText(value)); }
  void operator()(const QString &value) const {
    const QByteArray text = value.toUtf8();
    sqlite3_bind_text(statement, index, text.constData(), static_cast<int>(text.size()),
                      SQLITE_TRANSIENT);
  }
};

void Run(sqlite3 *database, const QByteArray &script) {
  ASSERT_EQ(sqlite3_exec(database, script.constData(), nullptr, nullptr, nullptr), SQLITE_OK)
      << sqlite3_errmsg(database);
}

void Insert(sqlite3 *database, const FixtureTable &table) {
  QByteArray columns;
  QByteArray marks;
  for (const FixtureColumn &column : table.columns) {
    columns += (columns.isEmpty() ? "\"" : ", \"") + column.name.toUtf8() + "\" " +
               DeclaredType(column.type);
    marks += marks.isEmpty() ? "?" : ", ?";
  }
  const QByteArray name = table.name.toUtf8();
  Run(database, "Create table \"" + name + "\" (" + columns + ")");
  sqlite3_stmt *statement = nullptr;
  sqlite3_prepare_v2(database, ("Insert into \"" + name + "\" values (" + marks + ")").constData(),
                     -1, &statement, nullptr);
  for (const auto &row : table.rows) {
    for (std::size_t i = 0; i < row.cells.size(); ++i) {
      std::visit(Bind{statement, static_cast<int>(i) + 1}, row.cells[i]);
    }
    EXPECT_EQ(sqlite3_step(statement), SQLITE_DONE) << sqlite3_errmsg(database);
    sqlite3_reset(statement);
  }
  sqlite3_finalize(statement);
}

void WriteSqlite(const QString &path, const FixtureFile &content) {
  sqlite3 *database = nullptr;
  sqlite3_open(path.toUtf8().constData(), &database);
  Run(database, "Begin");
  for (const FixtureTable &table : content.tables) Insert(database, table);
  Run(database, "Commit");
  sqlite3_close(database);
}

FixtureColumn Column(const char *name, CellType type) {
  return {QString::fromLatin1(name), type};
}

Cell Text(const char *text) {
  return QString::fromUtf8(text);
}

}  // namespace

fixture::Days DaysOf(int year, int month, int day) {
  return {static_cast<double>(DayZero().date().daysTo(QDate(year, month, day)))};
}

void WriteCatalogue(const QString &nativePath, CatalogueFormat format, const FixtureFile &content) {
  QFile::remove(nativePath);
  if (format == CatalogueFormat::Sqlite) {
    WriteSqlite(nativePath, content);
    return;
  }
  QFile file(nativePath);
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(fixture::WriteJetFile(content));
}

FixtureFile SmallCatalogue() {
  FixtureTable project;
  project.name = QStringLiteral("Project");
  project.columns = {Column("IdProject", CellType::Long),      Column("Name", CellType::Text),
                     Column("Path", CellType::Text),           Column("Created", CellType::Boolean),
                     Column("DtModified", CellType::DateTime), Column("Notes", CellType::Memo)};
  project.rows = {
      {{1, Text("Younger"), Text("\\old\\one"), true, DaysOf(2005, 1, 1), Text("kept")}},
      {{2, Text("Older"), Text("\\old\\two"), true, DaysOf(2004, 1, 1), Cell()}},
      {{3, Text("Not generated"), Text("\\old\\three"), false, DaysOf(2003, 1, 1), Cell()}}};
  FixtureTable page;
  page.name = QStringLiteral("Page");
  page.columns = {Column("PageId", CellType::Long), Column("ProjectId", CellType::Long),
                  Column("PageName", CellType::Text), Column("TPath", CellType::Text),
                  Column("Path", CellType::Text)};
  page.rows = {{{10, 2, Text("prices"), Text("\\old\\two"), Text("\\Files\\p.htm")}},
               {{11, 2, Text("About"), Text("\\old\\two"), Text("\\Files\\a.htm")}},
               {{12, 1, Text("Other"), Text("\\old\\one"), Text("\\Files\\o.htm")}}};
  FixtureTable custom;
  custom.name = QStringLiteral("CustomCD");
  custom.columns = {Column("ProjectId", CellType::Long), Column("PPath", CellType::Text)};
  custom.rows = {{{1, Text("\\old\\one")}}, {{2, Text("\\old\\two")}}};
  return {{project, page, custom}};
}

}  // namespace velor
