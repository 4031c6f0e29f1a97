// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/SourceControl.h"

#include <QObject>
#include <QPointer>

#include <map>

class QsciScintilla;

namespace velor {

class SourceLexer;
class SourceMarks;

/// The source control on QScintilla: HTML with its scripts and style sheets in colours that follow
/// the palette, line numbers, folding, matching tags and brackets, a fixed-pitch font. Line ends
/// stay as they were given, and new lines get the form that most of them have. Positions inside the
/// control are bytes of UTF-8.
class QsciSourceControl final : public QObject, public SourceControl {
  Q_OBJECT

 public:
  QsciSourceControl(QWidget *parent, SourceAccess access);
  ~QsciSourceControl() override;

  QWidget *Widget() override;
  void SetFocus() override;
  QString Text() const override;
  void SetText(const QString &text) override;
  void ReplaceText(const QString &text) override;
  void SetColor(int slot, std::int32_t color) override;
  QString SelectedText() const override;
  void ReplaceSelection(const QString &text) override;
  void Edit(EditingCommand command) override;
  int CaretLine() const override;
  int CaretColumn() const override;
  int LineLength(int line) const override;
  void SetCaret(int line, int column) override;
  void SetLineWrap(LineWrap wrap) override;
  void CenterCaret() override;
  void SetSelectionListener(std::function<void()> listener) override;
  void SetTextListener(std::function<void()> listener) override;
  int MarkedLine() const override;
  void SetMarkedLine(int line) override;
  TextStretch Selection() const override;
  void Select(const TextStretch &stretch) override;
  void ReplaceParts(const std::vector<TextReplacement> &parts) override;
  void MarkStretches(const std::vector<TextStretch> &stretches) override;
  void DrawWaves(const TextStretch &range, const std::vector<TextStretch> &stretches) override;
  std::optional<TextStretch> TakeChange() override;
  TextStretch InSight() const override;
  qsizetype OffsetAt(QPoint point) const override;

  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  long Send(unsigned int message, long first = 0, long second = 0) const;
  /// Positions in bytes: of a line's first character, and behind its last one, before the line end.
  long LineStart(int line) const;
  long LineEnd(int line) const;
  /// Between positions in bytes and offsets in UTF-16 code units, by the control's index of lines.
  long PositionOf(qsizetype offset) const;
  qsizetype OffsetOf(long position) const;
  void PrepareWaves();
  /// Notes how many bytes at the text's start and at its end are as they were.
  void NoteChange(int position, int kind, int length);
  /// Sets the colours of text, margins and marks from the palette.
  void ApplyPalette();
  /// Sets the colours of `colors_`, in the palette's lightness.
  void ApplyColorSlots();
  /// Makes the margin as wide as the largest line number.
  void FitLineNumbers();

  QPointer<QsciScintilla> editor_;
  SourceLexer *lexer_ = nullptr;
  SourceMarks *marks_ = nullptr;
  std::function<void()> selectionListener_;
  std::function<void()> textListener_;
  int markedLine_ = -1;
  // Since TakeChange.
  bool hasChanged_ = false;
  long bytesBeforeChange_ = 0;
  long bytesBehindChange_ = 0;
  /// By slot; kept because a change of the palette restyles the whole control.
  std::map<int, std::int32_t> colors_;
};

}  // namespace velor
