// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/jet/JetUsageMap.h"

#include "platform/RuntimeError.h"
#include "platform/Words.h"

#include <algorithm>

namespace velor {

namespace {

constexpr std::size_t PageNumberBytes = sizeof(quint32);

[[noreturn]] void RaiseDamaged() {
  throw RuntimeError::Of(ErrorNumber::DeviceIoError, QStringLiteral("Database.Execute"),
                         Words::tr("a map of the database's pages is damaged"));
}

bool IsMapPage(const jet::Page &page) {
  return page[0] == static_cast<unsigned char>(jet::PageType::UsageMap);
}

void PutBit(unsigned char &byte, jet::PageNumber number, JetBit bit) {
  const auto mask = static_cast<unsigned char>(1 << number % 8);
  byte = static_cast<unsigned char>(bit == JetBit::Set ? byte | mask : byte & ~mask);
}

void CollectBits(JetBytes bits, jet::PageNumber first, std::vector<jet::PageNumber> &pages) {
  for (std::size_t byte = 0; byte < bits.size(); ++byte) {
    for (unsigned bit = 0; bits[byte] >> bit; ++bit) {
      if (bits[byte] >> bit & 1) {
        pages.push_back(first + static_cast<jet::PageNumber>(byte) * 8 + bit);
      }
    }
  }
}

std::size_t GroupCount(JetBytes row) {
  return (row.size() - jet::PagedMapPointers) / PageNumberBytes;
}

jet::PageNumber GroupPage(JetBytes row, std::size_t group) {
  return jet::Get<quint32>(row.data() + jet::PagedMapPointers + group * PageNumberBytes);
}

}  // namespace

JetUsageMap::JetUsageMap(JetPager &pager, const JetPlace &row, JetBit beyond)
    : pager_(pager), row_(row), beyond_(beyond) {}

/// A sound row of either kind; its page is nullptr otherwise.
JetFoundRow JetUsageMap::Row() const {
  JetFoundRow found = FindJetRow(pager_, row_);
  if (!found.page || found.flags != 0 || found.bytes.size() < jet::InlineMapBits ||
      found.bytes[0] > jet::PagedMap) {
    return {};
  }
  return found;
}

JetPages JetUsageMap::Pages() const {
  const JetFoundRow row = Row();
  if (!row.page) return {{}, JetSoundness::Damaged};
  JetPages pages;
  if (row.bytes[0] == jet::InlineMap) {
    CollectBits(row.bytes.subspan(jet::InlineMapBits),
                jet::Get<quint32>(row.bytes.data() + jet::InlineMapStart), pages.numbers);
  } else {
    for (std::size_t group = 0; group < GroupCount(row.bytes); ++group) {
      const jet::PageNumber number = GroupPage(row.bytes, group);
      if (number == 0) continue;
      const auto page = pager_.Read(number);
      if (!page || !IsMapPage(*page)) {
        pages.soundness = JetSoundness::Damaged;
        continue;
      }
      CollectBits(JetBytes(*page).subspan(jet::MapPageBits),
                  static_cast<jet::PageNumber>(group) * jet::PagesPerMapPage, pages.numbers);
    }
  }
  const auto outside = std::erase_if(
      pages.numbers, [this](jet::PageNumber number) { return number >= pager_.PageCount(); });
  if (outside > 0 && beyond_ == JetBit::Clear) pages.soundness = JetSoundness::Damaged;
  return pages;
}

bool JetUsageMap::PutInline(jet::PageNumber number, JetBit bit) {
  const JetFoundRow row = Row();
  const auto first = jet::Get<quint32>(row.bytes.data() + jet::InlineMapStart);
  const std::size_t reach = (row.bytes.size() - jet::InlineMapBits) * 8;
  if (number < first || number - first >= reach) return false;
  const auto at = static_cast<std::size_t>(row.bytes.data() - row.page->data()) +
                  jet::InlineMapBits + (number - first) / 8;
  PutBit(pager_.Modify(row_.page)[at], number - first, bit);
  return true;
}

/// Pages that the file has and the inline map did not reach stay out of the set: a free page that
/// is not known as one is harmless.
void JetUsageMap::MakePaged() {
  const JetPages pages = Pages();
  if (pages.soundness == JetSoundness::Damaged) RaiseDamaged();
  const JetFoundRow row = Row();
  const auto at = row.bytes.data() - row.page->data();
  jet::Page &page = pager_.Modify(row_.page);
  std::fill_n(page.begin() + at, row.bytes.size(), 0);
  page[static_cast<std::size_t>(at)] = jet::PagedMap;
  if (beyond_ == JetBit::Set) {
    const jet::PageNumber existing = pager_.PageCount();
    for (jet::PageNumber number = 0; number < existing; ++number) Put(number, JetBit::Clear);
  }
  for (const jet::PageNumber number : pages.numbers) Put(number, JetBit::Set);
}

jet::PageNumber JetUsageMap::AddMapPage(jet::PageNumber group) {
  // The map of all pages cannot ask itself for a page before it has one.
  const jet::PageNumber number = beyond_ == JetBit::Set ? pager_.Append() : AppendJetPage(pager_);
  jet::Page &page = pager_.Modify(number);
  page.fill(beyond_ == JetBit::Set ? 0xFF : 0);
  std::fill_n(page.begin(), jet::MapPageBits, 0);
  page[0] = static_cast<unsigned char>(jet::PageType::UsageMap);
  page[1] = 1;
  const JetFoundRow row = Row();
  const auto at = static_cast<std::size_t>(row.bytes.data() - row.page->data()) +
                  jet::PagedMapPointers + group * PageNumberBytes;
  jet::Put(pager_.Modify(row_.page).data() + at, number);
  if (beyond_ == JetBit::Set) Put(number, JetBit::Clear);
  return number;
}

void JetUsageMap::Put(jet::PageNumber number, JetBit bit) {
  JetFoundRow row = Row();
  if (!row.page) RaiseDamaged();
  if (row.bytes[0] == jet::InlineMap) {
    if (PutInline(number, bit) || bit == beyond_) return;
    MakePaged();
    row = Row();
  }
  const jet::PageNumber group = number / jet::PagesPerMapPage;
  if (group >= GroupCount(row.bytes)) RaiseDamaged();
  jet::PageNumber mapPage = GroupPage(row.bytes, group);
  if (mapPage == 0) {
    if (bit == beyond_) return;
    mapPage = AddMapPage(group);
  }
  const auto page = pager_.Read(mapPage);
  if (!page || !IsMapPage(*page)) RaiseDamaged();
  const jet::PageNumber inGroup = number % jet::PagesPerMapPage;
  PutBit(pager_.Modify(mapPage)[jet::MapPageBits + inGroup / 8], inGroup, bit);
}

jet::PageNumber AppendJetPage(JetPager &pager) {
  const jet::PageNumber number = pager.Append();
  JetUsageMap(pager, {jet::GlobalMapPage, 0}, JetBit::Set).Put(number, JetBit::Clear);
  return number;
}

}  // namespace velor
