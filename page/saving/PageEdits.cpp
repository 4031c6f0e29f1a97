// SPDX-License-Identifier: GPL-3.0-or-later
#include "page/saving/PageEdits.h"

#include "page/text/HtmlElements.h"

#include <algorithm>

namespace velor {

namespace {

using Number = std::int32_t;

/// Maximum number of tokens that an edit may be shifted by.
constexpr Number LongestSlide = 2000;

/// Whether the tokens hold whole elements only.
bool IsBalanced(const TokenText &text, Number from, Number to) {
  std::vector<std::uint32_t> open;
  for (Number at = from; at < to; ++at) {
    const HtmlToken &token = text.At(at);
    if (token.kind == HtmlTokenKind::StartTag) {
      if (!elements::IsOneOf(token.name, elements::VoidElements)) open.push_back(token.name);
    } else if (token.kind == HtmlTokenKind::EndTag) {
      if (open.empty() || open.back() != token.name) return false;
      open.pop_back();
    }
  }
  return open.empty();
}

/// Shifts an edit that only inserts, or only takes away, to the place with the best Score.
class EditShift {
 public:
  EditShift(const TokenText &before, const TokenText &now, PageEdit &edit)
      : before_(before), now_(now), edit_(edit) {}

  /// The edit may move back to `from` and ahead to `to` in the text before.
  void Run(Number from, Number to) {
    const PageEdit start = edit_;
    PageEdit best = start;
    int bestScore = Score();
    const auto look = [&] {
      const int score = Score();
      if (score <= bestScore) return;
      bestScore = score;
      best = edit_;
    };
    for (Number steps = 0; steps < LongestSlide && bestScore < BestScore && StepBack(from); ++steps)
      look();
    edit_ = start;
    for (Number steps = 0; steps < LongestSlide && bestScore < BestScore && StepAhead(to); ++steps)
      look();
    edit_ = best;
  }

 private:
  /// The score of an edit that holds whole elements only. 2: it holds whole elements and text, and
  /// begins or ends with a tag; 1: it begins and ends with text; 0: it cuts an element.
  static constexpr int BestScore = 3;

  const TokenText &Long() const { return edit_.now == edit_.nowEnd ? before_ : now_; }
  Number From() const { return edit_.now == edit_.nowEnd ? edit_.before : edit_.now; }
  Number To() const { return edit_.now == edit_.nowEnd ? edit_.beforeEnd : edit_.nowEnd; }

  int Score() const {
    if (!IsBalanced(Long(), From(), To())) return 0;
    const HtmlToken &first = Long().At(From());
    const HtmlToken &last = Long().At(To() - 1);
    if (first.kind == HtmlTokenKind::StartTag && last.kind == HtmlTokenKind::EndTag)
      return BestScore;
    return first.kind == HtmlTokenKind::StartTag || last.kind == HtmlTokenKind::EndTag ? 2 : 1;
  }
  void Move(Number by) {
    edit_.before += by;
    edit_.beforeEnd += by;
    edit_.now += by;
    edit_.nowEnd += by;
  }
  bool StepBack(Number from) {
    if (edit_.before <= from || Long().At(From() - 1).key != Long().At(To() - 1).key) return false;
    Move(-1);
    return true;
  }
  bool StepAhead(Number to) {
    if (edit_.beforeEnd >= to || Long().At(From()).key != Long().At(To()).key) return false;
    Move(1);
    return true;
  }

  const TokenText &before_;
  const TokenText &now_;
  PageEdit &edit_;
};

/// The number of the first token at or behind `from` that has a counterpart.
Number EndOfUnmatched(const std::vector<Number> &counterparts, Number from) {
  const auto start = counterparts.begin() + from;
  const auto end = std::find_if(start, counterparts.end(), [](Number found) { return found >= 0; });
  return static_cast<Number>(end - counterparts.begin());
}

/// The edits by the alignment, not yet shifted.
std::vector<PageEdit> EditsBetween(const TokenText &before, const TokenText &now,
                                   const TokenAlignment &alignment) {
  std::vector<PageEdit> edits;
  Number one = 0;
  Number other = 0;
  while (one < before.Count() || other < now.Count()) {
    const Number oneEnd = EndOfUnmatched(alignment.toOther, one);
    const Number otherEnd = EndOfUnmatched(alignment.fromOther, other);
    if (oneEnd > one || otherEnd > other) edits.push_back({one, oneEnd, other, otherEnd, false});
    one = oneEnd;
    other = otherEnd;
    if (one >= before.Count() || other >= now.Count()) continue;
    if (before.At(one).key != now.At(other).key)
      edits.push_back({one, one + 1, other, other + 1, true});
    ++one;
    ++other;
  }
  return edits;
}

/// Whether an edit only inserts, or only takes away.
bool IsOneSided(const PageEdit &edit) {
  return (edit.before == edit.beforeEnd) != (edit.now == edit.nowEnd);
}

}  // namespace

std::vector<PageEdit> FindEdits(const TokenText &before, const TokenText &now,
                                const TokenAlignment &alignment) {
  std::vector<PageEdit> edits = EditsBetween(before, now, alignment);
  for (std::size_t number = 0; number < edits.size(); ++number) {
    if (!IsOneSided(edits[number])) continue;
    const Number from = number == 0 ? 0 : edits[number - 1].beforeEnd;
    const Number to = number + 1 == edits.size() ? before.Count() : edits[number + 1].before;
    EditShift(before, now, edits[number]).Run(from, to);
  }
  return edits;
}

}  // namespace velor
