// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/Conversions.h"

#include "platform/RuntimeError.h"

#include <QByteArray>
#include <QLocale>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <iterator>
#include <limits>
#include <type_traits>

namespace velor {

namespace {

constexpr bool IsDigit(QChar c) {
  return c >= u'0' && c <= u'9';
}
constexpr bool IsBlank(QChar c) {
  return c == u' ' || c == u'\t' || c == u'\n' || c == u'\r';
}

/// The number at the start of a text, and the number of characters that it takes.
struct Parsed {
  bool isNumber = false;
  /// Written as &H or &O: its bits are taken as a signed number of the result's width.
  bool isBits = false;
  double value = 0;
  qsizetype length = 0;
};

int DigitValue(QChar c) {
  if (IsDigit(c)) return c.unicode() - u'0';
  const char16_t letter = c.toUpper().unicode();
  return letter >= u'A' && letter <= u'F' ? letter - u'A' + 10 : 16;
}

/// &H1F, &O17 and &17 (octal), at the start of `text`.
Parsed ParseBits(QStringView text) {
  qsizetype at = 1;
  int base = 8;
  if (at < text.size() && (text[at] == u'H' || text[at] == u'h')) base = 16;
  if (base == 16 || (at < text.size() && (text[at] == u'O' || text[at] == u'o'))) ++at;
  Parsed parsed{.isBits = true};
  for (; at < text.size() && DigitValue(text[at]) < base; ++at) {
    parsed.value = parsed.value * base + DigitValue(text[at]);
    parsed.isNumber = true;
  }
  parsed.length = at;
  return parsed;
}

qsizetype SkipDigits(QStringView text, qsizetype at) {
  while (at < text.size() && IsDigit(text[at])) ++at;
  return at;
}

/// Sign, digits, decimals and exponent (E or D) at the start of `text`. A number beyond the range
/// of a double is infinite.
Parsed ParseDecimal(QStringView text) {
  qsizetype at = 0;
  bool negative = false;
  if (!text.isEmpty() && (text[0] == u'+' || text[0] == u'-')) {
    negative = text[at++] == u'-';
    while (at < text.size() && IsBlank(text[at])) ++at;
  }
  const qsizetype start = at;
  at = SkipDigits(text, start);
  qsizetype digits = at - start;
  if (at < text.size() && text[at] == u'.') {
    const qsizetype end = SkipDigits(text, at + 1);
    digits += end - at - 1;
    at = end;
  }
  if (digits == 0) return {};

  QByteArray number = text.sliced(start, at - start).toLatin1();
  if (number.endsWith('.')) number.chop(1);
  if (at < text.size() && QStringView(u"eEdD").contains(text[at])) {
    qsizetype exponent = at + 1;
    if (exponent < text.size() && (text[exponent] == u'+' || text[exponent] == u'-')) ++exponent;
    const qsizetype end = SkipDigits(text, exponent);
    if (end > exponent) {
      number += 'e' + text.sliced(at + 1, end - at - 1).toLatin1();
      at = end;
    }
  }
  // QByteArray::toDouble would return 0 for a number that is too large.
  const double value = QLocale::c().toDouble(QString::fromLatin1(number));
  return {.isNumber = true, .value = negative ? -value : value, .length = at};
}

Parsed ParseStart(QStringView text) {
  return text.startsWith(u'&') ? ParseBits(text) : ParseDecimal(text);
}

/// The number that the whole of `text` is.
Parsed ParseWhole(QStringView text) {
  qsizetype start = 0;
  qsizetype end = text.size();
  while (start < end && IsBlank(text[start])) ++start;
  while (end > start && IsBlank(text[end - 1])) --end;
  const QStringView number = text.sliced(start, end - start);
  const Parsed parsed = ParseStart(number);
  return parsed.length == number.size() ? parsed : Parsed{};
}

/// A pattern of bits as a signed number of that many bits.
double Signed(double bits, int width) {
  return bits >= std::ldexp(1, width - 1) && bits < std::ldexp(1, width)
             ? bits - std::ldexp(1, width)
             : bits;
}

/// Rounds ties to even, independent of the rounding mode that a library may have set.
double RoundToEven(double value) {
  const double floor = std::floor(value);
  const double fraction = value - floor;
  if (fraction < 0.5) return floor;
  if (fraction > 0.5) return floor + 1;
  return std::fmod(floor, 2) == 0 ? floor : floor + 1;
}

template <typename Integer>
Integer ToInteger(double value, const QString &source) {
  const double rounded = RoundToEven(value);
  // Written so that NaN, for which every comparison is false, overflows too.
  if (!(rounded >= double{std::numeric_limits<Integer>::min()} &&
        rounded <= double{std::numeric_limits<Integer>::max()})) {
    throw RuntimeError::Of(ErrorNumber::Overflow, source);
  }
  return static_cast<Integer>(rounded);
}

Parsed ParseOrRaise(QStringView text, const QString &source) {
  const Parsed parsed = ParseWhole(text);
  if (!parsed.isNumber) throw RuntimeError::Of(ErrorNumber::TypeMismatch, source);
  return parsed;
}

template <typename Integer>
Integer ToInteger(QStringView text, const QString &source) {
  const Parsed parsed = ParseOrRaise(text, source);
  constexpr int Width = std::numeric_limits<std::make_unsigned_t<Integer>>::digits;
  return ToInteger<Integer>(parsed.isBits ? Signed(parsed.value, Width) : parsed.value, source);
}

}  // namespace

std::int16_t CInt(QStringView text) {
  return ToInteger<std::int16_t>(text, QStringLiteral("CInt"));
}

std::int16_t CInt(double value) {
  return ToInteger<std::int16_t>(value, QStringLiteral("CInt"));
}

std::int32_t CLng(QStringView text) {
  return ToInteger<std::int32_t>(text, QStringLiteral("CLng"));
}

std::int32_t CLng(double value) {
  return ToInteger<std::int32_t>(value, QStringLiteral("CLng"));
}

bool CBool(QStringView text) {
  const QString word = TrimBlanks(text);
  if (word.compare(u"True", Qt::CaseInsensitive) == 0) return true;
  if (word.compare(u"False", Qt::CaseInsensitive) == 0) return false;
  const Parsed parsed = ParseOrRaise(text, QStringLiteral("CBool"));
  if (std::isinf(parsed.value)) {
    throw RuntimeError::Of(ErrorNumber::Overflow, QStringLiteral("CBool"));
  }
  return parsed.value != 0;
}

double Val(QStringView text) {
  QString compact;
  compact.reserve(text.size());
  for (const QChar c : text) {
    if (!IsBlank(c)) compact += c;
  }
  const Parsed parsed = ParseStart(compact);
  if (parsed.isBits) return Signed(parsed.value, parsed.value < std::ldexp(1, 16) ? 16 : 32);
  // The largest finite number instead of infinity, so that callers can calculate with it.
  constexpr double Largest = std::numeric_limits<double>::max();
  return std::clamp(parsed.value, -Largest, Largest);
}

bool IsNumeric(QStringView text) {
  const Parsed parsed = ParseWhole(text);
  return parsed.isNumber && std::isfinite(parsed.value);
}

QString BoolText(bool value) {
  return value ? QStringLiteral("True") : QStringLiteral("False");
}

QString NumberText(double value) {
  if (value == 0) return QStringLiteral("0");  // minus zero, too
  const double magnitude = std::fabs(value);
  const bool plain = magnitude >= 1e-5 && magnitude < 1e15;
  char buffer[32];
  const auto [end, error] =
      std::to_chars(std::begin(buffer), std::end(buffer), value,
                    plain ? std::chars_format::fixed : std::chars_format::scientific);
  return QString::fromLatin1(buffer, end - buffer).toUpper();
}

QString NumberText(int value) {
  return QString::number(value);
}

QString TrimBlanks(QStringView text) {
  while (text.startsWith(u' ')) text = text.sliced(1);
  while (text.endsWith(u' ')) text.chop(1);
  return text.toString();
}

QString TrimWhiteSpace(QStringView text) {
  return text.trimmed().toString();
}

QString LowerCase(QStringView text) {
  QString lower = text.toString();
  for (qsizetype i = 0; i < lower.size(); ++i) {
    const bool isPair =
        i + 1 < lower.size() && lower[i].isHighSurrogate() && lower[i + 1].isLowSurrogate();
    if (!isPair) {
      lower[i] = lower[i].toLower();
      continue;
    }
    // Unicode's simple mappings stay within their plane, so a pair becomes a pair.
    const char32_t folded = QChar::toLower(QChar::surrogateToUcs4(lower[i], lower[i + 1]));
    lower[i] = QChar(QChar::highSurrogate(folded));
    lower[++i] = QChar(QChar::lowSurrogate(folded));
  }
  return lower;
}

}  // namespace velor
