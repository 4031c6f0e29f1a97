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
/// bridge, and says what happens. It lives in a container widget that may go before it; then it
/// behaves like a dead page. Unless said otherwise its signals come from inside the engine, so that
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

  /// Begins to replace the page. `nativePath` as PageScheme::Offer takes it. `start` is evaluated
  /// when the page is there; its value is StartAnswer().
  void Load(const QString &nativePath, const QString &text, const QString &start);
  const QVariant &StartAnswer() const { return startAnswer_; }

  /// Evaluates an expression in its turn among keys and other expressions (TurnQueue); `answer`,
  /// where given, is called from inside the engine. Without one it is a command.
  void Run(const QString &expression, const Answer &answer = {});
  /// Evaluates an expression and waits for its value. Nothing when the page is not ready, dies
  /// or does not answer in time; then, and only then, `this` may be gone. Where the person stops
  /// the wait, the page's process is ended.
  std::optional<QVariant> Ask(const QString &expression, std::chrono::milliseconds limit,
                              const Patience *patience = nullptr);
  /// Gives the page the address of another file, against which its links resolve from then on; the
  /// document stays as it is. False where the page does not do so; then `this` may be gone.
  bool MoveTo(const QString &nativePath);
  /// Whether the last wait of Ask was stopped.
  bool WasStopped() const { return wasStopped_; }
  /// Waits until the keys that were sent to the page a moment ago have arrived there: they take
  /// another way than expressions, which could overtake them.
  void AwaitInput();
  /// Waits for `done`; see GuardedWait.
  WaitEnd Wait(std::chrono::milliseconds limit, const std::function<bool()> &done,
               const Patience *patience = nullptr);

  void SetFocus();

 Q_SIGNALS:
  /// The phase is Ready or Failed now.
  void LoadEnded();
  void Died();
  void StateArrived(const velor::StateSnapshot &state);
  /// What has changed in the document (PageMirror); `idle` in it says that what was done before is
  /// on the screen.
  void MirrorArrived(const QVariantMap &told);
  /// Paste was asked for where the clipboard has no text.
  void PictureWanted();
  /// Undo or redo came to the end of the page's own history.
  void EarlierWanted();
  void LaterWanted();
  void PointerMoved(QPoint clientPosition);
  void MenuWanted(QPoint screenPosition);
  /// A key or button is about to reach the page; from outside the engine.
  void InputComing();
  /// Files were dropped at a place in CSS pixels, native paths; from outside the engine.
  void FilesDropped(const QStringList &nativePaths, QPoint clientPosition);

 private:
  bool IsOpen() const override { return CurrentPhase() == Phase::Ready; }
  void Evaluate(const QString &expression, const Answer &answered) override;
  void Send(QEvent &input) override;
  void EndLoad(Phase phase);
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
