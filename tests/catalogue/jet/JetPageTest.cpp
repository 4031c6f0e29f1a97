// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/jet/JetDataPage.h"
#include "catalogue/jet/JetHeader.h"
#include "catalogue/jet/JetLongValue.h"
#include "catalogue/jet/JetUsageMap.h"
#include "files/PosixJetStorage.h"
#include "tests/support/Checks.h"

#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <cstring>

namespace velor {
namespace {

using jet::Page;
using jet::PageNumber;

JetBytes BytesOf(const QByteArray &bytes) {
  return {reinterpret_cast<const unsigned char *>(bytes.constData()),
          static_cast<std::size_t>(bytes.size())};
}

QByteArray RowAt(const Page &page, int slot) {
  const JetBytes row = JetSlots(page).Row(slot);
  return {reinterpret_cast<const char *>(row.data()), static_cast<qsizetype>(row.size())};
}

Page PageOf(const QList<QByteArray> &rows) {
  Page page;
  InitializeDataPage(page, 77);
  for (const QByteArray &row : rows) AddJetRow(page, 0, BytesOf(row));
  return page;
}

int StoredFree(const Page &page) {
  return jet::Get<quint16>(page.data() + jet::DataFree);
}

TEST(JetDataPage, HoldsRowsFromItsEndAndCountsWhatIsFree) {
  const Page page = PageOf({"first", "second", ""});
  EXPECT_EQ(JetSlots(page).Count(), 3);
  EXPECT_EQ(RowAt(page, 0), "first");
  EXPECT_EQ(RowAt(page, 1), "second");
  EXPECT_EQ(RowAt(page, 2), "");
  EXPECT_EQ(StoredFree(page), 4096 - 14 - 3 * 2 - 11);
  EXPECT_TRUE(JetSlots(page).AreSound());
}

TEST(JetDataPage, KeepsTheOtherRowsWhenOneGrowsOrShrinks) {
  for (const char *now : {"x", "a good deal longer", ""}) {
    Page page = PageOf({"first", "second", "third", "fourth"});
    jet::Put<quint16>(
        page.data() + jet::DataSlots + 2 * jet::SlotBytes,
        static_cast<quint16>(jet::Get<quint16>(page.data() + jet::DataSlots + 2 * jet::SlotBytes) |
                             jet::SlotMoved));
    ReplaceJetRow(page, 1, jet::SlotPointer, BytesOf(now));
    EXPECT_EQ(RowAt(page, 0), "first");
    EXPECT_EQ(RowAt(page, 1), now);
    EXPECT_EQ(RowAt(page, 2), "third");
    EXPECT_EQ(RowAt(page, 3), "fourth");
    EXPECT_EQ(JetSlots(page).Flags(1), jet::SlotPointer);
    EXPECT_EQ(JetSlots(page).Flags(2), jet::SlotMoved);
    EXPECT_EQ(StoredFree(page), 4096 - 14 - 4 * 2 - 16 - static_cast<int>(std::strlen(now)));
  }
}

TEST(JetDataPage, WithRowsThatCrossIsNotSound) {
  Page page = PageOf({"first", "second"});
  jet::Put<quint16>(page.data() + jet::DataSlots, 20);
  EXPECT_FALSE(JetSlots(page).AreSound());
  jet::Put<quint16>(page.data() + jet::DataRows, 0xFFFF);
  EXPECT_FALSE(JetSlots(page).AreSound());
}

/// A file of empty pages with the map of all pages on page 1 and a table's map behind it.
class JetMaps : public ::testing::Test {
 protected:
  static constexpr JetPlace Global = {jet::GlobalMapPage, 0};
  static constexpr JetPlace Owned = {jet::GlobalMapPage, 1};

  JetMaps() {
    path_ = folder_.filePath(QStringLiteral("maps.mdb"));
    QByteArray all(69, '\xFF');
    std::fill_n(all.begin(), 5, '\0');
    all[5] = '\0';  // the eight pages that there are
    const QByteArray none(69, '\0');
    const Page maps = PageOf({all, none});
    QByteArray content(8 * jet::PageBytes, '\0');
    std::copy(maps.begin(), maps.end(), content.begin() + jet::PageBytes);
    QFile file(path_);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
    file.close();
    storage_ = OpenJetStorage(path_);
    pager_ = std::make_unique<JetPager>(*storage_);
    pager_->Reset(storage_->Stamp());
  }

