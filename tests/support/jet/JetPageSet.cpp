// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/jet/JetPageSet.h"

#include <map>

namespace velor::fixture {

namespace {

constexpr int UsageMapLength = 69;
constexpr int SlotsAt = 14;

}  // namespace

quint32 JetPageSet::Append() {
  pages_.emplace_back(JetPageSize, '\0');
  return Count() - 1;
}

QByteArray JetPageSet::Joined() const {
  QByteArray all;
  all.reserve(qsizetype{JetPageSize} * Count());
  for (const QByteArray &page : pages_) all += page;
  return all;
}

quint32 JetPageSet::AppendRowPage(quint32 owner) {
  const quint32 number = Append();
  QByteArray &page = At(number);
  Put16(page, 0, 0x0101);
  Put16(page, 2, JetPageSize - SlotsAt);
  Put32(page, 4, owner);
  return number;
}

int JetPageSet::FreeBytes(quint32 page) const {
  return Get16(pages_[page], 2);
}

quint32 JetPageSet::AddRow(quint32 number, const QByteArray &row, quint16 flags) {
  QByteArray &page = At(number);
  const int count = Get16(page, 12);
  Q_ASSERT(count < 255 && row.size() + 2 <= FreeBytes(number));
  const int end = count == 0 ? JetPageSize : Get16(page, SlotsAt + 2 * (count - 1)) & 0x1FFF;
  const int start = end - static_cast<int>(row.size());
  page.replace(start, row.size(), row);
  Put16(page, SlotsAt + 2 * count, static_cast<quint32>(start | flags));
  Put16(page, 12, count + 1);
  Put16(page, 2, FreeBytes(number) - static_cast<int>(row.size()) - 2);
  return RowAddress(number, count);
}

void JetPageSet::AddDeletedRow(quint32 page) {
  AddRow(page, QByteArray(), DeletedRow);
}

void JetPageSet::OverwriteRow(quint32 address, const QByteArray &bytes) {
  At(PageOf(address)).replace(RowStart(address), bytes.size(), bytes);
}

int JetPageSet::RowStart(quint32 address) const {
  return Get16(pages_[PageOf(address)], SlotsAt + 2 * SlotOf(address)) & 0x1FFF;
}

quint32 JetPageSet::AddUsageMap(quint32 page) {
  return AddRow(page, QByteArray(UsageMapLength, '\0'));
}

void JetPageSet::FillUsageMap(quint32 address, const std::set<quint32> &members, MapForm form) {
  const quint32 first = members.empty() ? 0 : *members.begin();
  const quint32 last = members.empty() ? 0 : *members.rbegin();
  if (form == MapForm::BitmapPages || last - first >= BitmapReach) {
    FillWithBitmapPages(address, members);
    return;
  }
  QByteArray map(UsageMapLength, '\0');
  Put32(map, 1, first);
  for (const quint32 member : members) SetBitAt(map, 5, member - first);
  OverwriteRow(address, map);
}

void JetPageSet::FillWithBitmapPages(quint32 address, const std::set<quint32> &members) {
  QByteArray map(UsageMapLength, '\0');
  map[0] = 1;
  std::map<quint32, quint32> bitmapPages;
  for (const quint32 member : members) {
    const quint32 part = member / BitmapPageReach;
    if (!bitmapPages.count(part)) {
      bitmapPages[part] = Append();
      Put32(map, 1 + 4 * part, bitmapPages[part]);
      Put16(At(bitmapPages[part]), 0, 0x0105);
    }
    SetBitAt(At(bitmapPages[part]), 4, member % BitmapPageReach);
  }
  OverwriteRow(address, map);
}

}  // namespace velor::fixture
