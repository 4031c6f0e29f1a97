// SPDX-License-Identifier: GPL-3.0-or-later
// The sample that a first start finds: the catalogue names sites that are there.
#include "catalogue/SqliteConnection.h"
#include "platform/Paths.h"
#include "tests/support/Checks.h"
#include "tools/sample-site/SampleMaker.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace velor {
namespace {

class Sample : public ::testing::Test {
 protected:
  Sample() { MakeSample(Folder()); }

  QString Folder() const { return QDir(folder_.path()).filePath(QStringLiteral("Bob's folder")); }
  QString Native(const QString &name) const { return QDir(Folder()).filePath(name); }

  QByteArray Bytes(const QString &name) const {
    QFile file(Native(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
    return file.readAll();
  }

  /// The rows of a statement, the named columns joined.
  QStringList Rows(const QString &statement, const QStringList &columns) {
    SqliteConnection connection;
    connection.Open(QStringLiteral("Data Source=") + ToLogic(Native(QStringLiteral("eThumbs.mdb"))),
                    {}, {}, CommandTypeUnspecified);
    auto recordset = connection.CreateRecordset();
    recordset->Open(statement, connection, CursorType::Static, LockType::ReadOnly, -1);
    QStringList rows;
    for (; !recordset->EndOfFile(); recordset->MoveNext()) {
      QString row;
      for (const QString &column : columns) row += recordset->Value(column).toString();
      rows << row;
    }
    return rows;
  }

  QTemporaryDir folder_;
};

TEST_F(Sample, HasACatalogueAnImageFolderAndGeneratedProjects) {
  EXPECT_TRUE(QFileInfo(Native(QStringLiteral("eImages"))).isDir());
  EXPECT_EQ(Rows(QStringLiteral("Select * from Project where Created = true Order by DtModified"),
                 {QStringLiteral("Name")}),
            (QStringList{QStringLiteral("A Walk through the Old Town"),
                         QStringLiteral("Garden Notes"), QStringLiteral("The Lighthouse")}));
}

TEST_F(Sample, EveryPictureThatAPageShowsIsThere) {
  static const QRegularExpression source(QStringLiteral("<img src=\"([^\"]+)\""));
  int pictures = 0;
  QDirIterator pages(Native(QStringLiteral("Sites")), {QStringLiteral("*.htm")}, QDir::Files,
                     QDirIterator::Subdirectories);
  while (pages.hasNext()) {
    QFile page(pages.next());
    ASSERT_TRUE(page.open(QIODevice::ReadOnly));
    auto matches = source.globalMatch(QString::fromLatin1(page.readAll()));
    while (matches.hasNext()) {
      const QString file = QFileInfo(page.fileName()).dir().filePath(matches.next().captured(1));
      EXPECT_FALSE(QImage(file).isNull()) << file.toStdString();
      ++pictures;
    }
  }
  EXPECT_EQ(pictures, 5);
  const QStringList images = QDir(Native(QStringLiteral("eImages"))).entryList(QDir::Files);
  EXPECT_FALSE(images.isEmpty());
  for (const QString &file : images) {
    EXPECT_FALSE(QImage(Native(QStringLiteral("eImages/") + file)).isNull()) << file.toStdString();
  }
}

TEST_F(Sample, EveryProjectHasAHomePageAndOthers) {
  const QStringList pages = Rows(QStringLiteral("Select * from Page Order by PageId"),
                                 {QStringLiteral("ProjectId"), QStringLiteral("PageName")});
  for (const char *project : {"1", "2", "3"}) {
    const QStringList own = pages.filter(QRegularExpression(u'^' + QString::fromLatin1(project)));
    EXPECT_GE(own.size(), 3) << project;
    EXPECT_EQ(own.value(0), QString::fromLatin1(project) + QStringLiteral("Home"));
  }
}

TEST_F(Sample, EveryPageOfAProjectThatHasNotMovedIsThere) {
  const QStringList pages = Rows(QStringLiteral("Select * from Page where ProjectId in ('1', '2')"),
                                 {QStringLiteral("TPath"), QStringLiteral("Path")});
  EXPECT_EQ(pages.size(), 6);
  for (const QString &page : pages) {
    EXPECT_TRUE(QFileInfo(ToNative(page)).isFile()) << page.toStdString();
  }
  for (const QString &site :
       Rows(QStringLiteral("Select * from Project where IdProject in ('1', '2')"),
            {QStringLiteral("Path")})) {
    EXPECT_TRUE(QFileInfo(ToNative(site + QStringLiteral("\\Index.htm"))).isFile());
  }
}

TEST_F(Sample, OneProjectsFolderHasMoved) {
  const QStringList paths =
      Rows(QStringLiteral("Select * from Project where IdProject = '3'"), {QStringLiteral("Path")});
  ASSERT_EQ(paths.size(), 1);
  EXPECT_FALSE(QFileInfo::exists(ToNative(paths.first())));
  EXPECT_TRUE(QFileInfo(Native(QStringLiteral("Sites/Lighthouse/Index.htm"))).isFile());
  for (const QString &page :
       Rows(QStringLiteral("Select * from Page where ProjectId = '3'"), {QStringLiteral("Path")})) {
    EXPECT_TRUE(QFileInfo(Native(QStringLiteral("Sites/Lighthouse")) + ToNative(page)).isFile());
  }
}

TEST_F(Sample, HasPagesInOlderCharacterSets) {
  EXPECT_TRUE(Bytes(QStringLiteral("Sites/OldTown/Files/TeaHouse.htm")).contains("charset=big5"));
  EXPECT_TRUE(Bytes(QStringLiteral("Sites/OldTown/Files/Market.htm")).contains("jam\xF3n"));
  EXPECT_TRUE(
      Bytes(QStringLiteral("Sites/Lighthouse/Files/Visitors.htm")).contains("charset=koi8-r"));
  EXPECT_TRUE(Bytes(QStringLiteral("Sites/Lighthouse/Files/Keepers.htm")).contains("\xA3ukasz"));
}

TEST_F(Sample, ASecondRunKeepsWhatThePersonHasEditedAndBringsBackWhatIsGone) {
  const QString edited = QStringLiteral("Sites/Garden/Files/Home.htm");
  QFile page(Native(edited));
  ASSERT_TRUE(page.open(QIODevice::WriteOnly)) << "sample pages can be written";
  page.write("mine");
  page.close();
  QFile::remove(Native(QStringLiteral("Sites/Garden/Index.htm")));
  MakeSample(Folder());
  EXPECT_EQ(Bytes(edited), "mine");
  EXPECT_TRUE(QFileInfo::exists(Native(QStringLiteral("Sites/Garden/Index.htm"))));
}

TEST_F(Sample, LeavesNothingUnfinishedBehind) {
  EXPECT_EQ(QDir(Folder()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                                     QDir::Name | QDir::IgnoreCase),
            (QStringList{QStringLiteral("eImages"), QStringLiteral("eThumbs.mdb"),
                         QStringLiteral("Sites")}));
}

TEST(SampleMaker, SaysWhichFileItCouldNotWrite) {
  QTemporaryDir folder;
  QFile inTheWay(folder.filePath(QStringLiteral("file")));
  ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));
  EXPECT_EQ(ErrorOf([&] { MakeSample(inTheWay.fileName() + QStringLiteral("/below")); }),
            ErrorNumber::PathFileAccess);
}

TEST(SampleMaker, MakesNoFolderOfAnOption) {
  const QTemporaryDir folder;
  QProcess maker;
  maker.setWorkingDirectory(folder.path());
  maker.start(QStringLiteral(VELOR_SAMPLE_MAKER), {QStringLiteral("--help")});
  ASSERT_TRUE(maker.waitForFinished());
  EXPECT_EQ(maker.exitCode(), 2);
  EXPECT_TRUE(maker.readAllStandardError().startsWith("usage:"));
  EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

}  // namespace
}  // namespace velor
