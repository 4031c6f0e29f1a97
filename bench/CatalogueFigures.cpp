// SPDX-License-Identifier: GPL-3.0-or-later
// Figures about the catalogue: a Jet file beside an SQLite file with the same rows and no index.
#include "bench/Children.h"
#include "bench/Figures.h"
#include "bench/Measure.h"
#include "catalogue/SqliteConnection.h"
#include "platform/Paths.h"
#include "projects/FillList.h"
#include "projects/RecordList.h"
#include "projects/RecordsetReader.h"
#include "projects/RowTable.h"
#include "projects/Statements.h"
#include "tests/support/CatalogueFiles.h"
#include "tests/support/jet/JetCatalogues.h"

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

#include <memory>
#include <sqlite3.h>

namespace velor::bench {

namespace {

constexpr int ManyPages = 200'000;
constexpr int Rounds = 7;

const QString ManySubject = QStringLiteral("200,000 pages");
const QString SqlitePeer = QStringLiteral("SQLite without an index");

/// Names the file that a child reads.
constexpr const char *FileVariable = "VELOR_BENCH_CATALOGUE";

/// A figure of the wrong work is worse than none.
void Expect(bool condition) {
  if (!condition) qFatal("the catalogue holds something else");
}

fixture::FixtureFile BigCatalogue() {
  return fixture::CatalogueFixture({.projects = 1, .pages = ManyPages, .remarks = false});
}

std::unique_ptr<SqliteConnection> Opened(const QString &file) {
  auto connection = std::make_unique<SqliteConnection>();
  connection->Open(QStringLiteral("Data Source=") + ToLogic(file), {}, {}, CommandTypeUnspecified);
  return connection;
}

class Catalogues {
 public:
  explicit Catalogues(const fixture::FixtureFile &content) {
    WriteCatalogue(File(CatalogueFormat::Jet), CatalogueFormat::Jet, content);
    WriteCatalogue(File(CatalogueFormat::Sqlite), CatalogueFormat::Sqlite, content);
  }

  QString File(CatalogueFormat format) const {
    return folder_.filePath(format == CatalogueFormat::Jet ? QStringLiteral("jet.mdb")
                                                           : QStringLiteral("sqlite.mdb"));
  }

  std::unique_ptr<SqliteConnection> Open(CatalogueFormat format) const {
    return Opened(File(format));
  }

 private:
  QTemporaryDir folder_;
};

/// `work` on an open connection to either file, side by side.
void CompareOpen(const QString &name, const QString &subject, const Catalogues &catalogues,
                 const std::function<void(SqliteConnection &)> &work) {
  const auto jet = catalogues.Open(CatalogueFormat::Jet);
  const auto sqlite = catalogues.Open(CatalogueFormat::Sqlite);
  Print(Compare(
      name, subject, SqlitePeer, Rounds, [&] { return Milliseconds([&] { work(*jet); }); },
      [&] { return Milliseconds([&] { work(*sqlite); }); }));
}

void ReadPages(SqliteConnection &connection) {
  const auto records = connection.CreateRecordset();
  OpenRecordset(*records, Statements::PagesOfProject(1), connection);
  Expect(records->RecordCount() == ManyPages);
}

void ListPages(SqliteConnection &connection, RecordList &list, RowTable &table) {
  FillList(list, table, Statements::PageListOfProject(1), LeadingColumn::None, 0, {},
           {QStringLiteral("PageId"), QStringLiteral("PageName")}, connection);
  QApplication::processEvents();
  Expect(list.model()->rowCount() == ManyPages);
}

void Repair(SqliteConnection &connection) {
  static int round = 0;
  const QString folder = QStringLiteral("C:\\Sites\\Moved%1").arg(++round);
  ExecuteSql(connection, Statements::SetProjectFolder(folder, 1));
  ExecuteSql(connection, Statements::SetPageFolders(folder, 1));
  ExecuteSql(connection, Statements::SetCustomFolder(folder, 1));
}

/// The same query by the SQL engine alone: every value is fetched, nothing is kept.
void StepThroughPages(const QString &file) {
  sqlite3 *database = nullptr;
  sqlite3_open(file.toUtf8().constData(), &database);
  sqlite3_stmt *statement = nullptr;
  const QByteArray text = Statements::PageListOfProject(1).toUtf8();
  sqlite3_prepare_v2(database, text.constData(), -1, &statement, nullptr);
  int rows = 0;
  for (; sqlite3_step(statement) == SQLITE_ROW; ++rows) {
    for (int column = 0; column < sqlite3_column_count(statement); ++column) {
      sqlite3_column_text(statement, column);
    }
  }
  Expect(rows == ManyPages);
  sqlite3_finalize(statement);
  sqlite3_close(database);
}

double MemoryOfPages(const QString &file) {
  qputenv(FileVariable, file.toLocal8Bit());
  return MemoryOf(QStringLiteral("child-pages"));
}

}  // namespace

void CatalogueFigures() {
  const Catalogues many(BigCatalogue());
  CompareOpen(QStringLiteral("pages by name (statement 7)"), ManySubject, many, ReadPages);

  RecordList list({QStringLiteral("PageId"), QStringLiteral("PageName")}, 1);
  RowTable table;
  list.show();
  CompareOpen(QStringLiteral("list of pages filled and shown"), ManySubject, many,
              [&](SqliteConnection &connection) { ListPages(connection, list, table); });
  const auto sqlite = many.Open(CatalogueFormat::Sqlite);
  Print(Compare(
      QStringLiteral("list of pages of an SQLite catalogue"), ManySubject,
      QStringLiteral("SQLite alone"), Rounds,
      [&] { return Milliseconds([&] { ListPages(*sqlite, list, table); }); },
      [&] { return Milliseconds([&] { StepThroughPages(many.File(CatalogueFormat::Sqlite)); }); }));

  Print(Compare(
      QStringLiteral("opening the connection"), ManySubject, SqlitePeer, Rounds,
      [&] { return Milliseconds([&] { many.Open(CatalogueFormat::Jet); }); },
      [&] { return Milliseconds([&] { many.Open(CatalogueFormat::Sqlite); }); }));
  CompareOpen(QStringLiteral("three-statement repair"), ManySubject, many, Repair);
  const Catalogues few(fixture::CatalogueFixture({.projects = 1, .pages = 40}));
  CompareOpen(QStringLiteral("three-statement repair"), QStringLiteral("40 pages"), few, Repair);
}

void CatalogueMemoryFigure() {
  const Catalogues many(BigCatalogue());
  Figure figure = Compare(
      QStringLiteral("memory with statement 7's rows"), ManySubject, SqlitePeer, 3,
      [&] { return MemoryOfPages(many.File(CatalogueFormat::Jet)); },
      [&] { return MemoryOfPages(many.File(CatalogueFormat::Sqlite)); });
  figure.unit = QStringLiteral("MB PSS");
  Print(figure);
}

void ChildReadPages() {
  const auto connection = Opened(qEnvironmentVariable(FileVariable));
  const auto records = connection->CreateRecordset();
  OpenRecordset(*records, Statements::PagesOfProject(1), *connection);
  ReportReadyAndWait();
}

}  // namespace velor::bench
