// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>

#include <cstdint>

namespace velor {

/// The parts of HTML source that have colours of their own.
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

/// The state in which a line of source begins: in text, a tag, a comment, a script. 0 at the start
/// of a page; any number is accepted.
using SourceLineState = int;

/// Writes the role of each byte of one line of UTF-8 source, its line end included, to `roles`,
/// which has room for as many as the line has bytes. Returns the state in which the next line
/// begins. The source control keeps the states of all lines, so that only visible lines are
/// coloured. Bytes that are no valid UTF-8 and unknown states are accepted.
SourceLineState RolesOfLine(QByteArrayView line, SourceLineState state, SourceRole *roles);

/// RolesOfLine for a line of a style sheet, of a script and of server code (PHP, VBScript), with a
/// state of its own each.
int RolesOfStyleSheet(QByteArrayView line, int state, SourceRole *roles);
int RolesOfScript(QByteArrayView line, int state, SourceRole *roles);
int RolesOfServerCode(QByteArrayView line, int state, SourceRole *roles);

}  // namespace velor
