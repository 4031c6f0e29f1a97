// SPDX-License-Identifier: GPL-3.0-or-later
#include "page/saving/FaithfulPage.h"

#include "page/saving/MovedTokens.h"
#include "page/saving/PageVerifier.h"
#include "page/text/HtmlElements.h"
#include "page/text/TextPlaces.h"
#include "platform/RuntimeError.h"
#include "platform/Words.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

namespace velor {

namespace {

/// Bounds the tries for one save, so that nobody waits long. One try is always made.
struct Effort {
  qsizetype tries;
  qsizetype parsed;  ///< UTF-16 code units that all tries may parse together

  qsizetype For(const QString &text) const {
    return std::clamp(parsed / std::max<qsizetype>(text.size(), 1), qsizetype{1}, tries);
  }
};
constexpr Effort UntilEqual{24, 40'000'000};
constexpr Effort UntilSmallest{120, 10'000'000};

/// Cuts inserted texts where tags begin, so that each tag can be left out on its own.
std::vector<TextPatch> TagByTag(const std::vector<TextPatch> &patches) {
  std::vector<TextPatch> parts;
  for (const TextPatch &patch : patches) {
    qsizetype done = 0;
    if (patch.start == patch.end) {
      for (const HtmlToken &token : TokenizeHtml(patch.text)) {
        if (!token.IsTag() || token.offset == done) continue;
        parts.push_back({patch.start, patch.end, patch.text.sliced(done, token.offset - done)});
        done = token.offset;
      }
    }
    parts.push_back({patch.start, patch.end, patch.text.sliced(done)});
  }
  return parts;
}

/// Joins insertions at the same offset, which TagByTag cut.
std::vector<TextPatch> Joined(const std::vector<TextPatch> &patches) {
  std::vector<TextPatch> joined;
  for (const TextPatch &patch : patches) {
    const bool goesOn = !joined.empty() && joined.back().end == patch.start &&
                        joined.back().start == joined.back().end && patch.start == patch.end;
    if (goesOn)
      joined.back().text += patch.text;
    else
      joined.push_back(patch);
  }
  return joined;
}

qsizetype FirstDifference(QStringView one, QStringView other) {
  const auto [end, unused] = std::mismatch(one.begin(), one.end(), other.begin(), other.end());
  return end - one.begin();
}

/// The keys of the words that stand where text may stand.
std::unordered_set<std::uint64_t> KeysOfWordsOutsideTableParts(
    const std::vector<HtmlToken> &tokens) {
  std::unordered_set<std::uint64_t> keys;
  TextPlaces places;
  for (const HtmlToken &token : tokens) {
    if (token.kind == HtmlTokenKind::StartTag)
      places.StartTag(token.name);
    else if (token.kind == HtmlTokenKind::EndTag)
      places.EndTag(token.name);
    else if (token.kind == HtmlTokenKind::Word && !places.IsBetweenTableParts())
      keys.insert(token.key);
  }
  return keys;
}

/// The source's tokens for the alignment with its serialisation. Tokens that a parser moves get a
/// key that matches nothing, where they could be matched with the wrong token: words between the
/// parts of a table that stand elsewhere too, and the end tags of BODY and HTML, since a parser
/// moves the text behind them before them.
std::vector<HtmlToken> TokensToMatch(std::vector<HtmlToken> tokens) {
  const std::unordered_set<std::uint64_t> elsewhere = KeysOfWordsOutsideTableParts(tokens);
  TextPlaces places;
  for (HtmlToken &token : tokens) {
    const bool isFrame = token.name == elements::Body || token.name == elements::Html;
    if (token.kind == HtmlTokenKind::StartTag)
      places.StartTag(token.name);
    else if (token.kind == HtmlTokenKind::EndTag)
      places.EndTag(token.name);
    const bool isMoved = token.kind == HtmlTokenKind::Word && places.IsBetweenTableParts() &&
                         elsewhere.contains(token.key);
    if (isMoved || (isFrame && token.kind == HtmlTokenKind::EndTag)) token.key = 0;
  }
  return tokens;
}

/// A serialisation without tags of HTML, HEAD and BODY that a parser implies, and without the
/// blanks before its content, which a source without these tags cannot hold.
QString WithoutImpliedFrame(const QString &serialisation) {
  QString content = serialisation;
  for (const char *tag : {"<html>", "<head>", "</head>", "<body>"}) {
    const qsizetype at = content.indexOf(QLatin1String(tag));
    if (at >= 0) content.remove(at, static_cast<qsizetype>(qstrlen(tag)));
  }
  for (const char *tag : {"</html>", "</body>"}) {
    const qsizetype at = content.lastIndexOf(QLatin1String(tag));
    if (at >= 0) content.remove(at, static_cast<qsizetype>(qstrlen(tag)));
  }
  qsizetype start = 0;
  while (start < content.size()) {
    if (content[start].isSpace()) {
      content.remove(start, 1);
    } else if (QStringView(content).sliced(start).startsWith(u"<!--")) {
      const qsizetype end = content.indexOf(QStringLiteral("-->"), start);
      start = end < 0 ? content.size() : end + 3;
    } else {
      break;
    }
  }
  return content;
}

/// UTF-16 code units of a page's code that a message quotes.
constexpr qsizetype LongestQuote = 60;

QString NoSmallerChange() {
  return Words::tr("no smaller change of its source gives the page as it is shown now");
}
QString NoAnswer() {
  return Words::tr("the check whether a smaller change is enough did not answer");
}
QString NoText() {
  return Words::tr("bytes that are no text in %1 stand beside what was changed");
}

}  // namespace

/// How one serialisation is written.
struct FaithfulPage::Plan {
  Plan(TokenText current, const TokenText &source, const TokenText &before,
       const TokenAlignment &sourceToBefore, PageForm form)
      : now(std::move(current)),
        alignment(AlignTokens(before.tokens, now.tokens, InStep::WithEdit)),
        edits(FindEdits(before, now, alignment)),
        steps(edits.size()),
        patcher(source, before, now, sourceToBefore, alignment, std::move(form)) {}

