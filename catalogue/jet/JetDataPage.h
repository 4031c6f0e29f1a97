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
  /// Whether a row's home slot is here: it is neither deleted nor the body of a row that moved
  /// here.
  bool IsHome(int slot) const { return !(Flags(slot) & jet::SlotMoved); }
  JetBytes Row(int slot) const;
  /// Bytes between slots and rows.
  int FreeBytes() const;

 private:
  int Begin(int slot) const;
  int End(int slot) const;

  const jet::Page *page_;
};

/// A row of a data page, with the page that holds its bytes.
struct JetFoundRow {
  JetPlace place;
  std::shared_ptr<const jet::Page> page;
  quint16 flags = 0;
  JetBytes bytes;
};

/// Finds the row at a place. `page` is null where there is none, or the page is no sound data page.
JetFoundRow FindJetRow(JetPager &pager, const JetPlace &place);

/// Reads a place (row u8, page u24), as pointers to moved rows and long values have it.
JetPlace PlaceAt(const unsigned char *bytes);
/// Writes a place in the same form.
void PutPlace(unsigned char *bytes, const JetPlace &place);

// Changes to a sound data page, its count of free bytes included. The caller has made sure that
// there is room.

/// Replaces flags and bytes of a slot's row.
void ReplaceJetRow(jet::Page &page, int slot, quint16 flags, JetBytes bytes);
/// Adds a row; returns its slot.
int AddJetRow(jet::Page &page, quint16 flags, JetBytes bytes);
/// Makes a page of zeros an empty data page of a table.
void InitializeDataPage(jet::Page &page, jet::PageNumber definition);

}  // namespace velor
