// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/FakeSourceControl.h"

#include <QStringList>

#include <algorithm>
#include <utility>

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
  const qsizetype before = text.size();
  text = newText;
  undoable.clear();
  selectionStart = selectionEnd = 0;
  TextChanged({0, text.size()}, before);
}

void FakeSourceControl::ReplaceText(const QString &newText) {
  Note(log_, QStringLiteral("Source.ReplaceText()"));
  undoable << text;
  text = newText;
  selectionStart = selectionEnd = 0;
  TextChanged({0, text.size()}, undoable.last().size());
}

QString FakeSourceControl::SelectedText() const {
  return text.mid(selectionStart, selectionEnd - selectionStart);
}

void FakeSourceControl::ReplaceSelection(const QString &replacement) {
  if (access == SourceAccess::View) return;
  const qsizetype removed = selectionEnd - selectionStart;
  text.replace(selectionStart, removed, replacement);
  const qsizetype start = selectionStart;
  selectionStart = selectionEnd = start + replacement.size();
  TextChanged({start, selectionEnd}, removed);
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
  undoable << text;
  for (auto part = parts.rbegin(); part != parts.rend(); ++part) {
    const qsizetype removed = part->place.end - part->place.start;
    text.replace(part->place.start, removed, part->text);
    TextChanged({part->place.start, part->place.start + part->text.size()}, removed);
  }
}

void FakeSourceControl::DrawWaves(const TextStretch &range,
                                  const std::vector<TextStretch> &stretches) {
  std::erase_if(waves, [&range](const TextStretch &wave) {
    return wave.start < range.end && wave.end > range.start;
  });
  waves.insert(waves.end(), stretches.begin(), stretches.end());
  std::ranges::sort(waves, {}, &TextStretch::start);
}

std::optional<TextStretch> FakeSourceControl::TakeChange() {
  return std::exchange(change_, std::nullopt);
}

void FakeSourceControl::TextChanged(const TextStretch &changed, qsizetype removed) {
  const qsizetype removedEnd = changed.start + removed;
  const qsizetype moved = changed.end - removedEnd;
  std::erase_if(waves, [&](const TextStretch &wave) {
    return wave.start < removedEnd && wave.end > changed.start;
  });
  for (TextStretch &wave : waves) {
    if (wave.start >= removedEnd) wave = {wave.start + moved, wave.end + moved};
  }
  if (!change_) {
    change_ = changed;
  } else {
    const qsizetype end = change_->end >= removedEnd ? change_->end + moved : changed.end;
    change_ = {std::min(change_->start, changed.start), std::max(end, changed.end)};
  }
  if (textListener) textListener();
}

}  // namespace velor
