// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "page/saving/PageEdits.h"

#include <cstdint>
#include <functional>
#include <optional>

namespace velor {

/// Whether an author wrote a tag of a serialisation; nothing for one of no author's.
using TagReader = std::function<std::optional<bool>(std::int32_t)>;

/// Whether the tag `number` of a serialisation is left out in the way of the page: a parser implies
/// it there, and the nearest tag of its kind, those before it first, is one that was not written.
/// Without any of its kind end tags are as other ones, and tags of TBODY are left out.
bool IsTagLeftOut(const TokenText &serialisation, std::int32_t number, const TagReader &isWritten);

}  // namespace velor
