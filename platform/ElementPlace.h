// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <vector>

namespace velor {

/// An element told by its name (lower case) and its number, from 0, among those of that name in
/// document order; and a place in its text, counted in UTF-16 units from its beginning with line
/// breaks as one.
struct ElementPlace {
  QString name;
  int ordinal = 0;
  int offset = 0;

  bool operator==(const ElementPlace &) const = default;
};

/// One place, told by each of the elements around it, innermost first: source and document do not
/// have every element in common.
using ElementPlaces = std::vector<ElementPlace>;

}  // namespace velor
