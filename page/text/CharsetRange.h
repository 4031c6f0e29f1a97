// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

/// Which charsets there are, and what each holds.
namespace velor {

/// The WHATWG names of all charsets that a page can be written in, utf-8 first.
QStringList AllCharsets();

/// A character that a charset lacks.
struct MissingCharacter {
  QString character;
  int count = 0;
  int line = 0;  ///< of the first one, from 1
};

/// The characters of a text that are no part of the charset, in the order in which they come first.
std::vector<MissingCharacter> CharactersMissing(const QString &text, const QString &charset);

}  // namespace velor
