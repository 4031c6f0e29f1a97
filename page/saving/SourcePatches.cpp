// SPDX-License-Identifier: GPL-3.0-or-later
#include "page/saving/SourcePatches.h"

#include "page/saving/TagPatches.h"
#include "page/text/HtmlElements.h"
#include "page/text/TextCharacters.h"

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

bool IsBlank(const HtmlToken &token) {
  return token.kind == HtmlTokenKind::Blank || token.kind == HtmlTokenKind::LineBreak;
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

bool TellsPlace(const HtmlToken &token) {
  return token.kind == HtmlTokenKind::Comment ||
         (token.isStrong && token.kind != HtmlTokenKind::EndTag);
}

/// Pairs what a first alignment left over on both sides. Start tags, comments and long words tell
/// where a stretch went; what stands in one row with them went along.
std::vector<Number> MovedTokens(const TokenText &source, const TokenText &before,
                                const TokenAlignment &alignment) {
  std::vector<Number> sourceNumbers;
  std::vector<Number> beforeNumbers;
  std::vector<HtmlToken> sourceTokens;
  std::vector<HtmlToken> beforeTokens;
  // The parser makes the page's frame where it stands.
  for (Number at = 0; at < source.Count(); ++at) {
    if (alignment.toOther[Index(at)] >= 0 || IsFrameTag(source.At(at))) continue;
    sourceNumbers.push_back(at);
    sourceTokens.push_back(source.At(at));
  }
  for (Number at = 0; at < before.Count(); ++at) {
    if (alignment.fromOther[Index(at)] >= 0 || IsFrameTag(before.At(at))) continue;
    beforeNumbers.push_back(at);
    beforeTokens.push_back(before.At(at));
  }
  const TokenAlignment leftOver =
      AlignTokens(sourceTokens, beforeTokens, InStep::WithSerialisation);
  std::vector<Number> moved(Index(before.Count()), -1);
  std::vector<bool> isTaken(Index(source.Count()), false);
  for (std::size_t at = 0; at < beforeNumbers.size(); ++at) {
    const Number found = leftOver.fromOther[at];
    if (found < 0 || sourceTokens[Index(found)].key != beforeTokens[at].key) continue;
    if (!TellsPlace(beforeTokens[at])) continue;
    moved[Index(beforeNumbers[at])] = sourceNumbers[Index(found)];
    isTaken[Index(sourceNumbers[Index(found)])] = true;
  }
  const auto takeAlong = [&](Number at, Number by) {
    const Number next = at + by;
    if (moved[Index(at)] < 0 || next < 0 || next >= before.Count()) return;
    const Number found = moved[Index(at)] + by;
    if (moved[Index(next)] >= 0 || alignment.fromOther[Index(next)] >= 0) return;
    if (found < 0 || found >= source.Count() || alignment.toOther[Index(found)] >= 0) return;
    if (isTaken[Index(found)] || source.At(found).key != before.At(next).key) return;
    if (IsFrameTag(before.At(next))) return;
    moved[Index(next)] = found;
    isTaken[Index(found)] = true;
  };
  for (Number at = 0; at < before.Count(); ++at) takeAlong(at, 1);
  for (Number at = before.Count() - 1; at >= 0; --at) takeAlong(at, -1);
  return moved;
}

}  // namespace

SourcePatches::SourcePatches(const TokenText &source, const TokenText &before, const TokenText &now,
                             const TokenAlignment &sourceToBefore,
                             const TokenAlignment &beforeToNow, LineEnds lineEnds)
    : source_(source),
      before_(before),
      now_(now),
      sourceToBefore_(sourceToBefore),
      beforeToNow_(beforeToNow),
      lineEnds_(lineEnds),
      moved_(MovedTokens(source, before, sourceToBefore)) {}

Number SourcePatches::InPlace(Number before) const {
  return sourceToBefore_.fromOther[Index(before)];
}

Number SourcePatches::Anywhere(Number before) const {
  const Number source = InPlace(before);
  return source >= 0 ? source : moved_[Index(before)];
}

Number SourcePatches::InPlaceOfNow(Number now) const {
  const Number before = beforeToNow_.fromOther[Index(now)];
  return before >= 0 ? InPlace(before) : -1;
}

QString SourcePatches::InPageForm(QStringView text) const {
  return WithLineEnds(text.toString(), lineEnds_);
}

