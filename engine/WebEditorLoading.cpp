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
constexpr std::chrono::milliseconds LoadLimit = 2min;
/// After this the person may stop it.
constexpr std::chrono::milliseconds LoadPatience = 1500ms;
const QString LongLoad =
    QStringLiteral("The page takes long to show. Press Escape to stop loading it.");
constexpr std::chrono::milliseconds ReadLimit = 2min;
constexpr std::chrono::milliseconds ReadPatience = 1s;
/// Where what changed does not follow on from what is known here the whole is asked for.
constexpr int ReadAttempts = 2;
const QString LongRead = QStringLiteral(
    "The page does not answer. Press Escape to stop it and go on with its text as last seen.");
const QString LongCheck =
    QStringLiteral("The page takes long to save. Press Escape to have it written anew as a whole.");
/// Preparing a larger one would hold the window up for seconds (bytes).
constexpr qsizetype LargestPage = 32'000'000;
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

QString WrittenAnew(const QString &reason) {
  const QString sentence = QStringLiteral(
      "The page's source could not be kept as it was written: the whole page is written anew");
  return sentence +
         (reason.isEmpty() ? QStringLiteral(".") : QStringLiteral(", since %1.").arg(reason));
}

}  // namespace

void WebEditor::SetDocumentHTML(const QString &html) {
  const PageEncoding encoding = DeclaredEncoding(html);
  history_.ForgetLoaded();
  Replace(std::make_shared<FaithfulPage>(
              PageOriginal{EncodePage(html, encoding), {html, encoding}, {}}),
          FolderAddress(programFolder_), LoadPurpose::Document);
}

void WebEditor::LoadDocument(const QString &path) {
  TakeBytes(files_.ReadAll(path), ToNative(path));
}

void WebEditor::LoadText(const QString &html, const QString &path) {
  const PageOriginal &original = history_.Current()->Original();
  TakeBytes(BytesForText(original, html, EncodingInPlaceOf(original.page.encoding, html)),
            ToNative(path));
}

