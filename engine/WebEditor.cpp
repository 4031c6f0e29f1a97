// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/WebEditor.h"

#include "engine/BridgeScript.h"
#include "engine/FileDrops.h"
#include "engine/PastedPicture.h"
#include "page/saving/CharsetChange.h"
#include "platform/EditingCommands.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/PlainTip.h"
#include "platform/RuntimeError.h"
#include "platform/Words.h"

#include <QClipboard>
#include <QEvent>
#include <QGuiApplication>
#include <QImage>
#include <QVBoxLayout>

#include <utility>

namespace velor {

namespace {

TextCount CountFrom(const QVariantMap &told) {
  return {told[QStringLiteral("words")].toInt(), told[QStringLiteral("characters")].toInt()};
}

/// What `velor.counts` answers.
TextCounts CountsFrom(const QVariantMap &told) {
  TextCounts counts{.page = CountFrom(told[QStringLiteral("page")].toMap()), .selection = {}};
  const QVariant selection = told[QStringLiteral("selection")];
  if (!selection.isNull()) counts.selection = CountFrom(selection.toMap());
  return counts;
}

/// The widget that is laid out; the view is put into it when the first document is loaded.
class EditorFrame : public QWidget {
 public:
  EditorFrame(QWidget *parent, std::function<void()> shown)
      : QWidget(parent), shown_(std::move(shown)) {
    setFocusPolicy(Qt::StrongFocus);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
  }

 protected:
  void showEvent(QShowEvent *) override { shown_(); }

