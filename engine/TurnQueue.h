// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/GuardedWait.h"
#include "engine/Lifetime.h"

#include <QElapsedTimer>
#include <QEvent>
#include <QObject>
#include <QTimer>
#include <QVariant>

#include <deque>
#include <functional>
#include <memory>

namespace velor {

/// The two ways into a page, neither of which waits for the other.
class PageWays {
 public:
  using Answer = std::function<void(const QVariant &)>;

  virtual ~PageWays() = default;
  /// Whether there is a page that takes input and expressions.
  virtual bool IsOpen() const = 0;
  /// Sends an expression; `answered` is called from inside the engine.
  virtual void Evaluate(const QString &expression, const Answer &answered) = 0;
  /// Sends input; may delete everything, the queue too.
  virtual void Send(QEvent &input) = 0;
};

/// Keeps expressions and input in the order in which they came, by never sending one while what
/// came before it may still be on the other way. A command is an expression without an answer;
/// input waits for commands alone, an expression for input.
///
///                      Run                                  HoldBack
///         +----------------------> command on its way -------------------> input waits
///         |                            |       ^                               |
///         |                   answered |       | answered, or                  | answered; sent
///         from |                            v       | 500 ms later                  | outside the
///         engine
///       nothing on its way <-----------+   expression waits,                   |
///         |          ^                     a probe is sent behind the input    |
///         |          |                             ^                           |
///         | NoteInput| the probe has arrived,      | Run                       |
///         |          | or 500 ms later             |                           |
///         +----------+-------> input on its way ---+<--------------------------+
///
/// The probe is the release of a key that nobody has: the page tells of it (ProbeArrived), and all
/// input sent before it is there then (engine/bridge/talk/arrivals.js).
class TurnQueue : public QObject {
  Q_OBJECT

 public:
  TurnQueue(PageWays &ways, EngineGuard &guard);

  /// The longest that input is taken to be on its way; a page tells of it within milliseconds.
  static constexpr std::chrono::milliseconds InputTravel{500};

  /// Sends an expression in its turn; without `answer` it is a command. Nothing where there is no
  /// page.
  void Run(const QString &expression, const PageWays::Answer &answer);
  /// True where the input was taken, to be sent when the commands before it have been answered.
  bool HoldBack(const QEvent &input);
  /// Input goes to the page now.
  void NoteInput();
  bool IsInputOnItsWay() const;
  /// Asks the page to tell when the input sent so far is there.
  void SendProbe();
  void ProbeArrived();
  /// Forgets everything: another page comes, or the page has ended.
  void Clear();

 private:
  /// Input of the person's, or else an expression.
  struct Turn {
    std::unique_ptr<QEvent> input;
    QString expression;
    PageWays::Answer answer;
  };

  /// Sends everything whose turn has come; from outside the engine where input waits.
  void SendDue();
  void SendExpression(const Turn &turn);
  void SendInput(QEvent &input);

  PageWays &ways_;
  EngineGuard &guard_;
  std::deque<Turn> turns_;
  int commands_ = 0;             ///< on their way
  QElapsedTimer sinceInput_;     ///< invalid when all input is known to have arrived
  bool isProbeBehind_ = false;   ///< the probe was sent after the last input
  bool isSendingInput_ = false;  ///< input that has waited is not to be held back again
  bool isSendingDue_ = false;
  QTimer leaveTimer_;  ///< leads out of the engine before input is sent
  QTimer probeTimer_;  ///< for a page that does not tell of the probe
  Lifetime pageLife_;  ///< until Clear
  Lifetime lifetime_;
};

}  // namespace velor