  /// The step of the edit nearest to a place of the document: most likely the one that made the
  /// document differ there.
  PatchStep &StepAt(qsizetype place) {
    std::size_t nearest = 0;
    qsizetype shortest = now.text.size() + 1;
    for (std::size_t number = 0; number < edits.size(); ++number) {
      const std::int32_t start = edits[number].now;
      const std::int32_t end = edits[number].nowEnd;
      const qsizetype from = start < now.Count() ? now.At(start).offset : now.text.size();
      const qsizetype to = end > start ? now.At(end - 1).End() : from;
      const qsizetype distance = place < from ? from - place : std::max<qsizetype>(0, place - to);
      if (distance >= shortest) continue;
      shortest = distance;
      nearest = number;
    }
    return steps[nearest];
  }

  SaveRung Rung() const {
    PatchRung highest = PatchRung::EditAlone;
    for (const PatchStep step : steps) highest = std::max(highest, step.rung);
    if (highest == PatchRung::EditAlone) return SaveRung::Edits;
    return highest < PatchRung::EnclosingElement ? SaveRung::ImpliedTags : SaveRung::Elements;
  }

  TokenText now;
  TokenAlignment alignment;
  std::vector<PageEdit> edits;
  std::vector<PatchStep> steps;
  SourcePatches patcher;
  std::optional<SavedPage> result;
  QString reason = NoSmallerChange();  ///< why there is no result
  bool isExhausted = false;            ///< no try that is left would give one
};

FaithfulPage::FaithfulPage(PageOriginal original)
    : original_(std::move(original)), mask_(original_.page.text) {}

void FaithfulPage::SetBaseline(const QString &serialisation) {
  original_.baseline = serialisation;
  before_.reset();
  plan_.reset();
}

void FaithfulPage::Prepare() {
  if (original_.baseline.isEmpty()) return;
  if (!source_) {
    source_.emplace(mask_.MaskedText());
    hasFrameTags_ = std::any_of(source_->tokens.begin(), source_->tokens.end(), IsFrameTag);
  }
  if (before_) return;
  before_.emplace(original_.baseline, HtmlOrigin::Serialisation);
  sourceToBefore_ =
      AlignTokens(TokensToMatch(source_->tokens), before_->tokens, InStep::WithSerialisation);
}

PageForm FaithfulPage::Form() const {
  return {original_.page.encoding.lineEnds, mask_.Stem()};
}

FaithfulPage::Plan &FaithfulPage::PlanFor(const QString &current) {
  Prepare();
  if (plan_ != nullptr && plan_->now.text == current) return *plan_;
  // A plan that is still being carried out keeps its tokens.
  const bool isFree = plan_.use_count() == 1;
  TokenText like = isFree ? std::move(plan_->now) : plan_ != nullptr ? plan_->now : *before_;
  plan_ = std::make_shared<Plan>(TokenText(current, std::move(like)), *source_, *before_,
                                 sourceToBefore_, Form());
  return *plan_;
}

std::optional<QString> FaithfulPage::FirstTry(const QString &current) {
  if (original_.baseline.isEmpty() || current == original_.baseline) return std::nullopt;
  const Plan &plan = PlanFor(current);
  const auto patches = plan.patcher.PatchesFor(plan.edits, plan.steps);
  if (!patches) return std::nullopt;
  return Patched(mask_.MaskedText(), *patches);
}

SavedPage FaithfulPage::Compose(const QString &current, PageVerifier &verifier) {
  if (original_.baseline.isEmpty()) return WriteEverything(current, {});
  if (current == original_.baseline)
    return {{original_.page.text, original_.bytes}, SaveRung::Unedited, {}};
  PlanFor(current);
  // The verifier may wait for the engine, and another call may come meanwhile.
  const std::shared_ptr<Plan> plan = plan_;
  if (!plan->result && !plan->isExhausted) {
    plan->result = TryRungs(*plan, verifier, Tries::All);
    plan->isExhausted = !plan->result && plan->reason != NoAnswer();
  }
  return plan->result ? *plan->result : WriteEverything(current, plan->reason);
}

void FaithfulPage::Precompute(const QString &current, PageVerifier &verifier) {
  if (original_.baseline.isEmpty() || current == original_.baseline) return;
  Plan &plan = PlanFor(current);
  if (!plan.result) plan.result = TryRungs(plan, verifier, Tries::First);
}

void FaithfulPage::DropCaches() {
  plan_.reset();
  source_.reset();
  before_.reset();
}

std::optional<SavedPage> FaithfulPage::TryRungs(Plan &plan, PageVerifier &verifier,
                                                Tries tries) const {
  const QString &wanted = plan.now.text;
  std::optional<QString> wantedAgain;  // what the document is once it has been parsed again
  for (qsizetype left = tries == Tries::All ? UntilEqual.For(wanted) : 1; left > 0; --left) {
    const auto patches = plan.patcher.PatchesFor(plan.edits, plan.steps);
    if (!patches) return std::nullopt;
    const auto document = verifier.SerialisationLike(Patched(mask_.MaskedText(), *patches), wanted);
    if (!document) {
      plan.reason = NoAnswer();
      return std::nullopt;
    }
    const bool isWanted = IsSameDocument(*document, wanted);
    const bool isFirstMiss = !isWanted && !wantedAgain;
    if (isFirstMiss) wantedAgain = verifier.Serialisation(wanted);
    if (isWanted || document == wantedAgain) {
      const SaveRung rung = plan.Rung();
      return Splice(
          rung == SaveRung::Edits ? *patches : WithoutNeedless(*patches, *document, verifier),
          rung);
    }
    if (plan.steps.empty() || tries == Tries::First) return std::nullopt;
    if (isFirstMiss && wantedAgain && *wantedAgain != wanted) {
      if (auto saved = TryAsParsed(*wantedAgain, verifier)) return saved;
    }
    plan.StepAt(FirstDifference(wanted, *document)).Escalate();
  }
  return std::nullopt;
}

std::optional<SavedPage> FaithfulPage::TryAsParsed(const QString &wantedAgain,
                                                   PageVerifier &verifier) const {
  const Plan plan(TokenText(wantedAgain, *before_), *source_, *before_, sourceToBefore_, Form());
  const auto patches = plan.patcher.PatchesFor(plan.edits, plan.steps);
  if (!patches) return std::nullopt;
  if (verifier.SerialisationLike(Patched(mask_.MaskedText(), *patches), wantedAgain) != wantedAgain)
    return std::nullopt;
  return Splice(WithoutNeedless(*patches, wantedAgain, verifier), SaveRung::Edits);
}

/// Leaves out half of the patches at a time, then smaller parts.
std::vector<TextPatch> FaithfulPage::WithoutNeedless(const std::vector<TextPatch> &patches,
                                                     const QString &document,
                                                     PageVerifier &verifier) const {
  std::vector<TextPatch> kept = TagByTag(patches);
  qsizetype left = UntilSmallest.For(document);
  for (std::size_t part = kept.size() / 2; part > 0; part /= 2) {
    for (std::size_t at = 0; at + part <= kept.size() && kept.size() > part && left > 0;) {
      std::vector<TextPatch> fewer = kept;
      const auto first = fewer.begin() + static_cast<std::ptrdiff_t>(at);
      fewer.erase(first, first + static_cast<std::ptrdiff_t>(part));
      --left;
      if (verifier.SerialisationLike(Patched(mask_.MaskedText(), fewer), document) == document)
        kept = std::move(fewer);
      else
        at += part;
    }
  }
  return Joined(kept);
}

SavedPage FaithfulPage::Splice(const std::vector<TextPatch> &patches, SaveRung rung) const {
  std::vector<TextPatch> own;
  const QString &masked = mask_.MaskedText();
  for (const TextPatch &patch : patches) {
    const qsizetype start = mask_.MoveOutOfMask(patch.start, PageMask::Edge::Start);
    const qsizetype end = mask_.MoveOutOfMask(patch.end, PageMask::Edge::End);
    const QString text = masked.mid(start, patch.start - start) + patch.text +
                         masked.mid(patch.end, end - patch.end);
    own.push_back({mask_.ToSource(start, PageMask::Edge::Start),
                   mask_.ToSource(end, PageMask::Edge::End), mask_.Unmask(text)});
  }
  SavedPage saved{SpliceBytes(original_, own), rung, {}};
  if (saved.page.extent == WrittenExtent::WholePage) {
    saved.rung = SaveRung::Everything;
    saved.reason = NoText().arg(original_.page.encoding.charset);
  }
  return saved;
}

bool FaithfulPage::IsSameDocument(const QString &one, const QString &other) const {
  if (one == other) return true;
  return !hasFrameTags_ && WithoutImpliedFrame(one) == WithoutImpliedFrame(other);
}

SavedPage FaithfulPage::WriteEverything(const QString &current, const QString &reason) const {
  if (!original_.baseline.isEmpty()) {
    if (const auto lost = mask_.Dropped(original_.baseline, current))
      throw RuntimeError(
          ErrorNumber::InvalidProcedureCall, QStringLiteral("SaveDocument"),
          Words::tr("The page would have to be written anew, since %1, and that would lose "
                    "\"%2\", which has no place in the page as it is shown. Change the page's "
                    "source instead.")
              .arg(reason, lost->left(LongestQuote)));
  }
  const PageEncoding &encoding = original_.page.encoding;
  const QString text = mask_.Unmask(hasFrameTags_ ? current : WithoutImpliedFrame(current));
  return {WriteWhole(WithLineEnds(text, encoding.lineEnds), encoding), SaveRung::Everything,
          reason};
}

}  // namespace velor
