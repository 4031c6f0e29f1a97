// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/jet/JetIndexWriter.h"

#include <QtEndian>

#include <algorithm>

namespace velor::fixture {

namespace {

constexpr int EntriesAt = 0x1E0;
constexpr int EndMaskAt = 27;
constexpr quint32 NodePage = 0x0103;
constexpr quint32 LeafPage = 0x0104;
constexpr int PreviousAt = 12;
constexpr int NextAt = 16;

void AddBigEndian(QByteArray &bytes, quint32 value, int length) {
  for (int i = length - 1; i >= 0; --i) bytes += static_cast<char>(value >> (8 * i) & 0xFF);
}

/// An entry, and on a node page the child that ends with it.
struct StoredEntry {
  QByteArray bytes;
  quint32 page = 0;
};

QByteArray EntryBytes(const IndexEntry &entry) {
  QByteArray bytes = entry.key;
  AddBigEndian(bytes, PageOf(entry.address), 3);
  AddBigEndian(bytes, SlotOf(entry.address), 1);
  return bytes;
}

/// Writes one level of the tree and returns, for each of its pages, the last entry and the page.
std::vector<StoredEntry> WriteLevel(JetPageSet &pages, quint32 definition, quint32 kind,
                                    const std::vector<StoredEntry> &entries,
                                    std::set<quint32> &owned) {
  std::vector<StoredEntry> parents;
  quint32 page = 0;
  int at = JetPageSize;
  for (const StoredEntry &entry : entries) {
    QByteArray bytes = entry.bytes;
    if (kind == NodePage) AddBigEndian(bytes, entry.page, 4);
    if (at + bytes.size() > JetPageSize) {
      const quint32 previous = page;
      page = pages.Append();
      owned.insert(page);
      Put16(pages.At(page), 0, kind);
      Put32(pages.At(page), 4, definition);
      Put32(pages.At(page), PreviousAt, previous);
      if (previous != 0) Put32(pages.At(previous), NextAt, page);
      parents.push_back({{}, page});
      at = EntriesAt;
    }
    pages.At(page).replace(at, bytes.size(), bytes);
    at += static_cast<int>(bytes.size());
    SetBitAt(pages.At(page), EndMaskAt, at - EntriesAt);
    Put16(pages.At(page), 2, JetPageSize - at);
    parents.back().bytes = entry.bytes;
  }
  return parents;
}

}  // namespace

QByteArray IndexKey(const Cell &cell) {
  if (std::holds_alternative<std::monostate>(cell)) return QByteArray(1, '\0');
  QByteArray key(1, '\x7F');
  if (const auto *number = std::get_if<qint32>(&cell)) {
    AddBigEndian(key, static_cast<quint32>(*number) ^ 0x80000000, 4);
  } else if (const auto *text = std::get_if<QString>(&cell)) {
    for (const QChar character : text->toCaseFolded()) AddBigEndian(key, character.unicode(), 2);
    AddBigEndian(key, 0, 2);
  }
  return key;
}

WrittenIndex WriteIndex(JetPageSet &pages, quint32 definition,
                        const std::vector<IndexEntry> &entries) {
  std::vector<StoredEntry> level;
  level.reserve(entries.size());
  for (const IndexEntry &entry : entries) level.push_back({EntryBytes(entry), 0});
  std::sort(level.begin(), level.end(), [](const StoredEntry &left, const StoredEntry &right) {
    return std::lexicographical_compare(
        left.bytes.begin(), left.bytes.end(), right.bytes.begin(), right.bytes.end(),
        [](char a, char b) { return static_cast<uchar>(a) < static_cast<uchar>(b); });
  });
  WrittenIndex written;
  quint32 kind = LeafPage;
  do {
    level = WriteLevel(pages, definition, kind, level, written.owned);
    kind = NodePage;
  } while (level.size() > 1);
  if (level.empty()) {
    written.first = pages.Append();
    written.owned.insert(written.first);
    Put16(pages.At(written.first), 0, LeafPage);
    Put16(pages.At(written.first), 2, JetPageSize - EntriesAt);
    Put32(pages.At(written.first), 4, definition);
  } else {
    written.first = level.front().page;
  }
  return written;
}

}  // namespace velor::fixture
