// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "page/saving/PageEdits.h"

#include <cstdint>
#include <vector>

namespace velor {

/// Whether a token is a tag of HTML, HEAD or BODY.
bool IsFrameTag(const HtmlToken &token);

/// Finds the tokens that the parser moved, such as text hoisted out of a table. The result has for
/// each token of `before` the number of its counterpart in `source`, -1 for one that did not move.
/// Only tokens without a counterpart in `alignment` are looked at. Start tags, comments and long
/// words are matched by themselves; short tokens only beside one that was matched.
std::vector<std::int32_t> FindMovedTokens(const TokenText &source, const TokenText &before,
                                          const TokenAlignment &alignment);

}  // namespace velor
