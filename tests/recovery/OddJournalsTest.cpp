// SPDX-License-Identifier: GPL-3.0-or-later
// A state folder that cannot be used, and what lies there in a journal's place.
#include "platform/RuntimeError.h"
#include "tests/recovery/JournalFilesFixture.h"
#include "tests/support/Checks.h"
#include "tests/support/FaultyCalls.h"
#include "tests/support/Hindrances.h"

#include <unistd.h>

namespace velor {
namespace {

TEST_F(JournalFilesTest, AStateFolderThatCannotBeMadeIsToldBeforeAnythingIsWritten) {
  EXPECT_EQ(JournalFiles().ReasonUnavailable(), QString());
  EXPECT_TRUE(QDir(StateFolder() + "/recovery").isEmpty());
  qputenv("XDG_STATE_HOME", "/proc/no-such-folder");
  EXPECT_NE(JournalFiles().ReasonUnavailable(), QString());
}

TEST_F(JournalFilesTest, AStateFolderThatIsAFileIsToldToo) {
  QFile file(folder_.filePath("velor-web-creator"));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  EXPECT_NE(JournalFiles().ReasonUnavailable(), QString());
  EXPECT_TRUE(JournalFiles().Abandoned().empty());
}

TEST_F(JournalFilesTest, AFullDiskIsToldBeforeAnythingIsWritten) {
  FaultyCalls calls;
  JournalFiles journals(calls);
  calls.Fail(FaultyCalls::Call::Write, ENOSPC);
  EXPECT_TRUE(journals.ReasonUnavailable().startsWith(Description(61)));
  EXPECT_TRUE(QDir(StateFolder() + "/recovery").isEmpty());
}

TEST_F(JournalFilesTest, AnotherUsersFolderIsNotUsed) {
  if (geteuid() != 0) return;  // nobody else can make one
  ASSERT_TRUE(QDir().mkpath(StateFolder() + "/recovery"));
  ASSERT_EQ(chown(QFile::encodeName(StateFolder() + "/recovery").constData(), 65534, 65534), 0);
  EXPECT_NE(JournalFiles().ReasonUnavailable(), QString());
}

/// What lies in a run's folder in a journal's place.
class OddJournals : public JournalFilesTest {
 protected:
  OddJournals() {
    JournalFiles ended;
    ended.Begin()->Write(Page(QStringLiteral("text")));
    journal_ = Files().filter(QStringLiteral(".page")).value(0);
  }
  QByteArray Content() const {
    QFile file(journal_);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
  }
  void Put(const QByteArray &content) const {
    QFile file(journal_);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
  }
  /// It is offered with its defect, stays until the person decides, and goes then.
  void ExpectOfferedWithADefect() const {
    {
      JournalFiles journals;
      const auto pages = journals.Abandoned();
      ASSERT_EQ(pages.size(), 1U);
      EXPECT_TRUE(pages[0].defect.contains(journal_)) << pages[0].defect.toStdString();
      EXPECT_NE(ErrorOf([&] { journals.Read(pages[0].id); }), ErrorNumber::None);
    }
    JournalFiles journals;
    ASSERT_EQ(journals.Abandoned().size(), 1U);
    journals.Discard(journals.Abandoned()[0].id);
    EXPECT_TRUE(journals.Abandoned().empty());
    EXPECT_TRUE(QDir(StateFolder() + "/recovery").isEmpty());
  }

  QString journal_;
};

TEST_F(OddJournals, AnEmptyOne) {
  Put({});
  ExpectOfferedWithADefect();
}

TEST_F(OddJournals, OneOfAnotherVersion) {
  Put(Content().replace("journal 1", "journal 2"));
  ExpectOfferedWithADefect();
}

TEST_F(OddJournals, ALinkThatSomebodyPut) {
  ASSERT_TRUE(QFile::rename(journal_, folder_.filePath("elsewhere")));
  ASSERT_TRUE(QFile::link(folder_.filePath("elsewhere"), journal_));
  ExpectOfferedWithADefect();
  EXPECT_TRUE(QFile::exists(folder_.filePath("elsewhere")));
}

TEST_F(OddJournals, AnotherUsersFile) {
  if (geteuid() != 0) return;  // nobody else can make one
  ASSERT_EQ(chown(QFile::encodeName(journal_).constData(), 65534, 65534), 0);
  ExpectOfferedWithADefect();
}

TEST_F(JournalFilesTest, AFileThatMayNotBeReadIsOfferedWithItsDefect) {
  const AsOrdinaryUser user;
  {
    JournalFiles ended;
    ended.Begin()->Write(Page(QStringLiteral("text")));
  }
  const QString journal = Files().filter(QStringLiteral(".page")).value(0);
  ASSERT_TRUE(QFile::setPermissions(journal, QFile::WriteOwner));
  JournalFiles journals;
  const auto pages = journals.Abandoned();
  ASSERT_EQ(pages.size(), 1U);
  EXPECT_TRUE(pages[0].defect.contains(journal)) << pages[0].defect.toStdString();
}

TEST_F(OddJournals, AFolderIsToldAndNothingInItIsTouched) {
  ASSERT_TRUE(QFile::remove(journal_));
  ASSERT_TRUE(QDir().mkpath(journal_ + "/in it"));
  JournalFiles journals;
  const auto pages = journals.Abandoned();
  ASSERT_EQ(pages.size(), 1U);
  EXPECT_TRUE(pages[0].defect.contains(journal_));
  EXPECT_NE(ErrorOf([&] { journals.Discard(pages[0].id); }), ErrorNumber::None);
  EXPECT_TRUE(QDir(journal_ + "/in it").exists());
}

TEST_F(OddJournals, OneThatIsTornSaysSoWhenItIsRead) {
  Put(Content() + "torn");
  JournalFiles journals;
  const auto pages = journals.Abandoned();
  ASSERT_EQ(pages.size(), 1U);
  const JournalReading reading = journals.Read(pages[0].id);
  EXPECT_TRUE(reading.endIsMissing);
  EXPECT_EQ(reading.page.page.document, QStringLiteral("text"));
}

TEST_F(OddJournals, WhatElseLiesThereIsLeftWhenTheJournalsGo) {
  const QString folder = QFileInfo(journal_).path();
  QFile mine(folder + "/mine.txt");
  ASSERT_TRUE(mine.open(QIODevice::WriteOnly));
  QFile fragment(folder + "/7.tmp");
  ASSERT_TRUE(fragment.open(QIODevice::WriteOnly));
  JournalFiles journals;
  for (const AbandonedPage &page : journals.Abandoned()) journals.Discard(page.id);
  EXPECT_TRUE(mine.exists());
  EXPECT_FALSE(fragment.exists());
}

TEST_F(OddJournals, ARunsFolderThatIsALinkIsNotLookedInto) {
  const QString run = QFileInfo(journal_).path();
  ASSERT_TRUE(QDir().rename(run, folder_.filePath("elsewhere")));
  ASSERT_TRUE(QFile::link(folder_.filePath("elsewhere"), run));
  EXPECT_TRUE(JournalFiles().Abandoned().empty());
  EXPECT_EQ(QDir(folder_.filePath("elsewhere")).entryList(QDir::Files).size(), 2);
}

}  // namespace
}  // namespace velor
