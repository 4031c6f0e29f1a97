// SPDX-License-Identifier: GPL-3.0-or-later
// After every kind of update three independent readers agree with what was meant, cell by cell, and
// the file's structure is sound.
#include "files/PosixJetStorage.h"
#include "platform/RuntimeError.h"
#include "tests/support/jet/JetCatalogues.h"
#include "tests/support/jet/JetChecker.h"
#include "tests/support/jet/JetReaders.h"
#include "tests/support/jet/JetTrial.h"
#include "tests/support/jet/JetWriter.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace velor::fixture {
namespace {

constexpr int ProjectTable = 0;
constexpr int PageTable = 1;
constexpr int DiscTable = 2;

/// The columns that updates go to; no index is on them.
constexpr int ProjectPath = 2;
constexpr int ProjectNotes = 5;
constexpr int PageTPath = 3;
constexpr int PagePath = 4;
constexpr int PageTitle = 5;
constexpr int PageRemark = 6;
constexpr int DiscPath = 1;

struct FileForm {
  const char *name;
  FolderType folders;
  bool worn;
  quint32 fileKey;
  MapForm maps;
  int pageReserve;
};

void WriteToDisk(const QString &path, const FixtureFile &fixture) {
  QFile disk(path);
  ASSERT_TRUE(disk.open(QIODevice::WriteOnly));
  disk.write(WriteJetFile(fixture));
}

/// A file of one form on the disk, with what it should hold.
class JetUpdate : public testing::TestWithParam<FileForm> {
 protected:
  static void SetUpTestSuite() { readers_ = std::make_unique<JetReaders>(); }
  static void TearDownTestSuite() { readers_.reset(); }

  void SetUp() override {
    CatalogueShape shape;
    shape.projects = 6;
    shape.pages = 120;
    shape.folders = GetParam().folders;
    shape.worn = GetParam().worn;
    FixtureFile meant = CatalogueFixture(shape);
    meant.fileKey = GetParam().fileKey;
    meant.maps = GetParam().maps;
    meant.pageReserve = GetParam().pageReserve;
    WriteToDisk(path_, meant);
    trial_ = std::make_unique<JetTrial>(std::move(meant));
    Check("as written");
    file_ = JetFile::Open(OpenJetStorage(path_));
    ASSERT_EQ(file_->Access().reason.toStdString(), "");
  }

  /// Makes one update in a transaction of its own and looks at the file from all sides.
  void Update(const char *kind, const CellPlace &place, const std::optional<QString> &text) {
    try {
      trial_->Update(*file_, place, text);
    } catch (const RuntimeError &error) {
      ADD_FAILURE() << kind << ": " << error.what();
    }
    Check(kind);
  }

  /// An update that must be refused with a message that holds `why`, the file left as it was.
  void ExpectRefused(const CellPlace &place, const std::optional<QString> &text, const char *why) {
    const QByteArray before = Bytes();
    try {
      trial_->Update(*file_, place, text);
      ADD_FAILURE() << "not refused: " << why;
    } catch (const RuntimeError &error) {
      EXPECT_TRUE(error.Description().contains(QString::fromLatin1(why))) << error.what();
    }
    EXPECT_EQ(Bytes(), before);
  }

  void Check(const char *after) {
    EXPECT_EQ(JetComplaints(Bytes()).join(u'\n').toStdString(), "") << after;
    EXPECT_EQ(readers_->DisagreementOn(path_, trial_->Meant()).toStdString(), "") << after;
  }

  QByteArray Bytes() const {
    QFile disk(path_);
    return disk.open(QIODevice::ReadOnly) ? disk.readAll() : QByteArray();
  }

