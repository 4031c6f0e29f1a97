// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <Qsci/qscilexercustom.h>

namespace velor {

/// Colours HTML source by its roles; style numbers are those of SourceRole. It takes the place of
/// the library's own HTML lexer, which aborts the program on some real pages
/// (docs/decisions/qscintilla.md).
class SourceLexer final : public QsciLexerCustom {
 public:
  using QsciLexerCustom::QsciLexerCustom;

  const char *language() const override;
  QString description(int style) const override;
  void styleText(int start, int end) override;
};

}  // namespace velor
