// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/html/ByteSplice.h"
#include "platform/html/PageEdits.h"
#include "platform/html/PageEncoding.h"

#include <optional>
#include <vector>

namespace velor {

/// How much is written for one edit. Each step writes more than the one before.
struct PatchStep {
  /// 0: the edit alone. 1: also the tags that the parser implied left of it. From 2 on: the content
  /// of the smallest element around it that the source has, then of that element's parent ...
  int number = 0;

  static constexpr int alone = 0;
  static constexpr int withImpliedTags = 1;
  static constexpr int element = 2;
};

/// Carries edits of a document over into its source.
class SourcePatches {
 public:
  /// All texts outlive this object. `sourceOfBefore`: the source's tokens by those of `before`.
  SourcePatches(const TokenText &source, const TokenText &before, const TokenText &now,
                const TokenAlignment &sourceToBefore, const TokenAlignment &beforeToNow,
                LineEnds lineEnds);

  /// The patches for all edits, each with its step, in order; an edit inside what another writes
  /// anew needs none of its own. Nothing where an edit has no such step: then everything is to be
  /// written anew.
  std::optional<std::vector<TextPatch>> For(const std::vector<PageEdit> &edits,
                                            const std::vector<PatchStep> &steps) const;

 private:
  struct Written;  ///< a patch and the tokens now that it writes

  std::int32_t SourceOf(std::int32_t before) const {
    return sourceToBefore_.fromOther[static_cast<std::size_t>(before)];
  }
  void Tag(const PageEdit &edit, std::vector<Written> &out) const;
  void Stretch(const PageEdit &edit, PatchStep step, std::vector<Written> &out) const;
  bool Element(const PageEdit &edit, int ancestor, std::vector<Written> &out) const;
  bool Characters(std::int32_t first, std::int32_t last, const PageEdit &edit,
                  std::vector<Written> &out) const;
  void Replace(qsizetype start, qsizetype end, QString text, const PageEdit &edit,
               std::vector<Written> &out) const;
  QString InPageForm(QStringView text) const;

  const TokenText &source_;
  const TokenText &before_;
  const TokenText &now_;
  const TokenAlignment &sourceToBefore_;
  const TokenAlignment &beforeToNow_;
  LineEnds lineEnds_;
};

}  // namespace velor
