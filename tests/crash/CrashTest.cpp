// SPDX-License-Identifier: GPL-3.0-or-later
// A program that is killed while somebody types or saves: the file is the old or the new one,
// whole, and the journal is at most two seconds behind.
#include "platform/qt/files/JournalFiles.h"
#include "tests/support/Checks.h"

#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <utility>
#include <vector>

namespace velor {
namespace {

constexpr qint64 MostBehind = 2000;  // ms
constexpr int StartLimit = 60'000;
const QByteArray Old = "<html><head></head><body><p>-</p></body></html>";
/// One megabyte before the place that is typed at.
const QByteArray Large = QByteArray(Old).replace(
    "<p>-",
    QByteArray("<p>The quick <b>brown</b> fox jumps over the lazy dog.</p>\n").repeated(17'500) +
        "<p>-");
const QByteArray Alphabet = "abcdefghijklmnopqrstuvwxyz";

int Runs() {
  const int wanted = qEnvironmentVariableIntValue("VELOR_CRASH_RUNS");
  return wanted > 0 ? wanted : 25;
}

/// One life of the program.
class Life {
 public:
  explicit Life(QByteArray page = Old) : page_(std::move(page)) {
    qputenv("XDG_STATE_HOME", folder_.filePath(QStringLiteral("state")).toLocal8Bit());
    qputenv("VELOR_PROGRAM_FOLDER", folder_.path().toLocal8Bit());
    QFile file(Path());
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(page_);
  }
  ~Life() {
    qunsetenv("VELOR_PROGRAM_FOLDER");
    qputenv("XDG_STATE_HOME", stateHome_);
  }

  void Start(const QStringList &arguments) {
    process_.setStandardErrorFile(QProcess::nullDevice());
    process_.start(QStringLiteral(VELOR_CRASH_SUBJECT), QStringList(Path()) + arguments);
    clock_.start();
  }
  /// Reads what the program tells until that line, its end or the time limit.
  bool Hears(const QByteArray &line, qint64 limit) {
    const qint64 end = clock_.elapsed() + limit;
    for (;;) {
      while (process_.canReadLine()) {
        const QByteArray heard = process_.readLine().trimmed();
        if (heard.startsWith("key ")) keys_.push_back(clock_.elapsed());
        if (heard == line) return true;
      }
      const qint64 left = end - clock_.elapsed();
      if (left <= 0 || process_.state() == QProcess::NotRunning) return false;
      process_.waitForReadyRead(static_cast<int>(left));
    }
  }
  void Kill() {
    killed_ = clock_.elapsed();
    process_.kill();
    process_.waitForFinished(StartLimit);
  }
  bool HasEnded() { return process_.state() == QProcess::NotRunning; }

  QByteArray File() const {
    QFile file(Path());
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
  }
  /// The number of letters in the one recovered page; 0 without one.
  qsizetype Recovered() {
    JournalFiles journals;
    const auto pages = journals.Abandoned();
    EXPECT_LE(pages.size(), 1U);
    if (pages.empty()) return 0;
    const PageMemory &page = pages[0].page.page;
    EXPECT_EQ(page.original, page_);
    const QString start = QStringLiteral("<p>-");
    const qsizetype from = page.document.indexOf(start) + start.size();
    const QByteArray text =
        page.document.mid(from, page.document.indexOf(u'<', from) - from).toUtf8();
    // Nothing is missing within it.
    EXPECT_EQ(text, Alphabet.repeated(text.size() / Alphabet.size() + 1).left(text.size()));
    return text.size();
  }
  /// The keys that had been pressed for so long when the program was killed.
  qsizetype KeysBefore(qint64 age) const {
    return std::count_if(keys_.begin(), keys_.end(),
                         [&](qint64 time) { return time <= killed_ - age; });
  }

 private:
  QString Path() const { return folder_.filePath(QStringLiteral("page.htm")); }

  QByteArray page_;
  QByteArray stateHome_ = qgetenv("XDG_STATE_HOME");
  QTemporaryDir folder_;
  QProcess process_;
  QElapsedTimer clock_;
  qint64 killed_ = 0;
  std::vector<qint64> keys_;
};

TEST(Crash, WhatWasTypedUpToTwoSecondsBeforeAKillIsRecovered) {
  QRandomGenerator random(20);
  for (int run = 0; run < (Runs() + 1) / 2; ++run) {
    SCOPED_TRACE(run);
    const auto seed = random.generate();
    const qint64 time = random.bounded(300, 5000);
    Life life;
    life.Start({QString::number(seed)});
    ASSERT_TRUE(life.Hears("ready", StartLimit));
    life.Hears("the kill", time);
    life.Kill();
    EXPECT_EQ(life.File(), Old);
    EXPECT_GE(life.Recovered(), life.KeysBefore(MostBehind));
  }
}

TEST(Crash, ALargePageIsNoFurtherBehind) {
  constexpr int runs = 3;
  QRandomGenerator random(21);
  for (int run = 0; run < runs; ++run) {
    SCOPED_TRACE(run);
    Life life(Large);
    life.Start({QString::number(random.generate())});
    ASSERT_TRUE(life.Hears("ready", StartLimit));
    life.Hears("the kill", random.bounded(3000, 6000));
    life.Kill();
    EXPECT_EQ(life.File(), Large);
    EXPECT_GE(life.Recovered(), life.KeysBefore(MostBehind));
    EXPECT_GT(life.KeysBefore(MostBehind), 0);
  }
}

TEST(Crash, AKillAtAnyStepOfASaveLeavesTheOldFileAndTheTextOrTheNewFile) {
  const QByteArray changed = QByteArray(Old).replace("-", "-" + Alphabet);
  int step = 1;
  int olds = 0;
  int news = 0;
  for (int run = 0; run < Runs() / 2; ++run) {
    SCOPED_TRACE(step);
    Life life;
    life.Start({QStringLiteral("1"), QString::number(step)});
    const bool isSaved = life.Hears("saved", StartLimit);
    life.Kill();
    step = isSaved ? 1 : step + 1;
    const QByteArray file = life.File();
    const qsizetype recovered = life.Recovered();
    EXPECT_TRUE(file == Old || file == changed) << file.toStdString();
    if (file == Old) {
      EXPECT_EQ(recovered, Alphabet.size());
    }
    ++(file == Old ? olds : news);
  }
  EXPECT_GT(olds, 3);
  EXPECT_GT(news, 1);
}

}  // namespace
}  // namespace velor
