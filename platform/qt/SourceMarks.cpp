// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/SourceMarks.h"

#include "platform/html/CssSpans.h"
#include "platform/html/SourceTags.h"
#include "platform/qt/SourceColors.h"

#include <QByteArrayView>
#include <QPalette>
#include <Qsci/qsciscintilla.h>

#include <algorithm>
#include <array>
#include <chrono>

namespace velor {

namespace {

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds StyleSheetPause = 150ms;
constexpr std::chrono::milliseconds TagPause = 40ms;
/// A "<" further before the caret than this begins no tag that anybody looks at.
constexpr qsizetype LongestTag = 4096;
constexpr int TagFieldAlpha = 40;
constexpr int TagEdgeAlpha = 110;

/// By CssPart.
constexpr std::array PartRoles = {SourceRole::Tag,    SourceRole::Attribute, SourceRole::String,
                                  SourceRole::Number, SourceRole::Comment,   SourceRole::Keyword};
constexpr int PartCount = static_cast<int>(PartRoles.size());
static_assert(SourceMarks::FirstStyleSheetIndicator + PartCount <= SourceMarks::TagIndicator);

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
  styleSheets_.setSingleShot(true);
  tags_.setSingleShot(true);
  connect(&styleSheets_, &QTimer::timeout, this, &SourceMarks::ColorStyleSheets);
  connect(&tags_, &QTimer::timeout, this, &SourceMarks::MarkTags);
  connect(editor_, &QsciScintilla::textChanged, this, [this] {
    styleSheets_.start(StyleSheetPause);
    tags_.start(TagPause);
  });
  connect(editor_, &QsciScintilla::cursorPositionChanged, this, [this] { tags_.start(TagPause); });
}

void SourceMarks::FollowPalette() {
  const QPalette palette = editor_->palette();
  for (int part = 0; part < PartCount; ++part) {
    SetIndicator(*editor_, FirstStyleSheetIndicator + part, QsciScintillaBase::INDIC_TEXTFORE,
                 SourceColor(PartRoles.at(static_cast<std::size_t>(part)), palette));
  }
  SetIndicator(*editor_, TagIndicator, QsciScintillaBase::INDIC_STRAIGHTBOX,
               palette.color(QPalette::Highlight));
  Send(*editor_, QsciScintillaBase::SCI_INDICSETALPHA, TagIndicator, TagFieldAlpha);
  Send(*editor_, QsciScintillaBase::SCI_INDICSETOUTLINEALPHA, TagIndicator, TagEdgeAlpha);
  Send(*editor_, QsciScintillaBase::SCI_INDICSETUNDER, TagIndicator, 1);
}

void SourceMarks::TextReplaced() {
  styleSheets_.start(0);
}

void SourceMarks::ColorStyleSheets() {
  for (int part = 0; part < PartCount; ++part) Clear(*editor_, FirstStyleSheetIndicator + part);
  const QByteArrayView text = TextOf(*editor_);
  qsizetype sheet = -1;
  const auto color = [&](qsizetype end) {
    for (const CssSpan &span : CssSpans(text.sliced(sheet, end - sheet)))
      Fill(*editor_, FirstStyleSheetIndicator + static_cast<int>(span.part), sheet + span.begin,
           sheet + span.end);
    sheet = -1;
  };
  VisitTags(text, [&](const SourceTag &tag) {
    if (sheet >= 0) color(tag.begin);
    if (tag.kind == SourceTag::Kind::Start && tag.name == "style") sheet = tag.end;
    return true;
  });
  if (sheet >= 0) color(text.size());
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
