// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <vector>

namespace velor {

/// Tells whether text may stand behind the tags of a page that it was given so far, in order. Text
/// may not stand between the parts of a table (in TABLE, TBODY, TR and the like, outside of cells
/// and captions): a parser moves it before the table. Names are HtmlNameKey's.
class TextPlaces {
 public:
  void StartTag(std::uint32_t name);
  void EndTag(std::uint32_t name);

  /// Whether the place behind the last tag is between the parts of a table.
  bool IsBetweenTableParts() const;

 private:
  struct Table {
    bool isInCell = false;
    /// Number of open elements between the parts: a parser moves them with their text.
    int misplaced = 0;
  };
  std::vector<Table> tables_;  ///< the innermost last
};

}  // namespace velor
