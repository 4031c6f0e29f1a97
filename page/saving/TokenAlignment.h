// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "page/text/HtmlTokens.h"

#include <cstdint>
#include <vector>

namespace velor {

/// A token's number as the place in a list.
inline std::size_t Index(std::int32_t number) {
  return static_cast<std::size_t>(number);
}

/// Which tokens of two texts are the same: for each token of one its number in the other, -1 for
/// none. Counterparts come in the same order on both sides. Two tags of one name with different
/// attributes may be counterparts as well; their keys differ then.
struct TokenAlignment {
  std::vector<std::int32_t> toOther;    ///< by number in the first text
  std::vector<std::int32_t> fromOther;  ///< by number in the second text
};

/// The number of equal strong tokens in a row after which two texts count as in step again: few for
/// a page and its own serialisation, which never move far apart; more for an edit, which may have
/// repeated what stands beside it.
enum class InStep : int { WithSerialisation = 8, WithEdit = 24 };

/// Aligns two texts by Myers' difference algorithm, one stretch that differs at a time. Time grows
/// with the lengths, and with the square of the differences within a stretch, which is bounded.
TokenAlignment AlignTokens(const std::vector<HtmlToken> &one, const std::vector<HtmlToken> &other,
                           InStep inStep);

}  // namespace velor
