// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/PageMirror.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <QVariant>

#include <chrono>

namespace velor {

/// The document and the selection's place as they were last seen on this side, and when it is time
/// to look again. It answers while the page cannot, and brings the page back when its process ends.
class DocumentMirror : public QObject {
  Q_OBJECT

 public:
  DocumentMirror();

  const QString &Html() const { return page_.Html(); }
  /// The selection's ends as velor.restore takes them.
  const QVariant &Start() const { return start_; }
  const QVariant &End() const { return end_; }
  /// To be passed to velor.mirror.
  int Revision() const { return page_.Revision(); }

  /// Begins anew with a text that the page has not told.
  void Reset(QString html);
  /// The document was exchanged within the page; the selection's place is as it was.
  void SetHtml(QString html);
  /// A load begins: what the page tells next does not follow on from this text.
  void BeginLoad();
  /// Takes over what the page told of its text alone. False where that does not follow on.
  bool ApplyChanges(const QVariantMap &told) { return page_.Apply(told); }
  /// Takes over an answer of velor.mirror; false where it has to be asked for anew.
  bool ApplyAnswer(const QVariantMap &mirror);

  /// LookDue follows in a moment.
  void LookSoon();
  /// The page was looked at: Rested follows where nothing is done for a while.
  void AwaitRest();
  /// Something was done: a rest that is awaited begins anew.
  void PutOffRest();

 Q_SIGNALS:
  void LookDue();
  /// The person rests, and this is what the page holds.
  void Rested();

 private:
  PageMirror page_;
  QVariant start_;
  QVariant end_;
  QTimer lookTimer_;
  QTimer restTimer_;
};

/// Whether all that a person typed is known to be on the screen.
class TypingWatch {
 public:
  void NoteInput();
  /// The page told how it stands.
  void NoteTold(bool isIdle) { isIdle_ = isIdle; }
  bool IsIdle() const;

 private:
  bool isIdle_ = false;
  QElapsedTimer sinceInput_;
};

/// Counts the ends of a page's process: a page that keeps ending it is not brought back for ever.
class CrashCount {
 public:
  /// Counts one more; whether the page is to be brought back.
  bool AllowsRestoring();
  void Clear() { crashes_ = 0; }

 private:
  int crashes_ = 0;  ///< in quick succession
  QElapsedTimer sinceCrash_;
};

}  // namespace velor
