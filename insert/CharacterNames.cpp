// SPDX-License-Identifier: GPL-3.0-or-later
#include "insert/CharacterNames.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <array>
#include <unicode/uchar.h>

namespace velor {

namespace {

constexpr char32_t LastCodePoint = UCHAR_MAX_VALUE;
constexpr std::size_t LongestName = 128;

/// Neither a control character nor half of a pair, private or not assigned.
bool CanStandInText(char32_t character) {
  const auto point = static_cast<UChar32>(character);
  return u_isprint(point) != 0 && u_charType(point) != U_PRIVATE_USE_CHAR;
}

std::vector<CharacterBlock> ReadBlocks() {
  std::vector<CharacterBlock> blocks;
  UBlockCode last = UBLOCK_NO_BLOCK;
  bool isUsable = false;
  for (char32_t character = 0; character <= LastCodePoint; ++character) {
    const UBlockCode code = ublock_getCode(static_cast<UChar32>(character));
    if (code != last) {
      if (!blocks.empty() && !isUsable) blocks.pop_back();
      last = code;
      isUsable = code == UBLOCK_NO_BLOCK;
      if (code == UBLOCK_NO_BLOCK) continue;
      const char *name = u_getPropertyValueName(UCHAR_BLOCK, code, U_LONG_PROPERTY_NAME);
      blocks.push_back({QString::fromLatin1(name).replace(u'_', u' '), character, character});
    }
    if (code == UBLOCK_NO_BLOCK) continue;
    blocks.back().last = character;
    isUsable = isUsable || CanStandInText(character);
  }
  if (!isUsable) blocks.pop_back();
  return blocks;
}

/// What is searched for, and what was found so far in the order of rank.
struct NameSearch {
  QStringList words;
  QString whole;
  std::array<std::vector<char32_t>, 3> found;
};

UBool Look(void *context, UChar32 code, UCharNameChoice, const char *name, std::int32_t length) {
  auto &search = *static_cast<NameSearch *>(context);
  const QString text = QString::fromLatin1(name, length);
  const bool hasAll =
      std::all_of(search.words.begin(), search.words.end(), [&text](const QString &word) {
        const qsizetype at = text.indexOf(word);
        return at == 0 || text.contains(u' ' + word) || text.contains(u'-' + word);
      });
  if (!hasAll || !CanStandInText(static_cast<char32_t>(code))) return 1;
  const std::size_t rank = text == search.whole ? 0 : text.startsWith(search.whole) ? 1 : 2;
  search.found.at(rank).push_back(static_cast<char32_t>(code));
  return 1;
}

}  // namespace

const std::vector<CharacterBlock> &CharacterBlocks() {
  static const std::vector<CharacterBlock> blocks = ReadBlocks();
  return blocks;
}

std::vector<char32_t> CharactersOf(const CharacterBlock &block) {
  std::vector<char32_t> characters;
  for (char32_t character = block.first; character <= block.last; ++character)
    if (CanStandInText(character)) characters.push_back(character);
  return characters;
}

QString CharacterName(char32_t character) {
  std::array<char, LongestName> name{};
  UErrorCode error = U_ZERO_ERROR;
  const std::int32_t length =
      u_charName(static_cast<UChar32>(character), U_EXTENDED_CHAR_NAME, name.data(),
                 static_cast<std::int32_t>(name.size()), &error);
  return U_FAILURE(error) ? QString() : QString::fromLatin1(name.data(), length);
}

std::vector<char32_t> FindCharacters(const QString &words, std::size_t most) {
  static const QRegularExpression code(QStringLiteral("^(?:U\\+)?([0-9A-F]{2,6})$"),
                                       QRegularExpression::CaseInsensitiveOption);
  const QString wanted = words.simplified();
  const QList<uint> points = wanted.toUcs4();
  std::vector<char32_t> all;
  if (points.size() == 1 && CanStandInText(points.first())) all.push_back(points.first());
  if (const auto match = code.match(wanted); match.hasMatch()) {
    const uint point = match.captured(1).toUInt(nullptr, 16);
    if (point <= LastCodePoint && CanStandInText(point)) all.push_back(point);
  }
  if (wanted.size() < 2) return all;
  NameSearch search{wanted.toUpper().split(u' '), wanted.toUpper(), {}};
  UErrorCode error = U_ZERO_ERROR;
  u_enumCharNames(0, static_cast<UChar32>(LastCodePoint) + 1, Look, &search, U_UNICODE_CHAR_NAME,
                  &error);
  for (const std::vector<char32_t> &found : search.found)
    all.insert(all.end(), found.begin(), found.end());
  if (all.size() > most) all.resize(most);
  return all;
}

}  // namespace velor
