// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/SourceColors.h"

#include <QPalette>
#include <Qsci/qscilexerhtml.h>

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

SourceRole RoleOfStyle(int style) {
  switch (style) {
    case QsciLexerHTML::Tag:
    case QsciLexerHTML::UnknownTag:
    case QsciLexerHTML::XMLTagEnd:
    case QsciLexerHTML::XMLStart:
    case QsciLexerHTML::XMLEnd:
    case QsciLexerHTML::Script:
    case QsciLexerHTML::ASPStart:
    case QsciLexerHTML::ASPAtStart:
    case QsciLexerHTML::PHPStart:
    case QsciLexerHTML::SGMLDefault:
    case QsciLexerHTML::SGMLCommand:
      return SourceRole::Tag;
    case QsciLexerHTML::Attribute:
    case QsciLexerHTML::UnknownAttribute:
    case QsciLexerHTML::SGMLParameter:
      return SourceRole::Attribute;
    case QsciLexerHTML::HTMLDoubleQuotedString:
    case QsciLexerHTML::HTMLSingleQuotedString:
    case QsciLexerHTML::HTMLValue:
    case QsciLexerHTML::SGMLDoubleQuotedString:
    case QsciLexerHTML::SGMLSingleQuotedString:
    case QsciLexerHTML::JavaScriptDoubleQuotedString:
    case QsciLexerHTML::JavaScriptSingleQuotedString:
    case QsciLexerHTML::JavaScriptUnclosedString:
    case QsciLexerHTML::JavaScriptRegex:
    case QsciLexerHTML::ASPJavaScriptDoubleQuotedString:
    case QsciLexerHTML::ASPJavaScriptSingleQuotedString:
    case QsciLexerHTML::VBScriptString:
    case QsciLexerHTML::ASPVBScriptString:
    case QsciLexerHTML::PHPDoubleQuotedString:
    case QsciLexerHTML::PHPSingleQuotedString:
      return SourceRole::String;
    case QsciLexerHTML::HTMLComment:
    case QsciLexerHTML::ASPXCComment:
    case QsciLexerHTML::SGMLComment:
    case QsciLexerHTML::SGMLParameterComment:
    case QsciLexerHTML::JavaScriptComment:
    case QsciLexerHTML::JavaScriptCommentLine:
    case QsciLexerHTML::JavaScriptCommentDoc:
    case QsciLexerHTML::ASPJavaScriptComment:
    case QsciLexerHTML::ASPJavaScriptCommentLine:
    case QsciLexerHTML::ASPJavaScriptCommentDoc:
    case QsciLexerHTML::VBScriptComment:
    case QsciLexerHTML::ASPVBScriptComment:
    case QsciLexerHTML::PHPComment:
    case QsciLexerHTML::PHPCommentLine:
      return SourceRole::Comment;
    case QsciLexerHTML::HTMLNumber:
    case QsciLexerHTML::JavaScriptNumber:
    case QsciLexerHTML::ASPJavaScriptNumber:
    case QsciLexerHTML::VBScriptNumber:
    case QsciLexerHTML::ASPVBScriptNumber:
    case QsciLexerHTML::PHPNumber:
      return SourceRole::Number;
    case QsciLexerHTML::Entity:
    case QsciLexerHTML::SGMLEntity:
    case QsciLexerHTML::CDATA:
      return SourceRole::Entity;
    case QsciLexerHTML::JavaScriptKeyword:
    case QsciLexerHTML::ASPJavaScriptKeyword:
    case QsciLexerHTML::VBScriptKeyword:
    case QsciLexerHTML::ASPVBScriptKeyword:
    case QsciLexerHTML::PHPKeyword:
      return SourceRole::Keyword;
    default:
      return SourceRole::Text;
  }
}

}  // namespace velor
