// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QTimer>

class QsciScintilla;

namespace velor {

/// Marks in the source control that need more than one line of the source: the folds of elements
/// and comments, and the tag at the caret with the other tag of its element. Both are brought up to
/// date by a timer after a change, so that typing in a long source does not wait for them.
class SourceMarks : public QObject {
  Q_OBJECT

 public:
  /// Number of the control's indicator that marks the two tags.
  static constexpr int TagIndicator = 8;

  explicit SourceMarks(QsciScintilla *editor);

  /// Sets the colours of the marks from the editor's palette.
  void ApplyPalette();
  /// To be called when the whole text was replaced: finds folds and tags at once.
  void TextReplaced();

 private:
  void FindFolds();
  void MarkTags();

  QsciScintilla *editor_;
  QTimer folds_;
  QTimer tags_;
};

}  // namespace velor