  JetUsageMap GlobalMap() { return {*pager_, Global, JetBit::Set}; }
  JetUsageMap OwnedMap() { return {*pager_, Owned, JetBit::Clear}; }
  std::vector<PageNumber> Owns() { return OwnedMap().Pages().numbers; }
  int KindOf(const JetPlace &map) { return FindJetRow(*pager_, map).bytes[0]; }

  QTemporaryDir folder_;
  QString path_;
  std::unique_ptr<JetStorage> storage_;
  std::unique_ptr<JetPager> pager_;
};

TEST_F(JetMaps, HoldPagesWithinTheirReachInline) {
  OwnedMap().Put(3, JetBit::Set);
  OwnedMap().Put(7, JetBit::Set);
  EXPECT_EQ(Owns(), (std::vector<PageNumber>{3, 7}));
  OwnedMap().Put(3, JetBit::Clear);
  EXPECT_EQ(Owns(), (std::vector<PageNumber>{7}));
  EXPECT_EQ(KindOf(Owned), jet::InlineMap);
}

TEST_F(JetMaps, TakeAppendedPagesAsUsed) {
  EXPECT_EQ(AppendJetPage(*pager_), 8u);
  EXPECT_EQ(AppendJetPage(*pager_), 9u);
  EXPECT_EQ(GlobalMap().Pages().numbers, (std::vector<PageNumber>{}));
}

TEST_F(JetMaps, GrowIntoPagedOnesBeyondTheirReach) {
  OwnedMap().Put(5, JetBit::Set);
  while (pager_->PageCount() < 600) AppendJetPage(*pager_);
  EXPECT_EQ(KindOf(Global), jet::PagedMap);
  EXPECT_EQ(GlobalMap().Pages().numbers, (std::vector<PageNumber>{}))
      << "the maps' own pages are used too";
  const PageNumber last = AppendJetPage(*pager_);
  OwnedMap().Put(last, JetBit::Set);
  EXPECT_EQ(KindOf(Owned), jet::PagedMap);
  EXPECT_EQ(Owns(), (std::vector<PageNumber>{5, last}));
  EXPECT_EQ(GlobalMap().Pages().numbers, (std::vector<PageNumber>{}));
}

TEST_F(JetMaps, ThatNamePagesOutsideTheFileAreDamagedAndGiveTheRest) {
  OwnedMap().Put(3, JetBit::Set);
  OwnedMap().Put(200, JetBit::Set);
  const JetPages pages = OwnedMap().Pages();
  EXPECT_EQ(pages.soundness, JetSoundness::Damaged);
  EXPECT_EQ(pages.numbers, (std::vector<PageNumber>{3}));
}

TEST_F(JetMaps, ChangeBackWhenThePagerUndoesAChange) {
  OwnedMap().Put(3, JetBit::Set);
  pager_->Mark();
  OwnedMap().Put(4, JetBit::Set);
  AppendJetPage(*pager_);
  pager_->Undo();
  EXPECT_EQ(Owns(), (std::vector<PageNumber>{3}));
  EXPECT_EQ(pager_->PageCount(), 8u);
}

TEST_F(JetMaps, LeaveAPageThatSomebodyReadsAsItWas) {
  const auto before = pager_->Read(jet::GlobalMapPage);
  const Page copy = *before;
  OwnedMap().Put(3, JetBit::Set);
  const auto between = pager_->Read(jet::GlobalMapPage);
  const Page second = *between;
  OwnedMap().Put(4, JetBit::Set);
  EXPECT_EQ(*before, copy);
  EXPECT_EQ(*between, second);
  EXPECT_NE(*between, *before);
}

/// Pieces of a long value on page 6, each with the place of the next one.
class JetLongValues : public JetMaps {
 protected:
  void PutPieces(const QList<QByteArray> &pieces) {
    Page &page = pager_->Modify(6);
    page = PageOf(pieces);
    std::copy_n("LVAL", 4, page.begin() + jet::DataOwner);
  }
  static QByteArray Place(PageNumber page, int slot) {
    QByteArray bytes(4, '\0');
    PutPlace(reinterpret_cast<unsigned char *>(bytes.data()), {page, slot});
    return bytes;
  }
  static QByteArray Field(quint32 lengthAndKind, const QByteArray &place) {
    QByteArray bytes(4, '\0');
    jet::Put(reinterpret_cast<unsigned char *>(bytes.data()), lengthAndKind);
    return bytes + place + QByteArray(4, '\0');
  }
};

TEST_F(JetLongValues, AreReadInlineFromOneRowAndFromAChain) {
  PutPieces({"single", Place(6, 2) + "cha", Place(0, 0) + "in"});
  EXPECT_EQ(ReadJetLongValue(*pager_, BytesOf(InlineJetLongValue("inline"))), "inline");
  EXPECT_EQ(ReadJetLongValue(*pager_, BytesOf(Field(6 | jet::LongValueSingle, Place(6, 0)))),
            "single");
  EXPECT_EQ(ReadJetLongValue(*pager_, BytesOf(Field(5, Place(6, 1)))), "chain");
}

TEST_F(JetLongValues, ThatRunInACircleOrEndTooEarlyAreDamaged) {
  PutPieces({Place(6, 1) + "a", Place(6, 0) + "b", Place(0, 0) + "c"});
  EXPECT_FALSE(ReadJetLongValue(*pager_, BytesOf(Field(100, Place(6, 0)))));
  EXPECT_FALSE(ReadJetLongValue(*pager_, BytesOf(Field(100, Place(6, 2)))));
  EXPECT_FALSE(ReadJetLongValue(*pager_, BytesOf(Field(1, Place(5, 0)))));
  EXPECT_FALSE(ReadJetLongValue(*pager_, BytesOf("short")));
}

TEST_F(JetLongValues, GiveTheirBytesBack) {
  PutPieces({Place(6, 1) + "a", Place(0, 0) + "b", "kept"});
  FreeJetLongValue(*pager_, BytesOf(Field(2, Place(6, 0))));
  const auto page = pager_->Read(6);
  EXPECT_EQ(RowAt(*page, 0), "");
  EXPECT_EQ(RowAt(*page, 1), "");
  EXPECT_EQ(JetSlots(*page).Flags(0), 0);
  EXPECT_EQ(RowAt(*page, 2), "kept");
  EXPECT_EQ(StoredFree(*page), 4096 - 14 - 3 * 2 - 4);
}

/// What opening a file with that page 0 says.
QString MessageFor(const QByteArray &header) {
  const QTemporaryDir folder;
  const QString path = folder.filePath(QStringLiteral("eThumbs.mdb"));
  QFile file(path);
  EXPECT_TRUE(file.open(QIODevice::WriteOnly));
  file.write(header);
  file.close();
  const auto storage = OpenJetStorage(path);
  try {
    ReadJetHeader(*storage);
  } catch (const RuntimeError &error) {
    EXPECT_TRUE(error.Description().contains(path)) << error.what();
    return error.Description();
  }
  return {};
}

QByteArray HeaderOf(const char *engine, char version) {
  QByteArray header(jet::PageBytes, '\0');
  header.replace(jet::EngineName, static_cast<qsizetype>(std::strlen(engine)), engine);
  header[jet::Version] = version;
  return header;
}

TEST(JetHeader, SaysWhatAFileOfAnotherFormatIsAndWhatToDo) {
  EXPECT_TRUE(MessageFor(HeaderOf("Standard Jet DB", 0)).contains(QStringLiteral("Jet 3")));
  EXPECT_TRUE(MessageFor(HeaderOf("Standard Jet DB", 0)).contains(QStringLiteral("convert")));
  EXPECT_TRUE(MessageFor(HeaderOf("Standard Jet DB", 5)).contains(QStringLiteral("version 5")));
  EXPECT_TRUE(MessageFor(HeaderOf("Standard ACE DB", 2)).contains(QStringLiteral(".accdb")));
  EXPECT_TRUE(MessageFor(HeaderOf("Standard ACE DB", 2)).contains(QStringLiteral("save it")));
  EXPECT_TRUE(MessageFor("just text").contains(QStringLiteral("no database")));
  EXPECT_TRUE(MessageFor({}).contains(QStringLiteral("no database")));
}

TEST(JetHeader, RefusesAFileWithAPassword) {
  // Encoded with the header's key, zeros would be the password's mask of a creation date 0.
  QByteArray header = HeaderOf("Standard Jet DB", 1);
  EXPECT_TRUE(MessageFor(header).contains(QStringLiteral("password")));
}

}  // namespace
}  // namespace velor
