// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "page/saving/ByteSplice.h"
#include "page/saving/PageEdits.h"
#include "page/text/PageEncoding.h"

#include <optional>
#include <vector>

namespace velor {

/// How much is written for one edit. Each step writes more than the one before.
struct PatchStep {
  /// 0: the edit alone. 1: also the tags that the parser implied left of it. 2: and those right of
  /// it, where something that goes was open there again. From 3 on, one step an element outwards:
  /// the elements around it get every tag that the parser implied in them, and lose those that it
  /// ignored. The last: so does the whole page.
  int number = 0;

  static constexpr int alone = 0;
  static constexpr int withImpliedTags = 1;
  static constexpr int withTagsBeside = 2;
  static constexpr int element = 3;
};

/// Carries edits of a document over into its source.
class SourcePatches {
 public:
  /// All texts outlive this object. `sourceOfBefore`: the source's tokens by those of `before`.
  SourcePatches(const TokenText &source, const TokenText &before, const TokenText &now,
                const TokenAlignment &sourceToBefore, const TokenAlignment &beforeToNow,
                LineEnds lineEnds);

  /// The patches for all edits, each with its step, in order. Nothing where an edit has no such
  /// step: then everything is to be written anew.
  std::optional<std::vector<TextPatch>> For(const std::vector<PageEdit> &edits,
                                            const std::vector<PatchStep> &steps) const;

 private:
  /// The content of an element now: the tokens between its tags; of the page: all tokens.
  struct Region {
    std::int32_t from = 0;
    std::int32_t to = 0;
    bool Holds(std::int32_t first, std::int32_t last) const { return from <= first && last <= to; }
  };
  using Patches = std::vector<TextPatch>;

  std::int32_t InPlace(std::int32_t before) const;
  std::int32_t Anywhere(std::int32_t before) const;
  std::int32_t InPlaceOfNow(std::int32_t now) const;
  void Tag(std::int32_t source, const PageEdit &edit, Patches &out) const;
  void Stretch(const PageEdit &edit, PatchStep step, Patches &out) const;
  std::optional<Region> RegionOf(const PageEdit &edit, int ancestor) const;
  void Explicit(Region region, Patches &out) const;
  bool IsEndOfSame(std::int32_t before, std::int32_t source) const;
  bool IsAtFrame(std::int32_t source) const;
  bool Characters(std::int32_t first, std::int32_t last, const PageEdit &edit, Patches &out) const;
  void Replace(qsizetype start, qsizetype end, const QString &text, Patches &out) const;
  QString InPageForm(QStringView text) const;

  const TokenText &source_;
  const TokenText &before_;
  const TokenText &now_;
  const TokenAlignment &sourceToBefore_;
  const TokenAlignment &beforeToNow_;
  LineEnds lineEnds_;
  /// The source's tokens by those of `before` that the parser moved elsewhere; -1 for none.
  std::vector<std::int32_t> moved_;
};

}  // namespace velor
