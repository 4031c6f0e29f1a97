// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <cstdint>
#include <vector>

struct UConverter;

namespace velor {

/// Converts between bytes and text in one charset, as close to what browsers decode as the
/// library's tables are.
class CharsetConverter {
 public:
  /// `charset` is a WHATWG name; one that the library has no table for is read as windows-1252.
  explicit CharsetConverter(const QString &charset);
  ~CharsetConverter();
  CharsetConverter(const CharsetConverter &) = delete;
  CharsetConverter &operator=(const CharsetConverter &) = delete;

  /// Bytes that are no text become U+FFFD.
  QString Decode(QByteArrayView bytes);
  /// The same; `offsets` gets for each UTF-16 unit the place of the first byte of its character.
  QString Decode(QByteArrayView bytes, std::vector<std::int32_t> &offsets);

  /// What would not read back as the same character is written as a decimal reference.
  QByteArray Encode(const QString &text);
  /// Where in the text (UTF-16 units) the first character stands that would be written as a
  /// reference; -1 for none.
  qsizetype FirstReference(QStringView text);

 private:
  enum class Fate : std::uint8_t { Unknown, ReadsBack, NeedsReference };

  QString Decode(QByteArrayView bytes, std::vector<std::int32_t> *offsets);
  QByteArray EncodeWhole(QStringView text);
  bool ReadsBack(char32_t character);

  UConverter *converter_;
  QString charset_;
  bool isUnicode_;
  /// Indexed by character; filled as characters are asked for.
  std::vector<Fate> fates_;
};

}  // namespace velor
