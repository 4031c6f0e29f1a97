// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/DocumentHistory.h"
#include "engine/DocumentMirror.h"
#include "engine/EngineView.h"
#include "engine/Lifetime.h"
#include "engine/StateSnapshot.h"

#include <QPointer>
#include <QWidget>

#include <functional>
#include <memory>
#include <optional>

namespace velor {

class NoticeQueue;

/// The document of an editing component: the page in the engine, what it came from
/// (DocumentHistory), and its text and state as last seen on this side (DocumentMirror,
/// StateSnapshot). PageLoader puts texts into it, PageSaver composes a file from it.
class LiveDocument {
 public:
  /// Called with every view that is made, to connect its signals.
  using ConnectView = std::function<void(EngineView &)>;

  /// The document for a caller who saves or keeps it. It is complete in itself, since the document
  /// may have been closed during the wait for it.
  struct Reading {
    QString html;
    DocumentHistory::Original original;  ///< what `html` came from
    bool isEditorGone = false;           ///< the LiveDocument has been destroyed meanwhile
    /// The page is alive and did not answer: it may hold more than `html`.
    bool isUnanswered = false;
  };

  /// `frame` is the widget that each view is put into; it is deleted with this object, or by its
  /// parent before.
  LiveDocument(EditingEngine &engine, NoticeQueue &notices, QWidget *frame, ConnectView connect);
  ~LiveDocument();
  LiveDocument(const LiveDocument &) = delete;
  LiveDocument &operator=(const LiveDocument &) = delete;

  /// nullptr where the frame's parent has deleted it.
  QWidget *Frame() const { return frame_; }
  /// nullptr before the first load, and after a load that a person stopped.
  EngineView *View() const { return view_.get(); }
  DocumentHistory &History() { return history_; }
  const DocumentHistory &History() const { return history_; }
  DocumentMirror &Mirror() { return mirror_; }
  const DocumentMirror &Mirror() const { return mirror_; }
  const StateSnapshot &Snapshot() const { return snapshot_; }
  /// The document's file as PageScheme::Offer takes it.
  const QString &NativePath() const { return nativePath_; }
  void SetNativePath(const QString &nativePath) { nativePath_ = nativePath; }

  /// Over when another page is loaded, or this object is destroyed.
  Lifetime::Watch WatchPage() const { return pageLife_.NewWatch(); }
  /// Over when this object is destroyed.
  Lifetime::Watch WatchEditor() const { return lifetime_.NewWatch(); }

  /// Begins to load `text` under NativePath, in a new view where there is none. `start` as in
  /// EngineView::Load.
  void Load(const QString &text, const QString &start);
  /// Deletes the view, and with it the page's process.
  void CloseView() { view_.reset(); }

  /// Evaluates an expression of the bridge in its turn; nothing happens where there is no view.
  void Run(const QString &expression);
  /// Reads the document from the page, or takes the text last seen where the page does not answer.
  /// It waits for the engine; a person who stops the wait ends the page's process.
  Reading Read();
  /// The time after which a wait shows `message` and may be stopped. It may outlive this object.
  Patience StoppableWith(const QString &message);

  /// Takes over a state that the page pushed; the mirror is brought up to date in a moment.
  void ApplyState(const StateSnapshot &state);
  /// Takes over changes of the text that the page pushed.
  void ApplyChanges(const QVariantMap &told);
  /// Brings the mirror up to date, without waiting.
  void UpdateMirror();

 private:
  /// Asks the page for its text. Nothing where it does not answer, was loaded anew or is gone.
  std::optional<QString> AskForText();
  /// Takes over an answer of velor.mirror; false where it has to be asked for anew.
  bool ApplyMirror(const QVariantMap &mirror);
  void PostMemoryChanged();

  EditingEngine &engine_;
  NoticeQueue &notices_;
  QPointer<QWidget> frame_;
  ConnectView connect_;
  DocumentHistory history_;
  DocumentMirror mirror_;
  StateSnapshot snapshot_;
  QString nativePath_;
  std::unique_ptr<EngineView> view_;
  Lifetime pageLife_;  ///< until the next Load
  Lifetime lifetime_;
};

}  // namespace velor
