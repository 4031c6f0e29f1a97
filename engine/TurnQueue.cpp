// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/TurnQueue.h"

#include <QKeyEvent>

#include <utility>

namespace velor {

using namespace std::chrono_literals;

TurnQueue::TurnQueue(PageWays &ways, EngineGuard &guard) : ways_(ways), guard_(guard) {
  probeTimer_.setSingleShot(true);
  probeTimer_.setInterval(LongestInputDelay);
  connect(&probeTimer_, &QTimer::timeout, this, &TurnQueue::ProbeArrived);
  leaveTimer_.setSingleShot(true);
  leaveTimer_.setInterval(1ms);
  connect(&leaveTimer_, &QTimer::timeout, this, &TurnQueue::SendDue);
}

void TurnQueue::Run(const QString &expression, const PageWays::Answer &answer) {
  if (!ways_.IsOpen()) return;
  turns_.push_back({nullptr, expression, answer});
  // Turns before it are sent first, when they may be.
  if (turns_.size() == 1) SendDue();
}

bool TurnQueue::Defer(const QEvent &input) {
  if (isSendingInput_ || !ways_.IsOpen()) return false;
  if (commands_ == 0 && turns_.empty()) return false;
  turns_.push_back({std::unique_ptr<QEvent>(input.clone()), {}, {}});
  return true;
}

void TurnQueue::NoteInput() {
  isInputOut_ = true;
  isProbeBehind_ = false;
}

void TurnQueue::SendDue() {
  if (isSendingDue_) return;
  const Lifetime::Watch life = lifetime_.NewWatch();
  isSendingDue_ = true;
  while (ways_.IsOpen() && !turns_.empty()) {
    if (turns_.front().input != nullptr ? commands_ > 0 : isInputOut_) break;
    const Turn turn = std::move(turns_.front());
    turns_.pop_front();
    if (turn.input == nullptr) {
      SendExpression(turn);
    } else {
      SendInput(*turn.input);
      if (life.IsOver()) return;
    }
  }
  isSendingDue_ = false;
  if (!turns_.empty() && turns_.front().input == nullptr && !isProbeOut_) SendProbe();
}

void TurnQueue::SendExpression(const Turn &turn) {
  if (turn.answer) return ways_.Evaluate(turn.expression, turn.answer);
  ++commands_;
  ways_.Evaluate(turn.expression, [this, page = pageLife_.NewWatch()](auto &&) {
    if (page.IsOver()) return;
    if (--commands_ == 0 && !turns_.empty()) leaveTimer_.start();
  });
}

void TurnQueue::SendInput(QEvent &input) {
  const Lifetime::Watch life = lifetime_.NewWatch();
  isSendingInput_ = true;
  ways_.Send(input);
  if (!life.IsOver()) isSendingInput_ = false;
}

void TurnQueue::SendProbe() {
  isProbeBehind_ = true;
  isProbeOut_ = true;
  const Lifetime::Watch probeLife = probeLife_.NewWatch();
  QKeyEvent probe(QEvent::KeyRelease, Qt::Key_F24, Qt::NoModifier);
  SendInput(probe);
  if (probeLife.IsOver()) return;
  ways_.Evaluate(Echo, [this, probeLife](auto &&) {
    if (!probeLife.IsOver()) probeTimer_.start();
  });
}

void TurnQueue::ProbeArrived() {
  if (isProbeBehind_) isInputOut_ = false;
  ForgetProbe();
  if (turns_.empty() || turns_.front().input == nullptr) SendDue();
  if (!turns_.empty()) leaveTimer_.start();
  guard_.Wake();
}

void TurnQueue::Clear() {
  pageLife_.End();
  turns_.clear();
  commands_ = 0;
  isInputOut_ = false;
  ForgetProbe();
}

void TurnQueue::ForgetProbe() {
  probeLife_.End();
  isProbeOut_ = false;
  probeTimer_.stop();
}

}  // namespace velor
