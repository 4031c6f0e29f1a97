// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/FakeSourceControl.h"

#include <QStringList>

#include <algorithm>

namespace velor {

FakeSourceControl::FakeSourceControl(QWidget *parent, SourceAccess sourceAccess, CallLog *log)
    : access(sourceAccess), log_(log), widget_(new QWidget(parent)) {
  widget_->setFocusPolicy(Qt::StrongFocus);
}

FakeSourceControl::~FakeSourceControl() {
  delete widget_;
}

void FakeSourceControl::SetFocus() {
  Note(log_, QStringLiteral("Source.SetFocus()"));
  widget_->setFocus();
}

void FakeSourceControl::SetText(const QString &newText) {
  Note(log_, QStringLiteral("Source.SetText()"));
  text = newText;
  undoable.clear();
  selectionStart = selectionEnd = 0;
  TextChanged();
}

void FakeSourceControl::ReplaceText(const QString &newText) {
  Note(log_, QStringLiteral("Source.ReplaceText()"));
  undoable << text;
  text = newText;
  selectionStart = selectionEnd = 0;
  TextChanged();
}

QString FakeSourceControl::SelectedText() const {
  return text.mid(selectionStart, selectionEnd - selectionStart);
}

void FakeSourceControl::ReplaceSelection(const QString &replacement) {
  if (access == SourceAccess::View) return;
  text.replace(selectionStart, selectionEnd - selectionStart, replacement);
  selectionStart = selectionEnd = selectionStart + replacement.size();
  TextChanged();
}

void FakeSourceControl::Edit(EditingCommand command) {
  Note(log_, QStringLiteral("Source.Edit(%1)").arg(Number(command)));
  if (command == EditingCommand::SelectAll) {
    selectionStart = 0;
    selectionEnd = text.size();
  } else if (command == EditingCommand::Cut || command == EditingCommand::Delete) {
    ReplaceSelection({});
  }
}

int FakeSourceControl::CaretLine() const {
  return static_cast<int>(QStringView(text).left(selectionEnd).count(u'\n'));
}

int FakeSourceControl::CaretColumn() const {
  if (strayColumn) return *strayColumn;
  const qsizetype start = text.lastIndexOf(u'\n', selectionEnd - text.size() - 1) + 1;
  return static_cast<int>(selectionEnd - (selectionEnd == 0 ? 0 : start));
}

int FakeSourceControl::LineLength(int line) const {
  QString content = text.section(u'\n', line, line);
  if (content.endsWith(u'\r')) content.chop(1);
  return static_cast<int>(content.size());
}

void FakeSourceControl::SetCaret(int line, int column) {
  qsizetype start = 0;
  for (int before = 0; before < line; ++before) start = text.indexOf(u'\n', start) + 1;
  selectionStart = selectionEnd = start + std::min(column, LineLength(line));
  strayColumn.reset();
  if (selectionListener) selectionListener();
}

void FakeSourceControl::Select(const TextStretch &stretch) {
  selectionStart = stretch.start;
  selectionEnd = stretch.end;
  if (selectionListener) selectionListener();
}

void FakeSourceControl::ReplaceParts(const std::vector<TextReplacement> &parts) {
  if (access == SourceAccess::View || parts.empty()) return;
  for (auto part = parts.rbegin(); part != parts.rend(); ++part)
    text.replace(part->place.start, part->place.end - part->place.start, part->text);
  TextChanged();
}

}  // namespace velor
