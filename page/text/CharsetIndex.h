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

/// The characters of a charset beyond ASCII, as the Encoding Standard's indexes give them; 0 stands
/// for none. ISO-2022-JP has those of EUC-JP, whose bytes are its own with the highest bit set.
struct CharsetIndex {
  /// Characters of one byte, from 0x80 on.
  std::array<char16_t, 128> singles{};
  /// Characters of two bytes, see Pair.
  std::vector<char32_t> pairs;
  /// Characters of three bytes in EUC-JP: what follows 0x8F.
  std::vector<char32_t> triples;
  /// For each character of the BMP the byte or the two bytes to write.
  std::vector<std::uint16_t> written;

  /// The place of two bytes, the first from 0x80 on, in `pairs` and `triples`.
  static std::size_t Pair(unsigned char lead, unsigned char trail) {
    return static_cast<std::size_t>(lead - 0x80) * 256 + trail;
  }
};

CharsetForm FormOf(const QString &charset);

/// `charset` is a WHATWG name of another form than Unicode. The library's tables, and the
/// standard's characters where these differ. Made at the first use.
const CharsetIndex &IndexOf(const QString &charset);

/// The characters that GB 18030 counts through in four bytes; 0 for bytes that are none.
char32_t FourByteCharacter(QByteArrayView bytes);
/// Empty where there are none.
QByteArray FourBytesOf(char32_t character);

}  // namespace velor
