// SPDX-License-Identifier: GPL-3.0-or-later
#include "page/text/CharacterReferences.h"

#include "page/text/NamedReferences.h"

#include <QByteArray>
#include <QChar>
#include <QHash>

#include <algorithm>
#include <iterator>

namespace velor {

namespace {

constexpr char32_t NoCharacter = 0xFFFD;

/// What the numbers 128 to 159 stand for: characters of windows-1252, as old programs meant them.
constexpr char32_t OldNumbers[] = {0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                   0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x8D,   0x017D, 0x8F,
                                   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                   0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

struct Meaning {
  char32_t first = 0;
  char32_t second = 0;
};

struct NameTable {
  QHash<QByteArray, Meaning> meanings;
  qsizetype longest = 0;
};

const NameTable &Names() {
  static const NameTable table = [] {
    NameTable made;
    for (const char *const *row = NamedReferences; *row != nullptr; ++row) {
      for (const QByteArray &entry : QByteArray(*row).split(' ')) {
        const qsizetype sign = entry.indexOf('=');
        const QList<QByteArray> codes = entry.mid(sign + 1).split(',');
        made.meanings[entry.left(sign)] = {codes.front().toUInt(nullptr, 16),
                                           codes.size() > 1 ? codes[1].toUInt(nullptr, 16) : 0};
        made.longest = std::max(made.longest, sign);
      }
    }
    return made;
  }();
  return table;
}

bool IsAsciiAlphanumeric(QChar codeUnit) {
  const char16_t code = codeUnit.unicode();
  return (code >= u'0' && code <= u'9') || ((code | 0x20) >= u'a' && (code | 0x20) <= u'z');
}

int DigitOf(QChar codeUnit, int base) {
  const char16_t code = codeUnit.unicode();
  if (code >= u'0' && code <= u'9') return code - u'0';
  const int letter = code | 0x20;
  return base == 16 && letter >= u'a' && letter <= u'f' ? letter - u'a' + 10 : -1;
}

char32_t CharacterOfNumber(char32_t number) {
  if (number >= 0x80 && number < 0x80 + std::size(OldNumbers)) return OldNumbers[number - 0x80];
  const bool isSurrogate = number >= 0xD800 && number <= 0xDFFF;
  return number == 0 || number > QChar::LastValidCodePoint || isSurrogate ? NoCharacter : number;
}

CharacterReference ReadNumber(QStringView text, qsizetype at) {
  qsizetype end = at + 2;
  const bool isHex = end < text.size() && (text[end] == u'x' || text[end] == u'X');
  if (isHex) ++end;
  const int base = isHex ? 16 : 10;
  const qsizetype digits = end;
  char32_t number = 0;
  for (; end < text.size(); ++end) {
    const int digit = DigitOf(text[end], base);
    if (digit < 0) break;
    if (number <= QChar::LastValidCodePoint)
      number = number * static_cast<char32_t>(base) + static_cast<char32_t>(digit);
  }
  if (end == digits) return {};
  if (end < text.size() && text[end] == u';') ++end;
  return {CharacterOfNumber(number), 0, end - at};
}

}  // namespace

CharacterReference ReadReference(QStringView text, qsizetype at, ReferencePlace place) {
  if (at + 1 >= text.size()) return {};
  if (text[at + 1] == u'#') return ReadNumber(text, at);

  const NameTable &names = Names();
  QByteArray name;
  qsizetype end = at + 1;
  while (end < text.size() && IsAsciiAlphanumeric(text[end]) && name.size() < names.longest)
    name += static_cast<char>(text[end++].unicode());
  if (end < text.size() && text[end] == u';') name += ';';
  // The longest name wins; the shorter ones are those that old pages write without ";".
  for (; name.size() > 1; name.chop(1)) {
    const auto found = names.meanings.constFind(name);
    if (found == names.meanings.constEnd()) continue;
    const qsizetype length = name.size() + 1;
    if (place == ReferencePlace::AttributeValue && !name.endsWith(';') &&
        at + length < text.size()) {
      const QChar next = text[at + length];
      if (next == u'=' || IsAsciiAlphanumeric(next)) return {};
    }
    return {found->first, found->second, length};
  }
  return {};
}

}  // namespace velor
