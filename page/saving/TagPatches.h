// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "page/saving/ByteSplice.h"

#include <QStringView>

#include <vector>

namespace velor {

/// One start tag: in the page's source (whose text ends with it), in the serialisation after
/// loading and in the one now.
struct TagTexts {
  QStringView source;
  QStringView before;
  QStringView now;
};

/// The patches of the source that give the tag its attributes of now, attribute by attribute: what
/// did not change keeps its letter case, quotes and place. `offset`: where the tag begins.
std::vector<TextPatch> PatchTag(const TagTexts &texts, qsizetype offset);

}  // namespace velor
