// SPDX-License-Identifier: GPL-3.0-or-later
// The catalogue as a Jet file: what the program's statements see of it and do to it.
#include "catalogue/SqliteConnection.h"
#include "catalogue/jet/JetFile.h"
#include "catalogue/jet/JetFormat.h"
#include "files/PosixJetStorage.h"
#include "platform/Paths.h"
#include "tests/support/CatalogueFiles.h"
#include "tests/support/Checks.h"
#include "tests/support/MoreSamples.h"
#include "tests/support/jet/JetCatalogues.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace velor {
namespace {

using fixture::CellType;

QString U(const char *text) {
  return QString::fromUtf8(text);
}

class JetCatalogue : public ::testing::Test {
 protected:
  JetCatalogue() { Make(SmallCatalogue()); }

  QString File() const { return folder_.filePath(U("eThumbs.mdb")); }

  void Make(const fixture::FixtureFile &content) {
    WriteCatalogue(File(), CatalogueFormat::Jet, content);
  }

  void Write(const QByteArray &bytes) {
    QFile file(File());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
  }

  QByteArray Bytes() const {
    QFile file(File());
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
  }

  void Open() {
    connection_ = std::make_unique<SqliteConnection>();
    connection_->Open(U("Provider=x;Data Source=") + ToLogic(File()), {}, {}, -1);
  }

  void Run(const char *statement) {
    if (!connection_) Open();
    connection_->Execute(U(statement), -1);
  }

  QStringList Column(const char *statement, const char *column) {
    if (!connection_) Open();
    const auto records = connection_->CreateRecordset();
    records->Open(U(statement), *connection_, CursorType::Static, LockType::ReadOnly, -1);
    QStringList values;
    for (; !records->EndOfFile(); records->MoveNext()) {
      values << records->Value(U(column)).toString();
    }
    return values;
  }

  /// What a statement that fails says; the file must not have changed by a byte.
  QString Refusal(const char *statement) {
    if (!connection_) Open();
    const QByteArray before = Bytes();
    QString said;
    try {
      connection_->Execute(U(statement), -1);
      ADD_FAILURE() << statement << " was carried out";
    } catch (const RuntimeError &error) {
      said = error.Description();
    }
    EXPECT_EQ(Bytes(), before) << statement;
    return said;
  }

