// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/SourceColors.h"

#include <QPalette>

#include <array>

namespace velor {

namespace {

struct RoleColor {
  SourceRole role;
  QRgb onLight;
  QRgb onDark;
};

constexpr std::array<RoleColor, SourceRoleCount - 1> RoleColors{{
    {SourceRole::Tag, 0xff0b57a4, 0xff86bcff},
    {SourceRole::Attribute, 0xff8a4b00, 0xffe8bc74},
    {SourceRole::String, 0xff0a6b35, 0xff93d6a4},
    {SourceRole::Comment, 0xff5f6874, 0xffa3adb8},
    {SourceRole::Number, 0xff9a3412, 0xfff4a683},
    {SourceRole::Entity, 0xff6f2f96, 0xffd8b0fb},
    {SourceRole::Keyword, 0xff6f2f96, 0xffd8b0fb},
}};

constexpr int MiddleLightness = 128;

}  // namespace

QColor SourceColor(SourceRole role, const QPalette &palette) {
  const bool dark = palette.color(QPalette::Base).lightness() < MiddleLightness;
  for (const RoleColor &entry : RoleColors) {
    if (entry.role == role) return QColor::fromRgb(dark ? entry.onDark : entry.onLight);
  }
  return palette.color(QPalette::Text);
}

QColor UnknownWordColor() {
  return QColor::fromRgb(0xffe01b24);
}

}  // namespace velor
