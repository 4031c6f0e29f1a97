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
  EditAlone,
  /// Also the tags that the parser implied left of the edit.
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

  void Escalate();
};

/// Turns edits of a document into patches of its source.
class SourcePatches {
 public:
  /// `source` is the text that the engine was given, `before` its serialisation right after
  /// loading, `now` the one now. All arguments outlive this object.
  SourcePatches(const TokenText &source, const TokenText &before, const TokenText &now,
                const TokenAlignment &sourceToBefore, const TokenAlignment &beforeToNow,
                LineEnds lineEnds);

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

  Number CounterpartInOrder(Number before) const;
  Number CounterpartAnywhere(Number before) const;
  Number CounterpartOfNow(Number now) const;
  SourceRange CounterpartOf(const PageEdit &edit) const;
  QString TextOf(const TokenText &serialisation, Number from, Number to) const;
  QString ImpliedLeftOf(const PageEdit &edit) const;
  QString ImpliedRightOf(const PageEdit &edit) const;
  qsizetype InsertionPlace(const PageEdit &edit) const;
  bool EndsLike(Number before, Number source) const;

  /// Nothing where one of the edits has no element that far out.
  std::optional<std::vector<Region>> RegionsFor(const std::vector<PageEdit> &edits,
                                                const std::vector<PatchStep> &steps) const;
  std::optional<Region> RegionOf(const PageEdit &edit, int outwards) const;

  void PatchTagAt(Number source, const PageEdit &edit, Patches &out) const;
  void PatchStretch(const PageEdit &edit, PatchRung rung, Patches &out) const;
  bool IsTextForText(SourceRange range, const PageEdit &edit) const;
  void PatchCharacters(SourceRange range, const PageEdit &edit, Patches &out) const;
  void ReplaceBesideFrameTags(SourceRange range, qsizetype end, QString text, Patches &out) const;
  void Replace(qsizetype start, qsizetype end, const QString &text, Patches &out) const;
  QString WithPageLineEnds(QStringView text) const;

  const TokenText &source_;
  const TokenText &before_;
  const TokenText &now_;
  const TokenAlignment &sourceToBefore_;
  const TokenAlignment &beforeToNow_;
  LineEnds lineEnds_;
  bool hasFrameTags_;          ///< whether the source has any tag of HTML, HEAD or BODY
  std::vector<Number> moved_;  ///< FindMovedTokens of source and before
};

}  // namespace velor
