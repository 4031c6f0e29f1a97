// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "page/saving/ByteSplice.h"
#include "page/saving/TagSpelling.h"

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
/// lack of them where the new value needs none; new attributes are written in `spelling`. `offset`:
/// where the tag begins in the source. `maskStem`: as for Spelled.
std::vector<TextPatch> PatchTag(const TagTexts &texts, qsizetype offset,
                                const TagSpelling &spelling, QStringView maskStem);

}  // namespace velor
