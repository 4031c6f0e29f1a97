// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/DocumentMirror.h"

#include <utility>

namespace velor {

namespace {

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds UpdateDelay = 300ms;
/// A person who does nothing for this long may be about to save.
constexpr std::chrono::milliseconds LongEnoughPause = 700ms;
/// A key that changes nothing gets no report of the page.
constexpr std::chrono::milliseconds LongestKey = 1s;
/// A page that keeps ending its process within this time is left as it is after a few tries.
constexpr std::chrono::milliseconds SteadyTime = 10s;
constexpr int MostCrashes = 3;

}  // namespace

DocumentMirror::DocumentMirror() {
  updateTimer_.setSingleShot(true);
  updateTimer_.setInterval(UpdateDelay);
  connect(&updateTimer_, &QTimer::timeout, this, &DocumentMirror::UpdateDue);
  pauseTimer_.setSingleShot(true);
  pauseTimer_.setInterval(LongEnoughPause);
  connect(&pauseTimer_, &QTimer::timeout, this, &DocumentMirror::Paused);
}

void DocumentMirror::Reset(QString html) {
  SetHtml(std::move(html));
  start_ = {};
  end_ = {};
}

void DocumentMirror::SetHtml(QString html) {
  page_ = PageMirror(std::move(html));
}

void DocumentMirror::BeginLoad() {
  updateTimer_.stop();
  page_.ForgetRevision();
}

bool DocumentMirror::ApplyAnswer(const QVariantMap &mirror) {
  if (!page_.Apply(mirror)) {
    page_.ForgetRevision();
    return false;
  }
  start_ = mirror[QStringLiteral("start")];
  end_ = mirror[QStringLiteral("end")];
  return true;
}

void DocumentMirror::ScheduleUpdate() {
  if (!updateTimer_.isActive()) updateTimer_.start();
}

void DocumentMirror::ExpectPause() {
  pauseTimer_.start();
}

void DocumentMirror::PostponePause() {
  if (pauseTimer_.isActive()) pauseTimer_.start();
}

void TypingWatch::NoteInput() {
  isIdle_ = false;
  sinceInput_.start();
}

bool TypingWatch::IsIdle() const {
  return isIdle_ || !sinceInput_.isValid() || sinceInput_.hasExpired(LongestKey.count());
}

bool CrashCount::CountCrash() {
  if (sinceCrash_.isValid() && sinceCrash_.hasExpired(SteadyTime.count())) crashes_ = 0;
  sinceCrash_.start();
  return ++crashes_ <= MostCrashes;
}

}  // namespace velor
