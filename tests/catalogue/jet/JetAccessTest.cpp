// SPDX-License-Identifier: GPL-3.0-or-later
// When a file can be written and when not, and what is said of it.
#include "catalogue/jet/JetDataPage.h"
#include "catalogue/jet/JetFile.h"
#include "catalogue/jet/JetTableRows.h"
#include "catalogue/jet/JetUsageMap.h"
#include "files/PosixJetStorage.h"
#include "tests/support/Checks.h"
#include "tests/support/jet/JetCatalogues.h"
#include "tests/support/jet/JetWriter.h"
#include "tests/support/jet/OthersLockFile.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <algorithm>

namespace velor::fixture {
namespace {

QByteArray Catalogue(quint32 fileKey = 0) {
  CatalogueShape shape;
  shape.projects = 6;
  shape.pages = 120;
  shape.worn = true;
  FixtureFile file = CatalogueFixture(shape);
  file.fileKey = fileKey;
  return WriteJetFile(file);
}

class JetAccessTest : public testing::Test {
 protected:
  JetAccessTest() : path_(folder_.filePath(QStringLiteral("eThumbs.mdb"))) { Write(Catalogue()); }

  void Write(const QByteArray &content) {
    QFile::remove(path_);
    QFile file(path_);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    content_ = content;
  }
  QByteArray Content() const {
    QFile file(path_);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
  }
  static int CountRows(JetFile &file, const char *table) {
    JetCursor cursor = file.Scan(*file.FindTable(QString::fromLatin1(table)));
    int rows = 0;
    while (cursor.Next()) ++rows;
    return rows;
  }
  static JetRowId FirstRow(JetFile &file, const JetTable &table) {
    JetCursor cursor = file.Scan(table);
    EXPECT_TRUE(cursor.Next());
    return cursor.RowId();
  }
  static void SetFirst(JetFile &file, const char *tableName, const char *column,
                       const QVariant &value) {
    const JetTable &table = *file.FindTable(QString::fromLatin1(tableName));
    const int index = table.ColumnIndex(QString::fromLatin1(column));
    ASSERT_GE(index, 0);
    file.UpdateRow(table, FirstRow(file, table), {{index, value}});
  }
  static QString First(JetFile &file, const char *tableName, const char *column) {
    const JetTable &table = *file.FindTable(QString::fromLatin1(tableName));
    JetCursor cursor = file.Scan(table);
    EXPECT_TRUE(cursor.Next());
    return cursor.Value(table.ColumnIndex(QString::fromLatin1(column))).toString();
  }

  /// Breaks a page of the file by `damage` and expects that it can be read but not written, with a
  /// reason that holds `words`; returns the number of rows of the table Page.
  template <typename Damage>
  int ExpectReadOnly(jet::PageNumber number, Damage damage, const char *words) {
    QByteArray broken = content_;
    damage(reinterpret_cast<unsigned char *>(broken.data()) + qsizetype{number} * jet::PageBytes);
    const QByteArray whole = content_;
    Write(broken);
    const int rows = ExpectReadOnlyAsItIs(words);
    Write(whole);
    return rows;
  }
  int ExpectReadOnlyAsItIs(const char *words) {
    const auto file = JetFile::Open(OpenJetStorage(path_));
    EXPECT_EQ(file->Access().mode, JetAccessMode::ReadOnly);
    EXPECT_TRUE(file->Access().reason.contains(QString::fromLatin1(words)))
        << file->Access().reason.toStdString();
    EXPECT_EQ(ErrorOf([&] { SetFirst(*file, "CustomCD", "PPath", QStringLiteral("x")); }),
              ErrorNumber::PathFileAccess);
    EXPECT_EQ(Content(), content_);
    EXPECT_EQ(QDir(folder_.path()).entryList(QDir::Files).size(), 1);
    return CountRows(*file, "Page");
  }

  /// The pages of a table, and the places of its maps, in the file as it is.
  JetTable TableOf(const char *name) const {
    return *JetFile::Open(OpenJetStorage(path_))->FindTable(QString::fromLatin1(name));
  }
  std::vector<jet::PageNumber> PagesOf(const char *name) const {
    const auto storage = OpenJetStorage(path_);
    JetPager pager(*storage);
    pager.Reset(storage->Stamp());
    return JetTablePages(pager, TableOf(name));
  }

