// SPDX-License-Identifier: GPL-3.0-or-later
#include "catalogue/jet/JetText.h"

#include <algorithm>

namespace velor {

namespace {

constexpr char16_t CompressionMark = 0xFEFF;

QString DecodeUtf16(JetBytes bytes) {
  if (bytes.empty()) return QStringLiteral("");
  QString text(static_cast<qsizetype>(bytes.size() / 2), Qt::Uninitialized);
  qFromLittleEndian<char16_t>(bytes.data(), text.size(), text.data());
  return text;
}

QString DecodeLatin1(JetBytes bytes) {
  return QString::fromLatin1(reinterpret_cast<const char *>(bytes.data()),
                             static_cast<qsizetype>(bytes.size()));
}

/// `bytes` after the mark. In the UTF-16 stretches a zero byte toggles too when it stands where a
/// character begins, so that U+0100 and the like cannot be written in them; no writer does.
QString DecodeCompressed(JetBytes bytes) {
  const auto firstToggle = std::find(bytes.begin(), bytes.end(), 0);
  if (firstToggle == bytes.end()) return DecodeLatin1(bytes);
  QString text;
  bool wide = false;
  for (std::size_t at = 0; at < bytes.size();) {
    if (bytes[at] == 0) {
      wide = !wide;
      ++at;
    } else if (!wide) {
      text += QChar(bytes[at++]);
    } else {
      if (at + 1 >= bytes.size()) break;
      text += QChar(jet::Get<char16_t>(bytes.data() + at));
      at += 2;
    }
  }
  return text;
}

bool IsWorthCompressing(const QString &text) {
  return text.size() >= jet::CompressedMinimum && text.size() <= jet::CompressedMaximum &&
         std::all_of(text.begin(), text.end(),
                     [](QChar character) { return character.unicode() <= 0xFF; });
}

}  // namespace

QString DecodeJetText(JetBytes bytes) {
  if (bytes.size() >= 2 && jet::Get<char16_t>(bytes.data()) == CompressionMark) {
    return DecodeCompressed(bytes.subspan(2));
  }
  return DecodeUtf16(bytes);
}

std::optional<QByteArray> EncodeJetText(const QString &text, JetCompression compression) {
  if (text.contains(QChar::Null) || text.startsWith(QChar(CompressionMark))) return std::nullopt;
  if (compression == JetCompression::WherePossible && IsWorthCompressing(text)) {
    return QByteArray("\xFF\xFE") + text.toLatin1();
  }
  QByteArray bytes(text.size() * 2, Qt::Uninitialized);
  qToLittleEndian<char16_t>(text.utf16(), text.size(), bytes.data());
  return bytes;
}

}  // namespace velor
