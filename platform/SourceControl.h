// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/EditingCommands.h"

#include <QString>

#include <cstdint>
#include <functional>

class QWidget;

namespace velor {

/// Whether the person may type into a source control. A view accepts typing nowhere it matters:
/// what it shows is a copy.
enum class SourceAccess { View, Edit };

enum class SearchDirection {
  Here,  ///< forward from the selection's start: what is found already stays while it is typed on
  Forward,
  Backward,
};
enum class LetterCase { Ignored, Matched };

/// Whether lines longer than the control is wide go on below.
enum class LineWrap { Off, On };

/// A control that shows HTML source as text. Text inside is Unicode with the line ends it was
/// given.
class SourceControl {
 public:
  virtual ~SourceControl() = default;

  virtual QWidget *Widget() = 0;
  virtual void SetFocus() = 0;

  virtual QString Text() const = 0;
  /// Puts another text in; the undo history begins with it.
  virtual void SetText(const QString &text) = 0;
  /// Puts another text in the place of the one there, as one step of the undo history.
  virtual void ReplaceText(const QString &text) = 0;

  /// Colour slots: 1 margin background, 26 line number background, 27 line number text; `color`
  /// with red in the low byte. Other slots are ignored.
  virtual void SetColor(int slot, std::int32_t color) = 0;

  virtual QString SelectedText() const = 0;
  /// Puts `text` in place of the selection.
  virtual void ReplaceSelection(const QString &text) = 0;

  /// Undo, redo, cut, copy, paste, delete or select all; other commands, and those that a view
  /// refuses, do nothing.
  virtual void Edit(EditingCommand command) = 0;

  /// Zero-based line and column of the caret, columns in UTF-16 units.
  virtual int CaretLine() const = 0;
  virtual int CaretColumn() const = 0;
  virtual int LineLength(int line) const = 0;
  virtual void SetCaret(int line, int column) = 0;
  virtual void SetLineWrap(LineWrap wrap) = 0;
  /// Brings the caret's line to about the middle of what is seen.
  virtual void CenterCaret() = 0;

  /// Called after the caret or the selection has changed, by a person or by the program.
  virtual void SetSelectionListener(std::function<void()> listener) = 0;
  /// Called after the text has changed, by a person or by the program.
  virtual void SetTextListener(std::function<void()> listener) = 0;

  /// The zero-based line that is marked across its width.
  virtual int MarkedLine() const = 0;
  virtual void SetMarkedLine(int line) = 0;

  /// Looks for `text` around the whole source, selects what it finds and brings it into sight.
  /// False when it is nowhere, or empty; the selection then stays.
  virtual bool Find(const QString &text, SearchDirection direction, LetterCase letterCase) = 0;
  /// Replaces every occurrence, as one undo step; answers how many there were.
  virtual int ReplaceAll(const QString &text, const QString &replacement,
                         LetterCase letterCase) = 0;
};

}  // namespace velor
