// SPDX-License-Identifier: GPL-3.0-or-later
// The guarded wait, and notices that are delivered only when no wait runs.
#include "engine/GuardedWait.h"
#include "engine/NoticeQueue.h"
#include "tests/support/Waiting.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QLineEdit>
#include <QTest>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <gmock/gmock.h>
#include <memory>
#include <vector>

namespace velor {

namespace {

using namespace std::chrono_literals;

class GuardedWaiting : public ::testing::Test {
 protected:
  WaitEnd Until(std::chrono::milliseconds limit, const std::function<bool()> &done) {
    return GuardedWait(guard_).Until(*subject_, limit, done);
  }

  EngineGuard guard_;
  std::unique_ptr<QObject> subject_ = std::make_unique<QObject>();
};

TEST_F(GuardedWaiting, EndsWhenItIsDone) {
  bool done = false;
  QTimer::singleShot(20, subject_.get(), [&] { done = true; });
  EXPECT_EQ(Until(10s, [&] { return done; }), WaitEnd::Done);
}

TEST_F(GuardedWaiting, DoesNotWaitForWhatIsDoneAlready) {
  bool passed = false;
  QTimer::singleShot(0, subject_.get(), [&] { passed = true; });
  EXPECT_EQ(Until(10s, [] { return true; }), WaitEnd::Done);
  EXPECT_FALSE(passed);
}

TEST_F(GuardedWaiting, EndsAtItsLimit) {
  QElapsedTimer waited;
  waited.start();
  EXPECT_EQ(Until(30ms, [] { return false; }), WaitEnd::TimedOut);
  EXPECT_GE(waited.elapsed(), 29);
}

TEST_F(GuardedWaiting, EndsWhenItsSubjectIsDestroyed) {
  QTimer::singleShot(5, qApp, [&] { subject_.reset(); });
  EXPECT_EQ(Until(10s, [] { return false; }), WaitEnd::Destroyed);
}

TEST_F(GuardedWaiting, IsStoppedByEscapeOnceThePersonHasBeenTold) {
  bool told = false;
  QWidget window;
  QTimer keys;
  QObject::connect(&keys, &QTimer::timeout,
                   [&] { QTest::keyClick(&window, told ? Qt::Key_Escape : Qt::Key_A); });
  keys.start(5);
  const Patience patience{30ms, [&] { told = true; }};
  EXPECT_EQ(GuardedWait(guard_).Until(
                *subject_, 10s, [] { return false; }, &patience),
            WaitEnd::Stopped);
  EXPECT_TRUE(told);
  EXPECT_FALSE(guard_.Waiting());
}

TEST_F(GuardedWaiting, GivesInputBackWhereItIsToBeKept) {
  bool told = false;
  QLineEdit box;
  const Patience patience{5ms,
                          [&] {
                            told = true;
                            QTest::keyClicks(&box, QStringLiteral("typed"));
                          },
                          Patience::Input::Kept};
  int looks = 0;
  EXPECT_EQ(GuardedWait(guard_).Until(
                *subject_, 10s, [&] { return told && ++looks > 3; }, &patience),
            WaitEnd::Done);
  EXPECT_EQ(box.text(), QString());
  EXPECT_TRUE(WaitFor([&] { return box.text() == QStringLiteral("typed"); }));
}

TEST_F(GuardedWaiting, TellsNobodyWhenItIsShort) {
  bool told = false;
  int looks = 0;
  const Patience patience{10s, [&] { told = true; }};
  EXPECT_EQ(GuardedWait(guard_).Until(
                *subject_, 10s, [&] { return ++looks > 3; }, &patience),
            WaitEnd::Done);
  EXPECT_FALSE(told);
}

TEST_F(GuardedWaiting, IsRefusedInsideAnEngineCallback) {
  const EngineCallback callback(guard_);
  EXPECT_EQ(Until(10s, [] { return false; }), WaitEnd::Refused);
}

TEST_F(GuardedWaiting, LooksAgainWhenItIsWoken) {
  int looks = 0;
  QTimer::singleShot(5, subject_.get(), [&] {
    const int before = looks;
    guard_.Wake();
    EXPECT_EQ(looks, before + 1);
  });
  EXPECT_EQ(Until(10s, [&] { return ++looks > 6; }), WaitEnd::Done);
}

TEST_F(GuardedWaiting, KnowsThatItIsWaiting) {
  EXPECT_FALSE(guard_.Waiting());
  Until(10s, [&] { return guard_.Waiting(); });
  EXPECT_FALSE(guard_.Waiting());
}

TEST_F(GuardedWaiting, SendsPostedEvents) {
  bool done = false;
  QMetaObject::invokeMethod(
      subject_.get(), [&] { done = true; }, Qt::QueuedConnection);
  EXPECT_EQ(Until(10s, [&] { return done; }), WaitEnd::Done);
}

class NoticesWaiting : public GuardedWaiting {
 protected:
  void Post(Notice kind, const QString &text) {
    notices_.Post(kind, [this, text] { told_.push_back(text); });
  }
  /// Runs an ordinary event loop, in which notices may be delivered.
  void Turn() {
    QEventLoop loop;
    QTimer::singleShot(20, &loop, &QEventLoop::quit);
    loop.exec();
  }

