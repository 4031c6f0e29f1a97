// SPDX-License-Identifier: GPL-3.0-or-later
// Stretches of the source: selected, replaced, marked.
#include "qt/QsciSourceControl.h"

#include <Qsci/qsciscintilla.h>

namespace velor {

namespace {

constexpr int MatchIndicator = QsciScintilla::INDIC_CONTAINER + 2;
constexpr int MatchAlpha = 90;

/// Counts bytes of UTF-8 for offsets in UTF-16 code units, which are asked for in rising order.
class BytePositions {
 public:
  explicit BytePositions(const QString &text) : text_(text) {}

  long Of(qsizetype offset) {
    for (; at_ < offset && at_ < text_.size(); ++at_) {
      const QChar unit = text_[at_];
      if (unit.isLowSurrogate())
        bytes_ += 1;  // the fourth of a pair
      else
        bytes_ += unit.unicode() < 0x80 ? 1 : unit.unicode() < 0x800 ? 2 : 3;
    }
    return bytes_;
  }

 private:
  const QString &text_;
  qsizetype at_ = 0;
  long bytes_ = 0;
};

}  // namespace

TextStretch QsciSourceControl::Selection() const {
  return {OffsetOf(Send(QsciScintilla::SCI_GETSELECTIONSTART)),
          OffsetOf(Send(QsciScintilla::SCI_GETSELECTIONEND))};
}

void QsciSourceControl::Select(const TextStretch &stretch) {
  const QString text = Text();
  BytePositions positions(text);
  const long start = positions.Of(stretch.start);
  const long end = positions.Of(stretch.end);
  Send(QsciScintilla::SCI_ENSUREVISIBLE, Send(QsciScintilla::SCI_LINEFROMPOSITION, start));
  Send(QsciScintilla::SCI_SETSEL, start, end);
}

void QsciSourceControl::ReplaceParts(const std::vector<TextReplacement> &parts) {
  if (editor_->isReadOnly()) return;
  const QString text = Text();
  BytePositions positions(text);
  // By how much the parts before have moved the text.
  long moved = 0;
  editor_->beginUndoAction();
  for (const TextReplacement &part : parts) {
    const QByteArray bytes = part.text.toUtf8();
    const long start = positions.Of(part.place.start);
    const long end = positions.Of(part.place.end);
    Send(QsciScintilla::SCI_SETTARGETRANGE, start + moved, end + moved);
    editor_->SendScintilla(QsciScintilla::SCI_REPLACETARGET,
                           static_cast<unsigned long>(bytes.size()), bytes.constData());
    moved += static_cast<long>(bytes.size()) - (end - start);
  }
  editor_->endUndoAction();
}

void QsciSourceControl::MarkStretches(const std::vector<TextStretch> &stretches) {
  const auto number = static_cast<unsigned long>(MatchIndicator);
  editor_->SendScintilla(QsciScintilla::SCI_SETINDICATORCURRENT, number);
  Send(QsciScintilla::SCI_INDICATORCLEARRANGE, 0, Send(QsciScintilla::SCI_GETLENGTH));
  if (stretches.empty()) return;
  editor_->SendScintilla(QsciScintilla::SCI_INDICSETSTYLE, number,
                         long(QsciScintilla::INDIC_STRAIGHTBOX));
  editor_->SendScintilla(QsciScintilla::SCI_INDICSETFORE, number, QColor(255, 176, 0));
  editor_->SendScintilla(QsciScintilla::SCI_INDICSETALPHA, number, long(MatchAlpha));
  editor_->SendScintilla(QsciScintilla::SCI_INDICSETUNDER, number, long(1));
  const QString text = Text();
  BytePositions positions(text);
  for (const TextStretch &stretch : stretches) {
    const long start = positions.Of(stretch.start);
    Send(QsciScintilla::SCI_INDICATORFILLRANGE, start, positions.Of(stretch.end) - start);
  }
}

}  // namespace velor
