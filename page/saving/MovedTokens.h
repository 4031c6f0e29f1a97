// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "page/saving/PageEdits.h"

#include <cstdint>
#include <vector>

namespace velor {

/// Whether a token is a tag of HTML, HEAD or BODY.
bool IsFrameTag(const HtmlToken &token);

/// Finds the tokens that the parser moved, such as text hoisted out of a table: by their numbers in
/// `before` the numbers in `source`, -1 for those that did not move. Only tokens without a
/// counterpart in `alignment` are looked at. Start tags, comments and long words tell where a
/// stretch of tokens went; short tokens beside them count as moved along.
std::vector<std::int32_t> FindMovedTokens(const TokenText &source, const TokenText &before,
                                          const TokenAlignment &alignment);

}  // namespace velor
