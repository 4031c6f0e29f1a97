// SPDX-License-Identifier: GPL-3.0-or-later
// velor-catalogue: the program itself, on both kinds of catalogue.
#include "tests/support/CatalogueFiles.h"
#include "tests/support/Checks.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

namespace velor {
namespace {

QString U(const char *text) {
  return QString::fromUtf8(text);
}

class CatalogueTool : public testing::TestWithParam<CatalogueFormat> {
 protected:
  CatalogueTool() { WriteCatalogue(File(), GetParam(), SmallCatalogue()); }

  QString File() const { return folder_.filePath(U("eThumbs.mdb")); }

  QByteArray Bytes() const {
    QFile file(File());
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
  }

  /// The exit status; what was printed is in `out` and `error`.
  int Run(const QStringList &arguments) {
    QProcess process;
    process.start(U(VELOR_CATALOGUE), arguments);
    EXPECT_TRUE(process.waitForFinished());
    out = QString::fromUtf8(process.readAllStandardOutput());
    error = QString::fromUtf8(process.readAllStandardError());
    return process.exitCode();
  }

  QString out;
  QString error;

 private:
  QTemporaryDir folder_;
};

TEST_P(CatalogueTool, PrintsRowsUnderTheirColumnNames) {
  EXPECT_EQ(Run({File(), U("Select * from Project where Created = true Order by DtModified")}), 0);
  EXPECT_EQ(out, U("IdProject\tName\tPath\tCreated\tDtModified\tNotes\n"
                   "2\tOlder\t\\old\\two\t-1\t2004-01-01\t\n"
                   "1\tYounger\t\\old\\one\t-1\t2005-01-01\tkept\n"));
  EXPECT_EQ(error, QString());
}

TEST_P(CatalogueTool, PrintsTheColumnNamesOfNoRows) {
  EXPECT_EQ(Run({File(), U("Select * from CustomCD where ProjectId = '9'")}), 0);
  EXPECT_EQ(out, U("ProjectId\tPPath\n"));
}

TEST_P(CatalogueTool, RunsStatementsInTheirOrder) {
  EXPECT_EQ(Run({File(), U("Update CustomCD set PPath = '\\n\u00e9w' where ProjectId = '2'"),
                 U("Select PPath from CustomCD where ProjectId = '2'")}),
            0);
  EXPECT_EQ(out, U("PPath\n\\n\u00e9w\n"));
  EXPECT_EQ(Run({File(), U("Select count(*) as N from CustomCD where PPath like '\\n%'")}), 0);
  EXPECT_EQ(out, U("N\n1\n"));
}

TEST_P(CatalogueTool, KeepsARowOnOneLine) {
  EXPECT_EQ(Run({File(), U("Update CustomCD set PPath = 'a' || char(9) || 'b' || char(10) || 'c'"),
                 U("Select distinct PPath from CustomCD")}),
            0);
  EXPECT_EQ(out, U("PPath\na b c\n"));
}

TEST_P(CatalogueTool, LeavesTheFileAsItWasWhenAStatementFails) {
  const QByteArray before = Bytes();
  EXPECT_EQ(Run({File(), U("Update CustomCD set PPath = 'x'"), U("Select * from Nowhere")}), 1);
  EXPECT_EQ(out, QString());
  EXPECT_TRUE(error.contains(U("no such table: Nowhere"))) << error.toStdString();
  EXPECT_EQ(Bytes(), before);
}

TEST_P(CatalogueTool, SaysWhatIsWrongWithAFile) {
  EXPECT_EQ(Run({File() + U("x"), U("Select 1")}), 1);
  EXPECT_TRUE(error.contains(File() + U("x"))) << error.toStdString();
  EXPECT_EQ(Run({File()}), 2);
  EXPECT_TRUE(error.startsWith(U("usage:")));
}

TEST_P(CatalogueTool, LeavesNothingBesideAFileThatItReads) {
  const QByteArray before = Bytes();
  EXPECT_EQ(Run({File(), U("Select * from Page Order by PageName")}), 0);
  EXPECT_EQ(Bytes(), before);
  EXPECT_EQ(
      QFileInfo(File()).dir().entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
      QStringList{U("eThumbs.mdb")});
}

INSTANTIATE_TEST_SUITE_P(Catalogues, CatalogueTool,
                         testing::Values(CatalogueFormat::Sqlite, CatalogueFormat::Jet),
                         [](const auto &format) {
                           return format.param == CatalogueFormat::Jet ? "Jet" : "Sqlite";
                         });

}  // namespace
}  // namespace velor
