// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/WebSpelling.h"

#include "engine/BridgeScript.h"
#include "engine/LiveDocument.h"
#include "engine/NoticeQueue.h"
#include "engine/PageLoader.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QVariantMap>

namespace velor {

namespace {

using namespace std::chrono_literals;

/// Reading the page's words delays what asks for them no longer than this.
constexpr std::chrono::milliseconds ReadLimit = 2s;

/// A line as the bridge tells it: its text, and pairs of an index and a language.
SpelledLine LineFrom(const QVariant &told) {
  const QVariantList parts = told.toList();
  SpelledLine line{.text = parts.value(0).toString()};
  for (const QVariant &each : parts.value(1).toList()) {
    const QVariantList run = each.toList();
    line.runs.push_back({run.value(0).toLongLong(), run.value(1).toString()});
  }
  return line;
}

QVariantList InScript(int line, const TextStretch &stretch) {
  return {line, static_cast<qlonglong>(stretch.start), static_cast<qlonglong>(stretch.end)};
}

}  // namespace

void WebSpelling::Use(Spelling *spelling, const QString &siteList) {
  spelling_ = spelling;
  siteList_ = siteList;
  TurnWaves();
  CheckAgain();
}

void WebSpelling::ShowWaves(bool on) {
  areWavesOn_ = on;
  TurnWaves();
}

void WebSpelling::SetFocus() {
  if (document_.View() != nullptr) document_.View()->SetFocus();
}

void WebSpelling::TurnWaves() {
  const bool on = areWavesOn_ && spelling_ != nullptr;
  if (options_.spelling == on) return;
  options_.spelling = on;
  document_.Run(QStringLiteral("velor.setSpelling(%1)").arg(ScriptValue(on)));
}

void WebSpelling::CheckAgain() {
  if (options_.spelling) document_.Run(QStringLiteral("velor.checkAgain()"));
}

std::vector<TextStretch> WebSpelling::Judge(const SpelledLine &line) {
  if (spelling_ == nullptr) return {};
  return spelling_->UnknownWords(line, siteList_);
}

void WebSpelling::AnswerPage(const QString &json) {
  if (document_.View() == nullptr || spelling_ == nullptr) return;
  const QVariantMap question = QJsonDocument::fromJson(json.toUtf8()).object().toVariantMap();
  QVariantList answers;
  for (const QVariant &told : question[QStringLiteral("lines")].toList()) {
    QVariantList places;
    for (const auto &[start, end] : Judge(LineFrom(told)))
      places << static_cast<qlonglong>(start) << static_cast<qlonglong>(end);
    answers << QVariant(places);
  }
  // With an answer, so that no key waits for it.
  document_.View()->Run(QStringLiteral("velor.spelled(%1,%2)")
                            .arg(question[QStringLiteral("question")].toInt())
                            .arg(ScriptValue(answers)),
                        [](const QVariant &) {});
  for (const QString &notice : MissingDictionaries(*spelling_)) notices_.Report(notice);
}

std::optional<WebSpelling::PageText> WebSpelling::ReadPage(Extent extent) {
  current_.reset();
  if (document_.View() == nullptr || spelling_ == nullptr) return {};
  const Lifetime::Watch page = document_.WatchPage();
  const QString part = extent == Extent::Page ? QStringLiteral("page") : QStringLiteral("line");
  const auto answer = document_.View()->Ask(
      QStringLiteral("velor.spelledText(%1)").arg(ScriptValue(part)), ReadLimit);
  if (!answer || page.IsOver()) return {};
  const QVariantMap told = answer->toMap();
  const auto point = [&told](const char *name) {
    const QVariantList pair = told[QString::fromLatin1(name)].toList();
    return Point{pair.value(0).toInt(), pair.value(1).toLongLong()};
  };
  PageText text{.lines = {}, .selectionStart = point("from"), .selectionEnd = point("to")};
  for (const QVariant &line : told[QStringLiteral("lines")].toList())
    text.lines.push_back(LineFrom(line));
  return text;
}

std::vector<WebSpelling::Place> WebSpelling::PlacesIn(const SpelledLine &line, int number) {
  std::vector<Place> places;
  for (const TextStretch &stretch : Judge(line))
    places.push_back({UnknownWordAt(line, stretch), number, stretch});
  return places;
}

std::optional<UnknownWord> WebSpelling::AtCaret() {
  const auto text = ReadPage(Extent::LineOfSelection);
  if (!text) return {};
  const auto &[start, end] = std::pair(text->selectionStart, text->selectionEnd);
  if (start.line != end.line || start.line >= static_cast<int>(text->lines.size())) return {};
  for (const Place &place :
       PlacesIn(text->lines[static_cast<std::size_t>(start.line)], start.line)) {
    if (place.stretch.start <= start.index && end.index <= place.stretch.end) {
      current_ = place;
      return place.found;
    }
  }
  return {};
}

std::optional<UnknownWord> WebSpelling::SelectNext() {
  const auto text = ReadPage();
  if (!text || text->lines.empty()) return {};
  const int count = static_cast<int>(text->lines.size());
  const Point from = text->selectionEnd;
  const bool isCaret =
      text->selectionStart.line == from.line && text->selectionStart.index == from.index;
  // The line of the selection twice: what is behind it first, what is before it last.
  for (int step = 0; step <= count; ++step) {
    const int number = (from.line + step) % count;
    for (const Place &place : PlacesIn(text->lines[static_cast<std::size_t>(number)], number)) {
      // A word that the caret is in is not left out.
      const bool isBehind =
          isCaret ? place.stretch.end > from.index : place.stretch.start >= from.index;
      if (step == 0 && from.line < count && !isBehind) continue;
      if (Select(place)) {
        current_ = place;
        return place.found;
      }
      return {};
    }
  }
  return {};
}

std::vector<UnknownWord> WebSpelling::All() {
  std::vector<UnknownWord> words;
  const auto text = ReadPage();
  if (!text) return words;
  for (std::size_t number = 0; number < text->lines.size(); ++number)
    for (const Place &place : PlacesIn(text->lines[number], static_cast<int>(number)))
      words.push_back(place.found);
  return words;
}

bool WebSpelling::Select(const Place &place) {
  const auto answer = document_.View()->Ask(
      QStringLiteral("velor.selectWord(%1,%2)")
          .arg(ScriptValue(InScript(place.line, place.stretch)), ScriptValue(place.found.word)),
      ReadLimit);
  return answer && answer->toBool();
}

int WebSpelling::Exchange(const std::vector<Place> &places, const QString &word,
                          const QString &other) {
  QVariantList told;
  for (const Place &place : places) told << QVariant(InScript(place.line, place.stretch));
  const auto answer =
      document_.View()->Ask(QStringLiteral("velor.correctWord(%1,%2,%3)")
                                .arg(ScriptValue(told), ScriptValue(word), ScriptValue(other)),
                            ReadLimit);
  return answer ? answer->toInt() : 0;
}

bool WebSpelling::Correct(const QString &other) {
  const auto place = std::exchange(current_, {});
  if (!place || document_.View() == nullptr) return false;
  return Exchange({*place}, place->found.word, other) > 0;
}

int WebSpelling::CorrectAll(const QString &word, const QString &other) {
  std::vector<Place> places;
  const auto text = ReadPage();
  if (!text) return 0;
  for (std::size_t number = 0; number < text->lines.size(); ++number) {
    for (const Place &place : PlacesIn(text->lines[number], static_cast<int>(number)))
      if (place.found.word == word) places.push_back(place);
  }
  return places.empty() ? 0 : Exchange(places, word, other);
}

}  // namespace velor
