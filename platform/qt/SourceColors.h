// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>

class QPalette;

namespace velor {

/// The parts of HTML source that are told apart by colour.
enum class SourceRole { Text, Tag, Attribute, String, Comment, Number, Entity, Keyword };
inline constexpr int SourceRoleCount = 8;

/// Legible (contrast 4.5 : 1 and better) on the palette's light or dark text background.
QColor SourceColor(SourceRole role, const QPalette &palette);

/// The role of a style number of the HTML lexer.
SourceRole RoleOfStyle(int style);

}  // namespace velor
