// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/EngineVerifier.h"

#include "engine/BridgeScript.h"
#include "engine/EditingEngine.h"
#include "engine/EditorPage.h"
#include "platform/TextDifference.h"

#include <utility>

namespace velor {

namespace {

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds AnswerLimit = 1min;
/// A process that ends while it parses is replaced once.
constexpr int MostTries = 2;

/// The difference of two texts as an argument of velor.parsed: [start, removed, inserted].
QString Edit(const QString &before, const QString &after) {
  const auto difference = TextDifference::Between(before, after);
  return QStringLiteral("[%1,%2,%3]")
      .arg(difference.start)
      .arg(difference.removed)
      .arg(ScriptValue(difference.InsertedIn(after).toString()));
}

}  // namespace

EngineVerifier::EngineVerifier(EditingEngine &engine) : engine_(engine) {}

EngineVerifier::~EngineVerifier() = default;

std::optional<QString> EngineVerifier::Known(const QString &text) const {
  if (last_.serialisation.isEmpty() || last_.text != text) return std::nullopt;
  return last_.serialisation;
}

std::optional<QString> EngineVerifier::Serialisation(const QString &text) {
  return SerialisationLike(text, given_.expected);
}

std::optional<QString> EngineVerifier::SerialisationLike(const QString &text,
                                                         const QString &expected) {
  return Answer({text, expected}, nullptr, nullptr);
}

std::optional<QString> EngineVerifier::Answer(const Question &question, const Patience *patience,
                                              bool *isStopped) {
  const QString &text = question.text;
  if (const auto known = Known(text)) return known;
  if (engine_.Guard().InCallback()) return std::nullopt;
  for (int tries = 0; tries < MostTries && !Known(text); ++tries) {
    if (!IsWanted(text)) Precompute(text, question.expected, {});
    const WaitEnd end =
        GuardedWait(engine_.Guard())
            .Until(
                *this, AnswerLimit, [&] { return Known(text).has_value() || !IsWanted(text); },
                patience);
    if (end != WaitEnd::Stopped) continue;
    *isStopped = true;
    wanted_.reset();
    given_ = {};
    isReady_ = false;
    if (page_ != nullptr) EndRenderer(*page_);
    page_.reset();
    return std::nullopt;
  }
  return Known(text);
}

std::optional<QString> EngineVerifier::Stoppable::Serialisation(const QString &text) {
  return SerialisationLike(text, verifier_.given_.expected);
}

std::optional<QString> EngineVerifier::Stoppable::SerialisationLike(const QString &text,
                                                                    const QString &expected) {
  if (isStopped_) return std::nullopt;
  return verifier_.Answer({text, expected}, &patience_, &isStopped_);
}

void EngineVerifier::Precompute(const QString &text, const QString &expected,
                                std::function<void()> then) {
  wanted_ = Question{text, expected};
  then_ = std::move(then);
  isAsked_ = false;
  if (page_ == nullptr) Start();
  if (isReady_) Ask();
}

std::int64_t EngineVerifier::ProcessId() const {
  return page_ == nullptr ? 0 : page_->renderProcessPid();
}

void EngineVerifier::Start() {
  isReady_ = false;
  given_ = {};
  page_ = std::make_unique<EditorPage>(&engine_.Profile(), engine_.Guard(), nullptr);
  const QUrl address = engine_.Scheme().Offer(QStringLiteral("/"), QStringLiteral("<p>"));
  connect(page_.get(), &QWebEnginePage::loadFinished, this, [this, address, page = page_.get()] {
    const EngineCallback callback(engine_.Guard());
    if (page != page_.get()) return;
    engine_.Scheme().Withdraw(address);
    page_->runJavaScript(engine_.Bridge(), BridgeWorld);
    isReady_ = true;
    if (wanted_ && !isAsked_) Ask();
  });
  connect(page_.get(), &QWebEnginePage::renderProcessTerminated, this, [this] {
    const EngineCallback callback(engine_.Guard());
    isReady_ = false;
    wanted_.reset();
    page_.release()->deleteLater();
    engine_.Guard().Wake();
  });
  static_cast<EditorPage *>(page_.get())->LoadOwn(address);
}

void EngineVerifier::Ask() {
  isAsked_ = true;
  const Question before = std::exchange(given_, *wanted_);
  page_->runJavaScript(
      QStringLiteral("velor.parsed(%1,%2)")
          .arg(Edit(before.text, given_.text), Edit(before.expected, given_.expected)),
      BridgeWorld, [this, life = lifetime_.NewWatch(), asked = given_](const QVariant &answer) {
        if (life.IsOver() || !IsWanted(asked.text)) return;
        const EngineCallback callback(engine_.Guard());
        const bool isExpected = answer.typeId() == QMetaType::Bool && answer.toBool();
        last_ = {asked.text, isExpected ? asked.expected : answer.toString()};
        wanted_.reset();
        if (const auto then = std::exchange(then_, {})) then();
        engine_.Guard().Wake();
      });
}

}  // namespace velor
