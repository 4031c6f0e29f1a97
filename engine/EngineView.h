// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/BridgeHost.h"
#include "engine/EditingEngine.h"
#include "engine/Lifetime.h"
#include "engine/TurnQueue.h"

#include <QPointer>
#include <QVariant>
#include <QWebChannel>

#include <chrono>
#include <functional>
#include <optional>

class QEvent;
class QWebEngineView;

namespace velor {

class EditorInput;
class EditorPage;

/// One view of the browser engine with the bridge in it: loads texts, evaluates expressions of the
/// bridge, and emits signals for what happens in the page. The view lies in a container widget,
/// which may be deleted before this object; this object then behaves like a page whose process has
/// ended. Unless said otherwise signals are emitted inside a callback of the engine, where
/// receivers may only store.
class EngineView : public QObject, private PageWays {
  Q_OBJECT

 public:
  enum class Phase {
    Empty,
    Loading,
    Ready,
    Failed,  ///< the last load did not end in a page with a bridge
    Dead,    ///< the page's process has ended
  };

  EngineView(EditingEngine &engine, QWidget *container);
  ~EngineView() override;

  Phase CurrentPhase() const;

  /// Begins to load another page and returns at once; LoadEnded follows. `nativePath` as in
  /// PageScheme::Offer. `start` is an expression of the bridge that is evaluated when the page is
  /// there; its value is StartAnswer().
  void Load(const QString &nativePath, const QString &text, const QString &start);
  const QVariant &StartAnswer() const { return startAnswer_; }

  /// Evaluates an expression in its order among keys and other expressions (TurnQueue). `answer`,
  /// where given, is called with its value inside a callback of the engine. Without `answer` it is
  /// a command. Nothing happens where the page is not Ready.
  void Run(const QString &expression, const Answer &answer = {});
  /// Evaluates an expression and waits for its value. Nothing where the page is not Ready, its
  /// process ends, it does not answer within `limit`, or the call comes inside a callback of the
  /// engine; then, and only then, `this` may be gone. If the person stops the wait, the page's
  /// process is ended.
  std::optional<QVariant> Ask(const QString &expression, std::chrono::milliseconds limit,
                              const Patience *patience = nullptr);
  /// Gives the page the address of another file, against which its links resolve from then on. The
  /// document stays as it is. False where the page did not take it; then `this` may be gone.
  bool MoveTo(const QString &nativePath);
  /// Whether the last wait of Ask was stopped.
  bool WasStopped() const { return wasStopped_; }
  /// GuardedWait::Until with this view as the subject.
  WaitEnd Wait(std::chrono::milliseconds limit, const std::function<bool()> &done,
               const Patience *patience = nullptr);

  void SetFocus();
  /// Shows the page of now larger or smaller; the next one is shown in its own size.
  void SetZoom(double factor);

 Q_SIGNALS:
  /// The phase is Ready or Failed now.
  void LoadEnded();
  /// The page's process has ended; the phase is Dead now.
  void Died();
  /// The states and values at the caret have changed.
  void StateArrived(const velor::StateSnapshot &state);
  /// Changes of the document's text, as PageMirror::Apply takes them; `idle` in it says that all
  /// input before is on the screen.
  void MirrorArrived(const QVariantMap &changes);
  /// The page asks for a file: its name in the bridge (PartName), and the native file.
  void PartAsked(const QString &name, const QString &file);
  /// Paste was asked for where the clipboard has no text.
  void PictureWanted();
  /// Another program's markup was pasted with pictures: the addresses, as written in the page, of
  /// those that come from files or hold their file themselves; how many lie on other computers.
  void PicturesPasted(const QStringList &addresses, int remote);
  /// A long paste goes on: how much of it is done; 100 when it has ended.
  void Pasting(int percent);
  /// A long paste was stopped before it changed anything.
  void PasteStopped();
  /// A link is to be followed; its address as written in the page.
  void LinkWanted(const QString &address);
  /// A picture was clicked twice.
  void PictureOpened();
  /// Undo was asked for at the beginning of the page's own history; redo at its end.
  void EarlierWanted();
  void LaterWanted();
  /// Lines of the page are to be judged (WebSpelling).
  void SpellingWanted(const QString &json);
  /// The pointer moved or pressed, in CSS pixels of the viewport.
  void PointerMoved(QPoint clientPosition);
  /// A context menu was asked for, in pixels of the screen.
  void MenuWanted(QPoint screenPosition);
  /// A key or button is about to reach the page; from outside the engine.
  void InputComing();
  /// Files were dropped at a place in CSS pixels, native paths; from outside the engine.
  void FilesDropped(const QStringList &nativePaths, QPoint clientPosition);

 private:
  bool IsOpen() const override { return CurrentPhase() == Phase::Ready; }
  void Evaluate(const QString &expression, const Answer &answered) override;
  void Send(QEvent &input) override;
  void ConnectHost();
  void ConnectInput();
  void ConnectPage();
  void EndLoad(Phase phase);
  /// Kills the page's process and waits for the notice of its end.
  void EndProcess();

  EditingEngine &engine_;
  BridgeHost host_;
  QWebChannel channel_;
  QPointer<QWebEngineView> view_;
  QPointer<EditorPage> page_;  ///< a child of view_
  EditorInput *input_;         ///< a child of view_
  Phase phase_ = Phase::Empty;
  bool hadFocus_ = false;  ///< when the load began
  bool wasStopped_ = false;
  QUrl address_;
  QString start_;
  QVariant startAnswer_;
  TurnQueue turns_;
  Lifetime lifetime_;
};

}  // namespace velor
