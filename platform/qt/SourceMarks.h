// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QTimer>

class QsciScintilla;

namespace velor {

/// What the HTML lexer does not see: the style sheets within STYLE in their colours, and the tag at
/// the caret together with its partner. Both follow a moment after the change, so that typing in a
/// long source never waits for them.
class SourceMarks : public QObject {
  Q_OBJECT

 public:
  /// Indicator numbers of the control; the style sheets' ones stand in the order of CssPart.
  static constexpr int FirstStyleSheetIndicator = 8;
  static constexpr int TagIndicator = 14;

  explicit SourceMarks(QsciScintilla *editor);

  /// Takes up the colours of the editor's palette.
  void FollowPalette();
  /// Colours a text that was put in as a whole.
  void TextReplaced();

 private:
  void ColorStyleSheets();
  void MarkTags();

  QsciScintilla *editor_;
  QTimer styleSheets_;
  QTimer tags_;
};

}  // namespace velor
