// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/SourceSpelling.h"

#include "platform/Spelling.h"
#include "platform/TextDifference.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace velor {

namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

/// Without a change before words are judged.
constexpr std::chrono::milliseconds Pause = 250ms;
/// A key that comes while words are judged waits no longer than this and one line.
constexpr std::chrono::milliseconds Turn = 4ms;

}  // namespace

TextStretch SourceSpelling::Place::InSource() const {
  const std::vector<TextStretch> parts = line.SourceOf(stretch);
  return {parts.front().start, parts.back().end};
}

SourceSpelling::SourceSpelling(SourceControl &source, SourceAccess access,
                               std::function<void(const QString &)> report)
    : source_(source), access_(access), report_(std::move(report)) {
  timer_.setSingleShot(true);
  QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { Work(); });
}

void SourceSpelling::Use(Spelling *spelling, const QString &siteList) {
  if (spelling == spelling_ && siteList == siteList_) return;
  spelling_ = spelling;
  siteList_ = siteList;
  if (HasWaves()) Restart();
}

void SourceSpelling::ShowWaves(bool on) {
  if (on == areWavesOn_) return;
  areWavesOn_ = on;
  if (HasWaves()) return Restart();
  timer_.stop();
  Forget();
  source_.DrawWaves({0, source_.Text().size()}, {});
}

void SourceSpelling::Restart() {
  Forget();
  source_.TakeChange();
  text_ = source_.Text();
  timer_.start(0);
}

void SourceSpelling::Forget() {
  text_.clear();
  lines_.clear();
  former_.clear();
  heldBack_.reset();
  judgedTo_ = 0;
  readTo_ = 0;
  state_ = {};
}

void SourceSpelling::CheckAgain() {
  for (std::vector<Line> *lines : {&lines_, &former_})
    for (Line &line : *lines) line.isJudged = false;
  judgedTo_ = 0;
  if (HasWaves()) timer_.start(0);
}

void SourceSpelling::TextChanged() {
  if (HasWaves()) timer_.start(Pause);
}

void SourceSpelling::CaretMoved() {
  if (heldBack_) timer_.start(Pause);
}

void SourceSpelling::Work() {
  if (!HasWaves()) return;
  const auto end = Clock::now() + Turn;
  TakeChange();
  ReleaseWord();
  const TextStretch sight = source_.InSight();
  bool isDone = false;
  while (!isDone && Clock::now() < end) isDone = !Step(sight);
  if (!isDone) timer_.start(0);
  for (const QString &notice : MissingDictionaries(*spelling_)) report_(notice);
}

bool SourceSpelling::Step(const TextStretch &sight) {
  if (Line *line = NextUnjudged(sight))
    Judge(*line);
  else if (readTo_ < text_.size())
    ReadLine();
  else
    return false;
  return true;
}

void SourceSpelling::TakeChange() {
  const std::optional<TextStretch> change = source_.TakeChange();
  if (!change) return;
  if (heldBack_) LineAt(std::exchange(heldBack_, {})->start)->isJudged = false;
  const QString before = std::exchange(text_, source_.Text());
  lastChange_ = *change;
  moved_ = text_.size() - before.size();
  former_.clear();
  const bool wasRead = readTo_ == before.size();
  // The last line ends with the text, and goes on where something is added there.
  while (!lines_.empty() && (lines_.back().end > change->start || readTo_ == before.size())) {
    Line line = std::move(lines_.back());
    lines_.pop_back();
    readTo_ = line.begin;
    state_ = line.state;
    if (wasRead && line.begin + moved_ >= change->end) former_.push_back(std::move(line));
  }
  judgedTo_ = 0;
}

void SourceSpelling::ReadLine() {
  while (!former_.empty() && former_.back().begin + moved_ < readTo_) former_.pop_back();
  if (!former_.empty() && former_.back().begin + moved_ == readTo_ &&
      former_.back().state == state_) {
    for (; !former_.empty(); former_.pop_back()) {
      lines_.push_back(std::move(former_.back()));
      lines_.back().begin += moved_;
      lines_.back().end += moved_;
    }
    readTo_ = text_.size();
    return;
  }
  SourceTextReader reader(text_, readTo_, state_);
  const SourceTextLine line = reader.Next();
  lines_.push_back({line.begin, line.end, std::exchange(state_, reader.State())});
  readTo_ = line.end;
}

SourceSpelling::Line *SourceSpelling::LineAt(qsizetype offset) {
  const auto line = std::ranges::partition_point(
      lines_, [offset](const Line &each) { return each.end <= offset; });
  return line == lines_.end() ? nullptr : &*line;
}

SourceSpelling::Line *SourceSpelling::NextUnjudged(const TextStretch &sight) {
  const Line *end = lines_.data() + lines_.size();
  for (Line *line = LineAt(sight.start); line != nullptr && line != end && line->begin < sight.end;
       ++line)
    if (!line->isJudged) return line;
  if (readTo_ < text_.size()) return nullptr;
  while (judgedTo_ < lines_.size() && lines_[judgedTo_].isJudged) ++judgedTo_;
  return judgedTo_ < lines_.size() ? &lines_[judgedTo_] : nullptr;
}

