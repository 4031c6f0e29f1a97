// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringView>

#include <vector>

namespace velor {

/// A character of a page's text as a parser understands it, or the two that one reference stands
/// for; line breaks are LF.
struct TextCharacter {
  char32_t first = 0;
  char32_t second = 0;   ///< 0 for none
  qsizetype length = 1;  ///< as written, UTF-16 code units

  bool Means(const TextCharacter &other) const {
    return first == other.first && second == other.second;
  }
};

/// The character that begins at an offset of the text.
TextCharacter CharacterAt(QStringView text, qsizetype at);
/// All characters of the text, in order.
std::vector<TextCharacter> CharactersOf(QStringView text);

}  // namespace velor
