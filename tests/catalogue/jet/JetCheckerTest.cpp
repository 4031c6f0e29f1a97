// SPDX-License-Identifier: GPL-3.0-or-later
// The structural checker finds what is broken, so that its silence means something.
#include "tests/support/MoreSamples.h"
#include "tests/support/jet/JetBytes.h"
#include "tests/support/jet/JetCatalogues.h"
#include "tests/support/jet/JetChecker.h"
#include "tests/support/jet/JetWriter.h"

#include <QDir>

#include <functional>
#include <gtest/gtest.h>

namespace velor::fixture {
namespace {

std::string Joined(const QStringList &lines) {
  return lines.join(u'\n').toStdString();
}

/// The page (by number) of a file as bytes that may be changed in place.
class Page {
 public:
  Page(QByteArray &file, quint32 number) : file_(file), start_(qsizetype{JetPageSize} * number) {}
  quint16 At16(int at) const { return Get16(file_, start_ + at); }
  quint32 At32(int at) const { return Get32(file_, start_ + at); }
  void Set16(int at, quint32 value) { Put16(file_, start_ + at, value); }
  void Set32(int at, quint32 value) { Put32(file_, start_ + at, value); }

 private:
  QByteArray &file_;
  qsizetype start_;
};

/// Definitions of the fixture's tables lie from page 3 on.
constexpr quint32 PageTable = 4;

/// The first page of that type and owner.
quint32 FirstPage(const QByteArray &file, char type, quint32 owner, quint32 from = 1) {
  for (quint32 page = from; (page + 1) * JetPageSize <= file.size(); ++page)
    if (file[qsizetype{page} * JetPageSize] == type &&
        Get32(file, qsizetype{page} * JetPageSize + 4) == owner)
      return page;
  ADD_FAILURE() << "no page of type " << int{type} << " belongs to " << owner;
  return 0;
}

QByteArray WornFile() {
  CatalogueShape shape;
  shape.projects = 8;
  shape.pages = 200;
  shape.worn = true;
  return WriteJetFile(CatalogueFixture(shape));
}

TEST(JetChecker, FindsNothingWrongWithTheWritersFiles) {
  CatalogueShape shape;
  EXPECT_EQ(Joined(JetComplaints(WriteJetFile(CatalogueFixture(shape)))), "");
  EXPECT_EQ(Joined(JetComplaints(WriteJetFile(OddTablesFixture()))), "");
  EXPECT_EQ(Joined(JetComplaints(WornFile())), "");
  shape.folders = FolderType::Memo;
  FixtureFile file = CatalogueFixture(shape);
  file.maps = MapForm::BitmapPages;
  file.fileKey = 0xC0FFEE01;
  file.pageReserve = 300;
  EXPECT_EQ(Joined(JetComplaints(WriteJetFile(file))), "");
}

class FilesOfOtherPrograms : public testing::TestWithParam<std::string> {};

GTEST_ALLOW_UNINSTANTIATED_PARAMETERIZED_TEST(FilesOfOtherPrograms);

TEST_P(FilesOfOtherPrograms, HaveNothingWrongInThem) {
  const QDir folder(QString::fromStdString(GetParam()));
  const QFileInfoList files = folder.entryInfoList({QStringLiteral("*.mdb")}, QDir::Files);
  EXPECT_FALSE(files.isEmpty()) << GetParam();
  for (const QFileInfo &info : files) {
    QFile file(info.filePath());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(Joined(JetComplaints(file.readAll())), "") << info.fileName().toStdString();
  }
}

INSTANTIATE_TEST_SUITE_P(JetChecker, FilesOfOtherPrograms,
                         testing::ValuesIn(velor::MoreSamples("VELOR_MORE_CATALOGUES",
                                                              VELOR_MORE_CATALOGUES)));

TEST(JetChecker, TheSameDescriptionGivesTheSameBytes) {
  EXPECT_EQ(WornFile(), WornFile());
}

struct Fault {
  const char *name;
  std::function<void(QByteArray &)> make;
  /// A piece of the sentence that must come.
  const char *complaint;
};

class JetCheckerFault : public testing::TestWithParam<Fault> {};

TEST_P(JetCheckerFault, IsFound) {
  QByteArray file = WornFile();
  GetParam().make(file);
  const QStringList complaints = JetComplaints(file);
  EXPECT_TRUE(complaints.join(u'\n').contains(QString::fromLatin1(GetParam().complaint)))
      << Joined(complaints);
}

const Fault Faults[] = {
    {"PartialPage", [](QByteArray &file) { file.chop(100); }, "no whole number of pages"},
    {"WrongFreeCount",
     [](QByteArray &file) {
       Page page(file, FirstPage(file, 1, PageTable));
       page.Set16(2, page.At16(2) + 1);
     },
     "bytes are free, but"},
    {"SlotsOutOfOrder",
     [](QByteArray &file) {
       Page page(file, FirstPage(file, 1, PageTable));
       page.Set16(16, 0x0FFF);
     },
     "slot 1 of"},
    {"RowCount",
     [](QByteArray &file) {
       Page page(file, PageTable);
       page.Set32(16, page.At32(16) + 1);
     },
     "counts 201 rows, but has 200"},
    {"RowBroken",
     [](QByteArray &file) {
       Page page(file, FirstPage(file, 1, PageTable));
       int slot = 0;
       while ((page.At16(14 + 2 * slot) & 0xC000) != 0) ++slot;
       page.Set16(page.At16(14 + 2 * slot) & 0x1FFF, 99);
     },
     "is no row"},
    {"MovedRowLost",
     [](QByteArray &file) {
       for (quint32 number = 3; (number + 1) * JetPageSize <= file.size(); ++number) {
         Page page(file, number);
         if (page.At16(0) != 0x0101 || page.At32(4) != PageTable) continue;
         for (int slot = 0; slot < page.At16(12); ++slot) {
           if ((page.At16(14 + 2 * slot) & 0xC000) != 0x8000) continue;
           page.Set16(14 + 2 * slot, page.At16(14 + 2 * slot) | 0x4000);
           return;
         }
       }
     },
     "no row"},
    {"PageNotInMap",
     [](QByteArray &file) {
       const quint32 first = FirstPage(file, 1, PageTable);
       const quint32 stranger = FirstPage(file, 1, 0x4C41564C, first);
       Page(file, stranger).Set32(4, PageTable);
     },
     "is not in its map"},
    {"UsedPageFree",
     [](QByteArray &file) {
       QByteArray map = file.mid(JetPageSize + 0xFBB + 5, 64);
       SetBitAt(map, 0, FirstPage(file, 1, PageTable));
       file.replace(JetPageSize + 0xFBB + 5, map.size(), map);
     },
     "is free and in use for table 4"},
    {"IndexEntryOfNoRow",
     [](QByteArray &file) {
       const qsizetype leaf = qsizetype{JetPageSize} * FirstPage(file, 4, PageTable);
       file[leaf + 0x1E0 + 8] = '\xF0';
     },
     "no live row 240"},
    {"IndexEntryWithAnotherValue",
     [](QByteArray &file) {
       const qsizetype leaf = qsizetype{JetPageSize} * FirstPage(file, 4, PageTable);
       file[leaf + 0x1E0 + 4] = '\0';
     },
     "has another value"},
    {"MemoTooShort",
     [](QByteArray &file) {
       const quint32 number = FirstPage(file, 1, 0x4C41564C);
       Page page(file, number);
       page.Set16(14, page.At16(14) + 1);
       page.Set16(2, page.At16(2) + (page.At16(12) == 1 ? 1 : 0));
     },
     "a long value of"},
};

INSTANTIATE_TEST_SUITE_P(Every, JetCheckerFault, testing::ValuesIn(Faults),
                         [](const auto &fault) { return std::string(fault.param.name); });

}  // namespace
}  // namespace velor::fixture