  NoticeQueue notices_{guard_};
  std::vector<QString> told_;
};

TEST_F(NoticesWaiting, LeaveAfterTheCallThatCausedThem) {
  Post(Notice::Display, QStringLiteral("display"));
  EXPECT_TRUE(told_.empty());
  Turn();
  EXPECT_THAT(told_, ::testing::ElementsAre(QStringLiteral("display")));
}

TEST_F(NoticesWaiting, LeaveWithTheNextPostedEvents) {
  Post(Notice::Display, QStringLiteral("display"));
  QCoreApplication::sendPostedEvents();
  EXPECT_EQ(told_.size(), 1U);
}

TEST_F(NoticesWaiting, OfOneKindAreOneButReportsAreAllTold) {
  Post(Notice::Report, QStringLiteral("first report"));
  Post(Notice::Display, QStringLiteral("old"));
  Post(Notice::Display, QStringLiteral("new"));
  Post(Notice::Report, QStringLiteral("second report"));
  Post(Notice::Complete, QStringLiteral("complete"));
  Turn();
  EXPECT_THAT(told_, ::testing::ElementsAre(QStringLiteral("complete"), QStringLiteral("new"),
                                            QStringLiteral("first report"),
                                            QStringLiteral("second report")));
}

TEST_F(NoticesWaiting, StayWhileAWaitRuns) {
  Post(Notice::Display, QStringLiteral("display"));
  EXPECT_EQ(Until(30ms, [] { return false; }), WaitEnd::TimedOut);
  EXPECT_TRUE(told_.empty());
  Turn();
  EXPECT_EQ(told_.size(), 1U);
}

TEST_F(NoticesWaiting, LeaveAlsoWhenOneBeforeThemShowsADialog) {
  notices_.Post(Notice::Complete, [this] {
    Turn();
    told_.push_back(QStringLiteral("complete"));
  });
  Post(Notice::Display, QStringLiteral("display"));
  Turn();
  Turn();
  EXPECT_THAT(told_, ::testing::ElementsAre(QStringLiteral("display"), QStringLiteral("complete")));
}

TEST_F(NoticesWaiting, AreGoneWithTheirQueue) {
  auto queue = std::make_unique<NoticeQueue>(guard_);
  queue->Post(Notice::Complete, [&] { queue.reset(); });
  queue->Post(Notice::Display, [this] { told_.push_back(QStringLiteral("display")); });
  Turn();
  EXPECT_EQ(queue, nullptr);
  EXPECT_TRUE(told_.empty());
}

}  // namespace

}  // namespace velor
