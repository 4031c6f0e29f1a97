// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringView>

#include <cstdint>

/// Conversions between texts and numbers by fixed rules, independent of the locale: the decimal
/// separator is ".". CInt, CLng and CBool raise RuntimeError: TypeMismatch (13) for a text that is
/// no number, Overflow (6) for a number outside the range.
namespace velor {

/// 16-bit integer; fractions are rounded to the nearest whole number, ties to even (2.5 is 2).
std::int16_t CInt(QStringView text);
/// As above for a number instead of its text.
std::int16_t CInt(double value);
/// 32-bit integer, rounded the same way.
std::int32_t CLng(QStringView text);
std::int32_t CLng(double value);
/// Truth value of a text: "True"/"False" in any letter case, or a number (0 is false); outer blanks
/// do not count.
bool CBool(QStringView text);

/// The number a text starts with (leading blanks skipped, blanks between digits ignored, exponents
/// and &H / &O prefixes understood); 0 when it starts with none. Never raises.
double Val(QStringView text);

/// Whether the whole text is a number: outer blanks, a sign, decimals and an exponent are
/// accepted; the empty text is not.
bool IsNumeric(QStringView text);

/// Truth value as settings and windows exchange it: "True" or "False".
QString BoolText(bool value);
/// Shortest decimal text that reads back as the same number; no leading blank, "-" for negatives.
QString NumberText(double value);
QString NumberText(int value);

/// A 16-bit truth value as page records keep it.
using Bool16 = std::int16_t;
inline constexpr Bool16 True16 = -1;
inline constexpr Bool16 False16 = 0;

/// Removes outer blanks (U+0020) only.
QString TrimBlanks(QStringView text);
/// Removes outer white space of every kind.
QString TrimWhiteSpace(QStringView text);
/// Lower case, character by character: the length never changes and no language's special rules
/// apply, so that two texts can be compared position by position.
QString LowerCase(QStringView text);

}  // namespace velor
