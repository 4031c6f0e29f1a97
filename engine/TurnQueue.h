// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/GuardedWait.h"
#include "engine/Lifetime.h"

#include <QEvent>
#include <QObject>
#include <QTimer>
#include <QVariant>

#include <deque>
#include <functional>
#include <memory>

namespace velor {

/// The two ways into a page: neither keeps the order of what is sent on the other.
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

/// Sends expressions and input to a page in the order in which they came. Since they take two ways,
/// one is not sent as long as an earlier one may still be under way on the other. A command is an
/// expression without an answer. Input waits for commands only, an expression for input.
///
///                      Run                                   Defer
///         +----------------------> command on its way ------------------> input waits
///         |                            |         ^                            |
///         |                   answered |         | probe arrived,             | answered; sent
///         |                            |         | or 500 ms later            | outside of the
///         |                            v         |                            | callback
///       nothing on its way <-----------+     expression waits;                |
///         |          ^                       a probe is sent                  |
///         |          |                       behind the input                 |
///         | NoteInput| probe arrived,            ^                            |
///         |          | or 500 ms later           | Run                        |
///         +----------+-------> input on its way -+<---------------------------+
///
/// Whatever comes while something waits, waits behind it. The probe is the release of a key that
/// nobody has: the page tells of it (ProbeArrived), and all input sent before it is there then
/// (engine/bridge/talk/arrivals.js).
class TurnQueue : public QObject {
  Q_OBJECT

 public:
  TurnQueue(PageWays &ways, EngineGuard &guard);

  /// Input counts as arrived so long after the echo of a page that does not tell of the probe. A
  /// page that does takes milliseconds.
  static constexpr std::chrono::milliseconds LongestInputDelay{500};
  /// The expression that is sent with the probe.
  static constexpr QLatin1String Echo{"true"};

  /// Sends an expression when its turn comes; without `answer` it is a command. Does nothing where
  /// there is no page.
  void Run(const QString &expression, const PageWays::Answer &answer);
  /// True where a copy of the input was taken, to be sent when the commands before it have been
  /// answered; false where it may go to the page now.
  bool Defer(const QEvent &input);
  /// To be called when input goes to the page.
  void NoteInput();
  /// To be called when the page tells of the probe.
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

  /// Sends everything whose turn has come; not to be called inside a callback of the engine where
  /// input waits.
  void SendDue();
  void SendExpression(const Turn &turn);
  void SendInput(QEvent &input);
  void SendProbe();
  void ForgetProbe();

  PageWays &ways_;
  EngineGuard &guard_;
  std::deque<Turn> turns_;
  int commands_ = 0;             ///< on their way
  bool isInputOut_ = false;      ///< input was sent that may not have arrived yet
  bool isProbeOut_ = false;      ///< the page has not told of the last probe yet
  bool isProbeBehind_ = false;   ///< the probe was sent after the last input
  bool isSendingInput_ = false;  ///< input that has waited is not to be held back again
  bool isSendingDue_ = false;
  QTimer leaveTimer_;   ///< calls SendDue outside of the engine's callback
  QTimer probeTimer_;   ///< from the echo on, for a page that does not tell of the probe
  Lifetime pageLife_;   ///< until Clear
  Lifetime probeLife_;  ///< until the probe has arrived
  Lifetime lifetime_;
};

}  // namespace velor
