// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/SourceControl.h"

#include <QObject>
#include <QPointer>

#include <map>

class QsciLexerHTML;
class QsciScintilla;

namespace velor {

/// The source control on QScintilla: HTML with its scripts in colours that follow the palette, line
/// numbers, a fixed-pitch font. Line ends stay as they were given, and new lines get the same.
class QsciSourceControl final : public QObject, public SourceControl {
  Q_OBJECT

 public:
  QsciSourceControl(QWidget *parent, SourceAccess access);
  ~QsciSourceControl() override;

  QWidget *Widget() override;
  void SetFocus() override;
  QString Text() const override;
  void SetText(const QString &text) override;
  void SetColor(int slot, std::int32_t color) override;
  QString SelectedText() const override;
  void ReplaceSelection(const QString &text) override;
  int CaretLine() const override;
  int CaretColumn() const override;
  int LineLength(int line) const override;
  void SetCaret(int line, int column) override;

  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  /// The line without its line end.
  QString LineText(int line) const;
  void FollowPalette();
  void ApplyColorSlots();
  void FitLineNumbers();

  QPointer<QsciScintilla> editor_;
  QsciLexerHTML *lexer_ = nullptr;
  /// By slot; kept because a change of the palette restyles the whole control.
  std::map<int, std::int32_t> colors_;
};

}  // namespace velor
