// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "page/saving/ByteSplice.h"
#include "page/saving/PageEdits.h"
#include "page/text/PageEncoding.h"

#include <optional>
#include <vector>

namespace velor {

/// How much of the source is written for one edit. Each rung writes more than the one before.
enum class PatchRung {
  /// Without the tags that the page leaves out.
  EditAlone,
  /// All of the edit, and the tags that the parser implied left of the edit.
  ImpliedTagsLeft,
  /// And those right of it, where something that is taken away was still open there.
  ImpliedTagsAround,
  /// The content of an element around the edit: it gets every tag that the parser implied in it and
  /// loses what the parser ignored. The outermost element is the page itself.
  EnclosingElement,
};

/// A rung for one edit; at EnclosingElement also which element, 0 for the innermost.
struct PatchStep {
  PatchRung rung = PatchRung::EditAlone;
  int outwards = 0;

  /// Goes to the next rung; at EnclosingElement one element outwards.
  void Escalate();
};

/// What everything that is written for a page keeps to.
struct PageForm {
  LineEnds lineEnds = LineEnds::Lf;
  QString maskStem;  ///< PageMask::Stem
};

/// Turns edits of a document into patches of its source.
class SourcePatches {
 public:
  /// `source` is the text that the engine was given, `before` its serialisation right after
  /// loading, `now` the one now. All arguments outlive this object.
  SourcePatches(const TokenText &source, const TokenText &before, const TokenText &now,
                const TokenAlignment &sourceToBefore, const TokenAlignment &beforeToNow,
                PageForm form);

  /// The patches for all edits, each with the step of its number, in order and without overlap.
  /// Nothing where an edit has no such step: then the whole page is to be written anew.
  std::optional<std::vector<TextPatch>> PatchesFor(const std::vector<PageEdit> &edits,
                                                   const std::vector<PatchStep> &steps) const;

 private:
  using Number = std::int32_t;
  using Patches = std::vector<TextPatch>;

  /// The content of an element of `now`: the tokens between its tags; of the page: all tokens.
  struct Region {
    Number from = 0;
    Number to = 0;
    bool Holds(Number first, Number last) const { return from <= first && last <= to; }
  };
  /// Tokens of the source, both ends included; `first` is -1 for none.
  struct SourceRange {
    Number first = -1;
    Number last = -1;
    bool IsEmpty() const { return first < 0; }
  };
  class RegionWriter;

  /// The number in the source of a token of `before`; -1 for one that the parser implied or moved.
  Number CounterpartInOrder(Number before) const;
  /// The same, tokens that the parser moved included.
  Number CounterpartAnywhere(Number before) const;
  /// The number in the source of a token of `now`; -1 for a new, implied or moved one.
  Number CounterpartOfNow(Number now) const;
  /// What an edit takes away from the source. Moved tokens count as long as they are in order.
  SourceRange CounterpartOf(const PageEdit &edit) const;
  /// The text of tokens of a serialisation, without the implied tags of HTML, HEAD and BODY where
  /// the source has none of those. Tags are spelled as those near the source's token `near`.
  QString TextOf(const TokenText &serialisation, Number from, Number to, Number near) const;
  /// The text of what an edit puts in, without the tags that are left out in the page.
  QString FreshText(const PageEdit &edit, Number near) const;
  /// The tokens without counterpart right before an edit, and right behind it.
  QString ImpliedLeftOf(const PageEdit &edit, Number near) const;
  QString ImpliedRightOf(const PageEdit &edit, Number near) const;
  /// The number of the source's token behind what stands before an edit.
  Number SourcePlace(const PageEdit &edit) const;
  /// Where the source gets what an edit inserts that takes nothing away.
  qsizetype InsertionPlace(const PageEdit &edit) const;
  /// Whether both tokens are end tags of one name.
  bool AreSameEndTag(Number before, Number source) const;

  /// The outermost regions of the edits at EnclosingElement. Nothing where one of them has no
  /// element that far out.
  std::optional<std::vector<Region>> RegionsFor(const std::vector<PageEdit> &edits,
                                                const std::vector<PatchStep> &steps) const;
  std::optional<Region> RegionOf(const PageEdit &edit, int outwards) const;

  /// Gives a start tag of the source the attributes that it has in `now`.
  void PatchTagAt(Number source, const PageEdit &edit, Patches &out) const;
  /// Replaces the tokens of the source that an edit replaces.
  void PatchTokens(const PageEdit &edit, PatchRung rung, Patches &out) const;
  /// Whether an edit puts text in the place of text, without tags on either side.
  bool IsTextForText(SourceRange range, const PageEdit &edit) const;
  /// Replaces the characters that differ. References of the source that the edit did not touch stay
  /// as they are written.
  void PatchCharacters(SourceRange range, const PageEdit &edit, Patches &out) const;
  /// Replaces the source from the range's start to the offset `end`. Tags of HTML, HEAD and BODY
  /// that only the source has stay where they are.
  void ReplaceBesideFrameTags(SourceRange range, qsizetype end, QString text, Patches &out) const;
  /// Adds a patch, less what old and new text share at both ends.
  void Replace(qsizetype start, qsizetype end, const QString &text, Patches &out) const;
  QString WithPageLineEnds(QStringView text) const;

  const TokenText &source_;
  const TokenText &before_;
  const TokenText &now_;
  const TokenAlignment &sourceToBefore_;
  const TokenAlignment &beforeToNow_;
  PageForm form_;
  bool hasFrameTags_;          ///< whether the source has any tag of HTML, HEAD or BODY
  std::vector<Number> moved_;  ///< FindMovedTokens of source and before
};

}  // namespace velor
