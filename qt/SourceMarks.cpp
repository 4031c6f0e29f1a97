// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/SourceMarks.h"

#include "page/source/SourceTags.h"

#include <QByteArrayView>
#include <QPalette>
#include <Qsci/qsciscintilla.h>

#include <algorithm>
#include <chrono>
#include <vector>

namespace velor {

namespace {

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds FoldPause = 150ms;
constexpr std::chrono::milliseconds TagPause = 40ms;
/// Bytes before the caret in which the "<" of its tag is looked for.
constexpr qsizetype LongestTag = 4096;
constexpr int TagFieldAlpha = 40;
constexpr int TagEdgeAlpha = 110;

/// The control's levels have twelve bits, of which the base takes one.
constexpr int DeepestFold =
    QsciScintillaBase::SC_FOLDLEVELNUMBERMASK - QsciScintillaBase::SC_FOLDLEVELBASE;

long Send(const QsciScintilla &editor, unsigned int message, qsizetype first = 0,
          qsizetype second = 0) {
  return editor.SendScintilla(message, static_cast<unsigned long>(first),
                              static_cast<long>(second));
}

/// The control's own text, valid until it changes.
QByteArrayView TextOf(const QsciScintilla &editor) {
  const auto *text = static_cast<const char *>(
      editor.SendScintillaPtrResult(QsciScintillaBase::SCI_GETCHARACTERPOINTER));
  return {text, Send(editor, QsciScintillaBase::SCI_GETLENGTH)};
}

bool StandsInTag(QByteArrayView text, qsizetype position) {
  const qsizetype first = std::max<qsizetype>(0, position - LongestTag);
  for (qsizetype at = std::min(position, text.size() - 1); at >= first; --at) {
    if (text[at] == '<') return true;
    if (text[at] == '>' && at < position) return false;
  }
  return false;
}

void Fill(const QsciScintilla &editor, int indicator, qsizetype begin, qsizetype end) {
  Send(editor, QsciScintillaBase::SCI_SETINDICATORCURRENT, indicator);
  Send(editor, QsciScintillaBase::SCI_INDICATORFILLRANGE, begin, end - begin);
}

void Clear(const QsciScintilla &editor, int indicator) {
  Send(editor, QsciScintillaBase::SCI_SETINDICATORCURRENT, indicator);
  Send(editor, QsciScintillaBase::SCI_INDICATORCLEARRANGE, 0,
       Send(editor, QsciScintillaBase::SCI_GETLENGTH));
}

void SetIndicator(QsciScintilla &editor, int indicator, int style, const QColor &color) {
  Send(editor, QsciScintillaBase::SCI_INDICSETSTYLE, indicator, style);
  editor.SendScintilla(QsciScintillaBase::SCI_INDICSETFORE, static_cast<unsigned long>(indicator),
                       color);
}

}  // namespace

SourceMarks::SourceMarks(QsciScintilla *editor) : QObject(editor), editor_(editor) {
  folds_.setSingleShot(true);
  tags_.setSingleShot(true);
  connect(&folds_, &QTimer::timeout, this, &SourceMarks::FindFolds);
  connect(&tags_, &QTimer::timeout, this, &SourceMarks::MarkTags);
  connect(editor_, &QsciScintilla::textChanged, this, [this] {
    folds_.start(FoldPause);
    tags_.start(TagPause);
  });
  connect(editor_, &QsciScintilla::cursorPositionChanged, this, [this] { tags_.start(TagPause); });
}

void SourceMarks::ApplyPalette() {
  const QPalette palette = editor_->palette();
  SetIndicator(*editor_, TagIndicator, QsciScintillaBase::INDIC_STRAIGHTBOX,
               palette.color(QPalette::Highlight));
  Send(*editor_, QsciScintillaBase::SCI_INDICSETALPHA, TagIndicator, TagFieldAlpha);
  Send(*editor_, QsciScintillaBase::SCI_INDICSETOUTLINEALPHA, TagIndicator, TagEdgeAlpha);
  Send(*editor_, QsciScintillaBase::SCI_INDICSETUNDER, TagIndicator, 1);
}

void SourceMarks::TextReplaced() {
  folds_.start(0);
}

void SourceMarks::FindFolds() {
  const auto lines = static_cast<std::size_t>(Send(*editor_, QsciScintillaBase::SCI_GETLINECOUNT));
  // By how much a line lies deeper than the one before.
  std::vector<int> steps(lines + 1);
  std::vector<bool> headers(lines);
  for (const SourceStretch &stretch : FoldableStretches(TextOf(*editor_))) {
    const auto line = [this](qsizetype position) {
      return static_cast<std::size_t>(
          Send(*editor_, QsciScintillaBase::SCI_LINEFROMPOSITION, position));
    };
    const std::size_t first = line(stretch.begin);
    const std::size_t last = line(stretch.end - 1);
    if (first == last) continue;
    headers[first] = true;
    ++steps[first + 1];
    --steps[last + 1];
  }
  int depth = 0;
  for (std::size_t line = 0; line < lines; ++line) {
    depth += steps[line];
    const int level = (QsciScintillaBase::SC_FOLDLEVELBASE + std::min(depth, DeepestFold)) |
                      (headers[line] ? QsciScintillaBase::SC_FOLDLEVELHEADERFLAG : 0);
    const auto number = static_cast<qsizetype>(line);
    if (Send(*editor_, QsciScintillaBase::SCI_GETFOLDLEVEL, number) != level)
      Send(*editor_, QsciScintillaBase::SCI_SETFOLDLEVEL, number, level);
  }
}

void SourceMarks::MarkTags() {
  Clear(*editor_, TagIndicator);
  const QByteArrayView text = TextOf(*editor_);
  qsizetype position = Send(*editor_, QsciScintillaBase::SCI_GETCURRENTPOS);
  // Right behind a tag the caret still belongs to it, unless another one begins there.
  const bool isBehind = position > 0 && text[position - 1] == '>';
  const bool isBefore = position < text.size() && text[position] == '<';
  if (isBehind && !isBefore) --position;
  if (text.isEmpty() || !StandsInTag(text, position)) return;
  const auto pair = MatchingTags(text, position);
  if (!pair || !pair->other) return;
  Fill(*editor_, TagIndicator, pair->own.begin, pair->own.end);
  Fill(*editor_, TagIndicator, pair->other->begin, pair->other->end);
}

}  // namespace velor
