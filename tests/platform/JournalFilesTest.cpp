// SPDX-License-Identifier: GPL-3.0-or-later
// What only real journals have: modes, locks, other runs, disks that fail.
#include "platform/qt/StateFolder.h"
#include "platform/qt/files/JournalFiles.h"
#include "tests/support/Checks.h"
#include "tests/support/FaultyCalls.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <sys/stat.h>
#include <sys/wait.h>

namespace velor {
namespace {

class JournalFilesTest : public testing::Test {
 protected:
  JournalFilesTest() { qputenv("XDG_STATE_HOME", folder_.path().toLocal8Bit()); }
  ~JournalFilesTest() override { qputenv("XDG_STATE_HOME", stateHome_); }

  static JournalledPage Page(const QString &document) {
    JournalledPage page;
    page.page.document = document;
    page.time = QDateTime::currentDateTime();
    return page;
  }
  /// What lies in the recovery folder, below the folders of the runs.
  QStringList Files() const {
    QStringList files;
    const QDir root(StateFolder() + "/recovery");
    for (const QString &run : root.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
      for (const QString &name : QDir(root.filePath(run)).entryList(QDir::Files | QDir::Hidden))
        files << root.filePath(run + u'/' + name);
    }
    return files;
  }
  static mode_t ModeOf(const QString &path) {
    struct stat status {};
    EXPECT_EQ(stat(QFile::encodeName(path).constData(), &status), 0);
    return status.st_mode & 07777;
  }
  static std::vector<QString> Documents(Journals &journals) {
    std::vector<QString> documents;
    for (const AbandonedPage &page : journals.Abandoned())
      documents.push_back(page.page.page.document);
    return documents;
  }

  QByteArray stateHome_ = qgetenv("XDG_STATE_HOME");
  QTemporaryDir folder_;
};

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
    journal->Rest();
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
  EXPECT_EQ(ErrorOf([&] { journal->Rest(); }), ErrorNumber::DeviceIoError);
}

TEST_F(JournalFilesTest, AStateFolderThatCannotBeMadeIsAnError) {
  qputenv("XDG_STATE_HOME", "/proc/no-such-folder");
  JournalFiles journals;
  const auto journal = journals.Begin();
  EXPECT_NE(ErrorOf([&] { journal->Write(Page(QStringLiteral("one"))); }), ErrorNumber::None);
  EXPECT_TRUE(journals.Abandoned().empty());
}

}  // namespace
}  // namespace velor
