// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/jet/JetDataPage.h"

#include <algorithm>
#include <cstring>

namespace velor {

namespace {

unsigned char *SlotAt(jet::Page &page, int slot) {
  return page.data() + jet::DataSlots + jet::SlotBytes * slot;
}

void PutFree(jet::Page &page) {
  jet::Put(page.data() + jet::DataFree, static_cast<quint16>(JetSlots(page).FreeBytes()));
}

}  // namespace

quint16 JetSlots::Flags(int slot) const {
  const auto value = jet::Get<quint16>(page_->data() + jet::DataSlots + jet::SlotBytes * slot);
  return value & jet::SlotDeleted;
}

int JetSlots::Begin(int slot) const {
  return jet::Get<quint16>(page_->data() + jet::DataSlots + jet::SlotBytes * slot) &
         jet::SlotOffset;
}

int JetSlots::End(int slot) const {
  return slot == 0 ? jet::PageBytes : Begin(slot - 1);
}

bool JetSlots::AreSound() const {
  if (Count() > jet::MaximumSlots) return false;
  for (int slot = 0; slot < Count(); ++slot) {
    if (Begin(slot) > End(slot)) return false;
  }
  return FreeBytes() >= 0;
}

JetBytes JetSlots::Row(int slot) const {
  return {page_->data() + Begin(slot), static_cast<std::size_t>(End(slot) - Begin(slot))};
}

int JetSlots::FreeBytes() const {
  return End(Count()) - jet::DataSlots - jet::SlotBytes * Count();
}

JetFoundRow FindJetRow(JetPager &pager, const JetPlace &place) {
  auto page = pager.Read(place.page);
  if (!page || (*page)[0] != static_cast<unsigned char>(jet::PageType::Data)) return {};
  const JetSlots slots(*page);
  if (!slots.AreSound() || place.slot >= slots.Count()) return {};
  return {place, page, slots.Flags(place.slot), slots.Row(place.slot)};
}

JetPlace PlaceAt(const unsigned char *bytes) {
  return {jet::GetPage24(bytes + 1), bytes[0]};
}

void PutPlace(unsigned char *bytes, const JetPlace &place) {
  jet::Put(bytes, static_cast<quint32>(place.page << 8 | static_cast<quint32>(place.slot)));
}

void ReplaceJetRow(jet::Page &page, int slot, quint16 flags, JetBytes bytes) {
  const JetSlots slots(page);
  const JetBytes old = slots.Row(slot);
  unsigned char *end = page.data() + (old.data() - page.data()) + old.size();
  const auto shift =
      static_cast<std::ptrdiff_t>(old.size()) - static_cast<std::ptrdiff_t>(bytes.size());
  // Everything below the row moves by the difference in length.
  unsigned char *lowest =
      page.data() + jet::DataSlots + jet::SlotBytes * slots.Count() + slots.FreeBytes();
  std::memmove(lowest + shift, lowest, static_cast<std::size_t>(end - old.size() - lowest));
  std::copy(bytes.begin(), bytes.end(), end - bytes.size());
  for (int index = slot; index < slots.Count(); ++index) {
    const auto value = jet::Get<quint16>(SlotAt(page, index));
    const quint16 kept = index == slot ? flags : static_cast<quint16>(value & jet::SlotDeleted);
    const auto offset = static_cast<quint16>((value & jet::SlotOffset) + shift);
    jet::Put(SlotAt(page, index), static_cast<quint16>(kept | offset));
  }
  PutFree(page);
}

int AddJetRow(jet::Page &page, quint16 flags, JetBytes bytes) {
  const JetSlots slots(page);
  const int slot = slots.Count();
  const auto offset = static_cast<quint16>(jet::DataSlots + jet::SlotBytes * slot +
                                           slots.FreeBytes() - static_cast<int>(bytes.size()));
  std::copy(bytes.begin(), bytes.end(), page.begin() + offset);
  jet::Put(SlotAt(page, slot), static_cast<quint16>(flags | offset));
  jet::Put(page.data() + jet::DataRows, static_cast<quint16>(slot + 1));
  PutFree(page);
  return slot;
}

void InitializeDataPage(jet::Page &page, jet::PageNumber definition) {
  page.fill(0);
  page[0] = static_cast<unsigned char>(jet::PageType::Data);
  page[1] = 1;
  jet::Put(page.data() + jet::DataOwner, definition);
  PutFree(page);
}

}  // namespace velor
