// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/EngineView.h"

#include "engine/BridgeScript.h"
#include "engine/EditorInput.h"
#include "engine/EditorPage.h"

#include <QCoreApplication>
#include <QVBoxLayout>
#include <QWebEngineHistory>
#include <QWebEngineLoadingInfo>
#include <QWebEngineScriptCollection>
#include <QWebEngineView>

#include <memory>
#include <utility>

namespace velor {

namespace {

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds MoveLimit = 5s;
/// Limit of the wait for the notice that a process has ended.
constexpr std::chrono::milliseconds EndLimit = 1s;

/// A document that is in design mode from its beginning is laid out once; `velor.start` turns the
/// mode on in any case, but then everything is laid out a second time.
QWebEngineScript DesignModeScript() {
  QWebEngineScript script;
  script.setName(QStringLiteral("designMode"));
  script.setSourceCode(QStringLiteral("document.designMode = 'on'"));
  script.setInjectionPoint(QWebEngineScript::DocumentCreation);
  script.setWorldId(BridgeWorld);
  return script;
}

}  // namespace

EngineView::EngineView(EditingEngine &engine, QWidget *container)
    : engine_(engine),
      host_(engine.Guard()),
      view_(new QWebEngineView(container)),
      turns_(*this, engine.Guard()) {
  page_ = new EditorPage(&engine.Profile(), engine.Guard(), view_);
  page_->setBackgroundColor(Qt::white);
  channel_.registerObject(QStringLiteral("velorHost"), &host_);
  page_->setWebChannel(&channel_, BridgeWorld);
  page_->scripts().insert(DesignModeScript());
  view_->setPage(page_);
  view_->setContextMenuPolicy(Qt::CustomContextMenu);
  input_ = new EditorInput(view_, [this](const QEvent &input) { return turns_.Defer(input); });
  container->layout()->addWidget(view_);
  container->setFocusProxy(view_);

  ConnectHost();
  ConnectInput();
  ConnectPage();
}

void EngineView::ConnectHost() {
  // While a page loads the channel may still deliver calls of the page before it.
  const auto whenReady = [this]<typename... Arguments>(void (EngineView::*signal)(Arguments...)) {
    return [this, signal](Arguments... arguments) {
      if (phase_ == Phase::Ready) (this->*signal)(arguments...);
    };
  };
  connect(&host_, &BridgeHost::StateArrived, this, whenReady(&EngineView::StateArrived));
  connect(&host_, &BridgeHost::MirrorArrived, this, whenReady(&EngineView::MirrorArrived));
  connect(&host_, &BridgeHost::PictureWanted, this, whenReady(&EngineView::PictureWanted));
  connect(&host_, &BridgeHost::PicturesPasted, this, whenReady(&EngineView::PicturesPasted));
  connect(&host_, &BridgeHost::Pasting, this, &EngineView::Pasting);
  connect(&host_, &BridgeHost::PasteStopped, this, whenReady(&EngineView::PasteStopped));
  connect(&host_, &BridgeHost::LinkWanted, this, whenReady(&EngineView::LinkWanted));
  connect(&host_, &BridgeHost::PictureOpened, this, whenReady(&EngineView::PictureOpened));
  connect(&host_, &BridgeHost::EarlierWanted, this, whenReady(&EngineView::EarlierWanted));
  connect(&host_, &BridgeHost::LaterWanted, this, whenReady(&EngineView::LaterWanted));
  connect(&host_, &BridgeHost::SpellingWanted, this, whenReady(&EngineView::SpellingWanted));
  connect(&host_, &BridgeHost::PointerMoved, this, &EngineView::PointerMoved);
  connect(&engine_.Scheme(), &PageScheme::PartAsked, this,
          [this](const QString &page, const QString &name, const QString &file) {
            if (page == address_.host()) Q_EMIT PartAsked(name, file);
          });
  connect(&host_, &BridgeHost::InputArrived, &turns_, &TurnQueue::ProbeArrived);
}

void EngineView::ConnectInput() {
  connect(input_, &EditorInput::InputComing, this, [this] {
    turns_.NoteInput();
    Q_EMIT InputComing();
  });
  connect(input_, &EditorInput::FilesDropped, this,
          [this](const QStringList &nativePaths, QPoint position) {
            Q_EMIT FilesDropped(nativePaths, position / page_->zoomFactor());
          });
  connect(view_, &QWebEngineView::customContextMenuRequested, this, [this](QPoint position) {
    const EngineCallback callback(engine_.Guard());
    Q_EMIT MenuWanted(view_->mapToGlobal(position));
  });
}

void EngineView::ConnectPage() {
  connect(page_, &QWebEnginePage::renderProcessTerminated, this, [this] {
    const EngineCallback callback(engine_.Guard());
    phase_ = Phase::Dead;
    turns_.Clear();
    Q_EMIT Died();
    engine_.Guard().Wake();
  });
  connect(page_, &QWebEnginePage::loadingChanged, this, [this](const QWebEngineLoadingInfo &info) {
    const EngineCallback callback(engine_.Guard());
    // Navigations of the page that were refused end here too, with other addresses.
    if (phase_ != Phase::Loading || info.url() != address_) return;
    if (info.status() == QWebEngineLoadingInfo::LoadStartedStatus) return;
    if (info.status() != QWebEngineLoadingInfo::LoadSucceededStatus) return EndLoad(Phase::Failed);
    Evaluate(engine_.Bridge() + start_, [this, address = address_](const QVariant &answer) {
      if (phase_ != Phase::Loading || address != address_) return;
      startAnswer_ = answer;
      EndLoad(answer.isValid() ? Phase::Ready : Phase::Failed);
    });
  });
}

EngineView::~EngineView() {
  // While the page is deleted the engine answers open expressions and reports the page's end.
  lifetime_.End();
  blockSignals(true);
  phase_ = Phase::Dead;
  delete view_;
  engine_.Scheme().Withdraw(address_);
}

EngineView::Phase EngineView::CurrentPhase() const {
  return page_ != nullptr ? phase_ : Phase::Dead;
}

void EngineView::Load(const QString &nativePath, const QString &text, const QString &start) {
  if (page_ == nullptr) return;
  engine_.Scheme().Withdraw(address_);
  address_ = engine_.Scheme().Offer(nativePath, text);
  start_ = start;
  startAnswer_ = {};
  turns_.Clear();
  const QWidget *focused = view_->window()->focusWidget();
  hadFocus_ = focused != nullptr && (focused == view_ || view_->isAncestorOf(focused));
  phase_ = Phase::Loading;
  page_->LoadOwn(address_);
}

void EngineView::EndLoad(Phase phase) {
  phase_ = phase;
  engine_.Scheme().Withdraw(address_);
  page_->history()->clear();
  input_->FilterInputWidget();
  // The engine may have put another input widget in the place of the one that the person used.
  if (hadFocus_) view_->setFocus();
  Q_EMIT LoadEnded();
  engine_.Guard().Wake();
}

void EngineView::Run(const QString &expression, const Answer &answer) {
  turns_.Run(expression, answer);
}

void EngineView::Send(QEvent &input) {
  QCoreApplication::sendEvent(view_->focusProxy(), &input);
}

void EngineView::Evaluate(const QString &expression, const Answer &answered) {
  page_->runJavaScript(
      expression, BridgeWorld,
      [life = lifetime_.NewWatch(), &guard = engine_.Guard(), answered](const QVariant &value) {
        if (life.IsOver()) return;
        const EngineCallback callback(guard);
        answered(value);
      });
}

std::optional<QVariant> EngineView::Ask(const QString &expression, std::chrono::milliseconds limit,
                                        const Patience *patience) {
  if (CurrentPhase() != Phase::Ready || engine_.Guard().InCallback()) return std::nullopt;
  // Shared, since the answer may come after the wait has ended.
  const auto value = std::make_shared<std::optional<QVariant>>();
  Run(expression, [this, value](const QVariant &answer) {
    *value = answer;
    engine_.Guard().Wake();
  });
  const WaitEnd end = Wait(
      limit,
      [this, value, address = address_] {
        return value->has_value() || CurrentPhase() != Phase::Ready || address != address_;
      },
      patience);
  if (end == WaitEnd::Destroyed) return std::nullopt;
  wasStopped_ = end == WaitEnd::Stopped;
  if (wasStopped_) EndProcess();
  return end == WaitEnd::Done ? *value : std::nullopt;
}

bool EngineView::MoveTo(const QString &nativePath) {
  QUrl address = engine_.Scheme().NewAddress(nativePath);
  address.setHost(address_.host());
  const auto moved =
      Ask(QStringLiteral("velor.moveTo(%1)").arg(ScriptValue(address.toString(QUrl::FullyEncoded))),
          MoveLimit);
  if (!moved || !moved->toBool()) return false;
  address_ = address;
  return true;
}

void EngineView::EndProcess() {
  if (page_ == nullptr) return;
  EndRenderer(*page_);
  Wait(EndLimit, [this] { return CurrentPhase() == Phase::Dead; });
}

WaitEnd EngineView::Wait(std::chrono::milliseconds limit, const std::function<bool()> &done,
                         const Patience *patience) {
  return GuardedWait(engine_.Guard()).Until(*this, limit, done, patience);
}

void EngineView::SetZoom(double factor) {
  if (page_ != nullptr) page_->setZoomFactor(factor);
}

void EngineView::SetFocus() {
  if (view_ != nullptr) view_->setFocus();
}

}  // namespace velor
