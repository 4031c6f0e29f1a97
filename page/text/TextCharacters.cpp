// SPDX-License-Identifier: GPL-3.0-or-later
#include "page/text/TextCharacters.h"

#include "page/text/CharacterReferences.h"

#include <QChar>

namespace velor {

TextCharacter CharacterAt(QStringView text, qsizetype at) {
  const QChar codeUnit = text[at];
  if (codeUnit == u'&') {
    const CharacterReference reference = ReadReference(text, at, ReferencePlace::Text);
    if (reference.length > 0) return {reference.first, reference.second, reference.length};
  } else if (codeUnit == u'\r') {
    const bool isPair = at + 1 < text.size() && text[at + 1] == u'\n';
    return {u'\n', 0, isPair ? 2 : 1};
  } else if (codeUnit.isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate()) {
    return {QChar::surrogateToUcs4(codeUnit, text[at + 1]), 0, 2};
  }
  return {codeUnit.unicode(), 0, 1};
}

std::vector<TextCharacter> CharactersOf(QStringView text) {
  std::vector<TextCharacter> characters;
  for (qsizetype at = 0; at < text.size(); at += characters.back().length)
    characters.push_back(CharacterAt(text, at));
  return characters;
}

}  // namespace velor
