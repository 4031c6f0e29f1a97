// SPDX-License-Identifier: GPL-3.0-or-later
// The document can be read at any moment, also inside a notice or another wait, and the answer
// comes at once.
#include "platform/EditingCommands.h"
#include "tests/engine/ComponentFixture.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QTest>
#include <QTimer>

#include <functional>
#include <utility>

namespace velor {

namespace {

constexpr int Rounds = 60;

class Reading : public WebEditorTest {
 protected:
  void SetUp() override { LoadWithCaret("<p>One</p>", QStringLiteral("p")); }

  /// Reads the document; the answer must come well before the component's time limit.
  void ExpectRead() {
    QElapsedTimer waited;
    waited.start();
    EXPECT_TRUE(DocumentHolds(QStringLiteral("<p>One")));
    EXPECT_LT(waited.elapsed(), 5000);
    ++readings_;
  }

  int readings_ = 0;
};

TEST_F(Reading, FromEveryNotice) {
  for (auto *notice :
       {&listener_.onDisplayChange, &listener_.onComplete, &listener_.onMenu, &listener_.onMouse})
    *notice = [this] { ExpectRead(); };
  for (int round = 0; round < Rounds; ++round) {
    const int before = readings_;
    TypeText(QStringLiteral("x"));
    QTest::mouseMove(Input(), {20 + round, 30});
    if (round % 10 == 0) QTest::mouseClick(Input(), Qt::RightButton, {}, {60, 40});
    ASSERT_TRUE(WaitFor([&] { return readings_ > before; })) << round;
  }
  EXPECT_GE(listener_.menus, 1);
  EXPECT_GE(listener_.mouseNotices, 1);
  editor_->LoadDocument(Logic(QStringLiteral("page.htm")));
  ASSERT_TRUE(WaitFor([&] { return listener_.completions == 2; }));
}

TEST_F(Reading, FromTimersAndPostedCalls) {
  for (int round = 0; round < Rounds; ++round) {
    const int before = readings_;
    TypeText(QStringLiteral("x"));
    QTimer::singleShot(0, window_.get(), [this] { ExpectRead(); });
    QTimer::singleShot(1, window_.get(), [this] { ExpectRead(); });
    QMetaObject::invokeMethod(
        window_.get(), [this] { ExpectRead(); }, Qt::QueuedConnection);
    ASSERT_TRUE(WaitFor([&] { return readings_ == before + 3; })) << round;
  }
}

TEST_F(Reading, FromAKeyOnItsWayToThePage) {
  class Filter : public QObject {
   public:
    explicit Filter(std::function<void()> read) : read_(std::move(read)) {}
    bool eventFilter(QObject *, QEvent *event) override {
      if (event->type() == QEvent::KeyPress) read_();
      return false;
    }

   private:
    std::function<void()> read_;
  } filter([this] { ExpectRead(); });
  Input()->installEventFilter(&filter);
  for (int round = 0; round < Rounds; ++round) TypeText(QStringLiteral("x"));
  EXPECT_EQ(readings_, Rounds);
  Input()->removeEventFilter(&filter);
}

TEST_F(Reading, FromWithinANestedEventLoop) {
  for (int round = 0; round < Rounds; ++round) {
    QEventLoop loop;
    QTimer::singleShot(1, &loop, [&] {
      ExpectRead();
      loop.quit();
    });
    TypeText(QStringLiteral("x"));
    loop.exec();
  }
  EXPECT_EQ(readings_, Rounds);
}

TEST_F(Reading, FromWithinAnotherReading) {
  for (int round = 0; round < Rounds; ++round) {
    const int before = readings_;
    QTimer::singleShot(0, window_.get(), [this] { ExpectRead(); });
    ExpectRead();
    ASSERT_TRUE(WaitFor([&] { return readings_ == before + 2; })) << round;
  }
}

TEST_F(Reading, NoNoticeComesWhileADocumentIsRead) {
  bool reading = false;
  int inside = 0;
  listener_.onDisplayChange = [&] { inside += reading ? 1 : 0; };
  for (int round = 0; round < Rounds; ++round) {
    editor_->ExecCommand(EditingCommand::SelectAll, ExecOption::Default, {});
    editor_->ExecCommand(EditingCommand::Bold, ExecOption::Default, {});
    reading = true;
    EXPECT_EQ(DocumentHolds(QStringLiteral("<b>One</b>")), round % 2 == 0);
    reading = false;
  }
  EXPECT_EQ(inside, 0);
  EXPECT_TRUE(WaitFor([&] { return listener_.displayChanges > 0; }));
}

}  // namespace

}  // namespace velor
