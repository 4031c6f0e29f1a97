// SPDX-License-Identifier: GPL-3.0-or-later
#include "page/saving/TokenAlignment.h"

#include <algorithm>
#include <cstddef>

namespace velor {

namespace {

using Number = std::int32_t;

/// Most insertions and deletions in one stretch that differs; beyond them the best path so far is
/// taken.
constexpr Number LongestWay = 1000;
/// Largest gap, one side's tags times the other's, in which tags are paired by name.
constexpr std::size_t LargestGap = 250'000;

struct Place {
  Number one = 0;
  Number other = 0;
};

class Aligner {
 public:
  Aligner(const std::vector<HtmlToken> &one, const std::vector<HtmlToken> &other, InStep inStep)
      : one_(one),
        other_(other),
        inStep_(static_cast<int>(inStep)),
        end_{static_cast<Number>(one.size()), static_cast<Number>(other.size())} {
    result_.toOther.assign(one.size(), -1);
    result_.fromOther.assign(other.size(), -1);
  }

  TokenAlignment Run() {
    Place at;
    while (at.one < end_.one && at.other < end_.other && Same(at)) Pair(at.one++, at.other++);
    while (end_.one > at.one && end_.other > at.other && Same({end_.one - 1, end_.other - 1}))
      Pair(--end_.one, --end_.other);
    while (at.one < end_.one && at.other < end_.other) {
      if (Same(at))
        Pair(at.one++, at.other++);
      else
        at = CrossStretch(at);
    }
    PairTagsInGaps();
    return std::move(result_);
  }

 private:
  bool Same(Place at) const {
    return one_[static_cast<std::size_t>(at.one)].key ==
           other_[static_cast<std::size_t>(at.other)].key;
  }
  void Pair(Number one, Number other) {
    result_.toOther[static_cast<std::size_t>(one)] = other;
    result_.fromOther[static_cast<std::size_t>(other)] = one;
  }

  /// Myers' greedy search from a mismatch until the texts are in step again; pairs what lies on the
  /// way and returns its end. `ways[d]` holds, by diagonal (one - other) from -d to d, how far in
  /// `one` a way with d steps gets.
  Place CrossStretch(Place start) {
    std::vector<std::vector<Number>> ways;
    Number bestDiagonal = 0;
    for (Number d = 0; d <= LongestWay; ++d) {
      std::vector<Number> &way = ways.emplace_back(static_cast<std::size_t>(2 * d + 1), -1);
      Number furthest = -1;
      for (Number diagonal = -d; diagonal <= d; diagonal += 2) {
        Place at = Step(ways, d, diagonal, start);
        if (at.one > end_.one || at.other > end_.other) continue;
        int strong = 0;
        while (at.one < end_.one && at.other < end_.other && Same(at)) {
          strong += one_[static_cast<std::size_t>(at.one)].isStrong ? 1 : 0;
          ++at.one;
          ++at.other;
        }
        way[static_cast<std::size_t>(diagonal + d)] = at.one;
        const bool isThere = at.one == end_.one && at.other == end_.other;
        if (isThere || strong >= inStep_) return PairAlong(ways, d, diagonal, start);
        if (at.one + at.other > furthest) {
          furthest = at.one + at.other;
          bestDiagonal = diagonal;
        }
      }
    }
    return PairAlong(ways, LongestWay, bestDiagonal, start);
  }

  static Number Reach(const std::vector<std::vector<Number>> &ways, Number d, Number diagonal) {
    if (d < 0 || diagonal < -d || diagonal > d) return -1;
    return ways[static_cast<std::size_t>(d)][static_cast<std::size_t>(diagonal + d)];
  }

