// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "catalogue/jet/JetBytes.h"
#include "catalogue/jet/JetFormat.h"
#include "catalogue/jet/JetPager.h"
#include "catalogue/jet/JetTable.h"

#include <QByteArray>

#include <memory>

namespace velor {

/// Reads the slots of a data page.
class JetSlots {
 public:
  explicit JetSlots(const jet::Page &page) : page_(&page) {}

  /// Whether the slots fit on the page and every row lies below the one before it.
  bool AreSound() const;

  int Count() const { return jet::Get<quint16>(page_->data() + jet::DataRows); }
  quint16 Flags(int slot) const;
  /// A row that people see: neither deleted nor the body of a row that has moved here.
  bool IsHome(int slot) const { return !(Flags(slot) & jet::SlotMoved); }
  JetBytes Row(int slot) const;
  /// Bytes between slots and rows.
  int Free() const;

 private:
  int Begin(int slot) const;
  int End(int slot) const;

  const jet::Page *page_;
};

/// The row at a place of a data page and what keeps its bytes alive.
struct JetFoundRow {
  JetPlace place;
  std::shared_ptr<const jet::Page> page;
  quint16 flags = 0;
  JetBytes bytes;
};

/// Nothing (page is null) where there is no such row, or the page is no sound data page.
JetFoundRow FindJetRow(JetPager &pager, const JetPlace &place);

/// The place that the first four bytes of a moved row, or a long value, name.
JetPlace PlaceAt(const unsigned char *bytes);
void PutPlace(unsigned char *bytes, const JetPlace &place);

/// Changes to a sound data page; the caller has made sure that there is room. The free count is
/// brought up to date.
void ReplaceJetRow(jet::Page &page, int slot, quint16 flags, JetBytes bytes);
/// Returns the new slot.
int AddJetRow(jet::Page &page, quint16 flags, JetBytes bytes);
/// An empty data page that belongs to a table.
void InitializeDataPage(jet::Page &page, jet::PageNumber definition);

}  // namespace velor
