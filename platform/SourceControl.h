// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/EditingCommands.h"
#include "platform/TextStretch.h"

#include <QPoint>
#include <QString>

#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

class QWidget;

namespace velor {

/// What a source control is for: Edit changes the source; what is typed in a View is lost, for it
/// shows a copy.
enum class SourceAccess { View, Edit };

/// Whether lines that are longer than the control is wide are wrapped.
enum class LineWrap { Off, On };

/// A control that shows HTML source as text, with the line ends of the text that was set.
class SourceControl {
 public:
  virtual ~SourceControl() = default;

  virtual QWidget *Widget() = 0;
  virtual void SetFocus() = 0;

  virtual QString Text() const = 0;
  /// Replaces the text and empties the undo history.
  virtual void SetText(const QString &text) = 0;
  /// Replaces the text as one step of the undo history.
  virtual void ReplaceText(const QString &text) = 0;

  /// Sets a colour, red in the low byte. Slots: 1 margin background, 26 line number background, 27
  /// line number text; others are ignored.
  virtual void SetColor(int slot, std::int32_t color) = 0;

  virtual QString SelectedText() const = 0;
  /// Replaces the selection by `text`.
  virtual void ReplaceSelection(const QString &text) = 0;

  /// Carries out Undo, Redo, Cut, Copy, Paste, Delete or SelectAll. Does nothing for other commands
  /// and for those that a View refuses.
  virtual void Edit(EditingCommand command) = 0;

  /// Zero-based line and column of the caret, columns in UTF-16 code units.
  virtual int CaretLine() const = 0;
  virtual int CaretColumn() const = 0;
  virtual int LineLength(int line) const = 0;
  virtual void SetCaret(int line, int column) = 0;
  virtual void SetLineWrap(LineWrap wrap) = 0;
  /// Scrolls the caret's line to about the middle of the view.
  virtual void CenterCaret() = 0;

  /// Called after the caret or the selection has changed, by a person or by the program.
  virtual void SetSelectionListener(std::function<void()> listener) = 0;
  /// Called after the text has changed, by a person or by the program.
  virtual void SetTextListener(std::function<void()> listener) = 0;

  /// The zero-based line that is marked across its width.
  virtual int MarkedLine() const = 0;
  virtual void SetMarkedLine(int line) = 0;

  /// The selected stretch of Text; empty at the caret.
  virtual TextStretch Selection() const = 0;
  /// Selects a stretch of Text and scrolls it into view, out of a fold too.
  virtual void Select(const TextStretch &stretch) = 0;
  /// Replaces stretches, in the order of the text, as one undo step. A View stays as it is.
  virtual void ReplaceParts(const std::vector<TextReplacement> &parts) = 0;
  /// Marks stretches, in the order of the text, in place of those marked before.
  virtual void MarkStretches(const std::vector<TextStretch> &stretches) = 0;

  /// Puts waves under stretches, in the order of the text, in place of those that are within
  /// `range`. Waves go along with their words when text before them changes; what is deleted loses
  /// them, also where Undo brings it back.
  virtual void DrawWaves(const TextStretch &range, const std::vector<TextStretch> &stretches) = 0;
  /// The stretch of Text outside of which nothing has changed since the last call; nothing where
  /// nothing has changed at all.
  virtual std::optional<TextStretch> TakeChange() = 0;
  /// The stretch of Text whose lines are in sight.
  virtual TextStretch InSight() const = 0;
  /// The offset in Text of the place between two characters that is nearest to a point of Widget.
  virtual qsizetype OffsetAt(QPoint point) const = 0;
};

}  // namespace velor
