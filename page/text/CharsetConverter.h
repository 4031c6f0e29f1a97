// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "page/text/CharsetIndex.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <cstdint>
#include <vector>

struct UConverter;

namespace velor {

/// Converts between bytes and text in one charset, as browsers do by the Encoding Standard.
class CharsetConverter {
 public:
  /// `charset` is a WHATWG name.
  explicit CharsetConverter(const QString &charset);
  ~CharsetConverter();
  CharsetConverter(const CharsetConverter &) = delete;
  CharsetConverter &operator=(const CharsetConverter &) = delete;

  /// Invalid bytes become U+FFFD. Never raises.
  QString Decode(QByteArrayView bytes);
  /// Decode that also fills `offsets`: for each UTF-16 code unit the offset of its character's
  /// first byte.
  QString Decode(QByteArrayView bytes, std::vector<std::int32_t> &offsets);

  /// A character that would not decode to itself is written as a decimal reference (&#26085;).
  QByteArray Encode(const QString &text);
  /// Where in the text (UTF-16 code units) the first character stands that would be written as a
  /// reference; -1 for none.
  qsizetype FirstReference(QStringView text);

 private:
  QString Decode(QByteArrayView bytes, std::vector<std::int32_t> *offsets);
  QString DecodeUnicode(QByteArrayView bytes, std::vector<std::int32_t> *offsets);
  QByteArray EncodeUnicode(const QString &text);
  /// The bytes of a character beyond ASCII; empty for one that the charset lacks.
  QByteArray BytesOf(char32_t character) const;
  /// Whether the character is written in the charset, not as a reference.
  bool Writes(char32_t character) const;

  CharsetForm form_;
  bool isGbk_;
  UConverter *unicode_ = nullptr;        ///< for the forms of Unicode
  const CharsetIndex *index_ = nullptr;  ///< for all others
};

}  // namespace velor
