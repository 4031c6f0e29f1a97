// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/jet/JetCheckedPages.h"

#include "tests/support/jet/JetPageSet.h"

namespace velor::fixture {

namespace {

constexpr int SlotsAt = 14;
constexpr quint32 GlobalMap = 1 << 8;  // row 0 of page 1

RowState StateOf(quint16 slot) {
  switch (slot & 0xC000) {
    case 0x4000:
      return RowState::Pointer;
    case 0x8000:
      return RowState::MovedHere;
    case 0xC000:
      return RowState::Deleted;
    default:
      return RowState::Live;
  }
}

}  // namespace

JetCheckedPages::JetCheckedPages(const QByteArray &file) {
  if (file.isEmpty() || file.size() % JetPageSize != 0)
    Complain(QStringLiteral("the file is %1 bytes, no whole number of pages").arg(file.size()));
  if (file.size() < 3 * JetPageSize ||
      !file.startsWith(QByteArray("\0\1\0\0Standard Jet DB", 19)) || file[0x14] != 1) {
    Complain(QStringLiteral("the first page is not that of a Jet 4 file"));
    return;
  }
  const QByteArray plain = WithPagesEncoded(file, FileKeyOf(file));
  for (qsizetype at = 0; at + JetPageSize <= plain.size(); at += JetPageSize)
    pages_.push_back(plain.mid(at, JetPageSize));
  for (quint32 page = 1; page < Count(); ++page)
    if (TypeOf(page) == 1) CheckSlots(page);
  Use(0, QStringLiteral("the header"));
  // A bit beyond the end of the file says that the page to come is free.
  free_ = ReadMap(RowBytes(GlobalMap, QStringLiteral("the global map")),
                  QStringLiteral("the global map"));
  Use(1, QStringLiteral("the global map"));
  for (quint32 page = 1; page < Count(); ++page)
    if (!IsFree(page) && (TypeOf(page) < 1 || TypeOf(page) > 5))
      Complain(QStringLiteral("page %1 is in use and of type %2").arg(page).arg(TypeOf(page)));
}

const std::vector<CheckedRow> &JetCheckedPages::RowsOf(quint32 page) const {
  static const std::vector<CheckedRow> none;
  const auto found = rows_.find(page);
  return found == rows_.end() ? none : found->second;
}

QByteArray JetCheckedPages::RowBytes(quint32 address, const QString &whose) {
  const std::vector<CheckedRow> &rows = RowsOf(PageOf(address));
  if (SlotOf(address) >= static_cast<int>(rows.size()) ||
      rows[SlotOf(address)].state == RowState::Deleted) {
    Complain(QStringLiteral("%1: no row %2 on page %3")
                 .arg(whose)
                 .arg(SlotOf(address))
                 .arg(PageOf(address)));
    return {};
  }
  const CheckedRow &row = rows[SlotOf(address)];
  return At(PageOf(address)).mid(row.start, row.end - row.start);
}

std::set<quint32> JetCheckedPages::MapMembers(quint32 address, const QString &whose) {
  std::set<quint32> members = ReadMap(RowBytes(address, whose), whose);
  Use(PageOf(address), QStringLiteral("usage maps"));
  if (!members.empty() && *members.rbegin() >= Count()) {
    Complain(QStringLiteral("%1 holds page %2, which the file has not")
                 .arg(whose)
                 .arg(*members.rbegin()));
    members.erase(members.lower_bound(Count()), members.end());
  }
  return members;
}

std::set<quint32> JetCheckedPages::ReadMap(const QByteArray &map, const QString &whose) {
  std::set<quint32> members;
  const auto addBits = [&members](const QByteArray &bytes, qsizetype start, quint32 first) {
    for (quint32 bit = 0; bit < 8 * (bytes.size() - start); ++bit)
      if (BitAt(bytes, start, bit)) members.insert(first + bit);
  };
  if (map.size() < 5 || map[0] > 1 || map[0] < 0) {
    Complain(QStringLiteral("%1 is no usage map").arg(whose));
  } else if (map[0] == 0) {
    addBits(map, 5, Get32(map, 1));
  } else {
    for (quint32 part = 0; 5 + 4 * part <= map.size(); ++part) {
      const quint32 page = Get32(map, 1 + 4 * part);
      if (page == 0) continue;
      if (page >= Count() || TypeOf(page) != 5) {
        Complain(QStringLiteral("%1 points to page %2, no bitmap page").arg(whose).arg(page));
        continue;
      }
      Use(page, QStringLiteral("the bitmap of ") + whose);
      addBits(At(page), 4, part * BitmapPageReach);
    }
  }
  return members;
}

void JetCheckedPages::Use(quint32 page, const QString &purpose) {
  if (IsFree(page))
    Complain(QStringLiteral("page %1 is free and in use for %2").arg(page).arg(purpose));
  const auto [known, added] = purposes_.emplace(page, purpose);
  if (!added && known->second != purpose)
    Complain(
        QStringLiteral("page %1 is used for %2 and for %3").arg(page).arg(known->second, purpose));
}

void JetCheckedPages::CheckSlots(quint32 number) {
  const QByteArray &page = At(number);
  const int count = Get16(page, 12);
  int end = JetPageSize;
  std::vector<CheckedRow> rows;
  for (int slot = 0; slot < count; ++slot) {
    const int limit = SlotsAt + 2 * count;
    const quint16 value = count > 255 ? quint16{0} : Get16(page, SlotsAt + 2 * slot);
    const int start = value & 0x1FFF;
    if (count > 255 || start < limit || start > end || (value & 0x2000) != 0) {
      Complain(QStringLiteral("page %1: slot %2 of %3 holds %4")
                   .arg(number)
                   .arg(slot)
                   .arg(count)
                   .arg(value, 4, 16));
      return;
    }
    if (StateOf(value) == RowState::Pointer && end - start < 4)
      Complain(QStringLiteral("page %1: the pointer in slot %2 is short").arg(number).arg(slot));
    rows.push_back({start, end, StateOf(value)});
    end = start;
  }
  const int free = end - SlotsAt - 2 * count;
  if (Get16(page, 2) != free)
    Complain(QStringLiteral("page %1 says %2 bytes are free, but %3 are")
                 .arg(number)
                 .arg(Get16(page, 2))
                 .arg(free));
  rows_[number] = rows;
}

}  // namespace velor::fixture
