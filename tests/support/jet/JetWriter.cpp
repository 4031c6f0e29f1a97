// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/jet/JetWriter.h"

#include "tests/support/jet/JetDefinitionWriter.h"
#include "tests/support/jet/JetIndexWriter.h"
#include "tests/support/jet/JetRowWriter.h"

#include <QtEndian>

#include <algorithm>

namespace velor::fixture {

namespace {

constexpr double Created = 38143.5;  // when every file says it was made
constexpr quint32 CataloguePage = 2;
constexpr qint32 TablesFolder = 0x0F000001;
constexpr qint32 SystemObject = static_cast<qint32>(0x80000000);
constexpr int MostRowsAPage = 255;

void WriteHeader(QByteArray &page, const FixtureFile &file) {
  page.replace(0, 20, QByteArray("\0\1\0\0Standard Jet DB\0", 20));
  page[0x14] = 1;
  Put16(page, 0x3C, 1252);
  Put32(page, 0x3E, file.fileKey);
  // The password, filled up with zeros to forty bytes, under the mask of the creation date.
  for (int at = 0; at < 20; ++at) {
    const quint32 mask = static_cast<quint32>(Created) >> (at % 2 == 0 ? 0 : 16);
    const char16_t letter = at < file.password.size() ? file.password[at].unicode() : u'\0';
    Put16(page, 0x42 + 2 * at, mask ^ letter);
  }
  Put32(page, 0x6E, 0x0409);
  qToLittleEndian(Created, page.data() + 0x72);
  page.replace(0x18, 0x80, Rc4(page.mid(0x18, 0x80), HeaderKey()));
  page.replace(0x9C, 4, QByteArray("4.0\0", 4));
}

/// Writes one table's rows, memo texts, indexes, maps and definition, in that order.
class TableWriter {
 public:
  TableWriter(JetPageSet &pages, const FixtureFile &file, const FixtureTable &table, quint32 page)
      : pages_(pages),
        file_(file),
        table_(table),
        definition_(page),
        rowWriter_(pages, table),
        entries_(table.indexes.size()) {}

  void Write(DefinitionParts::Kind kind) {
    const quint32 mapPage = pages_.AppendRowPage(0);
    PlaceRows();
    DefinitionParts parts;
    parts.kind = kind;
    parts.rows = static_cast<quint32>(table_.rows.size());
    parts.maps = AddMaps(mapPage, owned_);
    for (const auto &entries : entries_) {
      const WrittenIndex index = WriteIndex(pages_, definition_, entries);
      parts.indexRoots.push_back(index.first);
      parts.indexMaps.push_back({AddMap(mapPage, index.owned), 0});
    }
    for (const auto &[column, memo] : rowWriter_.Memos())
      parts.memoMaps[column] = AddMaps(mapPage, memo.owned);
    WriteDefinition(pages_, definition_, table_, parts);
  }

 private:
  void PlaceRows() {
    std::vector<std::pair<quint32, QByteArray>> moved;  // home slot, bytes
    for (const FixtureRow &row : table_.rows) {
      const QByteArray bytes = rowWriter_.Bytes(row);
      QByteArray atHome = bytes;
      if (row.place != RowPlace::Home) atHome = QByteArray(4, '\0');
      if (row.place == RowPlace::MovedLeavingTail) atHome += bytes.left(bytes.size() / 2);
      for (int i = 0; i < row.deletedBefore; ++i) pages_.AddDeletedRow(PageWithRoom(0));
      const quint32 home = pages_.AddRow(PageWithRoom(atHome.size()), atHome,
                                         row.place == RowPlace::Home ? 0 : MovedAway);
      if (row.place != RowPlace::Home) moved.emplace_back(home, bytes);
      for (std::size_t i = 0; i < entries_.size(); ++i)
        entries_[i].push_back({IndexKey(row.cells[table_.indexes[i].column]), home});
    }
    if (!moved.empty()) current_ = 0;
    for (const auto &[home, bytes] : moved) {
      QByteArray pointer;
      Add32(pointer, pages_.AddRow(PageWithRoom(bytes.size()), bytes, MovedHere));
      pages_.OverwriteRow(home, pointer);
    }
  }

  /// The page that takes the next row, with what the file wants left free on it. Page 0 is none.
  quint32 PageWithRoom(qsizetype length) {
    const bool full = current_ == 0 ||
                      pages_.FreeBytes(current_) < length + 2 + file_.pageReserve ||
                      Get16(pages_.At(current_), 12) == MostRowsAPage;
    if (full) {
      current_ = pages_.AppendRowPage(definition_);
      owned_.insert(current_);
    }
    return current_;
  }