  QTemporaryDir folder_{FolderInMemory()};
  QString path_ = folder_.filePath(QStringLiteral("eThumbs.mdb"));
  /// One for all tests, since the programs behind it take long to start.
  static inline std::unique_ptr<JetReaders> readers_;
  std::unique_ptr<JetTrial> trial_;
  std::unique_ptr<JetFile> file_;
};

QString Long(int length) {
  return QString(length, u'w');
}

TEST_P(JetUpdate, OfOneCellIsReadByEveryone) {
  const CellPlace cell{PageTable, 10, PageTitle};
  Update("another text", cell, QStringLiteral("Bob's page"));
  Update("the same text", cell, QStringLiteral("Bob's page"));
  Update("a shorter text", cell, QStringLiteral("abc"));
  Update("a text too short to compress", cell, QStringLiteral("ab"));
  Update("an empty text", cell, QString(QLatin1String("")));
  Update("null", cell, std::nullopt);
  Update("a text in place of null", cell, QStringLiteral("back again"));
  Update("letters with accents", cell, QString::fromUtf8("Grüße, l'été ÿþ"));
  Update("Chinese", cell, QString::fromUtf8("目录\\图片"));
  Update("characters beyond the BMP", cell, QString::fromUtf8("a 𝄞 b 😀"));
  Update("the longest text", cell, Long(255));
  Update("the longest text that cannot be compressed", cell, QString(255, QChar(0x6587)));
  Update("an uncompressed column", {PageTable, 10, PagePath}, QStringLiteral("\\Files\\other.htm"));
}

TEST_P(JetUpdate, ThatMovesRowsIsReadByEveryone) {
  for (int row = 0; row < 120; row += 3)
    trial_->Update(*file_, {PageTable, row, PageTitle}, QString(200, QChar(0x6587)));
  Check("rows that outgrow their pages");
  for (int row = 0; row < 120; row += 3)
    trial_->Update(*file_, {PageTable, row, PagePath}, Long(255));
  Check("moved rows that grow and move again");
  for (int row = 0; row < 120; row += 3)
    trial_->Update(*file_, {PageTable, row, PageTitle}, QStringLiteral("x"));
  Check("moved rows that shrink");
  for (int row = 0; row < 120; ++row)
    trial_->Update(*file_, {PageTable, row, PageTitle}, QString(255, QChar(0x4E2D)));
  Check("every row at its longest");
}

TEST_P(JetUpdate, OfAMemoIsReadByEveryone) {
  Update("a memo that was null", {PageTable, 0, PageRemark}, QStringLiteral("a remark"));
  Update("a memo that stood in the row", {PageTable, 0, PageRemark}, QStringLiteral("another"));
  Update("a memo that stood outside the row", {PageTable, 4, PageRemark},
         QStringLiteral("short now"));
  Update("a memo that was a chain", {ProjectTable, 1, ProjectNotes}, QStringLiteral("short too"));
  Update("a memo to null", {ProjectTable, 3, ProjectNotes}, std::nullopt);
  Update("an empty memo", {PageTable, 9, PageRemark}, QString(QLatin1String("")));
  Update("a longer memo in the row", {PageTable, 14, PageRemark}, Long(800));
  Update("a memo in Chinese", {PageTable, 19, PageRemark}, QString(300, QChar(0x6587)));
}

TEST_P(JetUpdate, OfTheThreeFolderColumnsIsReadByEveryone) {
  for (const QString &folder :
       {QStringLiteral("D:\\Bob's\\Site"), QStringLiteral("E:\\") + Long(240),
        QString::fromUtf8("F:\\网站\\图片"), QStringLiteral("G:")}) {
    trial_->UpdateWhere(*file_, ProjectTable, 0, 2, ProjectPath, folder);
    Check("the first statement of a repair");
    trial_->UpdateWhere(*file_, PageTable, 1, 2, PageTPath, folder);
    Check("the second statement of a repair");
    trial_->UpdateWhere(*file_, DiscTable, 0, 2, DiscPath, folder);
    Check("the third statement of a repair");
  }
}

TEST_P(JetUpdate, TakenBackLeavesTheFileAsItWas) {
  const FixtureFile meant = trial_->Meant();
  const QByteArray before = Bytes();
  file_->Begin();
  for (int row = 0; row < 120; ++row)
    trial_->Update(*file_, {PageTable, row, PageTitle}, QString(255, QChar(0x6587)));
  file_->Rollback();
  trial_->SetMeant(meant);
  EXPECT_EQ(Bytes(), before);
  EXPECT_EQ(Disagreement(WhatWasMeant(meant), ReadByUs(*file_, meant), QStringLiteral("us"))
                .toStdString(),
            "");
  Update("the first after one taken back", {PageTable, 3, PageTitle}, Long(100));
}

TEST_P(JetUpdate, TakenBackToASavepointKeepsWhatCameBefore) {
  file_->Begin();
  trial_->Update(*file_, {PageTable, 5, PageTitle}, Long(250));
  const FixtureFile kept = trial_->Meant();
  file_->Savepoint(0);
  for (int row = 0; row < 120; ++row)
    trial_->Update(*file_, {PageTable, row, PageTitle}, QString(255, QChar(0x6587)));
  file_->RollbackTo(0);
  trial_->SetMeant(kept);
  trial_->Update(*file_, {PageTable, 7, PageTitle}, Long(255));
  file_->Release(0);
  file_->Commit();
  Check("an update before and one after a savepoint");
}

TEST_P(JetUpdate, ThatCannotBeMadeChangesNothing) {
  ExpectRefused({PageTable, 1, 2}, QStringLiteral("x"), "index");
  ExpectRefused({PageTable, 1, 1}, QStringLiteral("7"), "only text");
  ExpectRefused({ProjectTable, 1, 4}, QStringLiteral("2020-01-01"), "only text");
  ExpectRefused({PageTable, 1, PageTitle}, Long(256), "256 characters, and 255");
  ExpectRefused({PageTable, 1, PageTitle}, QString(QChar(0)), "cannot be stored");
}

TEST_P(JetUpdate, KeepsACopyOfTheFileAsItWas) {
  const QByteArray before = Bytes();
  Update("the first update", {PageTable, 1, PageTitle}, QStringLiteral("one"));
  Update("the second update", {PageTable, 1, PageTitle}, QStringLiteral("two"));
  QFile copy(path_ + QStringLiteral(".bak"));
  ASSERT_TRUE(copy.open(QIODevice::ReadOnly));
  EXPECT_EQ(copy.readAll(), before);
  EXPECT_FALSE(QFile::exists(path_ + QStringLiteral("-journal")));
}

constexpr auto Inline = MapForm::BitmapWhereItReaches;
const FileForm Forms[] = {
    {"Plain", FolderType::Text, false, 0, Inline, 0},
    {"Worn", FolderType::Text, true, 0, Inline, 0},
    {"MemoFolders", FolderType::Memo, true, 0, Inline, 200},
    {"BitmapPages", FolderType::Text, true, 0, MapForm::BitmapPages, 0},
    {"Encoded", FolderType::Text, true, 0xA1B2C3D4, MapForm::BitmapPages, 600},
};

INSTANTIATE_TEST_SUITE_P(Of, JetUpdate, testing::ValuesIn(Forms),
                         [](const auto &form) { return std::string(form.param.name); });

TEST(JetReaders, AgreeOnWideRowsAndOddCharacters) {
  QTemporaryDir folder(FolderInMemory());
  const QString path = folder.filePath(QStringLiteral("odd.mdb"));
  WriteToDisk(path, OddTablesFixture());
  JetReaders readers;
  EXPECT_EQ(readers.DisagreementOn(path, OddTablesFixture()).toStdString(), "");
}

/// More pages than the bitmaps in the maps' rows reach: those of the table and the global one.
TEST(JetReaders, AgreeOnAFileThatOutgrewItsUsageMaps) {
  QTemporaryDir folder(FolderInMemory());
  const QString path = folder.filePath(QStringLiteral("large.mdb"));
  CatalogueShape shape;
  shape.pages = 9000;
  shape.remarks = false;
  JetTrial trial(CatalogueFixture(shape));
  WriteToDisk(path, trial.Meant());
  const auto sizeBefore = QFileInfo(path).size();
  const std::unique_ptr<JetFile> file = JetFile::Open(OpenJetStorage(path));
  file->Begin();
  for (int row = 0; row < shape.pages; ++row)
    trial.Update(*file, {PageTable, row, PageTitle}, QString(255, QChar(0x4E2D)));
  file->Commit();
  EXPECT_GT(QFileInfo(path).size(), sizeBefore + 1024 * 4096);
  QFile disk(path);
  ASSERT_TRUE(disk.open(QIODevice::ReadOnly));
  EXPECT_EQ(JetComplaints(disk.readAll()).join(u'\n').toStdString(), "");
  JetReaders readers;
  EXPECT_EQ(readers.DisagreementOn(path, trial.Meant()).toStdString(), "");
}

TEST(JetReaders, NoticeADifference) {
  QTemporaryDir folder(FolderInMemory());
  const QString path = folder.filePath(QStringLiteral("small.mdb"));
  FixtureFile fixture = CatalogueFixture({});
  WriteToDisk(path, fixture);
  fixture.tables[PageTable].rows[7].cells[PageTitle] = QStringLiteral("something else");
  JetReaders readers;
  EXPECT_NE(readers.DisagreementOn(path, fixture).toStdString(), "");
}

}  // namespace
}  // namespace velor::fixture
