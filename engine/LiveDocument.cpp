// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/LiveDocument.h"

#include "engine/NoticeQueue.h"
#include "platform/Words.h"

#include <utility>

namespace velor {

namespace {

constexpr auto LongRead = Words::Mark(
    "The page does not answer. Press Escape to stop it and go on with its text as last seen.");

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds ReadLimit = 2min;
constexpr std::chrono::milliseconds ReadPatience = 1s;
/// The second attempt asks for the whole text, where the changes do not follow on from the mirror.
constexpr int ReadAttempts = 2;

QString MirrorCall(const DocumentMirror &mirror) {
  return QStringLiteral("velor.mirror(%1)").arg(mirror.Revision());
}

}  // namespace

LiveDocument::LiveDocument(EditingEngine &engine, NoticeQueue &notices, QWidget *frame,
                           ConnectView connect)
    : engine_(engine), notices_(notices), frame_(frame), connect_(std::move(connect)) {
  QObject::connect(&mirror_, &DocumentMirror::UpdateDue, [this] { UpdateMirror(); });
}

LiveDocument::~LiveDocument() {
  view_.reset();
  delete frame_;
}

void LiveDocument::Load(const QString &text, const QString &start) {
  pageLife_.End();
  history_.DropGenerations();
  snapshot_ = {};
  mirror_.BeginLoad();
  if (view_ == nullptr) {
    view_ = std::make_unique<EngineView>(engine_, frame_);
    connect_(*view_);
  }
  view_->Load(nativePath_, text, start);
}

void LiveDocument::Run(const QString &expression) {
  if (view_ != nullptr) view_->Run(expression);
}

Patience LiveDocument::StoppableWith(const QString &message) {
  return {ReadPatience,
          [this, life = WatchEditor(), message] {
            if (!life.IsOver()) notices_.ReportNow(message);
          },
          Patience::Input::Kept};
}

LiveDocument::Reading LiveDocument::Read() {
  const Lifetime::Watch life = WatchEditor();
  Reading reading{mirror_.Html(), history_.Current()};
  const auto html = AskForText();
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

std::optional<QString> LiveDocument::AskForText() {
  if (view_ == nullptr) return std::nullopt;
  const Lifetime::Watch page = WatchPage();
  const Patience patience = StoppableWith(Words::tr(LongRead));
  for (int attempt = 1; attempt <= ReadAttempts; ++attempt) {
    const auto answer = view_->Ask(MirrorCall(mirror_), ReadLimit, &patience);
    if (!answer || page.IsOver()) return std::nullopt;
    if (ApplyMirror(answer->toMap())) return mirror_.Html();
  }
  return std::nullopt;
}

void LiveDocument::ApplyState(const StateSnapshot &state) {
  snapshot_ = state;
  history_.ShowGeneration(state.generation);
  mirror_.ScheduleUpdate();
  mirror_.PostponePause();
}

void LiveDocument::ApplyChanges(const QVariantMap &told) {
  if (mirror_.ApplyChanges(told))
    PostMemoryChanged();
  else
    mirror_.ScheduleUpdate();
}

void LiveDocument::UpdateMirror() {
  if (view_ == nullptr) return;
  view_->Run(MirrorCall(mirror_), [this, page = WatchPage()](const QVariant &value) {
    const QVariantMap mirror = value.toMap();
    if (page.IsOver() || mirror.isEmpty()) return;
    if (!ApplyMirror(mirror)) return mirror_.ScheduleUpdate();
    PostMemoryChanged();
    mirror_.ExpectPause();
  });
}

bool LiveDocument::ApplyMirror(const QVariantMap &mirror) {
  if (!mirror_.ApplyAnswer(mirror)) return false;
  history_.ShowGeneration(mirror[QStringLiteral("generation")].toInt());
  return true;
}

void LiveDocument::PostMemoryChanged() {
  notices_.PostToListener(Notice::Memory,
                          [](EditingListener &listener) { listener.MemoryChanged(); });
}

}  // namespace velor
