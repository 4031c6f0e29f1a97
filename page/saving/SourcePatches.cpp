// SPDX-License-Identifier: GPL-3.0-or-later
#include "page/saving/SourcePatches.h"

#include "page/saving/EnclosingElements.h"
#include "page/saving/MovedTokens.h"
#include "page/saving/OptionalTags.h"
#include "page/saving/PageMask.h"
#include "page/saving/TagPatches.h"
#include "page/saving/TagSpelling.h"
#include "page/text/TextCharacters.h"

#include <algorithm>
#include <utility>

namespace velor {

namespace {

bool IsBlank(const HtmlToken &token) {
  return token.kind == HtmlTokenKind::Blank || token.kind == HtmlTokenKind::LineBreak;
}

/// Whether nothing but blanks stands between a token and a tag of HTML, HEAD or BODY, a doctype, or
/// an end of the source.
bool IsBesideFrame(const TokenText &source, std::int32_t number) {
  std::int32_t back = number;
  while (back >= 0 && IsBlank(source.At(back))) --back;
  std::int32_t ahead = number;
  while (ahead < source.Count() && IsBlank(source.At(ahead))) ++ahead;
  const auto isFrame = [](const HtmlToken &token) {
    return IsFrameTag(token) || token.kind == HtmlTokenKind::Doctype;
  };
  return back < 0 || ahead == source.Count() || isFrame(source.At(back)) ||
         isFrame(source.At(ahead));
}

/// Whether a token of a serialisation is a tag of HTML, HEAD or BODY that a parser may have
/// implied: one without attributes.
bool IsImpliedFrame(const HtmlToken &token) {
  constexpr std::int32_t LengthOfBareTag = 6;  // <html>, <head>, <body>
  return IsFrameTag(token) &&
         (token.kind == HtmlTokenKind::EndTag || token.length == LengthOfBareTag);
}

bool Overlap(const std::vector<TextPatch> &patches) {
  return std::adjacent_find(patches.begin(), patches.end(),
                            [](const TextPatch &one, const TextPatch &next) {
                              return next.start < one.end;
                            }) != patches.end();
}

/// The characters of a text; NULs, which a parser drops, belong to the one before them.
std::vector<TextCharacter> CharactersWithNuls(QStringView text) {
  std::vector<TextCharacter> characters;
  for (const TextCharacter &character : CharactersOf(text)) {
    if (character.first == 0 && !characters.empty())
      characters.back().length += character.length;
    else
      characters.push_back(character);
  }
  return characters;
}

/// How much two texts share at both ends, counted by characters as a parser reads them.
struct SharedEnds {
  qsizetype oldFront = 0;  ///< code units, as are all of these
  qsizetype newFront = 0;
  qsizetype oldBack = 0;  ///< where the shared end begins
  qsizetype newBack = 0;

  SharedEnds(QStringView old, QStringView fresh) : oldBack(old.size()), newBack(fresh.size()) {
    const std::vector<TextCharacter> olds = CharactersWithNuls(old);
    const std::vector<TextCharacter> news = CharactersOf(fresh);
    const std::size_t shorter = std::min(olds.size(), news.size());
    std::size_t front = 0;
    for (; front < shorter && olds[front].Means(news[front]); ++front) {
      oldFront += olds[front].length;
      newFront += news[front].length;
    }
    for (std::size_t back = 1; back <= shorter - front; ++back) {
      const TextCharacter &one = olds[olds.size() - back];
      const TextCharacter &other = news[news.size() - back];
      if (!one.Means(other)) break;
      oldBack -= one.length;
      newBack -= other.length;
    }
  }
};

}  // namespace

/// Writes a region of the source anew: the tokens that the document has now, each as the source
/// writes it where it has a counterpart there.
class SourcePatches::RegionWriter {
 public:
  RegionWriter(const SourcePatches &patcher, Region region, Patches &out)
      : patcher_(patcher),
        source_(patcher.source_),
        now_(patcher.now_),
        region_(region),
        isPage_(region.from == 0),
        out_(out) {
    if (isPage_) return;
    const Number tag = patcher.CounterpartOfNow(region.from - 1);
    done_ = source_.At(tag).End();
    next_ = tag + 1;
  }

  void Run() {
    for (Number at = region_.from; at < region_.to; ++at) {
      const Number source = patcher_.CounterpartOfNow(at);
      if (source < 0)
        Add(at);
      else
        Keep(at, source);
    }
    if (isPage_) return CloseGap(source_.Count(), source_.text.size());
    const Number end = patcher_.CounterpartOfNow(region_.to);
    if (end < 0) added_ += patcher_.TextOf(now_, region_.to, region_.to + 1, next_);
    CloseGap(end < 0 ? next_ : end, end < 0 ? done_ : source_.At(end).offset);
  }

