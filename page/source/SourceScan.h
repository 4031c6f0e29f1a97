// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>

#include <algorithm>

/// Character classes and scanning that the readers of UTF-8 source share.
namespace velor {

inline bool IsDigit(char letter) {
  return letter >= '0' && letter <= '9';
}

inline bool IsLetter(char letter) {
  return (letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z');
}

/// Whether a byte belongs to a name in scripts and style sheets. Bytes beyond ASCII count as
/// letters.
inline bool IsWordByte(char letter) {
  return IsLetter(letter) || IsDigit(letter) || letter == '_' ||
         static_cast<unsigned char>(letter) >= 0x80;
}

inline bool IsBlank(char letter) {
  return letter == ' ' || letter == '\t' || letter == '\n' || letter == '\r' || letter == '\f';
}

/// The offset behind the string whose opening quote stands at `begin`; the line's end where no
/// quote closes it.
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
