// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <cstdint>

/// Colours as 32-bit values (red in the low byte, green in the second, blue in the third) and as
/// HTML text ("#" and two hexadecimal digits each for red, green and blue).
namespace velor::modColor {

/// "#RRGGBB" in upper case. A negative value or one above 16777215 is error 6 (Overflow).
QString ColorToHtml(std::int32_t color);

/// The inverse. A leading "#" may be missing, letter case does not matter; pairs are taken from the
/// left with growing weight, a single last digit counts as a pair of its own ("#FFF" is 4095); a
/// pair that is not hexadecimal counts 0. Error 6 where a fourth pair leaves the 32-bit range.
std::int32_t HtmlToColor(const QString &text);

/// The value of hexadecimal digits; 0 for the empty text, for one with any other character, and for
/// more than 255 characters.
std::int32_t HexToValue(const QString &text);

}  // namespace velor::modColor
