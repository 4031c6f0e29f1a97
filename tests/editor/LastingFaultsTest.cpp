// SPDX-License-Identifier: GPL-3.0-or-later
// A disk that stays full, from any call on: neither saves nor journals, exits nor reloads lose what
// was typed.
#include "editor/OutsideChanges.h"
#include "editor/PagesAtExit.h"
#include "tests/editor/Sitting.h"
#include "tests/support/Waiting.h"

#include <QPushButton>

#include <functional>
#include <memory>

namespace velor {
namespace {

const QByteArray Old = "<p>old</p>";
const QByteArray Theirs = "<p>theirs</p>";
const QString Changed = QStringLiteral("<p>changed</p>");
constexpr int MostCalls = 200;

/// A person who ends nothing and gives nothing up, and counts the questions.
class CautiousPerson final : public Dialogs {
 public:
  int questions = 0;

  MessageAnswer ShowMessage(const Message &message) override {
    if (message.buttons == MessageButtons::Ok) return MessageAnswer::Ok;
    ++questions;
    return message.buttons == MessageButtons::YesNo ? MessageAnswer::No : MessageAnswer::Cancel;
  }
  int Choose(const Message &, const QStringList &captions) override {
    ++questions;
    return static_cast<int>(captions.size()) - 1;
  }
  QString AskText(const QString &, const QString &, const QString &) override { return {}; }
  void RunModal(QWidget &) override {}
};

class LastingFaults : public Sittings {
 protected:
  /// Lets the disk be full from the first call on, from the second, and so on until a sitting
  /// needs fewer calls.
  void FromEachCallOn(const std::function<void()> &sitting) {
    for (const int error : {ENOSPC, EIO}) {
      for (int number = 1;; ++number) {
        SCOPED_TRACE(testing::Message() << error << " from call " << number);
        ASSERT_LT(number, MostCalls);
        Prepare(Old);
        person = {};
        run = std::make_unique<Sitting>(page_, &person);
        failAt = [this, number, error] {
          run->calls.FailAt(number, error, FaultyCalls::Lasting::FromThenOn);
        };
        sitting();
        const bool isDone = run != nullptr && run->calls.calls < number;
        const bool wasDone = run == nullptr && lastCalls < number;
        run.reset();
        if (!isDone && !wasDone) continue;
        EXPECT_GT(number, 3);
        break;
      }
    }
  }
  /// Ends the sitting as the program's end does.
  void End() {
    lastCalls = run->calls.calls;
    run.reset();
  }

  CautiousPerson person;
  std::unique_ptr<Sitting> run;
  std::function<void()> failAt;
  int lastCalls = 0;
};

TEST_F(LastingFaults, APageThatIsInNoFileAndNoJournalNeverClosesUnasked) {
  FromEachCallOn([this] {
    failAt();
    run->Component().Edit(Changed);
    modWorkFlow::SaveAndReport(run->context, run->Page(), modWorkFlow::SaveKind::Save);
    const bool isClosed = run->Page().close();
    run->calls.FailNoMore();
    if (!isClosed) {
      EXPECT_EQ(person.questions, 1);
      EXPECT_EQ(Content(page_), Old);
      EXPECT_EQ(modWorkFlow::SaveAndReport(run->context, run->Page(), modWorkFlow::SaveKind::Save),
                modWorkFlow::SaveEnd::Safe);
      EXPECT_EQ(Content(page_), Changed.toUtf8());
      return;
    }
    EXPECT_EQ(person.questions, 0);
    End();
    EXPECT_TRUE(Content(page_) == Changed.toUtf8() || IsRecovered(Changed));
  });
}

TEST_F(LastingFaults, AnExitAsksWhereItCanKeepNothingAndElseTheNextStartOffersThePage) {
  FromEachCallOn([this] {
    failAt();
    run->Component().Edit(Changed);
    const bool mayEnd = KeepPagesAtExit(run->context);
    EXPECT_EQ(person.questions, mayEnd ? 0 : 1);
    const int calls = run->calls.calls;
    run->calls.FailNoMore();
    EXPECT_TRUE(mayEnd || KeepPagesAtExit(run->context));
    End();
    lastCalls = calls;
    EXPECT_TRUE(IsRecovered(Changed));
    EXPECT_EQ(Content(page_), Old);
  });
}

TEST_F(LastingFaults, AFileTakenInThePlaceOfAChangedPageComesOnlyWhenThePagesTextIsKept) {
  FromEachCallOn([this] {
    run->Component().Edit(Changed);
    Write(page_, Theirs);
    run->watches.Change(ToLogic(page_));
    OutsideChanges &bar = run->Page().Outside();
    ASSERT_TRUE(WaitFor([&] { return bar.isVisibleTo(&run->Page()); }));
    failAt();
    try {
      bar.findChild<QPushButton *>(QStringLiteral("cmdTakeTheirs"))->click();
    } catch (const RuntimeError &) {
      // The event boundary tells it.
    }
    const QString shown = run->Component().Memory().document;
    EXPECT_EQ(Content(page_), Theirs);
    if (shown == Changed) {
      EXPECT_TRUE(bar.isVisibleTo(&run->Page()));
    } else {
      EXPECT_EQ(shown.toUtf8(), Theirs);
      EXPECT_TRUE(IsKept(Changed.toUtf8()));
    }
  });
}

}  // namespace
}  // namespace velor