  /// Where a way of d steps stands on a diagonal before it slides along equal tokens.
  Place Step(const std::vector<std::vector<Number>> &ways, Number d, Number diagonal,
             Place start) const {
    Number one = start.one;
    if (d > 0) {
      const Number across = Reach(ways, d - 1, diagonal - 1);
      const Number down = Reach(ways, d - 1, diagonal + 1);
      one = std::max(across < 0 ? -1 : across + 1, down);
      if (one < 0) return {end_.one + 1, end_.other + 1};
    }
    return {one, one - diagonal - start.one + start.other};
  }

  /// Pairs the equal tokens on a way found, from its end back to `start`.
  Place PairAlong(const std::vector<std::vector<Number>> &ways, Number d, Number diagonal,
                  Place start) {
    const Number one = Reach(ways, d, diagonal);
    const Place end{one, one - diagonal - start.one + start.other};
    Place at = end;
    for (; d >= 0; --d) {
      const Place step = Step(ways, d, diagonal, start);
      while (at.one > step.one) Pair(--at.one, --at.other);
      if (d == 0) break;
      const Number across = Reach(ways, d - 1, diagonal - 1);
      const bool isAcross = across >= 0 && across + 1 == step.one;
      diagonal += isAcross ? -1 : 1;
      at = isAcross ? Place{step.one - 1, step.other} : Place{step.one, step.other - 1};
    }
    return end;
  }

  void PairTagsInGaps() {
    Place from;
    const Place all{static_cast<Number>(one_.size()), static_cast<Number>(other_.size())};
    while (from.one < all.one && from.other < all.other) {
      Place to = from;
      while (to.one < all.one && result_.toOther[static_cast<std::size_t>(to.one)] < 0) ++to.one;
      while (to.other < all.other && result_.fromOther[static_cast<std::size_t>(to.other)] < 0)
        ++to.other;
      PairTags(from, to);
      from = {to.one + 1, to.other + 1};
    }
  }

  static std::vector<Number> Tags(const std::vector<HtmlToken> &tokens, Number from, Number to) {
    std::vector<Number> tags;
    for (Number at = from; at < to; ++at) {
      if (tokens[static_cast<std::size_t>(at)].IsTag()) tags.push_back(at);
    }
    return tags;
  }

  /// The longest common row of tag names in a gap.
  void PairTags(Place from, Place to) {
    const std::vector<Number> ones = Tags(one_, from.one, to.one);
    const std::vector<Number> others = Tags(other_, from.other, to.other);
    if (ones.empty() || others.empty() || ones.size() * others.size() > LargestGap) return;
    const auto sameName = [&](std::size_t i, std::size_t j) {
      const HtmlToken &a = one_[static_cast<std::size_t>(ones[i])];
      const HtmlToken &b = other_[static_cast<std::size_t>(others[j])];
      return a.kind == b.kind && a.name == b.name;
    };
    const std::size_t width = others.size() + 1;
    std::vector<Number> longest((ones.size() + 1) * width, 0);
    for (std::size_t i = ones.size(); i-- > 0;) {
      for (std::size_t j = others.size(); j-- > 0;) {
        Number best = std::max(longest[(i + 1) * width + j], longest[i * width + j + 1]);
        if (sameName(i, j)) best = std::max(best, longest[(i + 1) * width + j + 1] + 1);
        longest[i * width + j] = best;
      }
    }
    for (std::size_t i = 0, j = 0; i < ones.size() && j < others.size();) {
      if (sameName(i, j) && longest[i * width + j] == longest[(i + 1) * width + j + 1] + 1)
        Pair(ones[i++], others[j++]);
      else if (longest[(i + 1) * width + j] >= longest[i * width + j + 1])
        ++i;
      else
        ++j;
    }
  }

  const std::vector<HtmlToken> &one_;
  const std::vector<HtmlToken> &other_;
  int inStep_;
  Place end_;
  TokenAlignment result_;
};

}  // namespace

TokenAlignment AlignTokens(const std::vector<HtmlToken> &one, const std::vector<HtmlToken> &other,
                           InStep inStep) {
  return Aligner(one, other, inStep).Run();
}

}  // namespace velor
