// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/PageLoader.h"

#include "engine/BridgeScript.h"
#include "engine/NoticeQueue.h"
#include "platform/PageMemory.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"
#include "platform/Words.h"

#include <memory>
#include <utility>

namespace velor {

namespace {

constexpr auto LongLoad =
    Words::Mark("The page takes long to show. Press Escape to stop loading it.");

using namespace std::chrono_literals;

/// Two minutes hold the largest page that a person would wait for.
constexpr std::chrono::milliseconds LoadLimit = 2min;
/// After this the person may stop it.
constexpr std::chrono::milliseconds LoadPatience = 1500ms;
/// A page whose process ends while it loads is tried once more.
constexpr int LoadAttempts = 2;

/// Where links of a page without a file lead: the folder itself.
QString FolderAddress(const QString &logicFolder) {
  QString path = ToNative(logicFolder);
  if (!path.endsWith(u'/')) path += u'/';
  return path;
}

bool IsFrameset(const QString &serialisation) {
  return serialisation.contains(QStringLiteral("<frameset")) &&
         !serialisation.contains(QStringLiteral("<body"));
}

}  // namespace

PageLoader::PageLoader(LiveDocument &document, NoticeQueue &notices, const ViewOptions &options,
                       const QString &programFolder)
    : document_(document),
      notices_(notices),
      options_(options),
      baseFolder_(FolderAddress(programFolder)) {}

void PageLoader::LoadBlankIfEmpty() {
  if (wasEverLoaded_ || document_.Frame() == nullptr) return;
  Replace(std::make_shared<FaithfulPage>(), baseFolder_, Purpose::Blank);
}

void PageLoader::LoadText(const QString &html) {
  const PageEncoding encoding = DeclaredEncoding(html);
  LoadPage(std::make_shared<FaithfulPage>(
               PageOriginal{EncodePage(html, encoding), {html, encoding}, {}}),
           baseFolder_);
}

void PageLoader::LoadPage(DocumentHistory::Original original, const QString &nativePath) {
  document_.History().ForgetLoaded();
  Replace(std::move(original), nativePath, Purpose::Document);
}

void PageLoader::LoadPageKeepingHistory(DocumentHistory::Original original,
                                        const QString &nativePath) {
  Replace(std::move(original), nativePath, Purpose::Document);
}

void PageLoader::Replace(DocumentHistory::Original original, const QString &nativePath,
                         Purpose purpose) {
  document_.SetNativePath(nativePath);
  document_.Mirror().Reset(WithLineEnds(original->TextToLoad(), LineEnds::Lf));
  document_.History().Load(std::move(original));
  crashes_.Clear();
  LoadAndFinish(purpose, QStringLiteral("LoadDocument"));
}

void PageLoader::LoadAndFinish(Purpose purpose, const QString &procedure) {
  switch (LoadAndWait(purpose)) {
    case Outcome::Shown:
      return FinishLoad();
    case Outcome::NotShown:
      purpose_ = Purpose::None;
      throw RuntimeError::Of(ErrorNumber::DeviceIoError, procedure, document_.NativePath());
    case Outcome::Unknown:
      return;
  }
}

PageLoader::Outcome PageLoader::LoadAndWait(Purpose purpose) {
  for (int attempt = 1; attempt <= LoadAttempts; ++attempt) {
    BeginLoad(purpose);
    EngineView *view = document_.View();
    const Lifetime::Watch page = document_.WatchPage();
    bool isTold = false;
    const Patience patience{LoadPatience, [&] {
                              isTold = true;
                              notices_.ReportNow(Words::tr(LongLoad));
                            }};
    const WaitEnd end = view->Wait(
        LoadLimit,
        [&] { return page.IsOver() || view->CurrentPhase() != EngineView::Phase::Loading; },
        &patience);
    // A page closed or replaced meanwhile is no failure of this call; one that cannot be waited
    // for here ends its loading by itself.
    if (end == WaitEnd::Destroyed) return Outcome::Unknown;
    if (isTold) notices_.ReportNow({});
    if (page.IsOver() || end == WaitEnd::Refused) return Outcome::Unknown;
    if (end == WaitEnd::Stopped) {
      // The page's process may be busy for ever.
      document_.CloseView();
      hasDocument_ = false;
      return Outcome::NotShown;
    }
    if (view->CurrentPhase() != EngineView::Phase::Dead) break;
  }
  return document_.View()->CurrentPhase() == EngineView::Phase::Ready ? Outcome::Shown
                                                                      : Outcome::NotShown;
}

void PageLoader::BeginLoad(Purpose purpose) {
  purpose_ = purpose;
  wasEverLoaded_ = true;
  hasDocument_ = hasDocument_ || purpose == Purpose::Document;
  const DocumentHistory &history = document_.History();
  const DocumentMirror &mirror = document_.Mirror();
  QString text = history.Current()->TextToLoad();
  QString start =
      QStringLiteral(
          "velor.start({showDetails:%1,snapToGrid:%2,wholeSigns:%3,spelling:%4,additions:%5,"
          "earlier:%6,later:%7});")
          .arg(ScriptValue(options_.showDetails), ScriptValue(options_.snapToGrid),
               ScriptValue(options_.wholeSigns), ScriptValue(options_.spelling),
               ScriptValue(options_.additions), ScriptValue(history.HasEarlier()),
               ScriptValue(history.HasLater()));
  if (purpose == Purpose::Restore || purpose == Purpose::Step) {
    // An unedited document is loaded from its original: the engine may parse its own serialisation
    // to another document.
    if (mirror.Html() != history.Current()->Baseline()) text = mirror.Html();
    start += QStringLiteral("velor.restore(%1,%2);")
                 .arg(ScriptValue(mirror.Start()), ScriptValue(mirror.End()));
  }
  document_.Load(text, start + QStringLiteral("velor.changes()"));
}

void PageLoader::FinishLoad() {
  const Purpose purpose = std::exchange(purpose_, Purpose::None);
  if (purpose == Purpose::None) return;
  if (document_.View()->CurrentPhase() != EngineView::Phase::Ready) {
    notices_.Report(
        Words::tr("The page could not be displayed. Its text is kept: save the page and "
                  "open it again."));
    return;
  }
  if (purpose == Purpose::Restore) {
    notices_.Report(Words::tr("The page's display has been restored."));
    return;
  }
  if (purpose == Purpose::Step) return;
  DocumentMirror &mirror = document_.Mirror();
  mirror.ApplyChanges(document_.View()->StartAnswer().toMap());
  document_.History().Current()->SetBaseline(mirror.Html());
  if (IsFrameset(mirror.Html()))
    notices_.Report(
        Words::tr("The page is a frameset, which has no text to edit here: use Edit HTML to "
                  "change it."));
  if (purpose == Purpose::Document) notices_.PostDocumentComplete();
}

void PageLoader::BeginStep(QString html) {
  document_.Mirror().Reset(std::move(html));
  BeginLoad(Purpose::Step);
}

void PageLoader::Restore(const PageMemory &memory) {
  const Lifetime::Watch life = document_.WatchEditor();
  // First the original, to learn its baseline from the engine.
  LoadPage(std::make_shared<FaithfulPage>(
               PageOriginal{memory.original, DecodePage(memory.original), {}}),
           memory.base);
  if (life.IsOver() || memory.document == document_.Mirror().Html()) return;
  document_.Mirror().Reset(memory.document);
  LoadAndFinish(Purpose::Step, QStringLiteral("Restore"));
}

void PageLoader::ReloadAfterCrash() {
  if (document_.View()->CurrentPhase() != EngineView::Phase::Dead) return;
  if (!crashes_.CountCrash()) {
    notices_.Report(
        Words::tr("The page's display keeps stopping. Its text is kept: save the page and "
                  "open it again."));
    return;
  }
  notices_.Report(Words::tr("The page's display stopped and is being restored."));
  BeginLoad(document_.History().Current()->Baseline().isEmpty() ? Purpose::Document
                                                                : Purpose::Restore);
}

}  // namespace velor
