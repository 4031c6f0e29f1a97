// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "page/saving/PageEdits.h"

#include <cstdint>
#include <vector>

namespace velor {

/// An element of a serialisation, by the numbers of its two tags.
struct ElementTags {
  std::int32_t start = 0;
  std::int32_t end = 0;
};

/// The number of the end tag that closes the element whose start tag is `start`; -1 for none.
std::int32_t EndTagOf(const TokenText &text, std::int32_t start);

/// The elements that hold all of the tokens [from, to), innermost first.
std::vector<ElementTags> EnclosingElements(const TokenText &text, std::int32_t from,
                                           std::int32_t to);

}  // namespace velor
