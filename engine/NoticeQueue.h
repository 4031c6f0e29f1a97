// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/GuardedWait.h"
#include "engine/Lifetime.h"
#include "platform/EditingComponent.h"

#include <QObject>
#include <QTimer>

#include <functional>
#include <vector>

namespace velor {

/// Kinds of notices, in the order in which they are delivered when several wait.
enum class Notice {
  LoadEnded,
  Complete,
  Display,
  Search,
  Counts,
  Memory,
  Parts,
  Picture,
  PictureOpened,
  PicturesPasted,
  Link,
  Pointer,
  Menu,
  Drop,
  Report,
  Spelling,
  StepOverLoad,
  Died
};

/// Delivers notices of an editing component to its listener, and to the component itself what it
/// may not do inside a callback of the engine. A notice is delivered with the next posted events,
/// when the callback or the call that caused it has returned. None is delivered during a wait
/// (GuardedWait); a timer of a millisecond tries those again.
class NoticeQueue : public QObject {
  Q_OBJECT

 public:
  using Notification = std::function<void(EditingListener &)>;

  explicit NoticeQueue(EngineGuard &guard);

  /// nullptr for none; what is told then is dropped.
  void SetListener(EditingListener *listener) { listener_ = listener; }

  /// Calls `deliver` in its turn. Of two waiting notices of one kind only the later is delivered;
  /// of reports, all.
  void Post(Notice kind, std::function<void()> deliver);
  /// Posts a notice that calls `notify` with the listener.
  void PostToListener(Notice kind, Notification notify);
  /// Posts DocumentComplete.
  void PostDocumentComplete();
  /// Posts a message for the status bar.
  void Report(const QString &message);
  /// Calls `notify` with the listener, if any, at once.
  void NotifyNow(const Notification &notify);
  /// Passes a message on at once, even during a wait; an empty one takes the last one back.
  void ReportNow(const QString &message);

  /// Delivers all waiting notices; only outside of engine callbacks.
  void Deliver();
  /// Delivers the waiting notice of that kind, if any, before all others.
  void DeliverNow(Notice kind);

 private:
  struct Waiting {
    Notice kind;
    std::function<void()> deliver;
  };

  std::vector<Waiting>::iterator Find(Notice kind);

  EngineGuard &guard_;
  EditingListener *listener_ = nullptr;
  QTimer timer_;
  std::vector<Waiting> waiting_;
  Lifetime lifetime_;
};

}  // namespace velor
