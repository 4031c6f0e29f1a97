// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/html/SourcePatches.h"

#include "platform/html/HtmlElements.h"
#include "platform/html/TagPatches.h"
#include "platform/html/TextCharacters.h"

#include <algorithm>
#include <utility>

namespace velor {

namespace {

using Number = std::int32_t;

std::size_t Index(Number number) {
  return static_cast<std::size_t>(number);
}

bool IsFrameTag(const HtmlToken &token) {
  return token.name == elements::html || token.name == elements::head ||
         token.name == elements::body;
}

/// An element of the document now, by the numbers of its tags.
struct OpenElement {
  Number start = 0;
  Number end = 0;
};

Number EndOfElement(const TokenText &text, Number start) {
  int depth = 0;
  for (Number at = start; at < text.Count(); ++at) {
    const HtmlToken &token = text.At(at);
    if (token.kind == HtmlTokenKind::StartTag) {
      if (!elements::IsOneOf(token.name, elements::voidElements)) ++depth;
    } else if (token.kind == HtmlTokenKind::EndTag && --depth == 0) {
      return at;
    }
  }
  return -1;
}

/// The elements that hold the tokens [from, to), innermost first.
std::vector<OpenElement> Around(const TokenText &text, Number from, Number to) {
  std::vector<OpenElement> around;
  int closed = 0;
  for (Number at = from - 1; at >= 0; --at) {
    const HtmlToken &token = text.At(at);
    if (token.kind == HtmlTokenKind::EndTag) {
      ++closed;
    } else if (token.kind == HtmlTokenKind::StartTag &&
               !elements::IsOneOf(token.name, elements::voidElements)) {
      if (closed > 0) {
        --closed;
        continue;
      }
      const Number end = EndOfElement(text, at);
      if (end >= to) around.push_back({at, end});
    }
  }
  return around;
}

}  // namespace

struct SourcePatches::Written {
  TextPatch patch;
  Number now = 0;
  Number nowEnd = 0;
};

SourcePatches::SourcePatches(const TokenText &source, const TokenText &before, const TokenText &now,
                             const TokenAlignment &sourceToBefore,
                             const TokenAlignment &beforeToNow, LineEnds lineEnds)
    : source_(source),
      before_(before),
      now_(now),
      sourceToBefore_(sourceToBefore),
      beforeToNow_(beforeToNow),
      lineEnds_(lineEnds) {}

QString SourcePatches::InPageForm(QStringView text) const {
  return WithLineEnds(text.toString(), lineEnds_);
}

std::optional<std::vector<TextPatch>> SourcePatches::For(
    const std::vector<PageEdit> &edits, const std::vector<PatchStep> &steps) const {
  std::vector<Written> all;
  for (std::size_t number = 0; number < edits.size(); ++number) {
    const PageEdit &edit = edits[number];
    const PatchStep step = steps[number];
    if (step.number >= PatchStep::element) {
      if (!Element(edit, step.number - PatchStep::element, all)) return std::nullopt;
    } else if (edit.isTagChange && SourceOf(edit.before) >= 0) {
      Tag(edit, all);
    } else {
      Stretch(edit, step, all);
    }
  }
  // Elements written anew swallow what lies in them.
  std::stable_sort(all.begin(), all.end(), [](const Written &a, const Written &b) {
    return a.patch.start != b.patch.start ? a.patch.start < b.patch.start
                                          : a.patch.end > b.patch.end;
  });
  std::vector<TextPatch> patches;
  const Written *last = nullptr;
  for (const Written &written : all) {
    if (last != nullptr && written.patch.start < last->patch.end) {
      if (written.patch.end <= last->patch.end) continue;
      return std::nullopt;
    }
    patches.push_back(written.patch);
    if (written.patch.start < written.patch.end) last = &written;
  }
  return patches;
}

void SourcePatches::Replace(qsizetype start, qsizetype end, QString text, const PageEdit &edit,
                            std::vector<Written> &out) const {
  // What patch and source share at both ends stays the source's own.
  const QStringView old = QStringView(source_.text).sliced(start, end - start);
  QStringView fresh = text;
  qsizetype front = 0;
  const qsizetype shorter = std::min(old.size(), fresh.size());
  while (front < shorter && old[front] == fresh[front]) ++front;
  if (front > 0 && old[front - 1].isHighSurrogate()) --front;
  qsizetype back = 0;
  while (back < shorter - front && old[old.size() - 1 - back] == fresh[fresh.size() - 1 - back])
    ++back;
  if (back > 0 && old[old.size() - back].isLowSurrogate()) --back;
  if (front + back == old.size() && old.size() == fresh.size()) return;
  fresh = fresh.sliced(front, fresh.size() - front - back);
  out.push_back({{start + front, end - back, fresh.toString()}, edit.now, edit.nowEnd});
}

void SourcePatches::Tag(const PageEdit &edit, std::vector<Written> &out) const {
  const HtmlToken &source = source_.At(SourceOf(edit.before));
  const TagTexts texts{QStringView(source_.text).sliced(0, source.End()),
                       before_.Slice(edit.before, edit.beforeEnd),
                       now_.Slice(edit.now, edit.nowEnd)};
  for (TextPatch &patch : PatchTag(texts, source.offset))
    Replace(patch.start, patch.end, InPageForm(patch.text), edit, out);
}

void SourcePatches::Stretch(const PageEdit &edit, PatchStep step, std::vector<Written> &out) const {
  Number first = -1;
  Number last = -1;
  for (Number at = edit.before; at < edit.beforeEnd; ++at) {
    if (SourceOf(at) < 0) continue;
    if (first < 0) first = SourceOf(at);
    last = SourceOf(at);
  }
  Number left = edit.before;
  while (left > 0 && SourceOf(left - 1) < 0) --left;
  QString text;
  if (step.number == PatchStep::withImpliedTags) text += before_.Slice(left, edit.before);
  if (first >= 0 && text.isEmpty() && Characters(first, last, edit, out)) return;
  text = InPageForm(text + now_.Slice(edit.now, edit.nowEnd).toString());
  if (first < 0) {
    const qsizetype place = left > 0 ? source_.At(SourceOf(left - 1)).End() : 0;
    Replace(place, place, text, edit, out);
    return;
  }
  // Tags of the page's frame that only the source has stay where they are.
  qsizetype start = source_.At(first).offset;
  for (Number at = first; at <= last; ++at) {
    const HtmlToken &token = source_.At(at);
    if (!IsFrameTag(token) || sourceToBefore_.toOther[Index(at)] >= 0) continue;
    Replace(start, token.offset, std::exchange(text, QString()), edit, out);
    start = token.End();
  }
  Replace(start, source_.At(last).End(), text, edit, out);
}

/// Text for text: references of the source that the edit did not touch stay as they are written.
bool SourcePatches::Characters(Number first, Number last, const PageEdit &edit,
                               std::vector<Written> &out) const {
  if (edit.now == edit.nowEnd) return false;
  for (Number at = first; at <= last; ++at) {
    if (!source_.At(at).IsText()) return false;
  }
  for (Number at = edit.now; at < edit.nowEnd; ++at) {
    if (!now_.At(at).IsText()) return false;
  }
  const qsizetype place = source_.At(first).offset;
  const QStringView old = source_.Slice(first, last + 1);
  const QStringView fresh = now_.Slice(edit.now, edit.nowEnd);
  const std::vector<TextCharacter> olds = CharactersOf(old);
  const std::vector<TextCharacter> news = CharactersOf(fresh);
  const std::size_t shorter = std::min(olds.size(), news.size());
  std::size_t front = 0;
  qsizetype oldFront = 0;
  qsizetype newFront = 0;
  while (front < shorter && olds[front].Means(news[front])) {
    oldFront += olds[front].length;
    newFront += news[front].length;
    ++front;
  }
  qsizetype oldBack = old.size();
  qsizetype newBack = fresh.size();
  for (std::size_t back = 1; back <= shorter - front; ++back) {
    const TextCharacter &a = olds[olds.size() - back];
    const TextCharacter &b = news[news.size() - back];
    if (!a.Means(b)) break;
    oldBack -= a.length;
    newBack -= b.length;
  }
  Replace(place + oldFront, place + oldBack, InPageForm(fresh.sliced(newFront, newBack - newFront)),
          edit, out);
  return true;
}

bool SourcePatches::Element(const PageEdit &edit, int ancestor, std::vector<Written> &out) const {
  for (const OpenElement &element : Around(now_, edit.now, edit.nowEnd)) {
    const Number start = beforeToNow_.fromOther[Index(element.start)];
    const Number end = beforeToNow_.fromOther[Index(element.end)];
    if (start < 0 || end < 0 || SourceOf(start) < 0) continue;
    if (edit.before <= start || edit.beforeEnd > end || EndOfElement(before_, start) != end)
      continue;
    if (ancestor-- > 0) continue;
    const bool hasEnd = SourceOf(end) >= 0;
    Number last = end - 1;
    while (SourceOf(last) < 0) --last;
    const qsizetype from = source_.At(SourceOf(start)).End();
    const qsizetype to =
        hasEnd ? source_.At(SourceOf(end)).offset : source_.At(SourceOf(last)).End();
    Replace(from, to, InPageForm(now_.Slice(element.start + 1, element.end + (hasEnd ? 0 : 1))),
            edit, out);
    return true;
  }
  return false;
}

}  // namespace velor
