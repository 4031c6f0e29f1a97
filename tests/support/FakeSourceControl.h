// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/SourceControl.h"
#include "tests/support/CallLog.h"

#include <QPointer>
#include <QStringList>
#include <QWidget>

#include <functional>
#include <map>
#include <optional>
#include <utility>

namespace velor {

/// A source control that is a text, a selection and a caret.
class FakeSourceControl final : public SourceControl {
 public:
  FakeSourceControl(QWidget *parent, SourceAccess sourceAccess, CallLog *log = nullptr);
  ~FakeSourceControl() override;

  const SourceAccess access;
  QString text;
  /// The texts that an undo would bring back, the last one last.
  QStringList undoable;
  std::map<int, std::int32_t> colors;
  /// The stretch of the text that is selected; the caret stands at its end.
  qsizetype selectionStart = 0;
  qsizetype selectionEnd = 0;
  std::function<void()> selectionListener;
  std::function<void()> textListener;
  int markedLine = -1;
  std::vector<TextStretch> marked;
  std::vector<TextStretch> waves;      ///< in the order of the text
  std::optional<TextStretch> inSight;  ///< all of the text where it is not set
  qsizetype offsetAtPoint = 0;
  LineWrap wrap = LineWrap::Off;
  /// Reported as the caret's column in place of the real one.
  std::optional<int> strayColumn;

  QWidget *Widget() override { return widget_; }
  void SetFocus() override;
  QString Text() const override { return text; }
  void SetText(const QString &newText) override;
  void ReplaceText(const QString &newText) override;
  void SetColor(int slot, std::int32_t color) override { colors[slot] = color; }
  QString SelectedText() const override;
  void ReplaceSelection(const QString &replacement) override;
  void Edit(EditingCommand command) override;
  int CaretLine() const override;
  int CaretColumn() const override;
  int LineLength(int line) const override;
  void SetCaret(int line, int column) override;
  void SetLineWrap(LineWrap newWrap) override { wrap = newWrap; }
  void CenterCaret() override {}
  void SetSelectionListener(std::function<void()> listener) override {
    selectionListener = std::move(listener);
  }
  void SetTextListener(std::function<void()> listener) override {
    textListener = std::move(listener);
  }
  int MarkedLine() const override { return markedLine; }
  void SetMarkedLine(int line) override { markedLine = line; }
  TextStretch Selection() const override { return {selectionStart, selectionEnd}; }
  void Select(const TextStretch &stretch) override;
  void ReplaceParts(const std::vector<TextReplacement> &parts) override;
  void MarkStretches(const std::vector<TextStretch> &stretches) override { marked = stretches; }
  void DrawWaves(const TextStretch &range, const std::vector<TextStretch> &stretches) override;
  std::optional<TextStretch> TakeChange() override;
  TextStretch InSight() const override { return inSight.value_or(TextStretch{0, text.size()}); }
  qsizetype OffsetAt(QPoint) const override { return offsetAtPoint; }

 private:
  /// `changed` is what was put in, and `removed` how many code units it replaced.
  void TextChanged(const TextStretch &changed, qsizetype removed);

  CallLog *log_;
  std::optional<TextStretch> change_;
  QPointer<QWidget> widget_;
};

}  // namespace velor
