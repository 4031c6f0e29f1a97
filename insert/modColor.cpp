// SPDX-License-Identifier: GPL-3.0-or-later
#include "insert/modColor.h"

#include "platform/Conversions.h"
#include "platform/RuntimeError.h"

#include <cmath>

namespace velor::modColor {

namespace {

constexpr std::int32_t LargestColor = 0xFFFFFF;
constexpr qsizetype LongestHexText = 255;

QString HexPair(std::int32_t component) {
  return QStringLiteral("%1").arg(component, 2, 16, QLatin1Char('0')).toUpper();
}

}  // namespace

QString ColorToHtml(std::int32_t color) {
  // Each of these has at least one component outside a byte's range.
  if (color < 0 || color > LargestColor) {
    throw RuntimeError::Of(ErrorNumber::Overflow, QStringLiteral("ColorToHtml"));
  }
  return u'#' + HexPair(color % 256) + HexPair(color / 256 % 256) + HexPair(color / 65536);
}

std::int32_t HtmlToColor(const QString &text) {
  const QString digits = text.startsWith(u'#') ? text.mid(1) : text;
  std::int32_t total = 0;
  double weight = 1;
  for (qsizetype i = 0; i < digits.size(); i += 2) {
    total = CLng(total + HexToValue(digits.mid(i, 2)) * weight);
    weight *= 256;
  }
  return total;
}

std::int32_t HexToValue(const QString &text) {
  if (text.size() > LongestHexText) return 0;
  const QString digits = QStringLiteral("0123456789ABCDEF");
  std::int32_t value = 0;
  for (qsizetype i = 0; i < text.size(); ++i) {
    const QChar c = text[text.size() - 1 - i];
    const qsizetype digit = digits.indexOf(c, 0, Qt::CaseInsensitive);
    if (digit < 0) return 0;
    value = CLng(value + static_cast<double>(digit) * std::pow(16.0, static_cast<double>(i)));
  }
  return value;
}

}  // namespace velor::modColor
