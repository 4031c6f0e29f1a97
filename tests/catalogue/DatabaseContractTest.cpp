// SPDX-License-Identifier: GPL-3.0-or-later
// What every database keeps to, the fake of the tests and the real ones alike.
#include "catalogue/SqliteConnection.h"
#include "platform/Paths.h"
#include "tests/support/CatalogueFiles.h"
#include "tests/support/Checks.h"
#include "tests/support/FakeDatabase.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sqlite3.h>

namespace velor {
namespace {

const QString Provider =
    QStringLiteral("Provider=Microsoft.Jet.OLEDB.4.0;Persist Security Info=False;Data Source=");
const QString AllProjects =
    QStringLiteral("Select * from Project where Created = true Order by DtModified");
const QString NoProject = QStringLiteral("Select * from Project where IdProject = '99'");
const QString Repair = QStringLiteral("Update Project set Path = '\\b' where IdProject = '2'");
const QString Nonsense = QStringLiteral("Select * from Nowhere");
const QString BadUpdate = QStringLiteral("Update Nowhere set Path = ''");

class Harness {
 public:
  virtual ~Harness() = default;
  virtual std::unique_ptr<DatabaseConnection> Create() = 0;
  /// The connection text of a database that has the rows of this test.
  virtual QString ConnectionText() = 0;
  /// Makes the next opening fail as that of a missing file does.
  virtual QString MissingText() = 0;
};

class FakeHarness final : public Harness {
 public:
  FakeHarness() {
    FakeRows rows;
    rows.columns = {{QStringLiteral("IdProject"), ColumnType::Integer},
                    {QStringLiteral("Name"), ColumnType::VarWideChar},
                    {QStringLiteral("Notes"), ColumnType::LongVarWideChar},
                    {QStringLiteral("Created"), ColumnType::Boolean},
                    {QStringLiteral("DtModified"), ColumnType::Date},
                    {QStringLiteral("Price"), ColumnType::Double}};
    database_.results[NoProject] = rows;
    rows.rows = {
        {2, QStringLiteral("Älter"), QVariant(), -1, QStringLiteral("2001-02-03"), 1.5},
        {1, QStringLiteral("Newer"), QStringLiteral("n"), -1, QStringLiteral("2002-02-03"), 2.0}};
    database_.results[AllProjects] = rows;
    for (const QString &statement : {Nonsense, BadUpdate}) {
      database_.failures.emplace(
          statement, RuntimeError::Of(ErrorNumber::InvalidProcedureCall, QStringLiteral("fake")));
    }
  }
  std::unique_ptr<DatabaseConnection> Create() override { return database_.CreateConnection(); }
  QString ConnectionText() override { return Provider + QStringLiteral("\\data\\eThumbs.mdb"); }
  QString MissingText() override {
    database_.openFailure = RuntimeError::Of(ErrorNumber::FileNotFound, QStringLiteral("fake"));
    return ConnectionText();
  }

 private:
  FakeDatabase database_;
};

/// The real connection to a file of either format.
class FileHarness : public Harness {
 public:
  std::unique_ptr<DatabaseConnection> Create() override {
    return std::make_unique<SqliteConnection>();
  }
  QString ConnectionText() override { return Provider + ToLogic(File()); }
  QString MissingText() override { return ConnectionText() + QStringLiteral("x"); }

 protected:
  QString File() const { return folder_.filePath(QStringLiteral("eThumbs.mdb")); }

 private:
  QTemporaryDir folder_;
};

class SqliteHarness final : public FileHarness {
 public:
  SqliteHarness() {
    sqlite3 *database = nullptr;
    sqlite3_open(File().toUtf8().constData(), &database);
    const int result = sqlite3_exec(
        database,
        "Create table Project (IdProject INTEGER, Name VARCHAR(50) COLLATE NOCASE, "
        "Notes LONGTEXT, Path TEXT, Created BOOLEAN, DtModified DATETIME, Price REAL);"
        "Insert into Project values (1, 'Newer', 'n', '\\a', 1, '2002-02-03', 2.0);"
        "Insert into Project values (2, 'Älter', null, '\\a', 1, '2001-02-03', 1.5);"
        "Insert into Project values (3, 'Never made', null, '\\a', 0, '2000-02-03', 0);",
        nullptr, nullptr, nullptr);
    EXPECT_EQ(result, SQLITE_OK) << sqlite3_errmsg(database);
    sqlite3_close(database);
  }
};

class JetHarness final : public FileHarness {
 public:
  JetHarness() {
    using fixture::CellType;
    fixture::FixtureTable project;
    project.name = QStringLiteral("Project");
    project.columns = {{QStringLiteral("IdProject"), CellType::Long},
                       {QStringLiteral("Name"), CellType::Text},
                       {QStringLiteral("Notes"), CellType::Memo},
                       {QStringLiteral("Path"), CellType::Text},
                       {QStringLiteral("Created"), CellType::Boolean},
                       {QStringLiteral("DtModified"), CellType::DateTime},
                       {QStringLiteral("Price"), CellType::Double}};
    const QString folder = QStringLiteral("\\a");
    project.rows = {
        {{1, QStringLiteral("Newer"), QStringLiteral("n"), folder, true, DaysOf(2002, 2, 3), 2.0}},
        {{2, QStringLiteral("Älter"), {}, folder, true, DaysOf(2001, 2, 3), 1.5}},
        {{3, QStringLiteral("Never made"), {}, folder, false, DaysOf(2000, 2, 3), 0.0}}};
    WriteCatalogue(File(), CatalogueFormat::Jet, {{project}});
  }
};

template <typename HarnessType>
class DatabaseContract : public ::testing::Test {
 protected:
  std::unique_ptr<DatabaseConnection> Opened() {
    auto connection = harness_.Create();
    connection->Open(harness_.ConnectionText(), {}, {}, CommandTypeUnspecified);
    return connection;
  }
  static void Open(Recordset &recordset, DatabaseConnection &connection, const QString &statement) {
    recordset.SetCursorLocation(CursorLocation::Client);
    recordset.Open(statement, connection, CursorType::Static, LockType::ReadOnly,
                   CommandTypeUnspecified);
  }

