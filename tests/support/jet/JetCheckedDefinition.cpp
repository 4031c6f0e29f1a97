// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/jet/JetCheckedTable.h"

namespace velor::fixture {

namespace {

constexpr int HeadLength = 63;
constexpr int ColumnLength = 25;
constexpr int IndexHeadLength = 12;
constexpr int IndexLength = 52;
constexpr int IndexUseLength = 28;

/// The definition with its continuation pages in one piece; the first page's header is kept.
QByteArray Joined(JetCheckedPages &pages, quint32 page) {
  const QString purpose = QStringLiteral("the definition on page %1").arg(page);
  QByteArray bytes = pages.At(page);
  pages.Use(page, purpose);
  std::set<quint32> seen = {page};
  for (quint32 next = Get32(bytes, 4); next != 0; next = Get32(pages.At(next), 4)) {
    if (next >= pages.Count() || pages.TypeOf(next) != 2 || !seen.insert(next).second) {
      pages.Complain(QStringLiteral("%1 goes on at page %2").arg(purpose).arg(next));
      break;
    }
    pages.Use(next, purpose);
    bytes += pages.At(next).mid(8);
  }
  return bytes;
}

/// Reads on from an offset; what lies beyond the end reads as zeros and is noted.
class Reader {
 public:
  Reader(const QByteArray &bytes, qsizetype at) : bytes_(bytes), at_(at) {}
  bool Beyond() const { return beyond_; }
  void Skip(qsizetype length) { at_ += length; }
  QByteArray Take(qsizetype length) {
    if (at_ + length > bytes_.size()) beyond_ = true;
    QByteArray part = beyond_ ? QByteArray() : bytes_.mid(at_, length);
    at_ += length;
    return part.leftJustified(length, '\0');
  }
  quint16 Take16() { return Get16(Take(2), 0); }

 private:
  const QByteArray &bytes_;
  qsizetype at_;
  bool beyond_ = false;
};

CheckedColumn ReadColumn(const QByteArray &bytes) {
  CheckedColumn column;
  column.type = static_cast<uchar>(bytes[0]);
  column.number = Get16(bytes, 5);
  column.variableIndex = Get16(bytes, 7);
  column.variable = (bytes[15] & 1) == 0;
  column.fixedOffset = Get16(bytes, 21);
  column.length = Get16(bytes, 23);
  return column;
}

CheckedIndex ReadIndex(const QByteArray &bytes) {
  CheckedIndex index;
  for (int i = 0; i < 10; ++i)
    if (const quint16 column = Get16(bytes, 4 + 3 * i); column != 0xFFFF)
      index.columns.push_back(column);
  index.ownedMap = Get32(bytes, 34);
  index.root = Get32(bytes, 38);
  return index;
}

}  // namespace

std::optional<CheckedDefinition> ReadDefinition(JetCheckedPages &pages, quint32 page) {
  const QByteArray bytes = Joined(pages, page);
  CheckedDefinition table;
  table.page = page;
  table.rows = Get32(bytes, 16);
  table.maximumColumns = Get16(bytes, 41);
  table.ownedMap = Get32(bytes, 55);
  table.freeMap = Get32(bytes, 59);
  const int columns = Get16(bytes, 45);
  const quint32 uses = Get32(bytes, 47);
  const quint32 indexes = Get32(bytes, 51);
  if (columns > 255 || columns > table.maximumColumns || uses > 100 || indexes > 100) {
    pages.Complain(QStringLiteral("the definition on page %1 counts what cannot be").arg(page));
    return {};
  }
  Reader reader(bytes, HeadLength + IndexHeadLength * qsizetype{indexes});
  for (int i = 0; i < columns; ++i) table.columns.push_back(ReadColumn(reader.Take(ColumnLength)));
  for (int i = 0; i < columns; ++i) reader.Skip(reader.Take16());
  for (quint32 i = 0; i < indexes; ++i)
    table.indexes.push_back(ReadIndex(reader.Take(IndexLength)));
  reader.Skip(IndexUseLength * qsizetype{uses});
  for (quint32 i = 0; i < uses; ++i) reader.Skip(reader.Take16());
  for (quint16 column = reader.Take16(); column != 0xFFFF && !reader.Beyond();
       column = reader.Take16()) {
    const QByteArray maps = reader.Take(8);
    table.memoMaps[column] = {Get32(maps, 0), Get32(maps, 4)};
  }
  if (reader.Beyond()) {
    pages.Complain(QStringLiteral("the definition on page %1 ends too early").arg(page));
    return {};
  }
  return table;
}

}  // namespace velor::fixture
