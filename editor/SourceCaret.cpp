// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/SourceCaret.h"

#include "page/source/SourcePlaces.h"
#include "platform/SourceControl.h"

#include <QString>

#include <algorithm>

namespace velor {

namespace {

/// The index after the line break at `at`; `at` where there is none.
qsizetype BehindBreak(const QString &text, qsizetype at) {
  if (text[at] == u'\r') return at + 1 < text.size() && text[at + 1] == u'\n' ? at + 2 : at + 1;
  return text[at] == u'\n' ? at + 1 : at;
}

/// Start and number of the line that contains a position.
SourceCaret CaretAt(const QString &text, qsizetype position) {
  int line = 0;
  qsizetype start = 0;
  for (qsizetype at = 0; at < position;) {
    const qsizetype behind = BehindBreak(text, at);
    if (behind > position) break;
    if (behind != at) {
      ++line;
      start = behind;
    }
    at = std::max(behind, at + 1);
  }
  return {line, static_cast<int>(position - start)};
}

}  // namespace

SourceCaret CaretOf(const SourceControl &source) {
  return {source.CaretLine(), source.CaretColumn()};
}

void ShowStretchIn(SourceControl &source, const ElementStretch &stretch) {
  if (stretch.start.empty()) return;
  const QString text = source.Text();
  const auto start = FindPlace(text, stretch.start);
  if (!start) return;
  const SourceCaret caret = CaretAt(text, *start);
  source.SetCaret(caret.line, caret.column);
  source.CenterCaret();
  if (stretch.end.empty()) return;
  const auto end = FindPlace(text, stretch.end);
  if (end && *end > *start) source.Select({*start, *end});
}

ElementStretch SelectedPlacesOf(const SourceControl &source) {
  const QString text = source.Text();
  const TextStretch selected = source.Selection();
  ElementStretch stretch{PlacesAt(text, selected.start)};
  if (selected.end > selected.start) stretch.end = PlacesAt(text, selected.end);
  return stretch;
}

}  // namespace velor
