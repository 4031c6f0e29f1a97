// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>

#include <algorithm>

/// What the readers of UTF-8 source share.
namespace velor {

inline bool IsDigit(char letter) {
  return letter >= '0' && letter <= '9';
}

inline bool IsLetter(char letter) {
  return (letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z');
}

/// Of a name in script and style sheets; bytes beyond ASCII are parts of letters.
inline bool IsWordByte(char letter) {
  return IsLetter(letter) || IsDigit(letter) || letter == '_' ||
         static_cast<unsigned char>(letter) >= 0x80;
}

inline bool IsBlank(char letter) {
  return letter == ' ' || letter == '\t' || letter == '\n' || letter == '\r' || letter == '\f';
}

/// Behind the string whose quote stands at `begin`, at the latest behind the line.
inline qsizetype StringEnd(QByteArrayView line, qsizetype begin) {
  for (qsizetype end = begin + 1; end < line.size(); ++end) {
    if (line[end] == '\\')
      ++end;
    else if (line[end] == line[begin])
      return end + 1;
  }
  return line.size();
}

inline bool BeginsWith(QByteArrayView source, qsizetype at, QByteArrayView start) {
  return source.sliced(std::min(at, source.size())).startsWith(start);
}

}  // namespace velor
