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

/// The patches that give the source's tag the attributes that the document has now. Unchanged
/// attributes keep their letter case, quotes and place; a changed value keeps its quotes, or the
/// lack of them where the new value needs none. `offset`: where the tag begins in the source.
std::vector<TextPatch> PatchTag(const TagTexts &texts, qsizetype offset);

}  // namespace velor