  QTemporaryDir folder_;
  QString path_;
  QByteArray content_;
};

TEST_F(JetAccessTest, OfASoundFileIsToReadAndWrite) {
  const auto file = JetFile::Open(OpenJetStorage(path_));
  EXPECT_EQ(file->TableNames(), (QStringList{QStringLiteral("Project"), QStringLiteral("Page"),
                                             QStringLiteral("CustomCD")}));
  EXPECT_EQ(file->Access().mode, JetAccessMode::ReadWrite);
  EXPECT_EQ(file->Access().reason, "");
  EXPECT_EQ(file->Notice(), "");
  EXPECT_EQ(CountRows(*file, "PAGE"), 120);
  EXPECT_EQ(file->FindTable(QStringLiteral("Pages")), nullptr);
}

TEST_F(JetAccessTest, OfAnEncodedFileIsToReadAndWrite) {
  Write(Catalogue(0x12345678));
  auto file = JetFile::Open(OpenJetStorage(path_));
  EXPECT_EQ(CountRows(*file, "Page"), 120);
  SetFirst(*file, "Project", "Path", QStringLiteral("C:\\new"));
  file = JetFile::Open(OpenJetStorage(path_));
  EXPECT_EQ(First(*file, "Project", "Path"), "C:\\new");
  EXPECT_FALSE(Content().contains("C:\\new")) << "the page was written without its code";
}

TEST_F(JetAccessTest, IsReadOnlyWithAPartialLastPage) {
  Write(content_.left(content_.size() - 100));
  ExpectReadOnlyAsItIs("last page is incomplete");
}

TEST_F(JetAccessTest, IsReadOnlyAndTheRestReadWhenTheFilesEndIsMissing) {
  const std::vector<jet::PageNumber> pages = PagesOf("Page");
  ASSERT_GT(pages.size(), 2u);
  Write(content_.left(qsizetype{pages.back()} * jet::PageBytes));
  const auto file = JetFile::Open(OpenJetStorage(path_));
  EXPECT_EQ(file->Access().mode, JetAccessMode::ReadOnly);
  EXPECT_GT(CountRows(*file, "Page"), 0);
  EXPECT_LT(CountRows(*file, "Page"), 120);
}

TEST_F(JetAccessTest, IsReadOnlyWithAWrongRowCount) {
  const int rows = ExpectReadOnly(
      TableOf("Page").definitionPage,
      [](unsigned char *page) { jet::Put<quint32>(page + jet::DefinitionRows, 121); },
      "the table Page should have 121 rows, but 120 are there");
  EXPECT_EQ(rows, 120);
}

TEST_F(JetAccessTest, IsReadOnlyWithAPageOfTheWrongTypeAndReadsTheOthers) {
  for (const int type : {0, 2, 3, 4, 5}) {
    const int rows = ExpectReadOnly(
        PagesOf("Page").front(),
        [type](unsigned char *page) { page[0] = static_cast<unsigned char>(type); },
        "is no data page of the table Page");
    EXPECT_GT(rows, 0);
    EXPECT_LT(rows, 120);
  }
}

TEST_F(JetAccessTest, IsReadOnlyWithAPageOfAnotherTable) {
  ExpectReadOnly(
      PagesOf("Page").front(),
      [](unsigned char *page) { jet::Put<quint32>(page + jet::DataOwner, 3); },
      "is no data page of the table Page");
}

TEST_F(JetAccessTest, IsReadOnlyWithSlotsThatCross) {
  ExpectReadOnly(
      PagesOf("Page").front(),
      [](unsigned char *page) { jet::Put<quint16>(page + jet::DataSlots, 30); },
      "of the table Page is damaged");
}

TEST_F(JetAccessTest, IsReadOnlyWithARowWhosePointerLeadsNowhere) {
  for (const jet::PageNumber number : PagesOf("Page")) {
    const auto *page = reinterpret_cast<const unsigned char *>(content_.constData()) +
                       qsizetype{number} * jet::PageBytes;
    jet::Page copy;
    std::copy_n(page, copy.size(), copy.begin());
    const JetSlots slots(copy);
    for (int slot = 0; slot < slots.Count(); ++slot) {
      if (slots.Flags(slot) != jet::SlotPointer) continue;
      const auto at = slots.Row(slot).data() - copy.data();
      const int rows = ExpectReadOnly(
          number, [at](unsigned char *bytes) { bytes[at + 1] = 0xEE; }, "of the table Page");
      EXPECT_EQ(rows, 119);
      return;
    }
  }
  FAIL() << "the fixture has no moved row";
}

TEST_F(JetAccessTest, IsReadOnlyWithADamagedMap) {
  const JetTable table = TableOf("Page");
  ExpectReadOnly(
      table.ownedMap.page,
      [&table](unsigned char *bytes) {
        jet::Page page;
        std::copy_n(bytes, page.size(), page.begin());
        bytes[JetSlots(page).Row(table.ownedMap.slot).data() - page.data()] = 9;
      },
      "the map of the pages of the table Page is damaged");
}

TEST_F(JetAccessTest, IsReadOnlyWithADamagedDefinitionOfOneTable) {
  const jet::PageNumber definition = TableOf("Project").definitionPage;
  ExpectReadOnly(
      definition, [](unsigned char *page) { jet::Put<quint16>(page + jet::ColumnCount, 60000); },
      "the definition of the table Project is damaged");
}

TEST_F(JetAccessTest, IsReadOnlyWithoutAWriteBit) {
  QFile::setPermissions(path_, QFile::ReadOwner);
  ExpectReadOnlyAsItIs("marked as read-only");
}

TEST_F(JetAccessTest, OfAFileWithoutAListOfTablesIsNone) {
  QByteArray broken = content_;
  broken[2 * jet::PageBytes] = 9;
  Write(broken);
  EXPECT_EQ(ErrorOf([this] { JetFile::Open(OpenJetStorage(path_)); }), ErrorNumber::DeviceIoError);
}

TEST_F(JetAccessTest, WaitsForTheProgramThatHasTheFileOpen) {
  OthersLockFile locks(folder_.filePath(QStringLiteral("eThumbs.ldb")));
  locks.WriteSlots({"OFFICE", "Eva"});
  const auto file = JetFile::Open(OpenJetStorage(path_));
  file->Begin();
  SetFirst(*file, "Project", "Path", QStringLiteral("left behind locks do not count"));

  locks.Hold(0);
  try {
    file->Commit();
    ADD_FAILURE() << "it was opened between the change and the commit";
  } catch (const RuntimeError &error) {
    EXPECT_EQ(error.Number(), ErrorNumber::PermissionDenied);
    EXPECT_TRUE(error.Description().contains(QStringLiteral("Eva on OFFICE"))) << error.what();
  }
  EXPECT_EQ(ErrorOf([&] { SetFirst(*file, "Project", "Path", QStringLiteral("x")); }),
            ErrorNumber::PermissionDenied);
  EXPECT_EQ(Content(), content_);
  locks.Release();
  SetFirst(*file, "Project", "Path", QStringLiteral("x"));
  EXPECT_EQ(First(*file, "Project", "Path"), "x");
}

TEST_F(JetAccessTest, RefusesValuesAndColumnsThatItCannotChange) {
  const auto file = JetFile::Open(OpenJetStorage(path_));
  const auto numberFor = [&](const char *table, const char *column, const QVariant &value) {
    return ErrorOf([&] { SetFirst(*file, table, column, value); });
  };
  const QString withNull = QStringLiteral("a") + QChar(u'\0');
  EXPECT_NE(numberFor("Page", "PageName", QStringLiteral("indexed")), ErrorNumber::None);
  EXPECT_NE(numberFor("Project", "Created", QStringLiteral("1")), ErrorNumber::None);
  EXPECT_NE(numberFor("Project", "DtModified", QStringLiteral("2001-01-01")), ErrorNumber::None);
  EXPECT_NE(numberFor("Project", "Path", QString(256, u'a')), ErrorNumber::None);
  EXPECT_NE(numberFor("Project", "Path", withNull), ErrorNumber::None);
  EXPECT_NE(numberFor("Project", "Notes", QString(5000, u'a')), ErrorNumber::None);
  EXPECT_EQ(Content(), content_);
  EXPECT_EQ(numberFor("Project", "Path", QString(255, u'a')), ErrorNumber::None);
}

TEST_F(JetAccessTest, TellsTheEmptyTextFromNull) {
  const auto file = JetFile::Open(OpenJetStorage(path_));
  const JetTable &table = *file->FindTable(QStringLiteral("Project"));
  const int path = table.ColumnIndex(QStringLiteral("Path"));
  for (const QVariant &value : {QVariant(QString()), QVariant()}) {
    file->UpdateRow(table, FirstRow(*file, table), {{path, value}});
    JetCursor cursor = file->Scan(table);
    ASSERT_TRUE(cursor.Next());
    EXPECT_EQ(cursor.IsNull(path), !value.isValid());
    EXPECT_EQ(cursor.Value(path).isValid(), value.isValid());
  }
}

TEST_F(JetAccessTest, SeesWhatAnotherProgramHasWrittenFromTheNextStatementOn) {
  const auto file = JetFile::Open(OpenJetStorage(path_));
  const QString before = First(*file, "Project", "Path");
  SetFirst(*JetFile::Open(OpenJetStorage(path_)), "Project", "Path", QStringLiteral("by another"));
  EXPECT_EQ(First(*file, "Project", "Path"), before);
  file->Refresh();
  EXPECT_EQ(First(*file, "Project", "Path"), "by another");
}

TEST_F(JetAccessTest, DoesNotOverwriteWhatAnotherProgramHasWrittenMeanwhile) {
  const auto file = JetFile::Open(OpenJetStorage(path_));
  file->Begin();
  SetFirst(*file, "Project", "Path", QStringLiteral("ours"));
  SetFirst(*JetFile::Open(OpenJetStorage(path_)), "Project", "Path", QStringLiteral("theirs"));
  EXPECT_EQ(ErrorOf([&] { file->Commit(); }), ErrorNumber::PermissionDenied);
  file->Refresh();
  EXPECT_EQ(First(*file, "Project", "Path"), "theirs");
}

TEST_F(JetAccessTest, EndsWhenAnotherProgramHasChangedTheTables) {
  const auto file = JetFile::Open(OpenJetStorage(path_));
  const QByteArray old = content_;
  Write(WriteJetFile(OddTablesFixture()));
  EXPECT_NE(ErrorOf([&] { file->Refresh(); }), ErrorNumber::None);
  EXPECT_NE(ErrorOf([&] { file->Refresh(); }), ErrorNumber::None);
  Write(old);
  file->Refresh();
  EXPECT_EQ(CountRows(*file, "Page"), 120);
}

TEST_F(JetAccessTest, KeepsNestedSavepointsApart) {
  const auto file = JetFile::Open(OpenJetStorage(path_));
  const auto set = [&](const char *value) {
    SetFirst(*file, "Project", "Path", QString::fromLatin1(value));
  };
  file->Savepoint(0);
  file->Begin();
  set("a");
  file->Savepoint(0);
  set("b");
  file->Savepoint(0);
  file->Savepoint(1);
  set("c");
  file->RollbackTo(1);
  EXPECT_EQ(First(*file, "Project", "Path"), "b");
  file->Release(1);
  set("d");
  file->RollbackTo(0);
  EXPECT_EQ(First(*file, "Project", "Path"), "a");
  file->Release(0);
  file->Commit();
  EXPECT_EQ(First(*JetFile::Open(OpenJetStorage(path_)), "Project", "Path"), "a");
}

TEST_F(JetAccessTest, ShowsARunningScanTheRowsAsTheyWere) {
  const auto file = JetFile::Open(OpenJetStorage(path_));
  const JetTable &table = *file->FindTable(QStringLiteral("Page"));
  const int path = table.ColumnIndex(QStringLiteral("TPath"));
  file->Begin();
  JetCursor cursor = file->Scan(table);
  int rows = 0;
  while (cursor.Next()) {
    ++rows;
    const QVariant before = cursor.Value(path);
    file->UpdateRow(table, cursor.RowId(), {{path, QString(200, u'中')}});
    EXPECT_EQ(cursor.Value(path), before);
  }
  EXPECT_EQ(rows, 120);
}

}  // namespace
}  // namespace velor::fixture
