// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/ElementPlace.h"

namespace velor {

class SourceControl;

/// Line and column of a source control's caret, from 0, columns in UTF-16 code units.
struct SourceCaret {
  int line = 0;
  int column = 0;

  bool operator==(const SourceCaret &) const = default;
};

SourceCaret CaretOf(const SourceControl &source);

/// Puts the caret to the first of the places that the source has, and scrolls it to the middle of
/// the view. Does nothing where the source has none of them.
void ShowPlaceIn(SourceControl &source, const ElementPlaces &places);

/// The place of the caret, relative to the elements around it in the source.
ElementPlaces CaretPlacesOf(const SourceControl &source);

}  // namespace velor