std::optional<std::vector<TextPatch>> SourcePatches::For(
    const std::vector<PageEdit> &edits, const std::vector<PatchStep> &steps) const {
  std::vector<Region> regions;
  for (std::size_t number = 0; number < edits.size(); ++number) {
    const int outwards = steps[number].number - PatchStep::element;
    if (outwards < 0) continue;
    const auto region = RegionOf(edits[number], outwards);
    if (!region) return std::nullopt;
    const auto holds = [](const Region &outer, const Region &inner) {
      return outer.Holds(inner.from, inner.to);
    };
    if (std::any_of(regions.begin(), regions.end(),
                    [&](const Region &other) { return holds(other, *region); }))
      continue;
    std::erase_if(regions, [&](const Region &other) { return holds(*region, other); });
    regions.push_back(*region);
  }
  Patches patches;
  for (const Region &region : regions) Explicit(region, patches);
  for (std::size_t number = 0; number < edits.size(); ++number) {
    const PageEdit &edit = edits[number];
    if (std::any_of(regions.begin(), regions.end(),
                    [&](const Region &region) { return region.Holds(edit.now, edit.nowEnd); }))
      continue;
    if (edit.isTagChange && Anywhere(edit.before) >= 0)
      Tag(Anywhere(edit.before), edit, patches);
    else
      Stretch(edit, steps[number], patches);
  }
  std::stable_sort(patches.begin(), patches.end(), [](const TextPatch &a, const TextPatch &b) {
    return a.start != b.start ? a.start < b.start : a.end < b.end;
  });
  for (std::size_t number = 1; number < patches.size(); ++number) {
    if (patches[number].start < patches[number - 1].end) return std::nullopt;
  }
  return patches;
}

void SourcePatches::Replace(qsizetype start, qsizetype end, const QString &text,
                            Patches &out) const {
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
  out.push_back({start + front, end - back, fresh.toString()});
}

void SourcePatches::Tag(Number source, const PageEdit &edit, Patches &out) const {
  const HtmlToken &token = source_.At(source);
  const TagTexts texts{QStringView(source_.text).sliced(0, token.End()),
                       before_.Slice(edit.before, edit.beforeEnd),
                       now_.Slice(edit.now, edit.nowEnd)};
  for (const TextPatch &patch : PatchTag(texts, token.offset))
    Replace(patch.start, patch.end, InPageForm(patch.text), out);
}

void SourcePatches::Stretch(const PageEdit &edit, PatchStep step, Patches &out) const {
  Number first = -1;
  Number last = -1;
  for (Number at = edit.before; at < edit.beforeEnd; ++at) {
    const Number source = Anywhere(at);
    // What the parser moved counts as long as it is in order.
    if (source < 0 || source <= last) continue;
    if (first < 0) first = source;
    last = source;
  }
  Number left = edit.before;
  while (left > 0 && Anywhere(left - 1) < 0) --left;
  QString text;
  QStringView behind;
  if (step.number >= PatchStep::withImpliedTags) text += before_.Slice(left, edit.before);
  if (step.number == PatchStep::withTagsBeside) {
    Number right = edit.beforeEnd;
    while (right < before_.Count() && Anywhere(right) < 0) ++right;
    behind = before_.Slice(edit.beforeEnd, right);
  }
  if (first >= 0 && text.isEmpty() && behind.isEmpty() && Characters(first, last, edit, out))
    return;
  text = InPageForm(text + now_.Slice(edit.now, edit.nowEnd).toString() + behind.toString());
  if (first < 0) {
    qsizetype place = left > 0 ? source_.At(Anywhere(left - 1)).End() : 0;
    // Between an implied tag and what the parser moved here, the place is where that came from.
    const Number next = edit.beforeEnd;
    if (left < edit.before && next < before_.Count() && moved_[Index(next)] >= 0)
      place = source_.At(moved_[Index(next)]).offset;
    Replace(place, place, text, out);
    return;
  }
  qsizetype end = source_.At(last).End();
  // Where an end tag is needed in place of the same one that goes, that one stays.
  if (!text.isEmpty() && behind.isEmpty() && edit.now == edit.nowEnd &&
      IsEndOfSame(edit.before - 1, last)) {
    text.chop(before_.At(edit.before - 1).length);
    end = source_.At(last).offset;
  }
  // Tags of the page's frame that only the source has stay where they are.
  qsizetype start = source_.At(first).offset;
  for (Number at = first; at <= last; ++at) {
    const HtmlToken &token = source_.At(at);
    if (!IsFrameTag(token) || sourceToBefore_.toOther[Index(at)] >= 0) continue;
    Replace(start, token.offset, std::exchange(text, QString()), out);
    start = token.End();
  }
  Replace(start, end, text, out);
}

