// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QTimer>

class QsciScintilla;

namespace velor {

/// What needs more than a line of HTML source: the elements and comments that can be folded, and
/// the tag at the caret together with its partner. Both follow a moment after the change, so that
/// typing in a long source never waits for them.
class SourceMarks : public QObject {
  Q_OBJECT

 public:
  /// Number of the control's indicator that marks the two tags.
  static constexpr int TagIndicator = 8;

  explicit SourceMarks(QsciScintilla *editor);

  /// Takes up the colours of the editor's palette.
  void FollowPalette();
  /// Takes up a text that was put in as a whole.
  void TextReplaced();

 private:
  void FindFolds();
  void MarkTags();

  QsciScintilla *editor_;
  QTimer folds_;
  QTimer tags_;
};

}  // namespace velor
