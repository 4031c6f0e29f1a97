// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/ElementPlace.h"

namespace velor {

class SourceControl;

/// Line and column of a source control's caret.
struct SourceCaret {
  int line = 0;
  int column = 0;

  bool operator==(const SourceCaret &) const = default;
};

SourceCaret CaretOf(const SourceControl &source);

/// Puts the caret to the first of the places that the source has, in the middle of what is seen;
/// without one it stays.
void ShowPlaceIn(SourceControl &source, const ElementPlaces &places);

/// The place that the caret stands at.
ElementPlaces CaretPlacesOf(const SourceControl &source);

}  // namespace velor
