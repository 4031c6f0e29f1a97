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

bool FakeSourceControl::Find(const QString &wanted, SearchDirection direction,
                             LetterCase letterCase) {
  const auto rule = letterCase == LetterCase::Matched ? Qt::CaseSensitive : Qt::CaseInsensitive;
  if (wanted.isEmpty()) return false;
  qsizetype found = -1;
  if (direction == SearchDirection::Backward) {
    if (selectionStart > 0) found = text.lastIndexOf(wanted, selectionStart - 1, rule);
    if (found < 0) found = text.lastIndexOf(wanted, -1, rule);
  } else {
    const bool stays = direction == SearchDirection::Here;
    found = text.indexOf(wanted, stays ? selectionStart : selectionEnd, rule);
    if (found < 0) found = text.indexOf(wanted, 0, rule);
  }
  if (found < 0) return false;
  selectionStart = found;
  selectionEnd = found + wanted.size();
  if (selectionListener) selectionListener();
  return true;
}

int FakeSourceControl::ReplaceAll(const QString &wanted, const QString &replacement,
                                  LetterCase letterCase) {
  if (access == SourceAccess::View || wanted.isEmpty()) return 0;
  const auto rule = letterCase == LetterCase::Matched ? Qt::CaseSensitive : Qt::CaseInsensitive;
  const auto count = static_cast<int>(text.count(wanted, rule));
  text.replace(wanted, replacement, rule);
  if (count > 0) TextChanged();
  return count;
}

}  // namespace velor
