// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/TurnQueue.h"
#include "tests/support/Waiting.h"

#include <QKeyEvent>
#include <QStringList>
#include <QTimer>

#include <gtest/gtest.h>
#include <vector>

namespace velor {

namespace {

using namespace std::chrono_literals;

/// Records what is sent to the page; the test decides when the page answers.
class NotedPage final : public PageWays {
 public:
  bool IsOpen() const override { return isOpen; }
  void Evaluate(const QString &expression, const Answer &answered) override {
    if (expression == TurnQueue::Echo) {
      echo = answered;
      return;
    }
    arrived << expression;
    answers.push_back(answered);
  }
  void Send(QEvent &input) override {
    const auto &key = static_cast<const QKeyEvent &>(input);
    arrived << (key.key() == Qt::Key_F24 ? QStringLiteral("probe") : key.text());
    if (onInput) onInput();
  }
  std::string Arrived() const { return arrived.join(u' ').toStdString(); }
  void AnswerFirst() {
    const Answer answer = answers.front();
    answers.erase(answers.begin());
    answer({});
  }

  bool isOpen = true;
  QStringList arrived;
  std::vector<Answer> answers;
  Answer echo;
  std::function<void()> onInput;
};

class Turns : public ::testing::Test {
 protected:
  /// A key press as EditorInput passes it on: deferred, or sent to the page.
  void Press(const char *text) {
    const QKeyEvent key(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, QString::fromUtf8(text));
    if (queue_->Defer(key)) return;
    page_.arrived << key.text();
    queue_->NoteInput();
  }
  void Command(const char *expression) { queue_->Run(QString::fromUtf8(expression), {}); }
  bool ArrivedBecomes(const std::string &text) {
    return WaitFor([&] { return page_.Arrived() == text; });
  }
  /// Lets that time pass, which input grows old in.
  static bool Passes(std::chrono::milliseconds time) {
    bool isOver = false;
    QTimer::singleShot(time, [&] { isOver = true; });
    return WaitFor([&] { return isOver; });
  }

  NotedPage page_;
  EngineGuard guard_;
  std::unique_ptr<TurnQueue> queue_ = std::make_unique<TurnQueue>(page_, guard_);
};

TEST_F(Turns, ExpressionsGoAtOnceWhereNoInputIsOnItsWay) {
  Command("bold");
  Command("italic");
  EXPECT_EQ(page_.Arrived(), "bold italic");
}

TEST_F(Turns, InputWaitsForTheCommandsBeforeItAndIsSentFromOutsideTheEngine) {
  Command("bold");
  Command("italic");
  Press("a");
  page_.AnswerFirst();
  page_.AnswerFirst();
  EXPECT_EQ(page_.Arrived(), "bold italic") << "sent inside the engine's callback";
  EXPECT_TRUE(ArrivedBecomes("bold italic a"));
}

TEST_F(Turns, InputDoesNotWaitForAQuestion) {
  queue_->Run(QStringLiteral("state"), [](const QVariant &) {});
  Press("a");
  EXPECT_EQ(page_.Arrived(), "state a");
}

TEST_F(Turns, AnExpressionWaitsUntilTheProbeBehindTheInputHasArrived) {
  Press("a");
  Command("bold");
  EXPECT_EQ(page_.Arrived(), "a probe");
  queue_->ProbeArrived();
  EXPECT_EQ(page_.Arrived(), "a probe bold");
}

TEST_F(Turns, AProbeDoesNotSpeakForInputThatCameBehindIt) {
  Press("a");
  Command("bold");
  queue_->NoteInput();
  queue_->ProbeArrived();
  EXPECT_EQ(page_.Arrived(), "a probe probe");
}

TEST_F(Turns, APageThatDoesNotTellOfTheProbeHoldsAnExpressionUpForAMomentOnly) {
  Press("a");
  Command("bold");
  page_.echo({});
  EXPECT_TRUE(ArrivedBecomes("a probe bold"));
}

TEST_F(Turns, NoExpressionOvertakesTheKeysThatABusyPageHasNotTakenYet) {
  Press("a");
  Command("bold");
  ASSERT_TRUE(Passes(2 * TurnQueue::LongestInputDelay));
  Command("italic");
  EXPECT_EQ(page_.Arrived(), "a probe");
  queue_->ProbeArrived();
  EXPECT_EQ(page_.Arrived(), "a probe bold italic");
}

TEST_F(Turns, InputThatNobodyAskedAboutIsAskedAboutHoweverOldItIs) {
  Press("a");
  ASSERT_TRUE(Passes(TurnQueue::LongestInputDelay + 1ms));
  Command("bold");
  EXPECT_EQ(page_.Arrived(), "a probe");
}

TEST_F(Turns, KeysAndCommandsKeepTheirOrderWhateverTheirNumber) {
  Command("bold");
  Press("a");
  Press("b");
  Command("italic");
  Press("c");
  page_.AnswerFirst();
  ASSERT_TRUE(ArrivedBecomes("bold a b italic"));
  page_.AnswerFirst();
  EXPECT_TRUE(ArrivedBecomes("bold a b italic c"));
}

TEST_F(Turns, NothingIsSentToAPageThatIsNotThere) {
  page_.isOpen = false;
  Command("bold");
  Press("a");
  EXPECT_EQ(page_.Arrived(), "a") << "input is the view's own business then";
}

TEST_F(Turns, ANewPageGetsNothingThatWaitedForTheOneBefore) {
  Command("bold");
  Press("a");
  queue_->Clear();
  page_.AnswerFirst();
  Command("italic");
  Press("b");
  page_.AnswerFirst();
  EXPECT_TRUE(ArrivedBecomes("bold italic b"));
}

TEST_F(Turns, InputThatClosesThePageEndsTheQueueWithoutHarm) {
  Command("bold");
  Press("a");
  Press("b");
  page_.onInput = [&] { queue_.reset(); };
  page_.AnswerFirst();
  EXPECT_TRUE(WaitFor([&] { return queue_ == nullptr; }));
  EXPECT_EQ(page_.Arrived(), "bold a");
}

}  // namespace

}  // namespace velor
