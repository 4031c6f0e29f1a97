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

/// A set of pages, kept in a row of a data page.
class JetUsageMap {
 public:
  /// `beyond` is what a page that the map does not reach counts as.
  JetUsageMap(JetPager &pager, const JetPlace &row, JetBit beyond);

  /// The pages in the set, as far as the file has them. A map that names others is damaged, unless
  /// it counts the pages beyond it as set.
  JetPages Pages() const;

  /// Makes the map larger where it must be. Raises DeviceIoError for a damaged map.
  void Put(jet::PageNumber number, JetBit bit);

 private:
  JetFoundRow Row() const;
  bool PutInline(jet::PageNumber number, JetBit bit);
  void MakePaged();
  jet::PageNumber AddMapPage(jet::PageNumber group);

  JetPager &pager_;
  JetPlace row_;
  JetBit beyond_;
};

/// A new page of zeros at the end of the file, marked as taken.
jet::PageNumber AppendJetPage(JetPager &pager);

}  // namespace velor
