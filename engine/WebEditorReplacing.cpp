// SPDX-License-Identifier: GPL-3.0-or-later
// One document in another's place, so that undo brings the earlier one back.
#include "engine/BridgeScript.h"
#include "engine/WebEditor.h"

#include <iterator>
#include <utility>

namespace velor {

namespace {

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds replaceLimit = 1min;
const QString longReplacement = QStringLiteral(
    "The page takes long to show. Press Escape to stop it; the page is as before then.");
/// What documents kept for undo may hold together, in UTF-16 units; the last one is always kept.
constexpr qsizetype mostKept = 32'000'000;

qsizetype WeightOf(const FaithfulPage &page) {
  const PageOriginal &original = page.Original();
  return original.bytes.size() / 2 + original.page.text.size() + original.baseline.size();
}

}  // namespace

WebEditor::Replaced WebEditor::ReplaceInPlace(const Original &original, const QString &nativePath) {
  const QPointer<EngineView> alive(view_.get());
  if (load_ != LoadPurpose::None) return Replaced::NotPossible;
  const int load = loads_;
  alive->AwaitInput();
  if (alive == nullptr) return Replaced::Done;
  const int generation = ++lastGeneration_;
  const Patience patience = Stoppable(longReplacement);
  const auto answer = alive->Ask(QStringLiteral("velor.replaceDocument(%1,%2)")
                                     .arg(ScriptValue(original->TextToLoad()))
                                     .arg(generation),
                                 replaceLimit, &patience);
  // A page closed or loaded anew meanwhile is no failure of this call.
  if (alive == nullptr || load != loads_) return Replaced::Done;
  if (alive->WasStopped()) return Replaced::Stopped;
  if (!answer || answer->toString().isEmpty()) return Replaced::NotPossible;
  originals_[generation] = original;
  FollowGeneration(generation);
  mirror_.page = PageMirror(answer->toString());
  original_->SetBaseline(mirror_.page.Html());
  nativePath_ = nativePath;
  notices_.Post(Notice::Complete, [this] {
    if (listener_ != nullptr) listener_->DocumentComplete();
  });
  return Replaced::Done;
}

void WebEditor::FollowGeneration(int generation) {
  const auto next = originals_.find(generation);
  if (next == originals_.end() || load_ != LoadPurpose::None) return;
  Original original = std::move(next->second);
  originals_.erase(next);
  original_->DropCaches();
  originals_[generation_] = std::exchange(original_, std::move(original));
  generation_ = generation;
  qsizetype weight = 0;
  for (auto kept = originals_.rbegin(); kept != originals_.rend(); ++kept) {
    weight += WeightOf(*kept->second);
    if (weight <= mostKept || kept == originals_.rbegin()) continue;
    originals_.erase(originals_.begin(), kept.base());
    break;
  }
}

void WebEditor::ReplaceKeepingEarlier(Original original, const QString &nativePath) {
  const QPointer<EngineView> alive(view_.get());
  QString html = mirror_.page.Html();
  if (auto now = Read()) html = std::move(*now);
  if (alive == nullptr) return;
  later_.clear();
  Keep(earlier_, {original_, std::move(html)});
  Replace(std::move(original), nativePath, LoadPurpose::Document);
}

void WebEditor::Keep(std::vector<Kept> &documents, Kept kept) {
  kept.original->DropCaches();
  documents.push_back(std::move(kept));
  qsizetype weight = 0;
  for (auto end = documents.end(); end != documents.begin(); --end) {
    const Kept &document = *std::prev(end);
    weight += WeightOf(*document.original) + document.html.size();
    if (weight <= mostKept || end == documents.end()) continue;
    documents.erase(documents.begin(), end);
    break;
  }
}

void WebEditor::Travel(Direction direction) {
  std::vector<Kept> &from = direction == Direction::Earlier ? earlier_ : later_;
  std::vector<Kept> &to = direction == Direction::Earlier ? later_ : earlier_;
  const QPointer<EngineView> alive(view_.get());
  QString html = mirror_.page.Html();
  if (auto now = Read()) html = std::move(*now);
  if (alive == nullptr || from.empty() || load_ != LoadPurpose::None) return;
  Keep(to, {original_, std::move(html)});
  Kept kept = std::move(from.back());
  from.pop_back();
  original_ = std::move(kept.original);
  mirror_ = {PageMirror(std::move(kept.html)), {}, {}};
  BeginLoad(LoadPurpose::Travel);
}

}  // namespace velor