void WebEditor::TakeBytes(const QByteArray &bytes, const QString &nativePath) {
  if (bytes.size() > LargestPage)
    throw RuntimeError::Of(ErrorNumber::OutOfStringSpace, QStringLiteral("LoadDocument"),
                           nativePath);
  auto original = std::make_shared<FaithfulPage>(PageOriginal{bytes, DecodePage(bytes), {}});
  const Lifetime::Watch life = lifetime_.NewWatch();
  if (hasDocument_ && SharesFolder(*original, nativePath)) {
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
  if (life.IsOver()) return;
  history_.ForgetLoaded();
  Replace(std::move(original), nativePath, LoadPurpose::Document);
}

void WebEditor::LoadBlankIfEmpty() {
  if (loads_ > 0 || container_ == nullptr) return;
  Replace(std::make_shared<FaithfulPage>(), FolderAddress(programFolder_), LoadPurpose::Blank);
}

void WebEditor::Replace(Original original, const QString &nativePath, LoadPurpose purpose) {
  nativePath_ = nativePath;
  mirror_.Reset(WithLineEnds(original->TextToLoad(), LineEnds::Lf));
  history_.Load(std::move(original));
  crashes_.Clear();
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
  for (int attempt = 1; attempt <= LoadAttempts; ++attempt) {
    BeginLoad(purpose);
    const int load = loads_;
    bool isTold = false;
    const auto tell = [this](const QString &message) {
      if (listener_ != nullptr) listener_->ComponentReported(message);
    };
    const Patience patience{LoadPatience, [&] {
                              isTold = true;
                              tell(LongLoad);
                            }};
    const WaitEnd end = view_->Wait(
        LoadLimit,
        [this, load] {
          return load != loads_ || view_->CurrentPhase() != EngineView::Phase::Loading;
        },
        &patience);
    // A page closed or replaced meanwhile is no failure of this call; one that cannot be waited
    // for here ends its loading by itself.
    if (end == WaitEnd::Destroyed) return Loaded::Unknown;
    if (isTold) tell({});
    if (load != loads_ || end == WaitEnd::Refused) return Loaded::Unknown;
    if (end == WaitEnd::Stopped) {
      // The page's process goes with its view; it may be busy for ever.
      view_.reset();
      hasDocument_ = false;
      return Loaded::No;
    }
    if (view_->CurrentPhase() != EngineView::Phase::Dead) break;
  }
  return view_->CurrentPhase() == EngineView::Phase::Ready ? Loaded::Yes : Loaded::No;
}

void WebEditor::BeginLoad(LoadPurpose purpose) {
  load_ = purpose;
  ++loads_;
  hasDocument_ = hasDocument_ || purpose == LoadPurpose::Document;
  history_.LoadAgain();
  snapshot_ = {};
  mirror_.BeginLoad();
  QString text = history_.Current()->TextToLoad();
  QString start = QStringLiteral("velor.start({showDetails:%1,snapToGrid:%2,earlier:%3,later:%4});")
                      .arg(ScriptValue(showDetails_), ScriptValue(snapToGrid_),
                           ScriptValue(history_.HasEarlier()), ScriptValue(history_.HasLater()));
  if (purpose == LoadPurpose::Restore || purpose == LoadPurpose::Step) {
    // Untouched, it comes from its original again: what the engine makes of its own
    // serialisation may differ from what it made of the page.
    if (mirror_.Html() != history_.Current()->Baseline()) text = mirror_.Html();
    start += QStringLiteral("velor.restore(%1,%2);")
                 .arg(ScriptValue(mirror_.Start()), ScriptValue(mirror_.End()));
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
  if (purpose == LoadPurpose::Step) return;
  mirror_.ApplyChanges(view_->StartAnswer().toMap());
  history_.Current()->SetBaseline(mirror_.Html());
  if (IsFrameset(mirror_.Html()))
    Report(
        QStringLiteral("The page is a frameset, which has no text to edit here: use Edit HTML to "
                       "change it."));
  if (purpose == LoadPurpose::Document) PostComplete();
}

void WebEditor::PostComplete() {
  notices_.Post(Notice::Complete, [this] {
    if (listener_ != nullptr) listener_->DocumentComplete();
  });
}

void WebEditor::DeliverCompletion() {
  notices_.DeliverNow(Notice::Complete);
}

QString WebEditor::DocumentHTML() {
  LoadBlankIfEmpty();
  const Reading reading = Read();
  return reading.original->Unmasked(reading.html);
}

Patience WebEditor::Stoppable(const QString &message) {
  return {ReadPatience,
          [this, life = lifetime_.NewWatch(), message] {
            if (!life.IsOver() && listener_ != nullptr) listener_->ComponentReported(message);
          },
          Patience::Input::Kept};
}

WebEditor::Reading WebEditor::Read() {
  const Lifetime::Watch life = lifetime_.NewWatch();
  Reading reading{mirror_.Html(), history_.Current()};
  const auto html = AskForDocument();
  reading.isEditorGone = life.IsOver();
  if (reading.isEditorGone) return reading;
  if (html) {
    // Reading may have found that undo brought back a document with another original.
    reading.original = history_.Current();
    reading.html = *html;
  } else {
    reading.isUnanswered = view_ != nullptr && view_->CurrentPhase() == EngineView::Phase::Ready &&
                           !engine_.Guard().InCallback();
  }
  return reading;
}

std::optional<QString> WebEditor::AskForDocument() {
  if (view_ == nullptr) return std::nullopt;
  const Lifetime::Watch life = lifetime_.NewWatch();
  const int load = loads_;
  view_->AwaitInput();
  const Patience patience = life.IsOver() ? Patience{} : Stoppable(LongRead);
  for (int attempt = 1; attempt <= ReadAttempts && !life.IsOver() && load == loads_; ++attempt) {
    const auto answer = view_->Ask(QStringLiteral("velor.mirror(%1)").arg(mirror_.Revision()),
                                   ReadLimit, &patience);
    if (!answer || life.IsOver() || load != loads_) return std::nullopt;
    if (ApplyMirror(answer->toMap())) return mirror_.Html();
  }
  return std::nullopt;
}

void WebEditor::SaveDocument(const QString &path) {
  Files &files = files_;
  const Lifetime::Watch life = lifetime_.NewWatch();
  const SavedPage saved = Compose();
  if (saved.rung == SaveRung::Everything && !life.IsOver()) Report(WrittenAnew(saved.reason));
  files.ReplaceAll(path, saved.page.bytes);
}

QString WebEditor::TextToSave() {
  return Compose().page.text;
}

QString WebEditor::ReasonToWriteAnew() {
  return Compose().reason;
}

QString WebEditor::Charset() const {
  return history_.Current()->Original().page.encoding.charset;
}

QString WebEditor::TextForm() const {
  return InWords(history_.Current()->Original().page.encoding);
}

bool WebEditor::HasByteOrderMark() const {
  return history_.Current()->Original().page.encoding.byteOrderMark;
}

SavedPage WebEditor::Compose() {
  LoadBlankIfEmpty();
  const QString nativePath = nativePath_;
  EngineVerifier::Stoppable verifier(engine_.Verifier(), Stoppable(LongCheck));
  const Reading reading = Read();
  // Better no file than one without what was typed last.
  if (reading.isUnanswered)
    throw RuntimeError::Of(ErrorNumber::DeviceIoError, QStringLiteral("SaveDocument"), nativePath);
  return reading.original->Compose(reading.html, verifier);
}

}  // namespace velor