  quint32 AddMap(quint32 mapPage, const std::set<quint32> &members) {
    const quint32 address = pages_.AddUsageMap(mapPage);
    pages_.FillUsageMap(address, members, file_.maps);
    return address;
  }

  UsageMaps AddMaps(quint32 mapPage, const std::set<quint32> &owned) {
    std::set<quint32> free;
    std::copy_if(owned.begin(), owned.end(), std::inserter(free, free.end()),
                 [this](quint32 page) { return pages_.FreeBytes(page) > 0; });
    return {AddMap(mapPage, owned), AddMap(mapPage, free)};
  }

  JetPageSet &pages_;
  const FixtureFile &file_;
  const FixtureTable &table_;
  quint32 definition_;
  JetRowWriter rowWriter_;
  std::vector<std::vector<IndexEntry>> entries_;
  std::set<quint32> owned_;
  quint32 current_ = 0;
};

FixtureRow CatalogueRow(const QString &name, quint32 page, qint32 flags) {
  return {{static_cast<qint32>(page), TablesFolder, name, qint32{1}, Days{Created}, Days{Created},
           flags, Cell()}};
}

/// The table of tables. Readers look for these columns by name.
FixtureTable CatalogueOf(const std::vector<FixtureTable> &tables,
                         const std::vector<quint32> &definitions) {
  FixtureTable catalogue;
  catalogue.name = QStringLiteral("MSysObjects");
  catalogue.columns = {{QStringLiteral("Id"), CellType::Long},
                       {QStringLiteral("ParentId"), CellType::Long},
                       {QStringLiteral("Name"), CellType::Text, 255, TextForm::Plain},
                       {QStringLiteral("Type"), CellType::Short},
                       {QStringLiteral("DateCreate"), CellType::DateTime},
                       {QStringLiteral("DateUpdate"), CellType::DateTime},
                       {QStringLiteral("Flags"), CellType::Long},
                       {QStringLiteral("LvProp"), CellType::Ole}};
  catalogue.rows.push_back(CatalogueRow(catalogue.name, CataloguePage, SystemObject));
  for (std::size_t i = 0; i < tables.size(); ++i)
    catalogue.rows.push_back(CatalogueRow(tables[i].name, definitions[i], 0));
  return catalogue;
}

/// Page 1 has to know which pages are in use. What lies beyond a map's reach counts as free, so the
/// map holds the pages up to the end of what it can say: with bits for those not in use.
void WriteGlobalMap(JetPageSet &pages, quint32 address) {
  const bool inlineMap = pages.Count() <= BitmapReach;
  std::set<quint32> free;
  // A bitmap page is a page in use itself; 17 of them at most reach further than any fixture.
  const quint32 used = pages.Count() + (inlineMap ? 0 : pages.Count() / BitmapPageReach + 1);
  const quint32 reach = inlineMap ? BitmapReach : (used / BitmapPageReach + 1) * BitmapPageReach;
  for (quint32 page = used; page < reach; ++page) free.insert(page);
  QByteArray map(69, '\0');
  if (inlineMap) {
    for (const quint32 page : free) SetBitAt(map, 5, page);
    pages.OverwriteRow(address, map);
  } else {
    pages.FillUsageMap(address, free, MapForm::BitmapPages);
  }
}

}  // namespace

QByteArray WriteJetFile(const FixtureFile &file) {
  JetPageSet pages;
  WriteHeader(pages.At(pages.Append()), file);
  pages.AppendRowPage(1);
  const quint32 global = pages.AddUsageMap(1);
  pages.AddUsageMap(1);
  pages.Append();

  std::vector<quint32> definitions;
  for (std::size_t i = 0; i < file.tables.size(); ++i) definitions.push_back(pages.Append());
  const FixtureTable catalogue = CatalogueOf(file.tables, definitions);
  TableWriter(pages, file, catalogue, CataloguePage).Write(DefinitionParts::Kind::System);
  for (std::size_t i = 0; i < file.tables.size(); ++i)
    TableWriter(pages, file, file.tables[i], definitions[i]).Write(DefinitionParts::Kind::User);
  WriteGlobalMap(pages, global);
  return WithPagesEncoded(pages.Joined(), file.fileKey);
}

}  // namespace velor::fixture
