// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/PageMirror.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <QVariant>

#include <chrono>

namespace velor {

/// The document's text and selection as the page last told them, and the timers that say when to
/// ask the page again. The mirror answers while the page cannot, and a page whose process has ended
/// is loaded from it.
class DocumentMirror : public QObject {
  Q_OBJECT

 public:
  DocumentMirror();

  const QString &Html() const { return page_.Html(); }
  /// The selection's ends, as velor.restore takes them; invalid when unknown.
  const QVariant &Start() const { return start_; }
  const QVariant &End() const { return end_; }
  /// Revision of Html, to be passed to velor.mirror; 0 for none.
  int Revision() const { return page_.Revision(); }

  /// Replaces text and selection by a text that the page has not told.
  void Reset(QString html);
  /// The document was exchanged within the page; the selection's place is as it was.
  void SetHtml(QString html);
  /// To be called when a load begins: the next answer of the page has to hold its whole text.
  void BeginLoad();
  /// Applies an answer of velor.changes to the text; false where its changes are not changes of
  /// this revision.
  bool ApplyChanges(const QVariantMap &told) { return page_.Apply(told); }
  /// Applies an answer of velor.mirror to text and selection. False where its changes are not
  /// changes of this revision: the next answer has to hold the whole text then.
  bool ApplyAnswer(const QVariantMap &mirror);

  /// Emits UpdateDue in 0.3 s.
  void ScheduleUpdate();
  /// The mirror is up to date: emits Paused after 0.7 s, unless PostponePause comes before.
  void ExpectPause();
  /// Something was done: begins the time to an expected Paused anew.
  void PostponePause();

 Q_SIGNALS:
  /// It is time to bring the mirror up to date.
  void UpdateDue();
  /// The person has done nothing for a while, and the mirror holds what the page holds.
  void Paused();

 private:
  PageMirror page_;
  QVariant start_;
  QVariant end_;
  QTimer updateTimer_;
  QTimer pauseTimer_;
};

/// Tells whether all that a person typed is known to be on the screen.
class TypingWatch {
 public:
  /// Input is about to reach the page.
  void NoteInput();
  /// The page reported whether all input before is on the screen.
  void NoteReport(bool isIdle) { isIdle_ = isIdle; }
  /// True also a second after the last input: a key that changes nothing gets no report.
  bool IsIdle() const;

 private:
  bool isIdle_ = false;
  QElapsedTimer sinceInput_;
};

/// Limits how often a page is restored whose process ends again and again.
class CrashCount {
 public:
  /// Counts an end of the process; false where it is the fourth with less than 10 s between them.
  bool CountCrash();
  void Clear() { crashes_ = 0; }

 private:
  int crashes_ = 0;  ///< in quick succession
  QElapsedTimer sinceCrash_;
};

}  // namespace velor
