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

  /// What would not read back as the same character is written as a decimal reference.
  QByteArray Encode(const QString &text);

 private:
  enum class Fate : std::uint8_t { Unknown, ReadsBack, NeedsReference };

  QByteArray EncodeWhole(QStringView text);
  bool ReadsBack(char32_t character);

  UConverter *converter_;
  QString charset_;
  bool isUnicode_;
  /// Indexed by character; filled as characters are asked for.
  std::vector<Fate> fates_;
};

}  // namespace velor