 private:
  /// A token that the source does not have.
  void Add(Number at) {
    const HtmlToken &token = now_.At(at);
    const bool isImpliedAnyway = token.kind == HtmlTokenKind::EndTag && IsFrameTag(token);
    if (!isImpliedAnyway) added_ += patcher_.TextOf(now_, at, at + 1, next_);
  }

  void Keep(Number at, Number source) {
    CloseGap(source, source_.At(source).offset);
    const Number before = patcher_.beforeToNow_.fromOther[Index(at)];
    if (patcher_.before_.At(before).key != now_.At(at).key)
      patcher_.PatchTagAt(source, {before, before + 1, at, at + 1, true}, out_);
    done_ = source_.At(source).End();
    next_ = source + 1;
  }

  /// Whether a token of the source that the document does not have stays: a tag of HTML, HEAD or
  /// BODY that the parser ignored, and blanks that it ignored beside one. All else goes: an edit
  /// took it away, or the parser ignored or moved it and might now read it otherwise.
  bool Stays(Number source) const {
    const HtmlToken &token = source_.At(source);
    const bool isIgnored = patcher_.sourceToBefore_.toOther[Index(source)] < 0;
    return isIgnored && (IsFrameTag(token) || (IsBlank(token) && IsBesideFrame(source_, source)));
  }

  /// Writes the source from `done_` up to `end`: of its tokens before `source` what stays, then
  /// what was added.
  void CloseGap(Number source, qsizetype end) {
    QString kept;
    bool isWholeGapKept = true;
    for (; next_ < source; ++next_) {
      const bool stays = Stays(next_);
      isWholeGapKept = isWholeGapKept && stays;
      if (stays) kept += source_.Slice(next_, next_ + 1);
    }
    if (!isWholeGapKept || !added_.isEmpty())
      patcher_.Replace(done_, end, kept + patcher_.WithPageLineEnds(added_), out_);
    added_.clear();
  }