  HarnessType harness_;
};

using Harnesses = ::testing::Types<FakeHarness, SqliteHarness, JetHarness>;
TYPED_TEST_SUITE(DatabaseContract, Harnesses);

TYPED_TEST(DatabaseContract, AConnectionIsClosedUntilItIsOpened) {
  auto connection = this->harness_.Create();
  EXPECT_EQ(connection->State(), ObjectState::Closed);
  connection->Open(this->harness_.ConnectionText(), {}, {}, CommandTypeUnspecified);
  EXPECT_EQ(connection->State(), ObjectState::Open);
}

TYPED_TEST(DatabaseContract, AConnectionOpensOnlyOnce) {
  auto connection = this->Opened();
  EXPECT_EQ(ErrorOf([&] { connection->Open(this->harness_.ConnectionText(), {}, {}, -1); }),
            ErrorNumber::InvalidProcedureCall);
}

TYPED_TEST(DatabaseContract, AMissingFileIsAnErrorAndTheConnectionStaysClosed) {
  auto connection = this->harness_.Create();
  EXPECT_EQ(ErrorOf([&] { connection->Open(this->harness_.MissingText(), {}, {}, -1); }),
            ErrorNumber::FileNotFound);
  EXPECT_EQ(connection->State(), ObjectState::Closed);
}

TYPED_TEST(DatabaseContract, AClosedConnectionRunsNothing) {
  auto connection = this->harness_.Create();
  auto recordset = connection->CreateRecordset();
  EXPECT_EQ(ErrorOf([&] { connection->Execute(Repair, -1); }), ErrorNumber::ObjectNotSet);
  EXPECT_EQ(ErrorOf([&] { this->Open(*recordset, *connection, AllProjects); }),
            ErrorNumber::ObjectNotSet);
}

TYPED_TEST(DatabaseContract, RowsAreCountedAtOnceAndWalkedToTheEnd) {
  auto connection = this->Opened();
  auto recordset = connection->CreateRecordset();
  this->Open(*recordset, *connection, AllProjects);
  EXPECT_EQ(recordset->RecordCount(), 2);
  EXPECT_FALSE(recordset->EndOfFile());
  EXPECT_EQ(recordset->Value(QStringLiteral("Name")).toString(), QStringLiteral("Älter"));
  recordset->MoveNext();
  EXPECT_EQ(recordset->Value(QStringLiteral("Name")).toString(), QStringLiteral("Newer"));
  recordset->MoveNext();
  EXPECT_TRUE(recordset->EndOfFile());
}

TYPED_TEST(DatabaseContract, NoRowsIsEndOfFileFromTheStart) {
  auto connection = this->Opened();
  auto recordset = connection->CreateRecordset();
  this->Open(*recordset, *connection, NoProject);
  EXPECT_EQ(recordset->RecordCount(), 0);
  EXPECT_TRUE(recordset->EndOfFile());
}

TYPED_TEST(DatabaseContract, NothingIsReadPastTheLastRow) {
  auto connection = this->Opened();
  auto recordset = connection->CreateRecordset();
  this->Open(*recordset, *connection, NoProject);
  EXPECT_EQ(ErrorOf([&] { recordset->Value(QStringLiteral("Name")); }), ErrorNumber::InputPastEnd);
  EXPECT_EQ(ErrorOf([&] { recordset->MoveNext(); }), ErrorNumber::InputPastEnd);
}

TYPED_TEST(DatabaseContract, ColumnsAreFoundInAnyLetterCaseAndUnknownOnesAreErrors) {
  auto connection = this->Opened();
  auto recordset = connection->CreateRecordset();
  this->Open(*recordset, *connection, AllProjects);
  EXPECT_EQ(recordset->Value(QStringLiteral("iDpRoJeCt")).toInt(), 2);
  EXPECT_EQ(ErrorOf([&] { recordset->Value(QStringLiteral("Owner")); }),
            ErrorNumber::ElementNotFound);
  EXPECT_EQ(ErrorOf([&] { recordset->Type(QStringLiteral("Owner")); }),
            ErrorNumber::ElementNotFound);
}

TYPED_TEST(DatabaseContract, ColumnsAreAlsoReadByTheirPlace) {
  auto connection = this->Opened();
  auto recordset = connection->CreateRecordset();
  EXPECT_EQ(ErrorOf([&] { recordset->ColumnIndex(QStringLiteral("Name")); }),
            ErrorNumber::ObjectNotSet);
  this->Open(*recordset, *connection, AllProjects);
  const int name = recordset->ColumnIndex(QStringLiteral("NAME"));
  EXPECT_EQ(recordset->ValueAt(name), QVariant(QStringLiteral("Älter")));
  EXPECT_EQ(recordset->TypeAt(name), ColumnType::VarWideChar);
  EXPECT_EQ(recordset->ColumnNames().value(name), QStringLiteral("Name"));
  EXPECT_EQ(ErrorOf([&] { recordset->ValueAt(-1); }), ErrorNumber::SubscriptOutOfRange);
  const auto beyond = static_cast<int>(recordset->ColumnNames().size());
  EXPECT_EQ(ErrorOf([&] { recordset->TypeAt(beyond); }), ErrorNumber::SubscriptOutOfRange);
}

TYPED_TEST(DatabaseContract, ColumnsKnowTheirTypesWithAndWithoutRows) {
  auto connection = this->Opened();
  for (const QString &statement : {AllProjects, NoProject}) {
    auto recordset = connection->CreateRecordset();
    this->Open(*recordset, *connection, statement);
    EXPECT_EQ(recordset->Type(QStringLiteral("IdProject")), ColumnType::Integer);
    EXPECT_EQ(recordset->Type(QStringLiteral("Name")), ColumnType::VarWideChar);
    EXPECT_EQ(recordset->Type(QStringLiteral("Notes")), ColumnType::LongVarWideChar);
    EXPECT_EQ(recordset->Type(QStringLiteral("Created")), ColumnType::Boolean);
    EXPECT_EQ(recordset->Type(QStringLiteral("DtModified")), ColumnType::Date);
    EXPECT_EQ(recordset->Type(QStringLiteral("Price")), ColumnType::Double);
  }
}

TYPED_TEST(DatabaseContract, ValuesHaveTheirKinds) {
  auto connection = this->Opened();
  auto recordset = connection->CreateRecordset();
  this->Open(*recordset, *connection, AllProjects);
  EXPECT_EQ(recordset->Value(QStringLiteral("Created")), QVariant(-1));
  EXPECT_EQ(recordset->Value(QStringLiteral("DtModified")), QVariant(QStringLiteral("2001-02-03")));
  EXPECT_EQ(recordset->Value(QStringLiteral("Price")), QVariant(1.5));
  EXPECT_TRUE(recordset->Value(QStringLiteral("Notes")).isNull());
}

TYPED_TEST(DatabaseContract, ARecordsetIsUsedAgainAfterClosing) {
  auto connection = this->Opened();
  auto recordset = connection->CreateRecordset();
  EXPECT_EQ(recordset->State(), ObjectState::Closed);
  this->Open(*recordset, *connection, AllProjects);
  recordset->MoveNext();
  EXPECT_EQ(recordset->State(), ObjectState::Open);
  EXPECT_EQ(ErrorOf([&] { this->Open(*recordset, *connection, AllProjects); }),
            ErrorNumber::InvalidProcedureCall);
  recordset->Close();
  EXPECT_EQ(recordset->State(), ObjectState::Closed);
  EXPECT_EQ(ErrorOf([&] { recordset->RecordCount(); }), ErrorNumber::ObjectNotSet);
  this->Open(*recordset, *connection, AllProjects);
  EXPECT_EQ(recordset->Value(QStringLiteral("IdProject")).toInt(), 2);
}

TYPED_TEST(DatabaseContract, AStatementThatFailsIsAnErrorAndLeavesTheRecordsetClosed) {
  auto connection = this->Opened();
  auto recordset = connection->CreateRecordset();
  EXPECT_EQ(ErrorOf([&] { this->Open(*recordset, *connection, Nonsense); }),
            ErrorNumber::InvalidProcedureCall);
  EXPECT_EQ(recordset->State(), ObjectState::Closed);
  EXPECT_EQ(ErrorOf([&] { connection->Execute(BadUpdate, -1); }),
            ErrorNumber::InvalidProcedureCall);
}

TYPED_TEST(DatabaseContract, RowsThatWereReadDoNotFollowLaterChanges) {
  auto connection = this->Opened();
  auto recordset = connection->CreateRecordset();
  this->Open(*recordset, *connection, AllProjects);
  connection->Execute(Repair, CommandTypeUnspecified);
  EXPECT_EQ(recordset->RecordCount(), 2);
  EXPECT_EQ(recordset->Value(QStringLiteral("IdProject")).toInt(), 2);
}

}  // namespace
}  // namespace velor
