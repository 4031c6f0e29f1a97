// SPDX-License-Identifier: GPL-3.0-or-later
// The catalogue as an SQLite file: what opens, what is refused with which cause, and what the
// program's statements do.
#include "catalogue/SqliteConnection.h"
#include "platform/Paths.h"
#include "tests/support/Checks.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sqlite3.h>

namespace velor {
namespace {

class SqliteCatalogue : public ::testing::Test {
 protected:
  QString File() const { return folder_.filePath(QStringLiteral("eThumbs.mdb")); }

  void Write(const QByteArray &bytes) {
    QFile file(File());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
  }

  QByteArray Bytes() {
    QFile file(File());
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
  }

  void Run(const char *script) {
    sqlite3 *database = nullptr;
    sqlite3_open(File().toUtf8().constData(), &database);
    ASSERT_EQ(sqlite3_exec(database, script, nullptr, nullptr, nullptr), SQLITE_OK)
        << sqlite3_errmsg(database);
    sqlite3_close(database);
  }

  void MakeCatalogue() {
    Run("Create table Project (IdProject INTEGER PRIMARY KEY, Name TEXT COLLATE NOCASE, Path TEXT,"
        " Created BOOLEAN, DtModified DATETIME);"
        "Create table Page (PageId INTEGER PRIMARY KEY, ProjectId INTEGER, "
        " PageName VARCHAR(80) COLLATE NOCASE, TPath TEXT, Path TEXT);"
        "Insert into Project values (12, 'Garden', '\\old', 1, '2003-05-01');"
        "Insert into Project values (13, 'Draft', '\\none', 0, '2003-05-02');"
        "Insert into Page values (7, 12, 'beta', '\\old', '\\b.htm');"
        "Insert into Page values (8, 12, 'Alpha', '\\old', '\\a.htm');"
        "Insert into Page values (9, 13, 'Other', '\\none', '\\o.htm');");
  }

  void Open() {
    connection_.Open(QStringLiteral("Provider=x;Data Source=") + ToLogic(File()), {}, {}, -1);
  }

  /// The error of opening the file.
  RuntimeError Refusal() {
    try {
      Open();
    } catch (const RuntimeError &error) {
      EXPECT_TRUE(error.Description().contains(File())) << error.what();
      EXPECT_EQ(connection_.State(), ObjectState::Closed);
      return error;
    }
    ADD_FAILURE() << "the file was opened";
    return RuntimeError::Of(ErrorNumber::None, {});
  }

  QStringList Column(const QString &statement, const QString &column) {
    auto recordset = connection_.CreateRecordset();
    recordset->Open(statement, connection_, CursorType::Static, LockType::ReadOnly, -1);
    QStringList values;
    for (; !recordset->EndOfFile(); recordset->MoveNext()) {
      values << recordset->Value(column).toString();
    }
    return values;
  }

