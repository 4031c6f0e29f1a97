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

/// Puts the caret to the first of the places of the start that the source has, selects to that of
/// the end where there is one, and scrolls it to the middle of the view. Does nothing where the
/// source has no start.
void ShowStretchIn(SourceControl &source, const ElementStretch &stretch);

/// The places of the selection's ends, or of the caret, relative to the elements around them in the
/// source.
ElementStretch SelectedPlacesOf(const SourceControl &source);

}  // namespace velor
