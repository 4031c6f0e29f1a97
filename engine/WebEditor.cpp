// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/WebEditor.h"

#include "engine/BridgeScript.h"
#include "engine/FileDrops.h"
#include "engine/PastedPicture.h"
#include "engine/WebDocument.h"
#include "platform/EditingCommands.h"
#include "platform/Paths.h"
#include "platform/PlainTip.h"

#include <QClipboard>
#include <QEvent>
#include <QGuiApplication>
#include <QVBoxLayout>

#include <utility>

namespace velor {

namespace {

/// The widget that is laid out; the view comes into it when it is needed.
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

/// Commands that the engine itself carries out, since only it reaches the clipboard in every form.
/// They go the way of all commands: an action of the view would overtake a command before it.
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

WebEditor::WebEditor(EditingEngine &engine, Files &files, QString programFolder, QWidget *parent)
    : engine_(engine),
      files_(files),
      programFolder_(std::move(programFolder)),
      document_(std::make_unique<WebDocument>(*this)),
      notices_(engine.Guard()) {
  // A document that the one who shows the widget sets right afterwards must not wait for another.
  container_ = new EditorFrame(
      parent, [this] { QTimer::singleShot(1, &notices_, [this] { LoadBlankIfEmpty(); }); });
  QObject::connect(&mirror_, &DocumentMirror::LookDue, [this] { LookAtPage(); });
  QObject::connect(&mirror_, &DocumentMirror::Rested, [this] { ComposeAhead(); });
}

WebEditor::~WebEditor() {
  view_.reset();
  delete container_;
}

EngineView &WebEditor::View() {
  if (view_ == nullptr) {
    view_ = std::make_unique<EngineView>(engine_, container_);
    ConnectView();
  }
  return *view_;
}

void WebEditor::ConnectView() {
  EngineView *view = view_.get();
  QObject::connect(view, &EngineView::StateArrived,
                   [this](const StateSnapshot &state) { StateArrived(state); });
  QObject::connect(view, &EngineView::MirrorArrived, [this](const QVariantMap &told) {
    typing_.NoteTold(told[QStringLiteral("idle")].toBool());
    if (mirror_.ApplyChanges(told))
      MemoryChanged();
    else
      mirror_.LookSoon();
  });
  QObject::connect(view, &EngineView::LoadEnded,
                   [this] { notices_.Post(Notice::LoadEnded, [this] { FinishLoad(); }); });
  QObject::connect(view, &EngineView::Died,
                   [this] { notices_.Post(Notice::Died, [this] { Died(); }); });
  const auto step = [this](Direction direction) {
    notices_.Post(Notice::StepOverLoad, [this, direction] { StepOverLoad(direction); });
  };
  QObject::connect(view, &EngineView::PictureWanted, [this] {
    notices_.Post(Notice::Picture, [this] {
      const QStringList files = LocalFiles(QGuiApplication::clipboard()->mimeData());
      if (!files.isEmpty()) return TakeFiles(files);
      const QString markup = PastedPicture(nativePath_);
      if (!markup.isEmpty()) Run(QStringLiteral("velor.pasteHTML(%1)").arg(ScriptValue(markup)));
    });
  });
  QObject::connect(view, &EngineView::EarlierWanted, [step] { step(Direction::Earlier); });
  QObject::connect(view, &EngineView::LaterWanted, [step] { step(Direction::Later); });
  QObject::connect(view, &EngineView::PointerMoved, [this](QPoint position) {
    notices_.Post(Notice::Pointer, [this, position] {
      if (listener_ != nullptr) listener_->MouseNotified(position.x(), position.y());
    });
  });
  QObject::connect(view, &EngineView::MenuWanted, [this](QPoint position) {
    notices_.Post(Notice::Menu, [this, position] {
      if (listener_ != nullptr) listener_->ContextMenuRequested(position);
    });
  });
  QObject::connect(view, &EngineView::FilesDropped, [this](const QStringList &files, QPoint place) {
    Run(QStringLiteral("velor.caretAt(%1,%2)").arg(place.x()).arg(place.y()));
    notices_.Post(Notice::Drop, [this, files] { TakeFiles(files); });
  });
  // Completion is told before the first input reaches the page.
  QObject::connect(view, &EngineView::InputComing, [this] {
    typing_.NoteInput();
    notices_.Deliver();
  });
}

void WebEditor::TakeFiles(const QStringList &nativePaths) {
  QStringList paths;
  for (const QString &file : nativePaths) paths += ToLogic(file);
  if (listener_ != nullptr) listener_->FilesDropped(paths);
}

bool WebEditor::IsIdle() const {
  return typing_.IsIdle();
}

QWidget *WebEditor::Widget() {
  return container_;
}

void WebEditor::SetListener(EditingListener *listener) {
  listener_ = listener;
}

void WebEditor::SetFocus() {
  if (view_ != nullptr)
    view_->SetFocus();
  else if (container_ != nullptr)
    container_->setFocus();
}

void WebEditor::SetToolTip(const QString &text) {
  if (container_ != nullptr) container_->setToolTip(PlainTip(text));
}

QVariant WebEditor::ExecCommand(EditingCommand command, ExecOption, const QVariant &value) {
  if (const auto answer = snapshot_.ValueOf(command)) return *answer;
  if (const QString name = ClipboardCommand(command); !name.isEmpty()) {
    Run(QStringLiteral("document.execCommand(%1)").arg(ScriptValue(name)));
  } else if (value.isValid()) {
    Run(QStringLiteral("velor.exec(%1,%2)")
            .arg(Number(command))
            .arg(ScriptValue(value.toString())));
  } else {
    Run(QStringLiteral("velor.exec(%1)").arg(Number(command)));
  }
  return {};
}

QStringList WebEditor::BlockFormats() const {
  return BlockFormatNames();
}

CommandStatus WebEditor::QueryStatus(EditingCommand command) const {
  return snapshot_.StatusOf(command);
}

HtmlDocument &WebEditor::Document() {
  return *document_;
}

bool WebEditor::ShowDetails() const {
  return showDetails_;
}

void WebEditor::SetShowDetails(bool on) {
  showDetails_ = on;
  Run(QStringLiteral("velor.setDetails(%1)").arg(ScriptValue(on)));
}

bool WebEditor::SnapToGrid() const {
  return snapToGrid_;
}

void WebEditor::SetSnapToGrid(bool on) {
  snapToGrid_ = on;
  Run(QStringLiteral("velor.setSnap(%1)").arg(ScriptValue(on)));
}

void WebEditor::Run(const QString &expression) {
  if (view_ != nullptr) view_->Run(expression);
}

}  // namespace velor
