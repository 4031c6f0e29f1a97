// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <vector>

namespace velor {

/// A place in the text of an element. The element is given by its name (lower case) and its number,
/// from 0, among the elements of that name in document order; the place by its offset in the
/// element's text, in UTF-16 code units, a line break counting as one.
struct ElementPlace {
  QString name;
  int ordinal = 0;
  int offset = 0;

  bool operator==(const ElementPlace &) const = default;
};

/// One place, given relative to each of the elements around it, innermost first. Several, since the
/// parsed document can have elements that its source has not, and the other way round.
using ElementPlaces = std::vector<ElementPlace>;

/// The two ends of a selection.
struct ElementStretch {
  ElementPlaces start;
  ElementPlaces end = {};  ///< empty for a caret

  bool operator==(const ElementStretch &) const = default;
};

}  // namespace velor
