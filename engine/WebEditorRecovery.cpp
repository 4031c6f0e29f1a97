// SPDX-License-Identifier: GPL-3.0-or-later
// The mirror of the document, and bringing a page back from it.
#include "engine/WebEditor.h"
#include "platform/RuntimeError.h"

#include <QVariantMap>

namespace velor {

namespace {

/// Composing a larger page ahead would be felt by who goes on typing (UTF-16 units).
constexpr qsizetype LargestAhead = 2'000'000;

}  // namespace

void WebEditor::StateArrived(const StateSnapshot &state) {
  snapshot_ = state;
  ShowGeneration(state.generation);
  mirror_.LookSoon();
  mirror_.PutOffRest();
  notices_.Post(Notice::Display, [this] {
    if (listener_ != nullptr) listener_->DisplayChanged();
  });
}

void WebEditor::LookAtPage() {
  view_->Run(QStringLiteral("velor.mirror(%1)").arg(mirror_.Revision()),
             [this, load = loads_](const QVariant &value) {
               const QVariantMap mirror = value.toMap();
               if (load != loads_ || mirror.isEmpty()) return;
               if (!ApplyMirror(mirror)) return mirror_.LookSoon();
               MemoryChanged();
               mirror_.AwaitRest();
             });
}

bool WebEditor::ApplyMirror(const QVariantMap &mirror) {
  if (!mirror_.ApplyAnswer(mirror)) return false;
  ShowGeneration(mirror[QStringLiteral("generation")].toInt());
  return true;
}

void WebEditor::MemoryChanged() {
  notices_.Post(Notice::Memory, [this] {
    if (listener_ != nullptr) listener_->MemoryChanged();
  });
}

bool WebEditor::IsWaiting() const {
  return engine_.Guard().Waiting();
}

PageMemory WebEditor::Memory() const {
  return {history_.Current()->Original().bytes, nativePath_, mirror_.Html()};
}

void WebEditor::Recall(const PageMemory &memory) {
  history_.ForgetLoaded();
  const Lifetime::Watch life = lifetime_.NewWatch();
  // First the page as it was before, since only the engine knows what it makes of it.
  Replace(std::make_shared<FaithfulPage>(
              PageOriginal{memory.original, DecodePage(memory.original), {}}),
          memory.base, LoadPurpose::Document);
  if (life.IsOver() || memory.document == mirror_.Html()) return;
  mirror_.Reset(memory.document);
  switch (Load(LoadPurpose::Step)) {
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
  const Original original = history_.Current();
  const QString html = mirror_.Html();
  if (load_ != LoadPurpose::None || html.size() > LargestAhead) return;
  original->Prepare();
  const auto first = original->FirstTry(html);
  if (!first) return;
  EngineVerifier &verifier = engine_.Verifier();
  verifier.Precompute(*first, html, [original, html, &verifier] {
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
  if (!crashes_.AllowsRestoring()) {
    Report(
        QStringLiteral("The page's display keeps stopping. Its text is kept: save the page and "
                       "open it again."));
    return;
  }
  Report(QStringLiteral("The page's display stopped and is being restored."));
  BeginLoad(history_.Current()->Baseline().isEmpty() ? LoadPurpose::Document
                                                     : LoadPurpose::Restore);
}

void WebEditor::Report(const QString &message) {
  notices_.Post(Notice::Report, [this, message] {
    if (listener_ != nullptr) listener_->ComponentReported(message);
  });
}

}  // namespace velor
