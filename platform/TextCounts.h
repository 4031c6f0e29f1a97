// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <optional>

namespace velor {

struct TextCount {
  int words = 0;
  int characters = 0;  ///< code points, blanks between words included

  bool operator==(const TextCount &) const = default;
};

/// How much text a page has as it reads: no markup, comments, scripts or server code.
struct TextCounts {
  TextCount page;
  std::optional<TextCount> selection;  ///< nothing for a caret
};

using TextCounted = std::function<void(const TextCounts &)>;

}  // namespace velor
