// SPDX-License-Identifier: GPL-3.0-or-later
// A program that is killed while somebody types or saves: the file is the old or the new one,
// whole, and the journal is at most two seconds behind.
#include "recovery/JournalFiles.h"
#include "tests/support/Checks.h"

#include <QDateTime>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <algorithm>
#include <unistd.h>
#include <vector>

namespace velor {
namespace {

constexpr qint64 MostBehind = 2000;  // ms
constexpr int StartLimit = 120'000;
const QByteArray Old = "<html><head></head><body><p>-</p></body></html>";
/// One megabyte before the place that is typed at.
const QByteArray Large = QByteArray(Old).replace(
    "<p>-",
    QByteArray("<p>The quick <b>brown</b> fox jumps over the lazy dog.</p>\n").repeated(17'500) +
        "<p>-");
const QByteArray Alphabet = "abcdefghijklmnopqrstuvwxyz";
const QByteArray Changed = QByteArray(Old).replace("-", "-" + Alphabet);

/// A kind of run's share of all, of which every day's are 25.
int Runs(int ofTwentyFive) {
  const int wanted = qEnvironmentVariableIntValue("VELOR_CRASH_RUNS");
  return wanted > 0 ? (wanted * ofTwentyFive + 24) / 25 : ofTwentyFive;
}

/// A person's folders, with one page or more.
class Home {
 public:
  Home() {
    qputenv("XDG_STATE_HOME", folder_.filePath(QStringLiteral("state")).toLocal8Bit());
    qputenv("VELOR_PROGRAM_FOLDER", folder_.path().toLocal8Bit());
    Write(QStringLiteral("page.htm"));
  }
  ~Home() {
    qunsetenv("VELOR_PROGRAM_FOLDER");
    qputenv("XDG_STATE_HOME", stateHome_);
  }

  QString Path(const QString &name) const { return folder_.filePath(name); }
  void Write(const QString &name, const QByteArray &content = Old) const {
    QFile file(Path(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
  }
  QByteArray Content(const QString &name) const {
    QFile file(Path(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
  }
  /// The versions kept of replaced files.
  QList<QByteArray> Kept() const {
    QList<QByteArray> contents;
    const QString folder = QStringLiteral("state/velor-web-creator/replaced/");
    for (const QString &name : QDir(Path(folder)).entryList({QStringLiteral("*.htm")}))
      contents << Content(folder + name);
    return contents;
  }

 private:
  QByteArray stateHome_ = qgetenv("XDG_STATE_HOME");
  QTemporaryDir folder_;
};

/// One life of the program.
class Life {
 public:
  Life(const QString &what, const QString &file, quint32 number) {
    process_.setStandardErrorFile(QProcess::nullDevice());
    process_.start(QStringLiteral(VELOR_CRASH_SUBJECT), {what, file, QString::number(number)});
  }

  /// Reads what the program tells until that line, its end or the time limit.
  bool Hears(const QByteArray &line, qint64 limit) {
    QElapsedTimer clock;
    clock.start();
    for (;;) {
      while (process_.canReadLine()) {
        const QByteArray heard = process_.readLine().trimmed();
        if (heard.startsWith("key ")) keys_.push_back(heard.split(' ')[2].toLongLong());
        if (heard == line) return true;
      }
      const qint64 left = limit - clock.elapsed();
      if (left <= 0 || process_.state() == QProcess::NotRunning) return false;
      process_.waitForReadyRead(static_cast<int>(left));
    }
  }
  void Kill() {
    killed_ = QDateTime::currentMSecsSinceEpoch();
    process_.kill();
    process_.waitForFinished(StartLimit);
    Hears("the end", 0);
  }
  /// How long before the kill the first key that is not in so many letters was pressed, by the
  /// clock on the wall.
  qint64 Behind(qsizetype letters) const {
    const auto first = static_cast<std::size_t>(letters);
    return first < keys_.size() ? killed_ - keys_[first] : 0;
  }

 private:
  QProcess process_;
  qint64 killed_ = 0;
  std::vector<qint64> keys_;
};

/// The number of letters that were typed into a text.
qsizetype Letters(const QString &html) {
  const QString start = QStringLiteral("<p>-");
  const qsizetype from = html.indexOf(start) + start.size();
  const QByteArray text = html.mid(from, html.indexOf(u'<', from) - from).toUtf8();
  // Nothing is missing within it.
  EXPECT_EQ(text, Alphabet.repeated(text.size() / Alphabet.size() + 1).left(text.size()));
  return text.size();
}

std::vector<JournalledPage> Recovered(const QByteArray &original = Old) {
  JournalFiles journals;
  std::vector<JournalledPage> pages;
  for (const AbandonedPage &page : journals.Abandoned()) {
    EXPECT_EQ(page.defect, QString());
    pages.push_back(journals.Read(page.id).page);
    EXPECT_EQ(pages.back().page.original, original);
  }
  return pages;
}

qsizetype RecoveredLetters() {
  const auto pages = Recovered();
  return pages.empty() ? 0 : Letters(pages[0].page.document);
}

const QString Page = QStringLiteral("page.htm");

TEST(Crash, WhatWasTypedUpToTwoSecondsBeforeAKillIsRecovered) {
  QRandomGenerator random(20);
  qint64 furthest = 0;
  for (int run = 0; run < Runs(6); ++run) {
    SCOPED_TRACE(run);
    const Home home;
    Life life(QStringLiteral("type"), home.Path(Page), random.generate());
    ASSERT_TRUE(life.Hears("ready", StartLimit));
    life.Hears("the kill", random.bounded(300, 5000));
    life.Kill();
    EXPECT_EQ(home.Content(Page), Old);
    EXPECT_LE(Recovered().size(), 1U);
    const qint64 behind = life.Behind(RecoveredLetters());
    EXPECT_LE(behind, MostBehind);
    furthest = std::max(furthest, behind);
  }
  RecordProperty("furthest_behind_ms", static_cast<int>(furthest));
}

TEST(Crash, ALargePageIsNoFurtherBehind) {
  QRandomGenerator random(22);
  for (int run = 0; run < Runs(1); ++run) {
    SCOPED_TRACE(run);
    const Home home;
    home.Write(Page, Large);
    Life life(QStringLiteral("type"), home.Path(Page), random.generate());
    ASSERT_TRUE(life.Hears("ready", StartLimit));
    life.Hears("the kill", random.bounded(3000, 6000));
    life.Kill();
    EXPECT_EQ(home.Content(Page), Large);
    const auto pages = Recovered(Large);
    ASSERT_EQ(pages.size(), 1U);
    const qsizetype letters = Letters(pages[0].page.document);
    EXPECT_GT(letters, 0);
    EXPECT_LE(life.Behind(letters), MostBehind);
  }
}

TEST(Crash, WhatWasTypedIntoASourceAndNotAppliedIsRecovered) {
  QRandomGenerator random(21);
  for (int run = 0; run < Runs(2); ++run) {
    SCOPED_TRACE(run);
    const Home home;
    Life life(QStringLiteral("source"), home.Path(Page), random.generate());
    ASSERT_TRUE(life.Hears("ready", StartLimit));
    life.Hears("the kill", random.bounded(1000, 5000));
    life.Kill();
    EXPECT_EQ(home.Content(Page), Old);
    const auto pages = Recovered();
    const qsizetype letters = pages.empty() || !pages[0].source ? 0 : Letters(*pages[0].source);
    EXPECT_LE(life.Behind(letters), MostBehind);
    if (!pages.empty()) {
      EXPECT_EQ(Letters(pages[0].page.document), 0);
    }
  }
}

/// Saves that are killed before one call after the other, and what the page's file holds then.
class KilledSaves {
 public:
  int olds = 0;
  int news = 0;

  template <typename Prepare>
  void Run(int runs, int firstStep, Prepare prepare) {
    int step = firstStep;
    for (int run = 0; run < runs; ++run) {
      SCOPED_TRACE(step);
      const Home home;
      prepare(home);
      Life life(QStringLiteral("save"), home.Path(Page), static_cast<quint32>(step));
      ASSERT_TRUE(life.Hears("saving", StartLimit));
      const bool isSaved = life.Hears("done", StartLimit);
      life.Kill();
      step = isSaved ? 1 : step + 1;
      const QByteArray file = home.Content(Page);
      EXPECT_TRUE(file == Old || file == Changed || home.Kept().contains(Old))
          << file.toStdString();
      if (file != Changed) {
        EXPECT_EQ(RecoveredLetters(), Alphabet.size());
      }
      ++(file == Changed ? news : olds);
    }
  }
};

TEST(Crash, AKillAtAnyStepOfASaveLeavesTheOldFileAndTheTextOrTheNewFile) {
  KilledSaves saves;
  saves.Run(Runs(8), 1, [](const Home &) {});
  EXPECT_GT(saves.olds, 3);
  EXPECT_GT(saves.news, 1);
}

TEST(Crash, ThroughALinkToo) {
  KilledSaves().Run(Runs(2), 5, [](const Home &home) {
    ASSERT_TRUE(QFile::rename(home.Path(Page), home.Path(QStringLiteral("real.htm"))));
    ASSERT_TRUE(QFile::link(home.Path(QStringLiteral("real.htm")), home.Path(Page)));
  });
}

TEST(Crash, InPlaceWithTheOldFileAmongTheReplacedVersions) {
  KilledSaves().Run(Runs(3), 14, [](const Home &home) {
    ASSERT_EQ(link(QFile::encodeName(home.Path(Page)).constData(),
                   QFile::encodeName(home.Path(QStringLiteral("second.htm"))).constData()),
              0);
  });
}

TEST(Crash, AKillAtAnyStepOfAJournalLeavesAJournalThatCanBeRead) {
  for (int run = 0; run < Runs(2); ++run) {
    const int step = 2 + run % 8;
    SCOPED_TRACE(step);
    const Home home;
    Life life(QStringLiteral("journal"), home.Path(Page), static_cast<quint32>(step));
    life.Hears("done", StartLimit);
    life.Kill();
    EXPECT_EQ(home.Content(Page), Old);
    EXPECT_LE(Recovered().size(), 1U);
    // From the fourth on its name is there, and all that comes then makes it last.
    if (step > 3) {
      EXPECT_GT(RecoveredLetters(), 0);
    }
  }
}

TEST(Crash, AKillAtAnyStepOfARestoreLosesNothing) {
  for (int run = 0; run < Runs(1); ++run) {
    const int step = 1 + (run + 3) % 8;
    SCOPED_TRACE(step);
    const Home home;
    Life before(QStringLiteral("save"), home.Path(Page), 1);
    before.Hears("done", StartLimit);
    before.Kill();
    ASSERT_EQ(RecoveredLetters(), Alphabet.size());
    Life life(QStringLiteral("restore"), home.Path(Page), static_cast<quint32>(step));
    life.Hears("done", StartLimit);
    life.Kill();
    EXPECT_EQ(RecoveredLetters(), Alphabet.size());
  }
}

TEST(Crash, AKilledRunsPageComesBackAfterEveryExitThatFollows) {
  const Home home;
  Life killed(QStringLiteral("journal"), home.Path(Page), 0);
  ASSERT_TRUE(killed.Hears("done", StartLimit));
  killed.Kill();
  for (const int alphabets : {2, 3}) {
    Life again(QStringLiteral("return"), home.Path(Page), 0);
    ASSERT_TRUE(again.Hears("done", StartLimit));
    again.Kill();
    const auto pages = Recovered();
    ASSERT_EQ(pages.size(), 1U);
    EXPECT_EQ(pages[0].end, RunEnd::Exit);
    EXPECT_TRUE(pages[0].page.document.contains(QString::fromLatin1(Alphabet.repeated(alphabets))))
        << pages[0].page.document.toStdString();
    EXPECT_EQ(home.Content(Page), Old);
  }
}

TEST(Crash, TwoCopiesAtOnceLeaveEachOthersPagesAlone) {
  for (int run = 0; run < Runs(1); ++run) {
    const Home home;
    const QString other = QStringLiteral("other.htm");
    home.Write(other);
    Life first(QStringLiteral("type"), home.Path(Page), 1);
    Life second(QStringLiteral("type"), home.Path(other), 2);
    ASSERT_TRUE(first.Hears("ready", StartLimit));
    ASSERT_TRUE(second.Hears("ready", StartLimit));
    first.Hears("the kill", 3000);
    first.Kill();
    auto pages = Recovered();
    ASSERT_EQ(pages.size(), 1U);
    EXPECT_TRUE(pages[0].path.endsWith(Page));
    EXPECT_LE(first.Behind(Letters(pages[0].page.document)), MostBehind);
    second.Hears("the kill", 2000);
    second.Kill();
    pages = Recovered();
    ASSERT_EQ(pages.size(), 2U);
    const bool isNewest = pages[0].path.endsWith(other);
    EXPECT_TRUE(isNewest);
    EXPECT_LE(second.Behind(Letters(pages[0].page.document)), MostBehind);
  }
}

}  // namespace
}  // namespace velor
