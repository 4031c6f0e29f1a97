// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/jet/JetCheckedTable.h"

#include <QtEndian>

namespace velor::fixture {

namespace {

constexpr int EntriesAt = 0x1E0;
constexpr int EndMaskAt = 27;
constexpr int EndMaskBits = (EntriesAt - EndMaskAt) * 8;
constexpr int LongType = 4;

quint32 BigEndian32(const QByteArray &bytes, qsizetype at) {
  return qFromBigEndian<quint32>(bytes.constData() + at);
}

/// Walks one tree and collects its leaf entries: home address to key.
class IndexWalk {
 public:
  IndexWalk(JetCheckedPages &pages, const CheckedIndex &index, quint32 definition, QString name)
      : pages_(pages),
        definition_(definition),
        name_(std::move(name)),
        owned_(pages.MapMembers(index.ownedMap, name_)) {
    Visit(index.root);
    for (const quint32 page : owned_) pages_.Use(page, name_);
    if (leafRight_ != 0)
      pages_.Complain(QStringLiteral("%1: leaf %2 follows the last").arg(name_).arg(leafRight_));
  }

  const std::map<quint32, QByteArray> &Entries() const { return entries_; }

 private:
  void Visit(quint32 number) {
    if (number >= pages_.Count() || !visited_.insert(number).second ||
        (pages_.TypeOf(number) != 3 && pages_.TypeOf(number) != 4) ||
        Get32(pages_.At(number), 4) != definition_) {
      pages_.Complain(QStringLiteral("%1: page %2 is no page of it").arg(name_).arg(number));
      return;
    }
    if (!owned_.count(number))
      pages_.Complain(QStringLiteral("%1: page %2 is not in its map").arg(name_).arg(number));
    const QByteArray &page = pages_.At(number);
    const bool leaf = pages_.TypeOf(number) == 4;
    if (leaf) CheckLeafLinks(number);
    QByteArray prefix;
    int start = 0;
    for (int end = 1; end < EndMaskBits; ++end) {
      if (!BitAt(page, EndMaskAt, end)) continue;
      QByteArray entry = page.mid(EntriesAt + start, end - start);
      // All entries but the first leave out the bytes that they have in common with it.
      if (start == 0)
        prefix = entry.left(Get16(page, 24));
      else
        entry.prepend(prefix);
      start = end;
      const qsizetype tail = leaf ? 4 : 8;
      if (entry.size() <= tail) {
        pages_.Complain(QStringLiteral("%1: page %2 has a short entry").arg(name_).arg(number));
        return;
      }
      if (leaf)
        TakeLeafEntry(entry);
      else
        Visit(BigEndian32(entry, entry.size() - 4));
    }
    if (EntriesAt + start + Get16(page, 2) != JetPageSize)
      pages_.Complain(QStringLiteral("%1: page %2 says %3 bytes are free")
                          .arg(name_)
                          .arg(number)
                          .arg(Get16(page, 2)));
  }

  void TakeLeafEntry(const QByteArray &entry) {
    const quint32 address = BigEndian32(entry, entry.size() - 4);
    const QByteArray key = entry.chopped(4);
    if (!entries_.emplace(address, key).second)
      pages_.Complain(QStringLiteral("%1: page %2, row %3 stands in it twice")
                          .arg(name_)
                          .arg(PageOf(address))
                          .arg(SlotOf(address)));
    if (entries_.size() > 1 && key < lastKey_)
      pages_.Complain(name_ + QStringLiteral(": entries are out of order"));
    lastKey_ = key;
  }

  void CheckLeafLinks(quint32 number) {
    const QByteArray &page = pages_.At(number);
    if (Get32(page, 12) != lastLeaf_ || (lastLeaf_ != 0 && leafRight_ != number))
      pages_.Complain(QStringLiteral("%1: leaf %2 is not linked").arg(name_).arg(number));
    lastLeaf_ = number;
    leafRight_ = Get32(page, 16);
  }

  JetCheckedPages &pages_;
  quint32 definition_;
  QString name_;
  std::set<quint32> owned_;
  std::set<quint32> visited_;
  std::map<quint32, QByteArray> entries_;
  QByteArray lastKey_;
  quint32 lastLeaf_ = 0;
  quint32 leafRight_ = 0;
};

/// The key of a Long in ascending order: a mark, then the number with its sign turned over.
QByteArray LongKey(const QByteArray &field) {
  QByteArray key(5, '\x7F');
  qToBigEndian(Get32(field, 0) ^ 0x80000000, key.data() + 1);
  return key;
}

}  // namespace

void CheckIndexes(JetCheckedPages &pages, const CheckedDefinition &table, const CheckedRows &rows) {
  std::map<int, int> types;
  for (const CheckedColumn &column : table.columns) types[column.number] = column.type;
  for (std::size_t i = 0; i < table.indexes.size(); ++i) {
    const CheckedIndex &index = table.indexes[i];
    const QString name = QStringLiteral("index %1 of table %2").arg(i).arg(table.page);
    const IndexWalk walk(pages, index, table.page, name);
    const bool number = index.columns.size() == 1 && types[index.columns.front()] == LongType;
    for (const auto &[address, key] : walk.Entries()) {
      const auto row = rows.find(address);
      if (row == rows.end()) {
        pages.Complain(QStringLiteral("%1: no live row %2 on page %3")
                           .arg(name)
                           .arg(SlotOf(address))
                           .arg(PageOf(address)));
      } else if (const auto field = number ? row->second.fields.find(index.columns.front())
                                           : row->second.fields.end();
                 field != row->second.fields.end() && key != LongKey(field->second)) {
        pages.Complain(QStringLiteral("%1: row %2 of page %3 has another value")
                           .arg(name)
                           .arg(SlotOf(address))
                           .arg(PageOf(address)));
      }
    }
    if (walk.Entries().size() != rows.size())
      pages.Complain(QStringLiteral("%1 has %2 entries for %3 rows")
                         .arg(name)
                         .arg(walk.Entries().size())
                         .arg(rows.size()));
  }
}

}  // namespace velor::fixture
