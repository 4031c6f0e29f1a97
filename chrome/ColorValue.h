// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>

#include <cstdint>

/// Conversion of colours from and to 32-bit values as settings hold them: red in the low byte,
/// green in the second, blue in the third; alpha is left out.
namespace velor {

inline QColor FromColorValue(std::int32_t value) {
  return {value & 0xff, (value >> 8) & 0xff, (value >> 16) & 0xff};
}

inline std::int32_t ToColorValue(const QColor &color) {
  return color.red() | (color.green() << 8) | (color.blue() << 16);
}

}  // namespace velor
