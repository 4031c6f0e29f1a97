// SPDX-License-Identifier: GPL-3.0-or-later
// One document in another's place, so that undo brings the earlier one back.
#include "engine/BridgeScript.h"
#include "engine/WebEditor.h"

#include <utility>

namespace velor {

namespace {

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds ReplaceLimit = 1min;
const QString LongReplacement = QStringLiteral(
    "The page takes long to show. Press Escape to stop it; the page is as before then.");
QString FolderOf(const QString &nativePath) {
  return nativePath.left(nativePath.lastIndexOf(u'/') + 1);
}

}  // namespace

bool WebEditor::SharesFolder(const FaithfulPage &page, const QString &nativePath) {
  if (FolderOf(nativePath) == FolderOf(nativePath_)) return true;
  if (load_ != LoadPurpose::None) return false;
  const Lifetime::Watch life = lifetime_.NewWatch();
  const int load = loads_;
  EngineVerifier &verifier = engine_.Verifier();
  const Reading reading = Read();
  if (reading.isEditorGone || reading.isUnanswered) return false;
  const auto parsed = verifier.SerialisationLike(page.TextToLoad(), reading.html);
  if (life.IsOver() || load != loads_ || parsed != reading.html) return false;
  return view_->MoveTo(nativePath);
}

WebEditor::Replaced WebEditor::ReplaceInPlace(const Original &original, const QString &nativePath) {
  if (load_ != LoadPurpose::None) return Replaced::NotPossible;
  const Lifetime::Watch life = lifetime_.NewWatch();
  const int load = loads_;
  view_->AwaitInput();
  // A page closed or loaded anew meanwhile is no failure of this call.
  if (life.IsOver() || load != loads_) return Replaced::Done;
  const int generation = history_.NewGeneration();
  const Patience patience = Stoppable(LongReplacement);
  const auto answer = view_->Ask(QStringLiteral("velor.replaceDocument(%1,%2)")
                                     .arg(ScriptValue(original->TextToLoad()))
                                     .arg(generation),
                                 ReplaceLimit, &patience);
  if (life.IsOver() || load != loads_) return Replaced::Done;
  if (view_->WasStopped()) return Replaced::Stopped;
  if (!answer || answer->toString().isEmpty()) return Replaced::NotPossible;
  history_.AddGeneration(generation, original);
  mirror_.SetHtml(answer->toString());
  original->SetBaseline(mirror_.Html());
  nativePath_ = nativePath;
  PostComplete();
  return Replaced::Done;
}

void WebEditor::ShowGeneration(int generation) {
  if (load_ == LoadPurpose::None) history_.ShowGeneration(generation);
}

void WebEditor::ReplaceKeepingEarlier(Original original, const QString &nativePath) {
  Reading reading = Read();
  if (reading.isEditorGone) return;
  history_.KeepForUndo(std::move(reading.html));
  Replace(std::move(original), nativePath, LoadPurpose::Document);
}

void WebEditor::StepOverLoad(Direction direction) {
  Reading reading = Read();
  if (reading.isEditorGone || load_ != LoadPurpose::None) return;
  auto html = history_.Step(direction, std::move(reading.html));
  if (!html) return;
  mirror_.Reset(std::move(*html));
  BeginLoad(LoadPurpose::Step);
}

}  // namespace velor
