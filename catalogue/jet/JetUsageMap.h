// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "catalogue/jet/JetDataPage.h"
#include "catalogue/jet/JetPager.h"
#include "catalogue/jet/JetTable.h"

#include <vector>

namespace velor {

enum class JetBit { Clear, Set };
enum class JetSoundness { Sound, Damaged };

struct JetPages {
  /// In rising order.
  std::vector<jet::PageNumber> numbers;
  JetSoundness soundness = JetSoundness::Sound;
};

/// A set of page numbers, stored as a bitmap in a row of a data page.
class JetUsageMap {
 public:
  /// `beyond`: whether pages behind the end of the bitmap are in the set.
  JetUsageMap(JetPager &pager, const JetPlace &row, JetBit beyond);

  /// The pages of the file in the set. A map that has pages beyond the file's end is damaged,
  /// unless `beyond` is Set.
  JetPages Pages() const;

  /// Sets or clears a page, in a larger map where it must be. Raises DeviceIoError for a damaged
  /// map.
  void Put(jet::PageNumber number, JetBit bit);

 private:
  JetFoundRow Row() const;
  /// Puts a bit into an inline map; false where the map is of the other kind or does not reach the
  /// page.
  bool PutInline(jet::PageNumber number, JetBit bit);
  /// Turns an inline map into one with pages of its own.
  void MakePaged();
  jet::PageNumber AddMapPage(jet::PageNumber group);

  JetPager &pager_;
  JetPlace row_;
  JetBit beyond_;
};

/// A new page of zeros at the end of the file, marked as taken.
jet::PageNumber AppendJetPage(JetPager &pager);

}  // namespace velor
