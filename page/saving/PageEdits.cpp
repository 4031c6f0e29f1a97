// SPDX-License-Identifier: GPL-3.0-or-later
#include "page/saving/PageEdits.h"

#include "page/text/HtmlElements.h"

namespace velor {

namespace {

using Number = std::int32_t;

/// As far as an edit is moved in search of a better place.
constexpr Number longestSlide = 2000;

/// Whether the tokens hold whole elements only.
bool IsBalanced(const TokenText &text, Number from, Number to) {
  std::vector<std::uint32_t> open;
  for (Number at = from; at < to; ++at) {
    const HtmlToken &token = text.At(at);
    if (token.kind == HtmlTokenKind::StartTag) {
      if (!elements::IsOneOf(token.name, elements::voidElements)) open.push_back(token.name);
    } else if (token.kind == HtmlTokenKind::EndTag) {
      if (open.empty() || open.back() != token.name) return false;
      open.pop_back();
    }
  }
  return open.empty();
}

/// Moves an edit that is empty on one side.
class Slide {
 public:
  Slide(const TokenText &before, const TokenText &now, PageEdit &edit)
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
    for (Number steps = 0; steps < longestSlide && bestScore < best_ && StepBack(from); ++steps)
      look();
    edit_ = start;
    for (Number steps = 0; steps < longestSlide && bestScore < best_ && StepAhead(to); ++steps)
      look();
    edit_ = best;
  }

 private:
  static constexpr int best_ = 3;

  const TokenText &Long() const { return edit_.now == edit_.nowEnd ? before_ : now_; }
  Number From() const { return edit_.now == edit_.nowEnd ? edit_.before : edit_.now; }
  Number To() const { return edit_.now == edit_.nowEnd ? edit_.beforeEnd : edit_.nowEnd; }

  int Score() const {
    if (!IsBalanced(Long(), From(), To())) return 0;
    const HtmlToken &first = Long().At(From());
    const HtmlToken &last = Long().At(To() - 1);
    if (first.kind == HtmlTokenKind::StartTag && last.kind == HtmlTokenKind::EndTag) return best_;
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

}  // namespace

std::vector<PageEdit> FindEdits(const TokenText &before, const TokenText &now,
                                const TokenAlignment &alignment) {
  std::vector<PageEdit> edits;
  Number one = 0;
  Number other = 0;
  while (one < before.Count() || other < now.Count()) {
    const PageEdit start{one, one, other, other};
    while (one < before.Count() && alignment.toOther[static_cast<std::size_t>(one)] < 0) ++one;
    while (other < now.Count() && alignment.fromOther[static_cast<std::size_t>(other)] < 0) ++other;
    if (one > start.before || other > start.now)
      edits.push_back({start.before, one, start.now, other, false});
    if (one >= before.Count() || other >= now.Count()) continue;
    if (before.At(one).key != now.At(other).key)
      edits.push_back({one, one + 1, other, other + 1, true});
    ++one;
    ++other;
  }
  for (std::size_t number = 0; number < edits.size(); ++number) {
    PageEdit &edit = edits[number];
    if ((edit.before == edit.beforeEnd) == (edit.now == edit.nowEnd)) continue;
    const Number from = number == 0 ? 0 : edits[number - 1].beforeEnd;
    const Number to = number + 1 == edits.size() ? before.Count() : edits[number + 1].before;
    Slide(before, now, edit).Run(from, to);
  }
  return edits;
}

}  // namespace velor
