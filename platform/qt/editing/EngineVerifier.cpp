// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/editing/EngineVerifier.h"

#include "platform/qt/editing/BridgeScript.h"
#include "platform/qt/editing/EditingEngine.h"
#include "platform/qt/editing/EditorPage.h"

#include <QPointer>

#include <utility>

namespace velor {

namespace {

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds answerLimit = 1min;
/// A process that ends while it parses is replaced once.
constexpr int mostTries = 2;

}  // namespace

EngineVerifier::EngineVerifier(EditingEngine &engine) : engine_(engine) {}

EngineVerifier::~EngineVerifier() {
  // The engine answers what is still open while the page is deleted.
  wanted_.clear();
  then_ = {};
}

std::optional<QString> EngineVerifier::Known(const QString &text) const {
  if (last_.serialisation.isEmpty() || last_.text != text) return std::nullopt;
  return last_.serialisation;
}

std::optional<QString> EngineVerifier::Serialisation(const QString &text, const Patience *patience,
                                                     bool *isStopped) {
  if (const auto known = Known(text)) return known;
  if (engine_.Guard().InCallback()) return std::nullopt;
  for (int tries = 0; tries < mostTries && !Known(text); ++tries) {
    if (wanted_ != text) Foresee(text, {});
    const WaitEnd end =
        GuardedWait(engine_.Guard())
            .Until(
                *this, answerLimit, [&] { return Known(text).has_value() || wanted_ != text; },
                patience);
    if (end != WaitEnd::Stopped) continue;
    *isStopped = true;
    wanted_.clear();
    isReady_ = false;
    if (page_ != nullptr) EndRenderer(*page_);
    page_.reset();
    return std::nullopt;
  }
  return Known(text);
}

std::optional<QString> EngineVerifier::Stoppable::Serialisation(const QString &text) {
  if (isStopped_) return std::nullopt;
  return verifier_.Serialisation(text, &patience_, &isStopped_);
}

void EngineVerifier::Foresee(const QString &text, std::function<void()> then) {
  wanted_ = text;
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
  page_ = std::make_unique<EditorPage>(&engine_.Profile(), engine_.Guard(), nullptr);
  const QUrl address = engine_.Scheme().Offer(QStringLiteral("/"), QStringLiteral("<p>"));
  connect(page_.get(), &QWebEnginePage::loadFinished, this, [this, address, page = page_.get()] {
    const EngineCallback callback(engine_.Guard());
    if (page != page_.get()) return;
    engine_.Scheme().Withdraw(address);
    page_->runJavaScript(engine_.Bridge(), bridgeWorld);
    isReady_ = true;
    if (!wanted_.isEmpty() && !isAsked_) Ask();
  });
  connect(page_.get(), &QWebEnginePage::renderProcessTerminated, this, [this] {
    const EngineCallback callback(engine_.Guard());
    isReady_ = false;
    wanted_.clear();
    page_.release()->deleteLater();
    engine_.Guard().Wake();
  });
  static_cast<EditorPage *>(page_.get())->LoadOwn(address);
}

void EngineVerifier::Ask() {
  isAsked_ = true;
  page_->runJavaScript(
      QStringLiteral("velor.serialize(new DOMParser().parseFromString(%1, 'text/html'))")
          .arg(ScriptValue(wanted_)),
      bridgeWorld, [self = QPointer<EngineVerifier>(this), text = wanted_](const QVariant &answer) {
        if (self == nullptr || self->wanted_ != text) return;
        const EngineCallback callback(self->engine_.Guard());
        self->last_ = {text, answer.toString()};
        self->wanted_.clear();
        if (const auto then = std::exchange(self->then_, {})) then();
        self->engine_.Guard().Wake();
      });
}

}  // namespace velor
