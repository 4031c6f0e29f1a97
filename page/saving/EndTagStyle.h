// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "page/saving/PageEdits.h"

#include <cstdint>
#include <functional>
#include <optional>

namespace velor {

/// What an author did with an end tag of a serialisation; nothing for one of no author's.
using EndTagReader = std::function<std::optional<bool>(std::int32_t)>;

/// Whether the end tag `number` of a serialisation is left out in the way of the page: a parser
/// takes what follows for the element's end, and the nearest end tag of its kind, those before it
/// first, is one that `isWritten` says false of.
bool IsLeftOut(const TokenText &serialisation, std::int32_t number, const EndTagReader &isWritten);

}  // namespace velor
