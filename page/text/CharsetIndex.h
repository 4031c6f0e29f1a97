// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <array>
#include <cstdint>
#include <vector>

namespace velor {

/// The rules by which a charset's bytes are read.
enum class CharsetForm { Unicode, SingleByte, Big5, EucJp, EucKr, Gb, Iso2022Jp, ShiftJis };

/// The characters of a charset beyond ASCII, as the Encoding Standard's indexes give them; 0 where
/// the bytes stand for none. ISO-2022-JP shares EUC-JP's, whose bytes are the same with the highest
/// bit set.
struct CharsetIndex {
  /// Characters of one byte, from 0x80 on.
  std::array<char16_t, 128> singles{};
  /// Characters of two bytes, at the place that Pair answers.
  std::vector<char32_t> pairs;
  /// Characters of three bytes in EUC-JP, by the two bytes behind 0x8F.
  std::vector<char32_t> triples;
  /// By character of the BMP: the byte or two bytes (lead * 256 + trail) that encode it; 0 for
  /// none.
  std::vector<std::uint16_t> written;

  /// The place of two bytes, the first from 0x80 on, in `pairs` and `triples`.
  static std::size_t Pair(unsigned char lead, unsigned char trail) {
    return static_cast<std::size_t>(lead - 0x80) * 256 + trail;
  }
};

CharsetForm FormOf(const QString &charset);

/// The index of a charset (WHATWG name) of any form but Unicode, made at its first use from ICU's
/// tables, with the standard's characters where the two differ.
const CharsetIndex &IndexOf(const QString &charset);

/// The character that GB 18030 computes from four bytes; 0 where the bytes stand for none.
char32_t FourByteCharacter(QByteArrayView bytes);
/// The four bytes of GB 18030 for a character; empty where there are none.
QByteArray FourBytesOf(char32_t character);

}  // namespace velor
