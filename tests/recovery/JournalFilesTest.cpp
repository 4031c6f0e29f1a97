// SPDX-License-Identifier: GPL-3.0-or-later
// What only real journals have: modes, locks, other runs, disks that fail.
#include "recovery/JournalFormat.h"
#include "tests/recovery/JournalFilesFixture.h"
#include "tests/support/Checks.h"
#include "tests/support/FaultyCalls.h"

#include <ctime>
#include <sys/wait.h>
#include <unistd.h>

namespace velor {
namespace {

TEST_F(JournalFilesTest, OnlyTheirOwnerMayReadThem) {
  const mode_t before = umask(0);
  JournalFiles journals;
  const auto journal = journals.Begin();
  journal->Write(Page(QStringLiteral("a")));
  umask(before);
  ASSERT_FALSE(Files().isEmpty());
  for (const QString &file : Files()) {
    EXPECT_EQ(ModeOf(file), 0600u) << file.toStdString();
    EXPECT_EQ(ModeOf(QFileInfo(file).path()), 0700u);
  }
}

TEST_F(JournalFilesTest, ARunThatEndsWithNothingToKeepLeavesNothing) {
  {
    JournalFiles journals;
    const auto journal = journals.Begin();
    journal->Write(Page(QStringLiteral("a")));
    journal->Remove();
  }
  EXPECT_TRUE(QDir(StateFolder() + "/recovery").isEmpty());
}

TEST_F(JournalFilesTest, RunsThatGoOnAreLeftAlone) {
  JournalFiles running;
  const auto journal = running.Begin();
  journal->Write(Page(QStringLiteral("still written")));
  JournalFiles second;
  EXPECT_TRUE(second.Abandoned().empty());
  journal->Write(Page(QStringLiteral("still written on")));
  EXPECT_EQ(Files().size(), 2);
}

TEST_F(JournalFilesTest, OfTwoRunsThatStartAfterACrashOneOffersThePages) {
  {
    JournalFiles ended;
    ended.Begin()->Write(Page(QStringLiteral("kept")));
  }
  auto first = std::make_unique<JournalFiles>();
  JournalFiles second;
  EXPECT_EQ(Documents(*first), std::vector{QStringLiteral("kept")});
  EXPECT_TRUE(second.Abandoned().empty());
  first.reset();
  EXPECT_EQ(Documents(second), std::vector{QStringLiteral("kept")});
}

TEST_F(JournalFilesTest, AKilledProcessLeavesWhatItWrote) {
  const pid_t child = fork();
  if (child == 0) {
    JournalFiles journals;
    const auto journal = journals.Begin();
    journal->Write(Page(QStringLiteral("one")));
    journal->Write(Page(QStringLiteral("one two")));
    kill(getpid(), SIGKILL);
  }
  int status = 0;
  waitpid(child, &status, 0);
  ASSERT_TRUE(WIFSIGNALED(status));
  JournalFiles next;
  EXPECT_EQ(Documents(next), std::vector{QStringLiteral("one two")});
}

TEST_F(JournalFilesTest, AJournalThatHasGrownBecomesShortAgainAndGoesOn) {
  {
    JournalFiles journals;
    const auto journal = journals.Begin();
    QString document(1000, u'x');
    journal->Write(Page(document));
    for (int i = 0; i < 100; ++i) {
      document.replace(0, 1000, QString(1000, QChar(u'a' + i % 26)));
      journal->Write(Page(document));
      journal->Write(Page(document + QString(2000, u'y')));
    }
    const QString file = Files().filter(QStringLiteral(".page")).value(0);
    EXPECT_GT(QFileInfo(file).size(), 300'000);
    journal->Compact();
    EXPECT_LT(QFileInfo(file).size(), 10'000);
    EXPECT_EQ(ModeOf(file), 0600u);
    journal->Write(Page(QStringLiteral("the last")));
  }
  JournalFiles next;
  EXPECT_EQ(Documents(next), std::vector{QStringLiteral("the last")});
}

TEST_F(JournalFilesTest, AFullDiskIsAnErrorAndHidesNothingThatIsWrittenLater) {
  FaultyCalls calls;
  {
    JournalFiles journals(calls);
    const auto journal = journals.Begin();
    journal->Write(Page(QStringLiteral("one")));
    // Half a record goes to the disk before it is full.
    calls.longestWrite = 10;
    calls.Fail(FaultyCalls::Call::Write, ENOSPC, 1);
    EXPECT_EQ(ErrorOf([&] { journal->Write(Page(QStringLiteral("one two"))); }),
              ErrorNumber::DiskFull);
    calls.FailNoMore();
    journal->Write(Page(QStringLiteral("one two three")));
  }
  JournalFiles next;
  EXPECT_EQ(Documents(next), std::vector{QStringLiteral("one two three")});
}

TEST_F(JournalFilesTest, ADiskThatCannotSyncIsAnError) {
  FaultyCalls calls;
  JournalFiles journals(calls);
  const auto journal = journals.Begin();
  journal->Write(Page(QStringLiteral("one")));
  calls.Fail(FaultyCalls::Call::Sync, EIO);
  EXPECT_EQ(ErrorOf([&] { journal->Compact(); }), ErrorNumber::DeviceIoError);
}

TEST_F(JournalFilesTest, AStateFolderThatCannotBeMadeIsAnError) {
  qputenv("XDG_STATE_HOME", "/proc/no-such-folder");
  JournalFiles journals;
  const auto journal = journals.Begin();
  EXPECT_NE(ErrorOf([&] { journal->Write(Page(QStringLiteral("one"))); }), ErrorNumber::None);
  EXPECT_TRUE(journals.Abandoned().empty());
}

TEST_F(JournalFilesTest, AFolderOfARunThatEndedBeforeItsLockGoes) {
  ASSERT_TRUE(QDir().mkpath(StateFolder() + "/recovery/1-1"));
  EXPECT_TRUE(JournalFiles().Abandoned().empty());
  EXPECT_TRUE(QDir(StateFolder() + "/recovery").isEmpty());
}

TEST_F(JournalFilesTest, OfThousandsOfEndedRunsTheNewestAreOfferedAtOnce) {
  constexpr int Runs = 10'000;
  const QString root = StateFolder() + "/recovery/";
  const QByteArray journal = JournalHead() + JournalRecord(Page(QString(20'000, u'x')));
  ASSERT_TRUE(QDir().mkpath(root));
  for (int run = 1; run <= Runs; ++run) {
    const QString folder = root + QStringLiteral("%1-%2").arg(Runs - run).arg(run);
    ASSERT_TRUE(QDir().mkdir(folder));
    QFile file(folder + "/1.page");
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(run > Runs - 300 ? journal : QByteArray());
  }
  JournalFiles journals;
  const std::clock_t before = std::clock();
  auto pages = journals.Abandoned();
  // Processor time that nobody notices; opening and reading ten thousand files takes over a second.
  EXPECT_LT(std::clock() - before, CLOCKS_PER_SEC / 4);
  ASSERT_EQ(pages.size(), JournalFiles::MostOffered);
  EXPECT_EQ(pages[0].defect, QString());
  const auto isNewest = [](const AbandonedPage &page) {
    return QFileInfo(QFileInfo(page.id).path()).fileName().section(u'-', 1).toInt() > Runs - 200;
  };
  EXPECT_TRUE(std::all_of(pages.begin(), pages.end(), isNewest));
  for (const AbandonedPage &page : pages) journals.Discard(page.id);
  pages = journals.Abandoned();
  EXPECT_EQ(pages.size(), JournalFiles::MostOffered);
  EXPECT_FALSE(std::any_of(pages.begin(), pages.end(), isNewest));
}

TEST_F(JournalFilesTest, AJournalGoesToTheDiskBeforeItsNameAndTheNameBeforeItsFolders) {
  FaultyCalls calls;
  JournalFiles journals(calls);
  const auto journal = journals.Begin();
  journal->Write(Page(QStringLiteral("one")));
  calls.order.clear();
  journal->Compact();
  using Call = FaultyCalls::Call;
  EXPECT_EQ(calls.order, (std::vector{Call::Sync, Call::Sync, Call::Sync}));
  calls.order.clear();
  journal->Compact();
  EXPECT_EQ(calls.order, std::vector{Call::Sync});
  // Grown far beyond the page.
  for (int i = 0; i < 200; ++i) journal->Write(Page(QString(1000, QChar(u'a' + i % 26))));
  calls.order.clear();
  journal->Compact();
  EXPECT_EQ(calls.order, (std::vector{Call::Open, Call::Write, Call::Sync, Call::Rename, Call::Sync,
                                      Call::Sync}));
}

TEST_F(JournalFilesTest, AProcessThatEndsAtAnyStepLosesNothingThatWasWritten) {
  int step = 1;
  for (;; ++step) {
    const pid_t child = fork();
    if (child == 0) {
      FaultyCalls calls;
      JournalFiles journals(calls);
      const auto journal = journals.Begin();
      journal->Write(Page(QStringLiteral("first")));
      calls.KillBefore(step);
      journal->Write(Page(QStringLiteral("first second")));
      journal->Compact();
      for (int i = 0; i < 10; ++i)
        journal->Write(Page(QStringLiteral("first ") + QString(30'000, QChar(u'a' + i))));
      journal->Compact();
      _exit(0);
    }
    int status = 0;
    waitpid(child, &status, 0);
    JournalFiles next;
    const auto documents = Documents(next);
    ASSERT_EQ(documents.size(), 1U) << step;
    EXPECT_TRUE(documents[0].startsWith(QStringLiteral("first"))) << step;
    for (const AbandonedPage &page : next.Abandoned()) next.Discard(page.id);
    if (!WIFSIGNALED(status)) break;
  }
  EXPECT_GT(step, 15);
}

TEST_F(JournalFilesTest, AJournalThatCouldNotBeContinuedIsReplacedWhole) {
  FaultyCalls calls;
  {
    JournalFiles journals(calls);
    const auto journal = journals.Begin();
    journal->Write(Page(QStringLiteral("one")));
    calls.Fail(FaultyCalls::Call::Write, EIO, 0, 1);
    calls.alsoFails = FaultyCalls::Call::Truncate;
    EXPECT_EQ(ErrorOf([&] { journal->Write(Page(QStringLiteral("one two"))); }),
              ErrorNumber::DeviceIoError);
    calls.FailNoMore();
    JournalFiles other;
    journal->Write(Page(QStringLiteral("one two three")));
  }
  JournalFiles next;
  EXPECT_EQ(Documents(next), std::vector{QStringLiteral("one two three")});
}

/// One page's life in a journal, with one call that fails, and what came of it.
struct FaultyLife {
  int errors = 0;
  bool hasFailed = false;
  QString lastWritten;  ///< by a Write that went well
};

TEST_F(JournalFilesTest, EveryCallThatFailsIsAnErrorAndLeavesWhatWasWritten) {
  const auto live = [this](int number, int error) {
    FaultyLife life;
    FaultyCalls calls;
    JournalFiles journals(calls);
    const auto journal = journals.Begin();
    const auto attempt = [&](const auto &step) {
      const bool fails = ErrorOf(step) != ErrorNumber::None;
      life.errors += fails ? 1 : 0;
      return !fails;
    };
    const auto write = [&](const QString &text) {
      if (attempt([&] { journal->Write(Page(text)); })) life.lastWritten = text;
    };
    calls.FailAt(number, error);
    write(QStringLiteral("first"));
    write(QStringLiteral("first second"));
    attempt([&] { journal->Compact(); });
    for (int i = 0; i < 10; ++i) write(QString(30'000, QChar(u'a' + i)));
    attempt([&] { journal->Compact(); });
    write(QStringLiteral("last"));
    life.hasFailed = calls.calls >= number;
    return life;
  };
  for (const int error : {ENOSPC, EIO, EROFS, EDQUOT, EINTR}) {
    int number = 1;
    for (bool hasFailed = true; hasFailed; ++number) {
      SCOPED_TRACE(testing::Message() << error << ' ' << number);
      const FaultyLife life = live(number, error);
      hasFailed = life.hasFailed;
      EXPECT_EQ(life.errors, hasFailed && error != EINTR ? 1 : 0);
      JournalFiles next;
      EXPECT_EQ(Documents(next), std::vector{life.lastWritten});
      for (const AbandonedPage &page : next.Abandoned()) next.Discard(page.id);
      EXPECT_TRUE(QDir(StateFolder() + "/recovery").isEmpty());
    }
    EXPECT_GT(number, 20);
  }
}

}  // namespace
}  // namespace velor
