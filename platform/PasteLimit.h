// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace velor {

/// Most tags, end tags included, that TextRange::PasteHTML puts into a page. The engine shows so
/// many in seconds; for millions it takes minutes and all memory, and nobody could stop it.
inline constexpr int MostPastedTags = 400'000;

}  // namespace velor