bool SourcePatches::IsEndOfSame(Number before, Number source) const {
  const HtmlToken &one = before_.At(before);
  const HtmlToken &other = source_.At(source);
  return one.kind == HtmlTokenKind::EndTag && other.kind == HtmlTokenKind::EndTag &&
         one.name == other.name;
}

/// Text for text: references of the source that the edit did not touch stay as they are written.
bool SourcePatches::Characters(Number first, Number last, const PageEdit &edit,
                               Patches &out) const {
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
          out);
  return true;
}

std::optional<SourcePatches::Region> SourcePatches::RegionOf(const PageEdit &edit,
                                                             int outwards) const {
  for (const OpenElement &element : Around(now_, edit.now, edit.nowEnd)) {
    const Number start = beforeToNow_.fromOther[Index(element.start)];
    const Number end = beforeToNow_.fromOther[Index(element.end)];
    if (start < 0 || end < 0 || InPlace(start) < 0) continue;
    if (edit.before <= start || edit.beforeEnd > end || EndOfElement(before_, start) != end)
      continue;
    if (outwards-- == 0) return Region{element.start + 1, element.end};
  }
  if (outwards-- == 0) return Region{0, now_.Count()};
  return std::nullopt;
}

/// Whether a token of the source stands beside the page's frame, with nothing but blanks between.
bool SourcePatches::IsAtFrame(Number source) const {
  Number back = source;
  while (back >= 0 && IsBlank(source_.At(back))) --back;
  Number ahead = source;
  while (ahead < source_.Count() && IsBlank(source_.At(ahead))) ++ahead;
  const auto isFrame = [](const HtmlToken &token) {
    return IsFrameTag(token) || token.kind == HtmlTokenKind::Doctype;
  };
  return back < 0 || ahead == source_.Count() || isFrame(source_.At(back)) ||
         isFrame(source_.At(ahead));
}

/// Gives the source of a region the tokens that the document has now, each as the source writes it
/// where the source has it.
void SourcePatches::Explicit(Region region, Patches &out) const {
  const bool isPage = region.from == 0;
  qsizetype done = isPage ? 0 : source_.At(InPlaceOfNow(region.from - 1)).End();
  Number next = isPage ? 0 : InPlaceOfNow(region.from - 1) + 1;  // the source's next token
  QString added;
  const auto closeGap = [&](Number source, qsizetype end) {
    QString kept;
    bool isKept = true;
    for (; next < source; ++next) {
      const HtmlToken &token = source_.At(next);
      // What the edit took away goes. The page's frame and the blanks around it stay; what else
      // the parser ignored, or moved, could count now.
      const bool isIgnored = sourceToBefore_.toOther[Index(next)] < 0;
      const bool stays = isIgnored && (IsFrameTag(token) || (IsBlank(token) && IsAtFrame(next)));
      isKept = isKept && stays;
      if (stays) kept += source_.Slice(next, next + 1);
    }
    if (!isKept || !added.isEmpty()) Replace(done, end, kept + InPageForm(added), out);
    added.clear();
  };
  for (Number at = region.from; at < region.to; ++at) {
    const HtmlToken &token = now_.At(at);
    const Number source = InPlaceOfNow(at);
    if (source < 0) {
      const bool isImpliedAnyway = token.kind == HtmlTokenKind::EndTag && IsFrameTag(token);
      if (!isImpliedAnyway) added += now_.Slice(at, at + 1);
      continue;
    }
    closeGap(source, source_.At(source).offset);
    const Number before = beforeToNow_.fromOther[Index(at)];
    if (before_.At(before).key != token.key)
      Tag(source, {before, before + 1, at, at + 1, true}, out);
    done = source_.At(source).End();
    next = source + 1;
  }
  if (isPage) return closeGap(source_.Count(), source_.text.size());
  const Number end = InPlaceOfNow(region.to);
  if (end < 0) added += now_.Slice(region.to, region.to + 1);
  closeGap(end < 0 ? next : end, end < 0 ? done : source_.At(end).offset);
}

}  // namespace velor