  QTemporaryDir folder_;
  SqliteConnection connection_;
};

TEST_F(SqliteCatalogue, AMissingFileIsRefusedAndNotCreated) {
  EXPECT_EQ(Refusal().Number(), ErrorNumber::FileNotFound);
  EXPECT_FALSE(QFile::exists(File()));
}

TEST_F(SqliteCatalogue, AnEmptyFileIsRefusedAndStaysEmpty) {
  Write({});
  EXPECT_TRUE(Refusal().Description().contains(QStringLiteral("it is empty")));
  EXPECT_EQ(Bytes().size(), 0);
}

TEST_F(SqliteCatalogue, AFolderIsRefused) {
  QDir().mkdir(File());
  EXPECT_EQ(Refusal().Number(), ErrorNumber::PathFileAccess);
}

TEST_F(SqliteCatalogue, AFileThatIsNoDatabaseIsRefusedUnchanged) {
  Write("<html>a page, not a catalogue, long enough for any header</html>");
  EXPECT_TRUE(Refusal().Description().contains(QStringLiteral("it is no database")));
  EXPECT_TRUE(Bytes().startsWith("<html>"));
}

TEST_F(SqliteCatalogue, OtherCatalogueFormatsAreNamedWithWhatToDo) {
  const auto header = [](const char *engine, char version) {
    return QByteArray("\0\1\0\0", 4) + engine + '\0' + version + QByteArray(8192, '\0');
  };
  Write(header("Standard Jet DB", 0));
  const QString older = Refusal().Description();
  EXPECT_TRUE(older.contains(QStringLiteral("Jet 3"))) << older.toStdString();
  EXPECT_TRUE(older.contains(QStringLiteral("onvert"))) << older.toStdString();
  Write(header("Standard ACE DB", 2));
  const QString newer = Refusal().Description();
  EXPECT_TRUE(newer.contains(QStringLiteral("accdb"))) << newer.toStdString();
  EXPECT_TRUE(newer.contains(QStringLiteral("save it in the format"))) << newer.toStdString();
}

TEST_F(SqliteCatalogue, ADamagedFileIsRefused) {
  MakeCatalogue();
  QByteArray bytes = Bytes();
  bytes.replace(100, 400, QByteArray(400, '\xEE'));
  Write(bytes);
  EXPECT_EQ(Refusal().Number(), ErrorNumber::DeviceIoError);
}

TEST_F(SqliteCatalogue, ATruncatedFileIsRefused) {
  MakeCatalogue();
  Write(Bytes().first(1000));
  EXPECT_EQ(Refusal().Number(), ErrorNumber::DeviceIoError);
}

TEST_F(SqliteCatalogue, AFileLockedByAnotherProgramIsRefused) {
  MakeCatalogue();
  sqlite3 *other = nullptr;
  sqlite3_open(File().toUtf8().constData(), &other);
  ASSERT_EQ(sqlite3_exec(other, "Begin exclusive", nullptr, nullptr, nullptr), SQLITE_OK);
  const RuntimeError error = Refusal();
  EXPECT_EQ(error.Number(), ErrorNumber::PermissionDenied);
  EXPECT_EQ(
      error.Description(),
      QStringLiteral("Permission denied: the catalogue %1 is locked by another program; close "
                     "it there, or wait until it has written, and try again")
          .arg(File()));
  sqlite3_close(other);
}

TEST_F(SqliteCatalogue, TheNameIsFoundInAnotherLetterCase) {
  MakeCatalogue();
  QFile::rename(File(), folder_.filePath(QStringLiteral("ETHUMBS.MDB")));
  Open();
  EXPECT_EQ(connection_.State(), ObjectState::Open);
}

TEST_F(SqliteCatalogue, TheConnectionTextMustNameAFile) {
  EXPECT_EQ(ErrorOf([&] { connection_.Open(QStringLiteral("Provider=x"), {}, {}, -1); }),
            ErrorNumber::InvalidProcedureCall);
}

TEST_F(SqliteCatalogue, OnlyGeneratedProjectsAreSelectedByCreatedTrue) {
  MakeCatalogue();
  Open();
  EXPECT_EQ(
      Column(QStringLiteral("Select * from Project where Created = true"), QStringLiteral("Name")),
      QStringList{QStringLiteral("Garden")});
}

TEST_F(SqliteCatalogue, AQuotedIdentifierSelectsByNumber) {
  MakeCatalogue();
  Open();
  EXPECT_EQ(Column(QStringLiteral("Select * from Project where IdProject = '12'"),
                   QStringLiteral("Name")),
            QStringList{QStringLiteral("Garden")});
}

TEST_F(SqliteCatalogue, PagesAreOrderedIgnoringLetterCase) {
  MakeCatalogue();
  Open();
  const QStringList ordered = {QStringLiteral("Alpha"), QStringLiteral("beta")};
  EXPECT_EQ(Column(QStringLiteral("Select * from Page where ProjectId = '12' Order by Pagename"),
                   QStringLiteral("PageName")),
            ordered);
  EXPECT_EQ(Column(QStringLiteral("Select * from Page where ProjectId = '12' Order by PageName"),
                   QStringLiteral("PageName")),
            ordered);
}

TEST_F(SqliteCatalogue, ADoubledApostropheIsStoredOnce) {
  MakeCatalogue();
  Open();
  connection_.Execute(
      QStringLiteral("Update Page set TPath = '\\Bob''s Site' where ProjectId = '12'"), -1);
  EXPECT_EQ(Column(QStringLiteral("Select * from Page where PageId = 7"), QStringLiteral("TPath")),
            QStringList{QStringLiteral("\\Bob's Site")});
  EXPECT_EQ(Column(QStringLiteral("Select * from Page where PageId = 9"), QStringLiteral("TPath")),
            QStringList{QStringLiteral("\\none")});
}

TEST_F(SqliteCatalogue, AReadOnlyFileIsReadAndRefusesChanges) {
  MakeCatalogue();
  QFile::setPermissions(File(), QFile::ReadOwner | QFile::ReadGroup);
  Open();
  EXPECT_EQ(
      Column(QStringLiteral("Select * from Project where IdProject = '12'"), QStringLiteral("Name"))
          .size(),
      1);
}

TEST_F(SqliteCatalogue, RunsOneStatementAtATime) {
  MakeCatalogue();
  Open();
  const QString two = QStringLiteral("Update Page set TPath = 'x'; Drop table Page");
  EXPECT_EQ(ErrorOf([&] { connection_.Execute(two, -1); }), ErrorNumber::InvalidProcedureCall);
  EXPECT_EQ(ErrorOf([&] { connection_.Execute(QStringLiteral(" "), -1); }),
            ErrorNumber::InvalidProcedureCall);
  EXPECT_EQ(
      Column(QStringLiteral("Select * from Page where PageId = 7; "), QStringLiteral("TPath")),
      QStringList{QStringLiteral("\\old")});
}

TEST_F(SqliteCatalogue, NumbersTooLargeForAnIntegerStayWhole) {
  MakeCatalogue();
  Open();
  EXPECT_EQ(Column(QStringLiteral("Select 9007199254740993 as Big"), QStringLiteral("Big")),
            QStringList{QStringLiteral("9007199254740993")});
}

}  // namespace
}  // namespace velor
