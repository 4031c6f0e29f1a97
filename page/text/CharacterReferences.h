// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringView>

namespace velor {

/// Where a reference stands decides what an "=" or a letter behind a name without ";" means.
enum class ReferencePlace { Text, AttributeValue };

/// What a character reference stands for: one character, in few cases two.
struct CharacterReference {
  char32_t first = 0;
  char32_t second = 0;   ///< 0 for none
  qsizetype length = 0;  ///< in the source, "&" and ";" included; 0 for no reference
};

/// Reads the reference that begins at `text[at]`, an "&", as the HTML standard does: names with and
/// without ";", decimal and hexadecimal numbers, and the windows-1252 numbers that old pages have.
CharacterReference ReadReference(QStringView text, qsizetype at, ReferencePlace place);

}  // namespace velor
