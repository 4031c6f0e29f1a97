// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tests/support/jet/JetBytes.h"
#include "tests/support/jet/JetFixture.h"

#include <set>
#include <vector>

namespace velor::fixture {

inline constexpr quint16 MovedAway = 0x4000;          ///< a home slot that holds a pointer
inline constexpr quint16 MovedHere = 0x8000;          ///< the moved row itself
inline constexpr quint16 DeletedRow = 0xC000;         ///< both: nothing
inline constexpr quint32 MemoPageOwner = 0x4C41564C;  ///< "LVAL" in a memo page's owner field
inline constexpr quint32 BitmapReach = 512;           ///< pages that an inline bitmap covers
inline constexpr quint32 BitmapPageReach = 32736;     ///< pages that a bitmap page covers

/// The pages of a file in the making.
class JetPageSet {
 public:
  quint32 Append();
  quint32 Count() const { return static_cast<quint32>(pages_.size()); }
  QByteArray &At(quint32 page) { return pages_[page]; }
  QByteArray Joined() const;

  /// A page of rows that belongs to a definition (or to MemoPageOwner, or 0 for usage maps).
  quint32 AppendRowPage(quint32 owner);
  int FreeBytes(quint32 page) const;
  /// Adds a row with its slot flags and returns the row's address.
  quint32 AddRow(quint32 page, const QByteArray &row, quint16 flags = 0);
  void AddDeletedRow(quint32 page);
  /// Writes over a row in place; the bytes must not be longer than the row.
  void OverwriteRow(quint32 address, const QByteArray &bytes);
  int RowStart(quint32 address) const;

  /// Room for a usage map, on the page given; its content comes later.
  quint32 AddUsageMap(quint32 page);
  void FillUsageMap(quint32 address, const std::set<quint32> &members, MapForm form);

 private:
  void FillWithBitmapPages(quint32 address, const std::set<quint32> &members);
  std::vector<QByteArray> pages_;
};

}  // namespace velor::fixture
