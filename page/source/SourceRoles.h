// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>

#include <cstdint>

namespace velor {

/// The parts of HTML source that are told apart by colour.
enum class SourceRole : std::uint8_t {
  Text,
  Tag,        ///< with doctypes, the marks around server code, and the selectors of style sheets
  Attribute,  ///< and the properties of style sheets
  String,
  Comment,
  Number,
  Entity,
  Keyword,  ///< and at-rules
};
inline constexpr int SourceRoleCount = 8;

/// In what a line of source begins: text, a tag, a comment, a script. 0 at the start of a page; any
/// number will do.
using SourceLineState = int;

/// Tells the role of each byte of one line of UTF-8 source, its line end included, and answers the
/// state in which the next line begins. A line is enough because a control that colours what is
/// seen keeps the states; no bytes and no state do harm.
///
/// `roles` has room for as many as the line has bytes.
SourceLineState RolesOfLine(QByteArrayView line, SourceLineState state, SourceRole *roles);

/// The same for a line of a style sheet, of script and of code that a server runs (PHP, VBScript),
/// what is looked at.
int RolesOfStyleSheet(QByteArrayView line, int state, SourceRole *roles);
int RolesOfScript(QByteArrayView line, int state, SourceRole *roles);
int RolesOfServerCode(QByteArrayView line, int state, SourceRole *roles);

}  // namespace velor
