// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/PageReplacer.h"

#include "engine/BridgeScript.h"
#include "engine/EngineVerifier.h"
#include "engine/NoticeQueue.h"
#include "engine/PageLoader.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"
#include "platform/Words.h"

#include <memory>
#include <utility>

namespace velor {

namespace {

constexpr auto LongReplacement = Words::Mark(
    "The page takes long to show. Press Escape to stop it; the page is as before then.");

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds ReplaceLimit = 1min;
/// Bytes. Preparing a larger page would block the window for seconds.
constexpr qsizetype LargestPage = 32'000'000;

}  // namespace

PageReplacer::PageReplacer(LiveDocument &document, PageLoader &loader, NoticeQueue &notices,
                           EngineVerifier &verifier)
    : document_(document), loader_(loader), notices_(notices), verifier_(verifier) {}

void PageReplacer::Replace(const QByteArray &bytes, const QString &nativePath) {
  ReplaceFrom(Source::File, bytes, nativePath);
}

void PageReplacer::ReplaceText(const QByteArray &bytes, const QString &nativePath) {
  ReplaceFrom(Source::Text, bytes, nativePath);
}

void PageReplacer::ReplaceFrom(Source source, const QByteArray &bytes, const QString &nativePath) {
  if (bytes.size() > LargestPage)
    throw RuntimeError::Of(ErrorNumber::OutOfStringSpace, QStringLiteral("LoadDocument"),
                           nativePath);
  auto original = std::make_shared<FaithfulPage>(PageOriginal{bytes, DecodePage(bytes), {}});
  const Lifetime::Watch life = document_.WatchEditor();
  if (loader_.HasDocument() && SharesFolder(source, *original, nativePath)) {
    switch (ReplaceInPlace(original, nativePath)) {
      case Outcome::Done:
        return;
      case Outcome::NotPossible:
        return ReplaceByLoad(std::move(original), nativePath);
      case Outcome::Stopped:
        throw RuntimeError::Of(ErrorNumber::DeviceIoError, QStringLiteral("LoadDocument"),
                               nativePath);
    }
  }
  if (!life.IsOver()) loader_.LoadPage(std::move(original), nativePath);
}

bool PageReplacer::SharesFolder(Source source, const FaithfulPage &page,
                                const QString &nativePath) {
  if (FolderOfNative(nativePath) == FolderOfNative(document_.NativePath())) return true;
  if (loader_.IsLoading()) return false;
  if (source == Source::Text) return document_.View()->MoveTo(nativePath);
  const Lifetime::Watch shown = document_.WatchPage();
  EngineVerifier &verifier = verifier_;
  const LiveDocument::Reading reading = document_.Read();
  if (reading.isEditorGone || reading.isUnanswered) return false;
  const auto parsed = verifier.SerialisationLike(page.TextToLoad(), reading.html);
  if (shown.IsOver() || parsed != reading.html) return false;
  return document_.View()->MoveTo(nativePath);
}

PageReplacer::Outcome PageReplacer::ReplaceInPlace(const DocumentHistory::Original &original,
                                                   const QString &nativePath) {
  if (loader_.IsLoading()) return Outcome::NotPossible;
  const Lifetime::Watch page = document_.WatchPage();
  EngineView *view = document_.View();
  const int generation = document_.History().NewGeneration();
  const Patience patience = document_.StoppableWith(Words::tr(LongReplacement));
  const auto answer = view->Ask(QStringLiteral("velor.replaceDocument(%1,%2)")
                                    .arg(ScriptValue(original->TextToLoad()))
                                    .arg(generation),
                                ReplaceLimit, &patience);
  // A page closed or loaded anew meanwhile is no failure of this call.
  if (page.IsOver()) return Outcome::Done;
  if (view->WasStopped()) return Outcome::Stopped;
  if (!answer || answer->toString().isEmpty()) return Outcome::NotPossible;
  document_.History().AddGeneration(generation, original);
  document_.Mirror().SetHtml(answer->toString());
  original->SetBaseline(document_.Mirror().Html());
  document_.SetNativePath(nativePath);
  notices_.PostDocumentComplete();
  return Outcome::Done;
}

void PageReplacer::ReplaceByLoad(DocumentHistory::Original original, const QString &nativePath) {
  LiveDocument::Reading reading = document_.Read();
  if (reading.isEditorGone) return;
  document_.History().KeepForUndo(std::move(reading.html));
  loader_.LoadPageKeepingHistory(std::move(original), nativePath);
}

void PageReplacer::StepOverLoad(DocumentHistory::Direction direction) {
  LiveDocument::Reading reading = document_.Read();
  if (reading.isEditorGone || loader_.IsLoading()) return;
  if (auto html = document_.History().Step(direction, std::move(reading.html)))
    loader_.BeginStep(std::move(*html));
}

}  // namespace velor
