// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/SourceLexer.h"

#include "page/source/SourceRoles.h"

#include <Qsci/qsciscintilla.h>

#include <array>
#include <vector>

namespace velor {

namespace {

constexpr std::array<const char *, SourceRoleCount> RoleNames = {
    "Text", "Tag", "Attribute", "String", "Comment", "Number", "Entity", "Keyword"};

}  // namespace

const char *SourceLexer::language() const {
  return "HTML";
}

QString SourceLexer::description(int style) const {
  return style >= 0 && style < SourceRoleCount
             ? QString::fromLatin1(RoleNames.at(static_cast<std::size_t>(style)))
             : QString();
}

void SourceLexer::styleText(int start, int end) {
  const auto send = [this](unsigned int message, long first = 0, long second = 0) {
    return editor()->SendScintilla(message, static_cast<unsigned long>(first), second);
  };
  // The control's own text, which styling does not change.
  const auto *text = static_cast<const char *>(
      editor()->SendScintillaPtrResult(QsciScintillaBase::SCI_GETCHARACTERPOINTER));
  const long length = send(QsciScintillaBase::SCI_GETLENGTH);
  long line = send(QsciScintillaBase::SCI_LINEFROMPOSITION, start);
  long begin = send(QsciScintillaBase::SCI_POSITIONFROMLINE, line);
  SourceLineState state =
      line == 0 ? 0 : static_cast<int>(send(QsciScintillaBase::SCI_GETLINESTATE, line - 1));
  std::vector<SourceRole> roles;
  send(QsciScintillaBase::SCI_STARTSTYLING, begin);
  for (; begin < end; ++line) {
    const long next = line + 1 < send(QsciScintillaBase::SCI_GETLINECOUNT)
                          ? send(QsciScintillaBase::SCI_POSITIONFROMLINE, line + 1)
                          : length;
    roles.resize(static_cast<std::size_t>(next - begin));
    state = RolesOfLine({text + begin, next - begin}, state, roles.data());
    editor()->SendScintilla(QsciScintillaBase::SCI_SETSTYLINGEX,
                            static_cast<unsigned long>(roles.size()),
                            reinterpret_cast<const char *>(roles.data()));
    send(QsciScintillaBase::SCI_SETLINESTATE, line, state);
    begin = next;
  }
}

}  // namespace velor
