// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <vector>

namespace velor {

/// Follows a page's tags, in order, to tell where text may stand. Between the parts of a table (in
/// TABLE, TBODY, TR and the like, outside of cells and captions) it may not: a parser moves it
/// before the table. Names are HtmlNameKey's.
class TextPlaces {
 public:
  void StartTag(std::uint32_t name);
  void EndTag(std::uint32_t name);

  /// Whether the place behind the last tag is between the parts of a table.
  bool IsBetweenTableParts() const;

 private:
  struct Table {
    bool isInCell = false;
    /// Open elements that may not stand in a table: their text goes with them.
    int misplaced = 0;
  };
  std::vector<Table> tables_;  ///< the innermost last
};

}  // namespace velor