 private:
  std::function<void()> shown_;
};

/// The engine's name of a command that only the engine can carry out: it alone reaches all forms of
/// the clipboard. Empty for other commands. It is evaluated like all commands, since an action of
/// the view would overtake a command before it.
QString ClipboardCommand(EditingCommand command) {
  switch (command) {
    case EditingCommand::Cut:
      return QStringLiteral("cut");
    case EditingCommand::Copy:
      return QStringLiteral("copy");
    case EditingCommand::Paste:
      return QStringLiteral("paste");
    default:
      return {};
  }
}

}  // namespace

WebEditor::WebEditor(EditingEngine &engine, Files &files, const QString &programFolder,
                     QWidget *parent)
    : guard_(engine.Guard()),
      files_(files),
      notices_(engine.Guard()),
      // Later, since the caller that shows the widget may set a document right afterwards, which
      // must not wait for the blank page.
      document_(
          engine, notices_,
          new EditorFrame(
              parent,
              [this] { QTimer::singleShot(1, &notices_, [this] { loader_.LoadBlankIfEmpty(); }); }),
          [this](EngineView &view) { ConnectView(view); }),
      documentObject_(document_, notices_, [this](const QString &charset) { ConvertTo(charset); }),
      search_(document_, notices_),
      spelling_(document_, notices_, options_),
      loader_(document_, notices_, options_, programFolder),
      replacer_(document_, loader_, notices_, engine.Verifier()),
      saver_(document_, loader_, notices_, files, engine.Verifier()),
      printing_(engine, document_) {
  QObject::connect(&document_.Mirror(), &DocumentMirror::Paused, [this] { saver_.ComposeAhead(); });
}

void WebEditor::ConnectView(EngineView &view) {
  const auto post = [this](Notice kind, const std::function<void()> &deliver) {
    notices_.Post(kind, deliver);
  };
  using Direction = DocumentHistory::Direction;
  QObject::connect(&view, &EngineView::StateArrived,
                   [this](const StateSnapshot &state) { StateArrived(state); });
  QObject::connect(&view, &EngineView::MirrorArrived, [this](const QVariantMap &told) {
    typing_.NoteReport(told[QStringLiteral("idle")].toBool());
    document_.ApplyChanges(told);
  });
  // The engine keeps the factor by the page's host, which is another one for each load.
  QObject::connect(&view, &EngineView::LoadEnded, [this, &view] { view.SetZoom(zoom_); });
  QObject::connect(&view, &EngineView::LoadEnded,
                   [=, this] { post(Notice::LoadEnded, [this] { loader_.FinishLoad(); }); });
  QObject::connect(&view, &EngineView::Died,
                   [=, this] { post(Notice::Died, [this] { loader_.ReloadAfterCrash(); }); });
  QObject::connect(&view, &EngineView::PictureWanted,
                   [=, this] { post(Notice::Picture, [this] { PastePicture(); }); });
  QObject::connect(
      &view, &EngineView::PicturesPasted, [this](const QStringList &addresses, int remote) {
        if (remote > 0)
          notices_.Report(remote == 1 ? Words::tr("One picture stays on the web.")
                                      : Words::tr("%n pictures stay on the web.", nullptr, remote));
        if (addresses.isEmpty()) return;
        notices_.PostToListener(Notice::PicturesPasted, [addresses](EditingListener &listener) {
          listener.PicturesPasted(addresses);
        });
      });
  QObject::connect(&view, &EngineView::Pasting, [this](int percent) {
    notices_.Report(percent < 100 ? Words::tr("Pasting, %1 %. Escape stops it.").arg(percent)
                                  : QString());
  });
  QObject::connect(&view, &EngineView::PasteStopped, [this] {
    notices_.Report(Words::tr("The paste was stopped. Nothing has changed."));
  });
  QObject::connect(&view, &EngineView::LinkWanted, [this](const QString &address) {
    notices_.PostToListener(
        Notice::Link, [address](EditingListener &listener) { listener.LinkFollowed(address); });
  });
  QObject::connect(&view, &EngineView::PictureOpened, [this] {
    notices_.PostToListener(Notice::PictureOpened,
                            [](EditingListener &listener) { listener.PictureOpened(); });
  });
  QObject::connect(&view, &EngineView::PartAsked,
                   [this](const QString &name, const QString &file) { PartAsked(name, file); });
  QObject::connect(&view, &EngineView::EarlierWanted, [=, this] {
    post(Notice::StepOverLoad, [this] { replacer_.StepOverLoad(Direction::Earlier); });
  });
  QObject::connect(&view, &EngineView::LaterWanted, [=, this] {
    post(Notice::StepOverLoad, [this] { replacer_.StepOverLoad(Direction::Later); });
  });
  QObject::connect(&view, &EngineView::SpellingWanted, [=, this](const QString &json) {
    post(Notice::Spelling, [this, json] { spelling_.AnswerPage(json); });
  });
  QObject::connect(&view, &EngineView::PointerMoved, [this](QPoint position) {
    notices_.PostToListener(Notice::Pointer, [position](EditingListener &listener) {
      listener.MouseNotified(position.x(), position.y());
    });
  });
  QObject::connect(&view, &EngineView::MenuWanted, [this](QPoint position) {
    notices_.PostToListener(Notice::Menu, [position](EditingListener &listener) {
      listener.ContextMenuRequested(position);
    });
  });
  QObject::connect(
      &view, &EngineView::FilesDropped, [=, this](const QStringList &files, QPoint place) {
        document_.Run(QStringLiteral("velor.caretAt(%1,%2)").arg(place.x()).arg(place.y()));
        post(Notice::Drop, [this, files] { ReportFiles(files); });
      });
  // DocumentComplete is delivered before the first input reaches the page.
  QObject::connect(&view, &EngineView::InputComing, [this] {
    typing_.NoteInput();
    notices_.Deliver();
  });
}

void WebEditor::StateArrived(const StateSnapshot &state) {
  document_.ApplyState(state);
  notices_.PostToListener(Notice::Display,
                          [](EditingListener &listener) { listener.DisplayChanged(); });
}

void WebEditor::PastePicture() {
  const QStringList files = LocalFiles(QGuiApplication::clipboard()->mimeData());
  if (!files.isEmpty()) return ReportFiles(files);
  const QImage image = QGuiApplication::clipboard()->image();
  if (image.isNull()) return;
  bool isTaken = false;
  notices_.NotifyNow([&](EditingListener &listener) { isTaken = listener.PicturePasted(image); });
  if (isTaken) return;
  const QString markup = PastedPicture(image, document_.NativePath());
  if (!markup.isEmpty())
    document_.Run(QStringLiteral("velor.pasteHTML(%1)").arg(ScriptValue(markup)));
}

void WebEditor::PartAsked(const QString &name, const QString &file) {
  if (!partsOf_ || partsOf_->IsOver()) {
    parts_.clear();
    partsOf_ = document_.WatchPage();
  }
  QStringList &names = parts_[ToLogic(file)];
  if (names.contains(name)) return;
  names << name;
  notices_.PostToListener(Notice::Parts, [this](EditingListener &listener) {
    QStringList paths;
    for (const auto &[path, known] : parts_) paths << path;
    listener.PartsShown(paths);
  });
}

void WebEditor::ReloadPart(const QString &path) {
  const auto part = parts_.find(path);
  if (part == parts_.end()) return;
  document_.Run(QStringLiteral("velor.showAnew(%1)").arg(ScriptValue(part->second)));
}

void WebEditor::ReportFiles(const QStringList &nativePaths) {
  QStringList paths;
  for (const QString &file : nativePaths) paths += ToLogic(file);
  notices_.NotifyNow([&paths](EditingListener &listener) { listener.FilesDropped(paths); });
}

QWidget *WebEditor::Widget() {
  return document_.Frame();
}

void WebEditor::SetListener(EditingListener *listener) {
  notices_.SetListener(listener);
}

void WebEditor::SetFocus() {
  if (document_.View() != nullptr)
    document_.View()->SetFocus();
  else if (document_.Frame() != nullptr)
    document_.Frame()->setFocus();
}

void WebEditor::CountText(const TextCounted &counted) {
  if (document_.View() == nullptr) return;
  document_.View()->Run(QStringLiteral("velor.counts()"), [this, counted](const QVariant &answer) {
    notices_.Post(Notice::Counts,
                  [counted, counts = CountsFrom(answer.toMap())] { counted(counts); });
  });
}

void WebEditor::SetZoom(double factor) {
  zoom_ = factor;
  if (EngineView *view = document_.View()) view->SetZoom(factor);
}

void WebEditor::SetToolTip(const QString &text) {
  if (document_.Frame() != nullptr) document_.Frame()->setToolTip(PlainTip(text));
}

void WebEditor::SetDocumentHTML(const QString &html) {
  loader_.LoadText(html);
}

void WebEditor::LoadDocument(const QString &path) {
  replacer_.Replace(files_.ReadAll(path), ToNative(path));
}

void WebEditor::LoadText(const QString &html, const QString &path) {
  const PageOriginal &original = document_.History().Current()->Original();
  replacer_.ReplaceText(
      BytesForText(original, html, EncodingInPlaceOf(original.page.encoding, html)),
      ToNative(path));
}

void WebEditor::ConvertTo(const QString &charset) {
  if (charset == Charset()) return;
  const Lifetime::Watch life = document_.WatchEditor();
  const SavedPage now = Compose();
  if (life.IsOver()) return;
  const DecodedPage page = InCharset(now.page.text, charset);
  const QByteArray bytes = WriteWhole(page.text, page.encoding).bytes;
  if (DecodePage(bytes).encoding.charset != charset)
    throw RuntimeError(ErrorNumber::InvalidProcedureCall, QStringLiteral("SetProperties"),
                       Words::tr("The page would not be read as %1: its declaration is made by "
                                 "server code, or stands too far behind its start.")
                           .arg(charset));
  document_.Run(QStringLiteral("velor.takeBackProperties()"));
  replacer_.ReplaceText(bytes, document_.NativePath());
}

void WebEditor::DeliverCompletion() {
  notices_.DeliverNow(Notice::Complete);
}

QString WebEditor::DocumentHTML() {
  loader_.LoadBlankIfEmpty();
  const LiveDocument::Reading reading = document_.Read();
  return reading.original->Unmasked(reading.html);
}

void WebEditor::SaveDocument(const QString &path) {
  saver_.Save(path);
}

QString WebEditor::TextToSave() {
  return Compose().page.text;
}

QString WebEditor::ReasonToWriteAnew() {
  return Compose().reason;
}

PageMemory WebEditor::Memory() const {
  return {document_.History().Current()->Original().bytes, document_.NativePath(),
          document_.Mirror().Html()};
}

void WebEditor::Restore(const PageMemory &memory) {
  loader_.Restore(memory);
}

bool WebEditor::IsIdle() const {
  return typing_.IsIdle();
}

bool WebEditor::IsWaiting() const {
  return guard_.Waiting();
}

const PageEncoding &WebEditor::Encoding() const {
  return document_.History().Current()->Original().page.encoding;
}

QString WebEditor::Charset() const {
  return Encoding().charset;
}

QString WebEditor::TextForm() const {
  return InWords(Encoding());
}

bool WebEditor::HasByteOrderMark() const {
  return Encoding().byteOrderMark;
}

QVariant WebEditor::ExecCommand(EditingCommand command, ExecOption, const QVariant &value) {
  if (const auto answer = document_.Snapshot().ValueOf(command)) return *answer;
  if (command == EditingCommand::Paste && value.isValid()) {
    document_.Run(QStringLiteral("velor.pasteAs(%1)").arg(ScriptValue(value.toString())));
  } else if (const QString name = ClipboardCommand(command); !name.isEmpty()) {
    document_.Run(QStringLiteral("document.execCommand(%1)").arg(ScriptValue(name)));
  } else if (value.isValid()) {
    document_.Run(QStringLiteral("velor.exec(%1,%2)")
                      .arg(Number(command))
                      .arg(ScriptValue(value.toString())));
  } else {
    document_.Run(QStringLiteral("velor.exec(%1)").arg(Number(command)));
  }
  return {};
}

QStringList WebEditor::BlockFormats() const {
  return BlockFormatNames();
}

CommandStatus WebEditor::QueryStatus(EditingCommand command) const {
  return document_.Snapshot().StatusOf(command);
}

HtmlDocument &WebEditor::Document() {
  return documentObject_;
}

bool WebEditor::ShowDetails() const {
  return options_.showDetails;
}

void WebEditor::SetShowDetails(bool on) {
  options_.showDetails = on;
  document_.Run(QStringLiteral("velor.setDetails(%1)").arg(ScriptValue(on)));
}

bool WebEditor::SnapToGrid() const {
  return options_.snapToGrid;
}

void WebEditor::SetSnapToGrid(bool on) {
  options_.snapToGrid = on;
  document_.Run(QStringLiteral("velor.setSnap(%1)").arg(ScriptValue(on)));
}

}  // namespace velor
