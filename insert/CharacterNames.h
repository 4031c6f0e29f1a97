// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <vector>

/// The characters of Unicode that can stand in a text, and their names (The Unicode Standard,
/// chapter 4.8).
namespace velor {

/// A block of Unicode, with its first and last code point.
struct CharacterBlock {
  QString name;
  char32_t first;
  char32_t last;
};

/// The blocks that have such characters, in their order.
const std::vector<CharacterBlock> &CharacterBlocks();

/// The characters of a block.
std::vector<char32_t> CharactersOf(const CharacterBlock &block);

/// "EM DASH"; "<...>" with the code point for one without a name.
QString CharacterName(char32_t character);

/// The characters that are meant by one character itself, by a code point ("2014", "U+2014"), or by
/// words of their names, at most `most`: those named so come first, then those whose names begin
/// so.
std::vector<char32_t> FindCharacters(const QString &words, std::size_t most);

}  // namespace velor
