// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/DocumentHistory.h"

#include <iterator>
#include <utility>

namespace velor {

namespace {

/// What documents kept for undo may hold together, in UTF-16 code units; the nearest is always
/// kept.
constexpr qsizetype MostKept = 32'000'000;

qsizetype WeightOf(const FaithfulPage &page) {
  const PageOriginal &original = page.Original();
  return original.bytes.size() / 2 + original.page.text.size() + original.baseline.size();
}

}  // namespace

void DocumentHistory::Load(Original original) {
  current_ = std::move(original);
  DropGenerations();
}

void DocumentHistory::DropGenerations() {
  generation_ = 0;
  generations_.clear();
}

void DocumentHistory::ForgetLoaded() {
  earlier_.clear();
  later_.clear();
}

void DocumentHistory::KeepForUndo(QString html) {
  later_.clear();
  Keep(earlier_, {current_, std::move(html)});
}

std::optional<QString> DocumentHistory::Step(Direction direction, QString html) {
  std::vector<Loaded> &from = direction == Direction::Earlier ? earlier_ : later_;
  std::vector<Loaded> &to = direction == Direction::Earlier ? later_ : earlier_;
  if (from.empty()) return std::nullopt;
  Keep(to, {current_, std::move(html)});
  Loaded document = std::move(from.back());
  from.pop_back();
  Load(std::move(document.original));
  return std::move(document.html);
}

void DocumentHistory::Keep(std::vector<Loaded> &documents, Loaded document) {
  document.original->DropCaches();
  documents.push_back(std::move(document));
  qsizetype weight = 0;
  for (auto end = documents.end(); end != documents.begin(); --end) {
    const Loaded &each = *std::prev(end);
    weight += WeightOf(*each.original) + each.html.size();
    if (weight <= MostKept || end == documents.end()) continue;
    documents.erase(documents.begin(), end);
    break;
  }
}

void DocumentHistory::AddGeneration(int generation, Original original) {
  generations_[generation] = std::move(original);
  ShowGeneration(generation);
}

void DocumentHistory::ShowGeneration(int generation) {
  const auto next = generations_.find(generation);
  if (next == generations_.end()) return;
  Original original = std::move(next->second);
  generations_.erase(next);
  current_->DropCaches();
  generations_[generation_] = std::exchange(current_, std::move(original));
  generation_ = generation;
  qsizetype weight = 0;
  for (auto each = generations_.rbegin(); each != generations_.rend(); ++each) {
    weight += WeightOf(*each->second);
    if (weight <= MostKept || each == generations_.rbegin()) continue;
    generations_.erase(generations_.begin(), each.base());
    break;
  }
}

}  // namespace velor
