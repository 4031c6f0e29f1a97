// SPDX-License-Identifier: GPL-3.0-or-later
// Waves under words of the source, and what those who draw them ask: what has changed, what is in
// sight.
#include "qt/QsciSourceControl.h"
#include "qt/SourceColors.h"

#include <Qsci/qsciscintilla.h>

#include <algorithm>

namespace velor {

namespace {

constexpr int WaveIndicator = QsciScintilla::INDIC_CONTAINER + 3;
constexpr long Utf16 = QsciScintilla::SC_LINECHARACTERINDEX_UTF16;

}  // namespace

void QsciSourceControl::PrepareWaves() {
  Send(QsciScintilla::SCI_ALLOCATELINECHARACTERINDEX, Utf16);
  Send(QsciScintilla::SCI_INDICSETSTYLE, WaveIndicator, QsciScintilla::INDIC_SQUIGGLE);
  editor_->SendScintilla(QsciScintilla::SCI_INDICSETFORE, static_cast<unsigned long>(WaveIndicator),
                         UnknownWordColor());
  connect(editor_, &QsciScintilla::SCN_MODIFIED, this,
          [this](int position, int kind, const char *, int length) {
            NoteChange(position, kind, length);
          });
}

long QsciSourceControl::PositionOf(qsizetype offset) const {
  const long line =
      Send(QsciScintilla::SCI_LINEFROMINDEXPOSITION, static_cast<long>(offset), Utf16);
  const long before = Send(QsciScintilla::SCI_INDEXPOSITIONFROMLINE, line, Utf16);
  return Send(QsciScintilla::SCI_POSITIONRELATIVECODEUNITS, LineStart(static_cast<int>(line)),
              static_cast<long>(offset) - before);
}

qsizetype QsciSourceControl::OffsetOf(long position) const {
  const long line = Send(QsciScintilla::SCI_LINEFROMPOSITION, position);
  return Send(QsciScintilla::SCI_INDEXPOSITIONFROMLINE, line, Utf16) +
         Send(QsciScintilla::SCI_COUNTCODEUNITS, LineStart(static_cast<int>(line)), position);
}

void QsciSourceControl::NoteChange(int position, int kind, int length) {
  const bool isInsertion = (kind & QsciScintilla::SC_MOD_INSERTTEXT) != 0;
  if (!isInsertion && (kind & QsciScintilla::SC_MOD_DELETETEXT) == 0) return;
  const long behind = Send(QsciScintilla::SCI_GETLENGTH) - position - (isInsertion ? length : 0);
  if (!hasChanged_) {
    hasChanged_ = true;
    bytesBeforeChange_ = position;
    bytesBehindChange_ = behind;
  }
  bytesBeforeChange_ = std::min<long>(bytesBeforeChange_, position);
  bytesBehindChange_ = std::min(bytesBehindChange_, behind);
}

std::optional<TextStretch> QsciSourceControl::TakeChange() {
  if (!std::exchange(hasChanged_, false)) return std::nullopt;
  const long end = Send(QsciScintilla::SCI_GETLENGTH) - bytesBehindChange_;
  const qsizetype start = OffsetOf(bytesBeforeChange_);
  return TextStretch{start, std::max(start, OffsetOf(end))};
}

void QsciSourceControl::DrawWaves(const TextStretch &range,
                                  const std::vector<TextStretch> &stretches) {
  const long start = PositionOf(range.start);
  Send(QsciScintilla::SCI_SETINDICATORCURRENT, WaveIndicator);
  Send(QsciScintilla::SCI_INDICATORCLEARRANGE, start, PositionOf(range.end) - start);
  for (const TextStretch &stretch : stretches) {
    const long from = PositionOf(stretch.start);
    Send(QsciScintilla::SCI_INDICATORFILLRANGE, from, PositionOf(stretch.end) - from);
  }
}

TextStretch QsciSourceControl::InSight() const {
  const long top = Send(QsciScintilla::SCI_GETFIRSTVISIBLELINE);
  const auto lineAt = [this](long shown) {
    return static_cast<int>(Send(QsciScintilla::SCI_DOCLINEFROMVISIBLE, shown));
  };
  const int last = lineAt(top + Send(QsciScintilla::SCI_LINESONSCREEN));
  return {OffsetOf(LineStart(lineAt(top))), OffsetOf(LineEnd(last))};
}

qsizetype QsciSourceControl::OffsetAt(QPoint point) const {
  return OffsetOf(Send(QsciScintilla::SCI_POSITIONFROMPOINT, point.x(), point.y()));
}

}  // namespace velor