  const SourcePatches &patcher_;
  const TokenText &source_;
  const TokenText &now_;
  Region region_;
  bool isPage_;
  Patches &out_;
  qsizetype done_ = 0;  ///< patches for the source up to this offset are written
  Number next_ = 0;     ///< the first token of the source behind `done_`
  QString added_;
};

void PatchStep::Escalate() {
  switch (rung) {
    case PatchRung::EditAlone:
      rung = PatchRung::ImpliedTagsLeft;
      break;
    case PatchRung::ImpliedTagsLeft:
      rung = PatchRung::ImpliedTagsAround;
      break;
    case PatchRung::ImpliedTagsAround:
      rung = PatchRung::EnclosingElement;
      break;
    case PatchRung::EnclosingElement:
      ++outwards;
      break;
  }
}

SourcePatches::SourcePatches(const TokenText &source, const TokenText &before, const TokenText &now,
                             const TokenAlignment &sourceToBefore,
                             const TokenAlignment &beforeToNow, PageForm form)
    : source_(source),
      before_(before),
      now_(now),
      sourceToBefore_(sourceToBefore),
      beforeToNow_(beforeToNow),
      form_(std::move(form)),
      hasFrameTags_(std::any_of(source.tokens.begin(), source.tokens.end(), IsFrameTag)),
      moved_(FindMovedTokens(source, before, sourceToBefore)) {}

SourcePatches::Number SourcePatches::CounterpartInOrder(Number before) const {
  return sourceToBefore_.fromOther[Index(before)];
}

SourcePatches::Number SourcePatches::CounterpartAnywhere(Number before) const {
  const Number source = CounterpartInOrder(before);
  return source >= 0 ? source : moved_[Index(before)];
}

SourcePatches::Number SourcePatches::CounterpartOfNow(Number now) const {
  const Number before = beforeToNow_.fromOther[Index(now)];
  return before >= 0 ? CounterpartInOrder(before) : -1;
}

SourcePatches::SourceRange SourcePatches::CounterpartOf(const PageEdit &edit) const {
  SourceRange range;
  for (Number at = edit.before; at < edit.beforeEnd; ++at) {
    const Number source = CounterpartAnywhere(at);
    if (source <= range.last) continue;
    if (range.IsEmpty()) range.first = source;
    range.last = source;
  }
  return range;
}

QString SourcePatches::TextOf(const TokenText &serialisation, Number from, Number to,
                              Number near) const {
  QString text;
  std::optional<TagSpelling> spelling;
  for (Number at = from; at < to; ++at) {
    const HtmlToken &token = serialisation.At(at);
    const QStringView slice = serialisation.Slice(at, at + 1);
    if (!hasFrameTags_ && IsImpliedFrame(token)) continue;
    const bool isOfPage = token.IsTag() && token.isFree;
    if (isOfPage && !spelling) spelling = SpellingNear(source_, near);
    text += isOfPage ? Spelled(slice, *spelling, form_.maskStem) : slice.toString();
  }
  return text;
}

QString SourcePatches::FreshText(const PageEdit &edit, Number near) const {
  const auto isWritten = [this](Number at) -> std::optional<bool> {
    const Number before = beforeToNow_.fromOther[Index(at)];
    if (before < 0) return std::nullopt;
    return CounterpartAnywhere(before) >= 0;
  };
  QString text;
  Number done = edit.now;
  for (Number at = edit.now; at < edit.nowEnd; ++at) {
    if (!IsTagLeftOut(now_, at, isWritten)) continue;
    text += TextOf(now_, done, at, near);
    done = at + 1;
  }
  return text + TextOf(now_, done, edit.nowEnd, near);
}

QString SourcePatches::ImpliedLeftOf(const PageEdit &edit, Number near) const {
  Number left = edit.before;
  while (left > 0 && CounterpartAnywhere(left - 1) < 0) --left;
  return TextOf(before_, left, edit.before, near);
}

QString SourcePatches::ImpliedRightOf(const PageEdit &edit, Number near) const {
  Number right = edit.beforeEnd;
  while (right < before_.Count() && CounterpartAnywhere(right) < 0) ++right;
  return TextOf(before_, edit.beforeEnd, right, near);
}

SourcePatches::Number SourcePatches::SourcePlace(const PageEdit &edit) const {
  Number left = edit.before;
  while (left > 0 && CounterpartAnywhere(left - 1) < 0) --left;
  return left > 0 ? CounterpartAnywhere(left - 1) + 1 : 0;
}

qsizetype SourcePatches::InsertionPlace(const PageEdit &edit) const {
  // Between an implied tag and what the parser moved here, the place is where that came from.
  const Number next = edit.beforeEnd;
  const bool isBehindImplied = edit.before > 0 && CounterpartAnywhere(edit.before - 1) < 0;
  if (isBehindImplied && next < before_.Count() && moved_[Index(next)] >= 0)
    return source_.At(moved_[Index(next)]).offset;
  const Number place = SourcePlace(edit);
  return place > 0 ? source_.At(place - 1).End() : 0;
}

bool SourcePatches::AreSameEndTag(Number before, Number source) const {
  const HtmlToken &one = before_.At(before);
  const HtmlToken &other = source_.At(source);
  return one.kind == HtmlTokenKind::EndTag && other.kind == HtmlTokenKind::EndTag &&
         one.name == other.name;
}

QString SourcePatches::WithPageLineEnds(QStringView text) const {
  return WithLineEnds(text.toString(), form_.lineEnds);
}

std::optional<std::vector<TextPatch>> SourcePatches::PatchesFor(
    const std::vector<PageEdit> &edits, const std::vector<PatchStep> &steps) const {
  const auto regions = RegionsFor(edits, steps);
  if (!regions) return std::nullopt;
  Patches patches;
  for (const Region &region : *regions) RegionWriter(*this, region, patches).Run();
  for (std::size_t number = 0; number < edits.size(); ++number) {
    const PageEdit &edit = edits[number];
    if (std::any_of(regions->begin(), regions->end(),
                    [&](const Region &region) { return region.Holds(edit.now, edit.nowEnd); }))
      continue;
    if (edit.isTagChange && CounterpartAnywhere(edit.before) >= 0)
      PatchTagAt(CounterpartAnywhere(edit.before), edit, patches);
    else
      PatchTokens(edit, steps[number].rung, patches);
  }
  std::stable_sort(patches.begin(), patches.end(), [](const TextPatch &a, const TextPatch &b) {
    return a.start != b.start ? a.start < b.start : a.end < b.end;
  });
  if (Overlap(patches)) return std::nullopt;
  return patches;
}

std::optional<std::vector<SourcePatches::Region>> SourcePatches::RegionsFor(
    const std::vector<PageEdit> &edits, const std::vector<PatchStep> &steps) const {
  std::vector<Region> regions;
  for (std::size_t number = 0; number < edits.size(); ++number) {
    if (steps[number].rung != PatchRung::EnclosingElement) continue;
    const auto region = RegionOf(edits[number], steps[number].outwards);
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
  return regions;
}

std::optional<SourcePatches::Region> SourcePatches::RegionOf(const PageEdit &edit,
                                                             int outwards) const {
  for (const ElementTags &element : EnclosingElements(now_, edit.now, edit.nowEnd)) {
    const Number start = beforeToNow_.fromOther[Index(element.start)];
    const Number end = beforeToNow_.fromOther[Index(element.end)];
    if (start < 0 || end < 0 || CounterpartInOrder(start) < 0) continue;
    if (edit.before <= start || edit.beforeEnd > end || EndTagOf(before_, start) != end) continue;
    if (outwards-- == 0) return Region{element.start + 1, element.end};
  }
  if (outwards-- == 0) return Region{0, now_.Count()};
  return std::nullopt;
}

void SourcePatches::Replace(qsizetype start, qsizetype end, const QString &text,
                            Patches &out) const {
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
  for (const QStringView side : {old, fresh}) {
    if (const auto mask = MaskAround(side, front, form_.maskStem)) front = mask->start;
    if (const auto mask = MaskAround(side, side.size() - back, form_.maskStem))
      back = side.size() - mask->end;
  }
  if (front + back == old.size() && old.size() == fresh.size()) return;
  fresh = fresh.sliced(front, fresh.size() - front - back);
  out.push_back({start + front, end - back, fresh.toString()});
}

void SourcePatches::PatchTagAt(Number source, const PageEdit &edit, Patches &out) const {
  const HtmlToken &token = source_.At(source);
  const TagTexts texts{QStringView(source_.text).sliced(0, token.End()),
                       before_.Slice(edit.before, edit.beforeEnd),
                       now_.Slice(edit.now, edit.nowEnd)};
  const TagSpelling spelling = SpellingNear(source_, source + 1);
  for (const TextPatch &patch : PatchTag(texts, token.offset, spelling, form_.maskStem))
    Replace(patch.start, patch.end, WithPageLineEnds(patch.text), out);
}

void SourcePatches::PatchTokens(const PageEdit &edit, PatchRung rung, Patches &out) const {
  const SourceRange range = CounterpartOf(edit);
  // What goes is the nearest.
  const Number near = range.IsEmpty() ? SourcePlace(edit) : range.last + 1;
  const QString left = rung == PatchRung::EditAlone ? QString() : ImpliedLeftOf(edit, near);
  const QString right =
      rung == PatchRung::ImpliedTagsAround ? ImpliedRightOf(edit, near) : QString();
  if (left.isEmpty() && right.isEmpty() && IsTextForText(range, edit))
    return PatchCharacters(range, edit, out);
  const QString fresh = rung == PatchRung::EditAlone ? FreshText(edit, near)
                                                     : TextOf(now_, edit.now, edit.nowEnd, near);
  QString text = WithPageLineEnds(left + fresh + right);
  if (range.IsEmpty()) {
    const qsizetype place = InsertionPlace(edit);
    return Replace(place, place, text, out);
  }
  qsizetype end = source_.At(range.last).End();
  // Where an end tag is needed in place of the same one that goes, that one stays.
  if (!text.isEmpty() && right.isEmpty() && fresh.isEmpty() &&
      AreSameEndTag(edit.before - 1, range.last)) {
    text.chop(before_.At(edit.before - 1).length);
    end = source_.At(range.last).offset;
  }
  ReplaceBesideFrameTags(range, end, std::move(text), out);
}

void SourcePatches::ReplaceBesideFrameTags(SourceRange range, qsizetype end, QString text,
                                           Patches &out) const {
  qsizetype start = source_.At(range.first).offset;
  for (Number at = range.first; at <= range.last; ++at) {
    const HtmlToken &token = source_.At(at);
    if (!IsFrameTag(token) || sourceToBefore_.toOther[Index(at)] >= 0) continue;
    Replace(start, token.offset, std::exchange(text, QString()), out);
    start = token.End();
  }
  Replace(start, end, text, out);
}

bool SourcePatches::IsTextForText(SourceRange range, const PageEdit &edit) const {
  if (range.IsEmpty() || edit.now == edit.nowEnd) return false;
  for (Number at = range.first; at <= range.last; ++at) {
    if (!source_.At(at).IsText()) return false;
  }
  for (Number at = edit.now; at < edit.nowEnd; ++at) {
    if (!now_.At(at).IsText()) return false;
  }
  return true;
}

void SourcePatches::PatchCharacters(SourceRange range, const PageEdit &edit, Patches &out) const {
  const qsizetype place = source_.At(range.first).offset;
  const QStringView fresh = now_.Slice(edit.now, edit.nowEnd);
  const SharedEnds shared(source_.Slice(range.first, range.last + 1), fresh);
  Replace(place + shared.oldFront, place + shared.oldBack,
          WithPageLineEnds(fresh.sliced(shared.newFront, shared.newBack - shared.newFront)), out);
}

}  // namespace velor
