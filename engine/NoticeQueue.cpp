// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/NoticeQueue.h"

#include <algorithm>
#include <utility>

namespace velor {

NoticeQueue::NoticeQueue(EngineGuard &guard) : guard_(guard) {
  timer_.setSingleShot(true);
  timer_.setTimerType(Qt::PreciseTimer);
  timer_.setInterval(1);
  connect(&timer_, &QTimer::timeout, this, &NoticeQueue::Deliver);
}

std::vector<NoticeQueue::Waiting>::iterator NoticeQueue::Find(Notice kind) {
  return std::find_if(waiting_.begin(), waiting_.end(),
                      [kind](const Waiting &other) { return other.kind == kind; });
}

void NoticeQueue::Post(Notice kind, std::function<void()> deliver) {
  const auto same = Find(kind);
  if (same != waiting_.end() && kind != Notice::Report) {
    same->deliver = std::move(deliver);
  } else {
    const auto place =
        std::upper_bound(waiting_.begin(), waiting_.end(), kind,
                         [](Notice wanted, const Waiting &other) { return wanted < other.kind; });
    waiting_.insert(place, {kind, std::move(deliver)});
  }
  if (timer_.isActive()) return;
  timer_.start();
  QMetaObject::invokeMethod(this, &NoticeQueue::Deliver, Qt::QueuedConnection);
}

void NoticeQueue::PostToListener(Notice kind, Notification notify) {
  Post(kind, [this, notify = std::move(notify)] { NotifyNow(notify); });
}

void NoticeQueue::NotifyNow(const Notification &notify) {
  if (listener_ != nullptr) notify(*listener_);
}

void NoticeQueue::PostDocumentComplete() {
  PostToListener(Notice::Complete, [](EditingListener &listener) { listener.DocumentComplete(); });
}

void NoticeQueue::Report(const QString &message) {
  PostToListener(Notice::Report,
                 [message](EditingListener &listener) { listener.ComponentReported(message); });
}

void NoticeQueue::ReportNow(const QString &message) {
  NotifyNow([&message](EditingListener &listener) { listener.ComponentReported(message); });
}

void NoticeQueue::Deliver() {
  const Lifetime::Watch life = lifetime_.NewWatch();
  while (!life.IsOver() && !waiting_.empty()) {
    // The timer runs while a notice is delivered, for the notices behind it: the receiver may raise
    // an error, show a dialog or wait for the engine.
    timer_.start();
    if (guard_.Waiting()) return;
    const Waiting first = std::move(waiting_.front());
    waiting_.erase(waiting_.begin());
    first.deliver();
  }
  if (!life.IsOver()) timer_.stop();
}

void NoticeQueue::DeliverNow(Notice kind) {
  const auto found = Find(kind);
  if (found == waiting_.end() || guard_.Waiting()) return;
  const Waiting notice = std::move(*found);
  waiting_.erase(found);
  notice.deliver();
}

}  // namespace velor