void SourceSpelling::Judge(Line &line) {
  std::vector<TextStretch> waves;
  for (const Place &place : PlacesIn(SourceTextReader(text_, line.begin, line.state).Next())) {
    if (IsBeingWritten(place.InSource())) {
      heldBack_ = place.InSource();
      continue;
    }
    const std::vector<TextStretch> parts = place.line.SourceOf(place.stretch);
    waves.insert(waves.end(), parts.begin(), parts.end());
  }
  source_.DrawWaves({line.begin, line.end}, waves);
  line.isJudged = true;
}

bool SourceSpelling::IsBeingWritten(const TextStretch &word) const {
  const auto &[start, end] = lastChange_;
  const bool isAll = start == 0 && end == text_.size();
  if (access_ == SourceAccess::View || isAll || word.end < start || word.start > end) return false;
  const qsizetype caret = source_.Selection().end;
  return word.start < caret && caret <= word.end;
}

void SourceSpelling::ReleaseWord() {
  if (!heldBack_ || IsBeingWritten(*heldBack_)) return;
  LineAt(std::exchange(heldBack_, {})->start)->isJudged = false;
  judgedTo_ = 0;
}

std::vector<SourceSpelling::Place> SourceSpelling::PlacesIn(const SourceTextLine &line) {
  std::vector<Place> places;
  for (const TextStretch &stretch : spelling_->UnknownWords(line.spelled, siteList_))
    places.push_back({UnknownWordAt(line.spelled, stretch), line, stretch});
  return places;
}

SourceTextReader SourceSpelling::ReaderFor(const QString &source, qsizetype offset) {
  if (HasWaves()) TakeChange();
  const auto line = std::ranges::partition_point(
      lines_, [offset](const Line &each) { return each.end < offset; });
  return line == lines_.end() ? SourceTextReader(source, readTo_, state_)
                              : SourceTextReader(source, line->begin, line->state);
}

void SourceSpelling::VisitPlaces(const QString &source, const TextStretch &stretch,
                                 const std::function<bool(const Place &)> &visit) {
  current_.reset();
  if (spelling_ == nullptr) return;
  for (SourceTextReader reader = ReaderFor(source, stretch.start); !reader.IsAtEnd();) {
    const SourceTextLine line = reader.Next();
    if (line.end < stretch.start) continue;
    if (line.begin > stretch.end) return;
    for (const Place &place : PlacesIn(line))
      if (!visit(place)) return;
  }
}

std::optional<UnknownWord> SourceSpelling::AtCaret() {
  const TextStretch selected = source_.Selection();
  return Find(selected, [&selected](const TextStretch &word) {
    return word.start <= selected.start && selected.end <= word.end;
  });
}

std::optional<UnknownWord> SourceSpelling::SelectNext() {
  const auto &[start, end] = source_.Selection();
  // A word that the caret is in is not left out.
  const auto isBehind = [isCaret = start == end, from = end](const TextStretch &word) {
    return isCaret ? word.end > from : word.start >= from;
  };
  const TextStretch behind{end, source_.Text().size()};
  if (!Find(behind, isBehind)) Find({0, end}, [](const TextStretch &) { return true; });
  if (!current_) return std::nullopt;
  source_.Select(current_->InSource());
  return current_->found;
}

std::optional<UnknownWord> SourceSpelling::Find(
    const TextStretch &stretch, const std::function<bool(const TextStretch &)> &isWanted) {
  std::optional<Place> found;
  currentText_ = source_.Text();
  VisitPlaces(currentText_, stretch, [&](const Place &place) {
    if (isWanted(place.InSource())) found = place;
    return !found;
  });
  current_ = found;
  return found ? std::optional(found->found) : std::nullopt;
}

std::vector<UnknownWord> SourceSpelling::All() {
  std::vector<UnknownWord> words;
  const QString text = source_.Text();
  VisitPlaces(text, {0, text.size()}, [&words](const Place &place) {
    words.push_back(place.found);
    return true;
  });
  return words;
}

bool SourceSpelling::Correct(const QString &other) {
  const std::optional<Place> place = std::exchange(current_, {});
  if (!place || !CanCorrect() || source_.Text() != currentText_) return false;
  const qsizetype end = place->InSource().end + Exchange({*place}, other);
  source_.Select({end, end});
  return true;
}

int SourceSpelling::CorrectAll(const QString &word, const QString &other) {
  std::vector<Place> places;
  const QString text = source_.Text();
  VisitPlaces(text, {0, text.size()}, [&](const Place &place) {
    if (place.found.word == word) places.push_back(place);
    return true;
  });
  if (places.empty() || !CanCorrect()) return 0;
  Exchange(places, other);
  return static_cast<int>(places.size());
}

qsizetype SourceSpelling::Exchange(const std::vector<Place> &places, const QString &other) {
  std::vector<TextReplacement> parts;
  qsizetype grown = 0;
  for (const auto &[found, line, stretch] : places) {
    // What the words have in common stays as it is written, with the markup in it.
    const auto difference = TextDifference::Between(found.word, other);
    QString text = difference.InsertedIn(other).toString().toHtmlEscaped();
    const qsizetype start = stretch.start + difference.start;
    std::vector<TextStretch> removed = line.SourceOf({start, start + difference.removed});
    if (removed.empty()) {
      const qsizetype place =
          difference.start > 0 ? line.SourceOf(start - 1).end : line.SourceOf(start).start;
      removed.push_back({place, place});
    }
    for (const TextStretch &part : removed) {
      parts.push_back({part, std::exchange(text, {})});
      grown += parts.back().text.size() - (part.end - part.start);
    }
  }
  source_.ReplaceParts(parts);
  return grown;
}

}  // namespace velor
