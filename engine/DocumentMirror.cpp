// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/DocumentMirror.h"

#include <utility>

namespace velor {

namespace {

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds LookPause = 300ms;
/// A person who rests this long may be about to save.
constexpr std::chrono::milliseconds RestPause = 700ms;
/// A key that changed nothing is followed by no word of the page.
constexpr std::chrono::milliseconds LongestKey = 1s;
/// A page that keeps ending its process within this time is left as it is after a few tries.
constexpr std::chrono::milliseconds SteadyTime = 10s;
constexpr int MostCrashes = 3;

}  // namespace

DocumentMirror::DocumentMirror() {
  lookTimer_.setSingleShot(true);
  lookTimer_.setInterval(LookPause);
  connect(&lookTimer_, &QTimer::timeout, this, &DocumentMirror::LookDue);
  restTimer_.setSingleShot(true);
  restTimer_.setInterval(RestPause);
  connect(&restTimer_, &QTimer::timeout, this, &DocumentMirror::Rested);
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
  lookTimer_.stop();
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

void DocumentMirror::LookSoon() {
  if (!lookTimer_.isActive()) lookTimer_.start();
}

void DocumentMirror::AwaitRest() {
  restTimer_.start();
}

void DocumentMirror::PutOffRest() {
  if (restTimer_.isActive()) restTimer_.start();
}

void TypingWatch::NoteInput() {
  isIdle_ = false;
  sinceInput_.start();
}

bool TypingWatch::IsIdle() const {
  return isIdle_ || !sinceInput_.isValid() || sinceInput_.hasExpired(LongestKey.count());
}

bool CrashCount::AllowsRestoring() {
  if (sinceCrash_.isValid() && sinceCrash_.hasExpired(SteadyTime.count())) crashes_ = 0;
  sinceCrash_.start();
  return ++crashes_ <= MostCrashes;
}

}  // namespace velor
