// SPDX-License-Identifier: GPL-3.0-or-later
// Documents into the engine and out of it.
#include "engine/BridgeScript.h"
#include "engine/WebEditor.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"

#include <utility>

namespace velor {

namespace {

using namespace std::chrono_literals;

/// Two minutes hold the largest page that a person would wait for.
constexpr std::chrono::milliseconds loadLimit = 2min;
/// After this the person may stop it.
constexpr std::chrono::milliseconds loadPatience = 1500ms;
const QString longLoad =
    QStringLiteral("The page takes long to show. Press Escape to stop loading it.");
constexpr std::chrono::milliseconds readLimit = 2min;
constexpr std::chrono::milliseconds readPatience = 1s;
/// Where what changed does not follow on from what is known here the whole is asked for.
constexpr int readAttempts = 2;
const QString longRead = QStringLiteral(
    "The page does not answer. Press Escape to stop it and go on with its text as last seen.");
const QString longCheck =
    QStringLiteral("The page takes long to save. Press Escape to have it written anew as a whole.");
/// Preparing a larger one would hold the window up for seconds (bytes).
constexpr qsizetype largestPage = 32'000'000;
/// A page whose process ends while it loads is tried once more.
constexpr int loadAttempts = 2;

/// Where links of a page without a file lead: the folder itself.
QString FolderAddress(const QString &logicFolder) {
  QString path = ToNative(logicFolder);
  if (!path.endsWith(u'/')) path += u'/';
  return path;
}

QString FolderOf(const QString &nativePath) {
  return nativePath.left(nativePath.lastIndexOf(u'/') + 1);
}

bool IsFrameset(const QString &serialisation) {
  return serialisation.contains(QStringLiteral("<frameset")) &&
         !serialisation.contains(QStringLiteral("<body"));
}

QString WrittenAnew(const QString &reason) {
  const QString sentence = QStringLiteral(
      "The page's source could not be kept as it was written: the whole page is written anew");
  return sentence +
         (reason.isEmpty() ? QStringLiteral(".") : QStringLiteral(", since %1.").arg(reason));
}

}  // namespace

void WebEditor::SetDocumentHTML(const QString &html) {
  const PageEncoding encoding = DeclaredEncoding(html);
  earlier_.clear();
  later_.clear();
  Replace(std::make_shared<FaithfulPage>(
              PageOriginal{EncodePage(html, encoding), {html, encoding}, {}}),
          FolderAddress(programFolder_), LoadPurpose::Document);
}

void WebEditor::LoadDocument(const QString &path) {
  TakeBytes(files_.ReadAll(path), ToNative(path));
}

void WebEditor::LoadText(const QString &html, const QString &path) {
  const PageOriginal &original = original_->Original();
  TakeBytes(BytesForText(original, html, EncodingInPlaceOf(original.page.encoding, html)),
            ToNative(path));
}

void WebEditor::TakeBytes(const QByteArray &bytes, const QString &nativePath) {
  if (bytes.size() > largestPage)
    throw RuntimeError::Of(ErrorNumber::OutOfStringSpace, QStringLiteral("LoadDocument"),
                           nativePath);
  auto original = std::make_shared<FaithfulPage>(PageOriginal{bytes, DecodePage(bytes), {}});
  if (hasDocument_ && FolderOf(nativePath) == FolderOf(nativePath_)) {
    switch (ReplaceInPlace(original, nativePath)) {
      case Replaced::Done:
        return;
      case Replaced::NotPossible:
        return ReplaceKeepingEarlier(std::move(original), nativePath);
      case Replaced::Stopped:
        throw RuntimeError::Of(ErrorNumber::DeviceIoError, QStringLiteral("LoadDocument"),
                               nativePath);
    }
  }
  earlier_.clear();
  later_.clear();
  Replace(std::move(original), nativePath, LoadPurpose::Document);
}

void WebEditor::LoadBlankIfEmpty() {
  if (loads_ > 0 || container_ == nullptr) return;
  Replace(std::make_shared<FaithfulPage>(), FolderAddress(programFolder_), LoadPurpose::Blank);
}

void WebEditor::Replace(Original original, const QString &nativePath, LoadPurpose purpose) {
  original_ = std::move(original);
  nativePath_ = nativePath;
  mirror_ = {PageMirror(WithLineEnds(original_->TextToLoad(), LineEnds::Lf)), {}, {}};
  deaths_ = 0;
  switch (Load(purpose)) {
    case Loaded::Yes:
      return FinishLoad();
    case Loaded::No:
      load_ = LoadPurpose::None;
      throw RuntimeError::Of(ErrorNumber::DeviceIoError, QStringLiteral("LoadDocument"),
                             nativePath);
    case Loaded::Unknown:
      return;
  }
}

WebEditor::Loaded WebEditor::Load(LoadPurpose purpose) {
  const QPointer<EngineView> view(&View());
  for (int attempt = 1; attempt <= loadAttempts; ++attempt) {
    BeginLoad(purpose);
    const int load = loads_;
    bool isTold = false;
    const auto tell = [this](const QString &message) {
      if (listener_ != nullptr) listener_->ComponentReported(message);
    };
    const Patience patience{loadPatience, [&] {
                              isTold = true;
                              tell(longLoad);
                            }};
    const WaitEnd end = view->Wait(
        loadLimit,
        [this, load] {
          return load != loads_ || view_->CurrentPhase() != EngineView::Phase::Loading;
        },
        &patience);
    if (view != nullptr && isTold) tell({});
    // A page closed or replaced meanwhile is no failure of this call; one that cannot be waited
    // for here ends its loading by itself.
    if (view == nullptr || load != loads_ || end == WaitEnd::Refused) return Loaded::Unknown;
    if (end == WaitEnd::Stopped) {
      // The page's process goes with its view; it may be busy for ever.
      view_.reset();
      hasDocument_ = false;
      return Loaded::No;
    }
    if (view->CurrentPhase() != EngineView::Phase::Dead) break;
  }
  return view->CurrentPhase() == EngineView::Phase::Ready ? Loaded::Yes : Loaded::No;
}

void WebEditor::BeginLoad(LoadPurpose purpose) {
  load_ = purpose;
  ++loads_;
  hasDocument_ = hasDocument_ || purpose == LoadPurpose::Document;
  generation_ = 0;
  originals_.clear();
  snapshot_ = {};
  mirrorTimer_.stop();
  mirror_.page.Detach();
  QString text = original_->TextToLoad();
  QString start = QStringLiteral("velor.start({showDetails:%1,snapToGrid:%2,earlier:%3,later:%4});")
                      .arg(ScriptValue(showDetails_), ScriptValue(snapToGrid_),
                           ScriptValue(!earlier_.empty()), ScriptValue(!later_.empty()));
  if (purpose == LoadPurpose::Restore || purpose == LoadPurpose::Travel) {
    // Untouched, it comes from its original again: what the engine makes of its own
    // serialisation may differ from what it made of the page.
    if (mirror_.page.Html() != original_->Baseline()) text = mirror_.page.Html();
    start += QStringLiteral("velor.restore(%1,%2);")
                 .arg(ScriptValue(mirror_.start), ScriptValue(mirror_.end));
  }
  View().Load(nativePath_, text, start + QStringLiteral("velor.changes()"));
}

void WebEditor::FinishLoad() {
  const LoadPurpose purpose = std::exchange(load_, LoadPurpose::None);
  if (purpose == LoadPurpose::None) return;
  if (view_->CurrentPhase() != EngineView::Phase::Ready) {
    Report(
        QStringLiteral("The page could not be displayed. Its text is kept: save the page and "
                       "open it again."));
    return;
  }
  if (purpose == LoadPurpose::Restore) {
    Report(QStringLiteral("The page's display has been restored."));
    return;
  }
  if (purpose == LoadPurpose::Travel) return;
  mirror_.page.Follow(view_->StartAnswer().toMap());
  original_->SetBaseline(mirror_.page.Html());
  if (IsFrameset(mirror_.page.Html()))
    Report(
        QStringLiteral("The page is a frameset, which has no text to edit here: use Edit HTML to "
                       "change it."));
  if (purpose == LoadPurpose::Document)
    notices_.Post(Notice::Complete, [this] {
      if (listener_ != nullptr) listener_->DocumentComplete();
    });
}

QString WebEditor::DocumentHTML() {
  LoadBlankIfEmpty();
  const QString mirror = mirror_.page.Html();
  const QPointer<QWidget> alive(container_);
  const Original original = original_;
  const auto html = Read();
  return (alive != nullptr ? original_ : original)->Unmasked(html.value_or(mirror));
}

Patience WebEditor::Stoppable(const QString &message) {
  return {readPatience,
          [this, alive = QPointer<QWidget>(container_), message] {
            if (alive != nullptr && listener_ != nullptr) listener_->ComponentReported(message);
          },
          Patience::Input::Kept};
}

std::optional<QString> WebEditor::Read() {
  if (view_ == nullptr) return std::nullopt;
  const QPointer<EngineView> alive(view_.get());
  const int load = loads_;
  alive->AwaitInput();
  if (alive == nullptr) return std::nullopt;
  const Patience patience = Stoppable(longRead);
  for (int attempt = 1; attempt <= readAttempts && alive != nullptr; ++attempt) {
    const auto answer = alive->Ask(QStringLiteral("velor.mirror(%1)").arg(mirror_.page.Revision()),
                                   readLimit, &patience);
    if (!answer || load != loads_) return std::nullopt;
    if (Follow(answer->toMap())) return mirror_.page.Html();
  }
  return std::nullopt;
}

void WebEditor::SaveDocument(const QString &path) {
  Files &files = files_;
  const SavedPage saved = Compose();
  if (saved.rung == SaveRung::Everything) Report(WrittenAnew(saved.reason));
  files.ReplaceAll(path, saved.page.bytes);
}

QString WebEditor::TextToSave() {
  return Compose().page.text;
}

QString WebEditor::ReasonToWriteAnew() {
  return Compose().reason;
}

QString WebEditor::Charset() const {
  return original_->Original().page.encoding.charset;
}

QString WebEditor::TextForm() const {
  return InWords(original_->Original().page.encoding);
}

bool WebEditor::HasByteOrderMark() const {
  return original_->Original().page.encoding.byteOrderMark;
}

SavedPage WebEditor::Compose() {
  LoadBlankIfEmpty();
  const Original original = original_;
  const QString mirror = mirror_.page.Html();
  const QString nativePath = nativePath_;
  EditingEngine &engine = engine_;
  EngineVerifier::Stoppable verifier(engine.Verifier(), Stoppable(longCheck));
  const QPointer<EngineView> alive(view_.get());
  // Reading may find that undo brought back a document with another original.
  if (const auto html = Read()) return Original(original_)->Compose(*html, verifier);
  // A live page that does not answer may hold more than the mirror: better no file than an old one.
  if (alive != nullptr && alive->CurrentPhase() == EngineView::Phase::Ready &&
      !engine.Guard().InCallback())
    throw RuntimeError::Of(ErrorNumber::DeviceIoError, QStringLiteral("SaveDocument"), nativePath);
  return original->Compose(mirror, verifier);
}

}  // namespace velor
