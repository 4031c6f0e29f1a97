// SPDX-License-Identifier: GPL-3.0-or-later
// The mirror of the document, and bringing a page back from it.
#include "engine/WebEditor.h"
#include "platform/RuntimeError.h"

#include <QVariantMap>

namespace velor {

namespace {

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds mirrorPause = 300ms;
/// A page that keeps killing its process within this time is left as it is after a few tries.
constexpr std::chrono::milliseconds steadyTime = 10s;
constexpr int restoreAttempts = 3;
/// A person who rests this long may be about to save.
constexpr std::chrono::milliseconds idlePause = 700ms;
/// Composing a larger page ahead would be felt by who goes on typing (UTF-16 units).
constexpr qsizetype largestAhead = 2'000'000;

}  // namespace

void WebEditor::StateArrived(const StateSnapshot &state) {
  snapshot_ = state;
  FollowGeneration(state.generation);
  TakeMirrorSoon();
  if (idleTimer_.isActive()) idleTimer_.start(idlePause);
  notices_.Post(Notice::Display, [this] {
    if (listener_ != nullptr) listener_->DisplayChanged();
  });
}

void WebEditor::TakeMirrorSoon() {
  if (!mirrorTimer_.isActive()) mirrorTimer_.start(mirrorPause);
}

void WebEditor::TakeMirror() {
  view_->Run(QStringLiteral("velor.mirror(%1)").arg(mirror_.page.Revision()),
             [this, load = loads_](const QVariant &value) {
               const QVariantMap mirror = value.toMap();
               if (load != loads_ || mirror.isEmpty()) return;
               if (!Follow(mirror)) return TakeMirrorSoon();
               MirrorTaken();
               idleTimer_.start(idlePause);
             });
}

bool WebEditor::Follow(const QVariantMap &mirror) {
  if (!mirror_.page.Follow(mirror)) {
    mirror_.page.Detach();
    return false;
  }
  mirror_.start = mirror[QStringLiteral("start")];
  mirror_.end = mirror[QStringLiteral("end")];
  FollowGeneration(mirror[QStringLiteral("generation")].toInt());
  return true;
}

void WebEditor::MirrorTaken() {
  notices_.Post(Notice::Memory, [this] {
    if (listener_ != nullptr) listener_->MemoryChanged();
  });
}

bool WebEditor::IsWaiting() const {
  return engine_.Guard().Waiting();
}

PageMemory WebEditor::Memory() const {
  return {original_->Original().bytes, nativePath_, mirror_.page.Html()};
}

void WebEditor::Recall(const PageMemory &memory) {
  earlier_.clear();
  later_.clear();
  const QPointer<QWidget> alive(container_);
  // First the page as it was before, since only the engine knows what it makes of it.
  Replace(std::make_shared<FaithfulPage>(
              PageOriginal{memory.original, DecodePage(memory.original), {}}),
          memory.base, LoadPurpose::Document);
  if (alive == nullptr) return;
  if (memory.document == mirror_.page.Html()) return;
  mirror_ = {PageMirror(memory.document), {}, {}};
  switch (Load(LoadPurpose::Travel)) {
    case Loaded::Yes:
      return FinishLoad();
    case Loaded::No:
      load_ = LoadPurpose::None;
      throw RuntimeError::Of(ErrorNumber::DeviceIoError, QStringLiteral("Recall"), memory.base);
    case Loaded::Unknown:
      return;
  }
}

void WebEditor::ComposeAhead() {
  const Original original = original_;
  const QString html = mirror_.page.Html();
  if (load_ != LoadPurpose::None || html.size() > largestAhead) return;
  original->Prepare();
  const auto first = original->FirstTry(html);
  if (!first) return;
  EngineVerifier &verifier = engine_.Verifier();
  verifier.Foresee(*first, html, [original, html, &verifier] {
    EngineVerifier::KnownAnswers known(verifier);
    try {
      original->Precompute(html, known);
    } catch (const RuntimeError &) {
      // A page that cannot be written says so when it is saved.
    }
  });
}

void WebEditor::Died() {
  if (view_->CurrentPhase() != EngineView::Phase::Dead) return;
  if (sinceDeath_.isValid() && sinceDeath_.hasExpired(steadyTime.count())) deaths_ = 0;
  sinceDeath_.start();
  if (++deaths_ > restoreAttempts) {
    Report(
        QStringLiteral("The page's display keeps stopping. Its text is kept: save the page and "
                       "open it again."));
    return;
  }
  Report(QStringLiteral("The page's display stopped and is being restored."));
  BeginLoad(original_->Baseline().isEmpty() ? LoadPurpose::Document : LoadPurpose::Restore);
}

void WebEditor::Report(const QString &message) {
  notices_.Post(Notice::Report, [this, message] {
    if (listener_ != nullptr) listener_->ComponentReported(message);
  });
}

}  // namespace velor
