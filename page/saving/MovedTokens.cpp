// SPDX-License-Identifier: GPL-3.0-or-later
#include "page/saving/MovedTokens.h"

#include "page/text/HtmlElements.h"

namespace velor {

namespace {

using Number = std::int32_t;

/// The tokens of a text that have no counterpart, and their numbers in that text.
struct Unmatched {
  std::vector<Number> numbers;
  std::vector<HtmlToken> tokens;

  /// Without tags of HTML, HEAD and BODY: a parser does not move those.
  Unmatched(const TokenText &text, const std::vector<Number> &counterparts) {
    for (Number at = 0; at < text.Count(); ++at) {
      if (counterparts[Index(at)] >= 0 || IsFrameTag(text.At(at))) continue;
      numbers.push_back(at);
      tokens.push_back(text.At(at));
    }
  }
};

/// Whether a token is distinctive enough to be matched by itself.
bool IsDistinctive(const HtmlToken &token) {
  return token.kind == HtmlTokenKind::Comment ||
         (token.isStrong && token.kind != HtmlTokenKind::EndTag);
}

class MovedTokenFinder {
 public:
  MovedTokenFinder(const TokenText &source, const TokenText &before,
                   const TokenAlignment &alignment)
      : source_(source),
        before_(before),
        alignment_(alignment),
        moved_(Index(before.Count()), -1),
        isTaken_(Index(source.Count()), false) {}

  std::vector<Number> Run() {
    PairDistinctiveTokens();
    for (Number at = 0; at < before_.Count(); ++at) PairNeighbour(at, 1);
    for (Number at = before_.Count() - 1; at >= 0; --at) PairNeighbour(at, -1);
    return std::move(moved_);
  }

 private:
  void Pair(Number before, Number source) {
    moved_[Index(before)] = source;
    isTaken_[Index(source)] = true;
  }

  void PairDistinctiveTokens() {
    const Unmatched source(source_, alignment_.toOther);
    const Unmatched before(before_, alignment_.fromOther);
    const TokenAlignment leftOver =
        AlignTokens(source.tokens, before.tokens, InStep::WithSerialisation);
    for (std::size_t at = 0; at < before.numbers.size(); ++at) {
      const Number found = leftOver.fromOther[at];
      if (found < 0 || source.tokens[Index(found)].key != before.tokens[at].key) continue;
      if (IsDistinctive(before.tokens[at])) Pair(before.numbers[at], source.numbers[Index(found)]);
    }
  }

  /// If the token at `at` moved, pairs its neighbour (`by` is 1 or -1) with the neighbour in the
  /// source, where the two are equal and neither has a counterpart.
  void PairNeighbour(Number at, Number by) {
    const Number next = at + by;
    if (moved_[Index(at)] < 0 || next < 0 || next >= before_.Count()) return;
    const Number source = moved_[Index(at)] + by;
    if (source < 0 || source >= source_.Count()) return;
    const bool isFree = moved_[Index(next)] < 0 && alignment_.fromOther[Index(next)] < 0 &&
                        alignment_.toOther[Index(source)] < 0 && !isTaken_[Index(source)];
    if (!isFree || source_.At(source).key != before_.At(next).key) return;
    if (!IsFrameTag(before_.At(next))) Pair(next, source);
  }

  const TokenText &source_;
  const TokenText &before_;
  const TokenAlignment &alignment_;
  std::vector<Number> moved_;
  std::vector<bool> isTaken_;  ///< by number in the source
};

}  // namespace

bool IsFrameTag(const HtmlToken &token) {
  return token.name == elements::Html || token.name == elements::Head ||
         token.name == elements::Body;
}

std::vector<Number> FindMovedTokens(const TokenText &source, const TokenText &before,
                                    const TokenAlignment &alignment) {
  return MovedTokenFinder(source, before, alignment).Run();
}

}  // namespace velor