  QTemporaryDir folder_;
  std::unique_ptr<SqliteConnection> connection_;
};

TEST_F(JetCatalogue, WithAPasswordIsRefusedUnchangedAndSaysWhatToDo) {
  fixture::FixtureFile content = SmallCatalogue();
  content.password = U("secret");
  Make(content);
  const QByteArray before = Bytes();
  try {
    Open();
    ADD_FAILURE() << "the file was opened";
  } catch (const RuntimeError &error) {
    EXPECT_EQ(error.Number(), ErrorNumber::DeviceIoError);
    EXPECT_TRUE(error.Description().contains(File())) << error.what();
    EXPECT_TRUE(error.Description().contains(U("remove the password"))) << error.what();
  }
  EXPECT_EQ(connection_->State(), ObjectState::Closed);
  EXPECT_EQ(Bytes(), before);
}

TEST_F(JetCatalogue, SelectsGeneratedProjectsByTrueAndAnswersMinusOne) {
  EXPECT_EQ(Column("Select * from Project where Created = true Order by DtModified", "IdProject"),
            (QStringList{U("2"), U("1")}));
  EXPECT_EQ(Column("Select * from Project Order by IdProject", "Created"),
            (QStringList{U("-1"), U("-1"), U("0")}));
}

TEST_F(JetCatalogue, FindsAnIdentifierInWhateverFormItIsWritten) {
  for (const char *id : {"2", "'2'", "2.0", "' 2 '", "1 + 1"}) {
    const QByteArray statement = QByteArray("Select * from Project where IdProject = ") + id;
    EXPECT_EQ(Column(statement.constData(), "Name"), QStringList{U("Older")}) << id;
  }
  for (const char *id : {"'2x'", "2.5", "null", "''", "9e99", "-2", "4294967298"}) {
    const QByteArray statement = QByteArray("Select * from Project where IdProject = ") + id;
    EXPECT_EQ(Column(statement.constData(), "Name"), QStringList()) << id;
  }
}

TEST_F(JetCatalogue, OrdersAndComparesTextsIgnoringLetterCase) {
  EXPECT_EQ(Column("Select * from Page where ProjectId = '2' Order by Pagename", "PageName"),
            (QStringList{U("About"), U("prices")}));
  EXPECT_EQ(Column("Select * from Page where PageName = 'ABOUT'", "PageId"), QStringList{U("11")});
}

TEST_F(JetCatalogue, OfASoundFileNothingIsSaid) {
  Open();
  EXPECT_EQ(connection_->Defect(), QString());
}

TEST_F(JetCatalogue, WhoseCopyBrokeOffSaysSoIsReadOnAndIsNotChanged) {
  Write(Bytes().chopped(100));
  Open();
  EXPECT_EQ(connection_->Defect(),
            U("The catalogue %1 is not whole: its last page is incomplete. What is left of it is "
              "shown, and nothing can be changed in it; put a whole copy in its place")
                .arg(File()));
  EXPECT_TRUE(Refusal("Update Project set Path = 'x' where IdProject = '1'")
                  .contains(U("its last page is incomplete")));
}

TEST_F(JetCatalogue, WithARowMissingSaysHowManyThereShouldBe) {
  QByteArray bytes = Bytes();
  {
    const auto file = JetFile::Open(OpenJetStorage(File()));
    const JetTable &page = *file->FindTable(U("Page"));
    char *rows = bytes.data() + qsizetype{page.definitionPage} * jet::PageBytes + 16;
    ++rows[0];
  }
  Write(bytes);
  Open();
  EXPECT_TRUE(connection_->Defect().contains(U("the table Page should have")))
      << connection_->Defect().toStdString();
}

TEST_F(JetCatalogue, GivesDatesAsText) {
  EXPECT_EQ(Column("Select * from Project where IdProject = '1'", "DtModified"),
            QStringList{U("2005-01-01")});
}

TEST_F(JetCatalogue, LeavesTextsThatLookLikeNumbersAsTheyAre) {
  fixture::FixtureFile content = SmallCatalogue();
  content.tables[0].rows[0].cells[1] = U("007");
  content.tables[0].rows[0].cells[5] = U("1e3");
  Make(content);
  EXPECT_EQ(Column("Select * from Project where IdProject = '1'", "Name"), QStringList{U("007")});
  EXPECT_EQ(Column("Select * from Project where IdProject = '1'", "Notes"), QStringList{U("1e3")});
}

TEST_F(JetCatalogue, RepairsThreeTablesAndTouchesNothingElse) {
  Make(fixture::CatalogueFixture({.projects = 3, .pages = 40, .worn = true}));
  const QStringList names = Column("Select * from Page Order by PageId", "PageName");
  const QStringList remarks = Column("Select * from Page Order by PageId", "Remark");
  const QStringList others = Column("Select * from Page where ProjectId <> 2", "TPath");
  Run("Update Project set Path = 'D:\\Bob''s Site' where IdProject = '2'");
  Run("Update Page set TPath = 'D:\\Bob''s Site' where ProjectId = '2'");
  Run("Update CustomCD set PPath = 'D:\\Bob''s Site' where ProjectId = '2'");
  connection_.reset();
  const QString moved = U("D:\\Bob's Site");
  EXPECT_EQ(Column("Select * from Project where IdProject = '2'", "Path"), QStringList{moved});
  EXPECT_EQ(Column("Select distinct TPath from Page where ProjectId = '2'", "TPath"),
            QStringList{moved});
  EXPECT_EQ(Column("Select * from CustomCD where ProjectId = '2'", "PPath"), QStringList{moved});
  EXPECT_EQ(Column("Select * from Page Order by PageId", "PageName"), names);
  EXPECT_EQ(Column("Select * from Page Order by PageId", "Remark"), remarks);
  EXPECT_EQ(Column("Select * from Page where ProjectId <> 2", "TPath"), others);
}

TEST_F(JetCatalogue, ChangesMemosAndSetsNull) {
  const QString memo(400, QChar(u'x'));
  Run(("Update Project set Notes = '" + memo.toUtf8() + "' where IdProject = '2'").constData());
  Run("Update Project set Name = null where IdProject = '2'");
  connection_.reset();
  EXPECT_EQ(Column("Select * from Project where IdProject = '2'", "Notes"), QStringList{memo});
  EXPECT_EQ(Column("Select IdProject from Project where Name is null", "IdProject"),
            QStringList{U("2")});
}

TEST_F(JetCatalogue, ChangesAllRowsOfAStatementOrNone) {
  fixture::FixtureFile content = fixture::CatalogueFixture({.projects = 1, .pages = 40});
  content.tables[1].rows[30].cells[3] = QString(200, QChar(u'p'));
  Make(content);
  EXPECT_NE(Refusal("Update Page set TPath = TPath || printf('%.100c', 'y')"), QString());
  EXPECT_EQ(Column("Select count(*) as N from Page where TPath like '%yy'", "N"),
            QStringList{U("0")});
}

TEST_F(JetCatalogue, TakesBackTheFailedStatementOfATransactionAlone) {
  fixture::FixtureFile content = fixture::CatalogueFixture({.projects = 1, .pages = 40});
  content.tables[1].rows[30].cells[3] = QString(200, QChar(u'p'));
  Make(content);
  Run("Begin");
  Run("Update Page set Title = 'first' where PageId <= 35");
  EXPECT_NE(Refusal("Update Page set TPath = TPath || printf('%.100c', 'y')"), QString());
  Run("Update CustomCD set PPath = 'last'");
  Run("Commit");
  connection_.reset();
  EXPECT_EQ(Column("Select count(*) as N from Page where Title = 'first'", "N"),
            QStringList{U("35")});
  EXPECT_EQ(Column("Select count(*) as N from Page where TPath like '%yy'", "N"),
            QStringList{U("0")});
  EXPECT_EQ(Column("Select * from CustomCD", "PPath"), QStringList{U("last")});
}

TEST_F(JetCatalogue, WritesNothingForATransactionThatIsTakenBack) {
  const QByteArray before = Bytes();
  Run("Begin");
  Run("Update Page set TPath = 'gone'");
  EXPECT_EQ(Column("Select distinct TPath from Page", "TPath"), QStringList{U("gone")});
  Run("Rollback");
  EXPECT_EQ(Column("Select distinct TPath from Page Order by TPath", "TPath").size(), 2);
  Run("Begin");
  Run("Update Page set TPath = 'gone'");
  connection_.reset();
  EXPECT_EQ(Bytes(), before);
}

TEST_F(JetCatalogue, RefusesWhatWouldEndangerTheFile) {
  Make(fixture::CatalogueFixture({}));
  EXPECT_TRUE(Refusal("Update Page set PageName = 'x' where PageId = 1").contains(U("PageName")));
  EXPECT_TRUE(Refusal("Update Page set ProjectId = 2 where PageId = 1").contains(U("ProjectId")));
  EXPECT_TRUE(Refusal("Update Project set Created = 0").contains(U("Created")));
  const QString tooLong = Refusal("Update Page set TPath = printf('%.300c', 'x')");
  EXPECT_TRUE(tooLong.contains(U("TPath"))) << tooLong.toStdString();
  for (const char *statement :
       {"Insert into CustomCD values (9, 'x')", "Delete from Page where PageId = 1"}) {
    EXPECT_TRUE(Refusal(statement).contains(U("neither added nor deleted"))) << statement;
  }
  for (const char *statement :
       {"Create table X (a)", "Drop table Page", "Alter table Page rename to P",
        "Attach 'other.db' as o", "Create index i on Page (TPath)", "Pragma user_version = 3"}) {
    EXPECT_NE(Refusal(statement), QString()) << statement;
  }
}

TEST_F(JetCatalogue, ReadsWithoutWritingAnythingBesideTheFile) {
  const QByteArray before = Bytes();
  Column("Select * from Page, Project where ProjectId = IdProject Order by PageName", "PageName");
  EXPECT_EQ(QDir(folder_.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
            QStringList{U("eThumbs.mdb")});
  connection_.reset();
  EXPECT_EQ(Bytes(), before);
}

TEST_F(JetCatalogue, SeesWhatAnotherProgramHasWritten) {
  EXPECT_EQ(Column("Select * from Project where IdProject = '1'", "Path"),
            QStringList{U("\\old\\one")});
  SqliteConnection other;
  other.Open(U("Data Source=") + ToLogic(File()), {}, {}, -1);
  other.Execute(U("Update Project set Path = '\\elsewhere' where IdProject = '1'"), -1);
  EXPECT_EQ(Column("Select * from Project where IdProject = '1'", "Path"),
            QStringList{U("\\elsewhere")});
}

TEST_F(JetCatalogue, IsReadButNotWrittenWhereTheFileIsReadOnly) {
  QFile::setPermissions(File(), QFile::ReadOwner | QFile::ReadGroup);
  EXPECT_EQ(Column("Select * from Project where IdProject = '1'", "Name"),
            QStringList{U("Younger")});
  EXPECT_TRUE(Refusal("Update Project set Path = 'x'").contains(File()));
}

TEST_F(JetCatalogue, KnowsTheTypesOfItsColumns) {
  const struct {
    CellType type;
    ColumnType expected;
  } types[] = {
      {CellType::Boolean, ColumnType::Boolean},      {CellType::Short, ColumnType::Integer},
      {CellType::Long, ColumnType::Integer},         {CellType::Double, ColumnType::Double},
      {CellType::DateTime, ColumnType::Date},        {CellType::Text, ColumnType::VarWideChar},
      {CellType::Memo, ColumnType::LongVarWideChar}, {CellType::Ole, ColumnType::LongVarBinary}};
  fixture::FixtureTable table;
  table.name = U("Odd \"name\"");
  for (const auto &row : types) {
    table.columns.push_back({U("c %1").arg(static_cast<int>(row.type)), row.type});
  }
  Make({{table}});
  Open();
  const auto records = connection_->CreateRecordset();
  records->Open(U(R"(Select * from "Odd ""name""")"), *connection_, CursorType::Static,
                LockType::ReadOnly, -1);
  for (int i = 0; i < static_cast<int>(std::size(types)); ++i) {
    EXPECT_EQ(records->TypeAt(i), types[i].expected) << i;
  }
}

TEST_F(JetCatalogue, OpensInAnotherLetterCase) {
  QFile::rename(File(), folder_.filePath(U("ETHUMBS.MDB")));
  EXPECT_EQ(Column("Select * from pRoJeCt", "NAME").size(), 3);
}

class JetRepairs : public JetCatalogue {
 protected:
  /// Moves the folders of the catalogue that the file holds. Where they stand in an index, as
  /// `indexed` names them, the repair is refused.
  enum class Folders { Free, Indexed };
  void Check(Folders folders) {
    connection_.reset();
    const QStringList pages = Column("Select * from Page Order by PageId", "PageName");
    EXPECT_FALSE(pages.isEmpty());
    const bool indexed = folders == Folders::Indexed;
    for (const char *repair : {"Update Project set Path = '\\new' where IdProject = '2'",
                               "Update Page set TPath = '\\new' where ProjectId = '2'",
                               "Update CustomCD set PPath = '\\new' where ProjectId = '2'"}) {
      if (indexed) {
        EXPECT_TRUE(Refusal(repair).contains(U("it is in an index")));
        EXPECT_EQ(Refusal(repair).count(U("Invalid procedure call")), 1) << "the sentence once";
      } else {
        Run(repair);
      }
    }
    if (indexed) Run("Update Page set Path = '\\new' where ProjectId = '2'");
    connection_.reset();
    const char *column = indexed ? "Path" : "TPath";
    for (const QString &folder : Column("Select * from Page where ProjectId = '2'", column))
      EXPECT_EQ(folder, U("\\new"));
    EXPECT_EQ(Column("Select * from Page Order by PageId", "PageName"), pages);
  }
};

TEST_F(JetRepairs, MoveTheFoldersOfEveryKindOfCatalogue) {
  for (const fixture::FolderType type : {fixture::FolderType::Text, fixture::FolderType::Memo}) {
    for (const bool worn : {false, true}) {
      fixture::CatalogueShape shape;
      shape.folders = type;
      shape.worn = worn;
      Make(fixture::CatalogueFixture(shape));
      Check(Folders::Free);
    }
  }
}

class OtherProgramsFiles : public JetRepairs, public ::testing::WithParamInterface<std::string> {};

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(OtherProgramsFiles);

TEST_P(OtherProgramsFiles, HaveTheirFoldersMoved) {
  const QDir samples(QString::fromStdString(GetParam()));
  const QStringList names = samples.entryList({U("*.mdb")}, QDir::Files);
  EXPECT_FALSE(names.isEmpty()) << GetParam();
  for (const QString &name : names) {
    SCOPED_TRACE(name.toStdString());
    connection_.reset();
    QFile::remove(File());
    ASSERT_TRUE(QFile::copy(samples.filePath(name), File()));
    QFile::setPermissions(File(), QFile::ReadOwner | QFile::WriteOwner);
    // One of them has its folders in indexes.
    Check(name == u"idxpath.mdb" ? Folders::Indexed : Folders::Free);
  }
}

INSTANTIATE_TEST_SUITE_P(JetRepairs, OtherProgramsFiles,
                         ::testing::ValuesIn(MoreSamples("VELOR_MORE_CATALOGUES",
                                                         VELOR_MORE_CATALOGUES)));

}  // namespace
}  // namespace velor
