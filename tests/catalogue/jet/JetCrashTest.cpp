// SPDX-License-Identifier: GPL-3.0-or-later
// A process that is killed at any step of the three-statement repair leaves a file that, opened
// again, holds what it held before the statement or after it, whole.
#include "files/PosixJetStorage.h"
#include "tests/support/jet/JetCatalogues.h"
#include "tests/support/jet/JetChecker.h"
#include "tests/support/jet/JetReaders.h"
#include "tests/support/jet/JetTrial.h"
#include "tests/support/jet/JetWriter.h"

#include <QFile>
#include <QTemporaryDir>

#include <algorithm>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace velor::fixture {
namespace {

/// How the kill cuts the write that it strikes: before its first byte, in its middle, or after its
/// last but before the file has got back the modification time that it is to keep.
enum class Cut { Before, Within, BeforeTheTime };

constexpr int Killed = 77;
constexpr int Finished = 0;

/// The file on the disk, until the process ends itself at the step with the given number: a step
/// is anything that changes the file or what lies beside it.
class KillingStorage : public JetStorage {
 public:
  KillingStorage(const QString &path, int step, Cut cut)
      : real_(OpenJetStorage(path)), stepsLeft_(step), cut_(cut) {}

  QString Path() const override { return real_->Path(); }
  JetStamp Stamp() override { return real_->Stamp(); }
  QString WriteObjection() override { return real_->WriteObjection(); }
  QString LockedBy() override { return real_->LockedBy(); }
  void ReadPage(jet::PageNumber number, jet::Page &page) override { real_->ReadPage(number, page); }
  void WritePage(jet::PageNumber number, const jet::Page &page) override {
    Step([&] {
      jet::Page torn = page;
      if (cut_ == Cut::Within) {
        real_->ReadPage(number, torn);
        std::copy_n(page.begin(), page.size() / 2, torn.begin());
      }
      real_->WritePage(number, torn);
      if (cut_ == Cut::BeforeTheTime) utimensat(AT_FDCWD, qPrintable(Path()), nullptr, 0);
    });
    real_->WritePage(number, page);
  }
  void Truncate(qint64 bytes) override {
    Step();
    real_->Truncate(bytes);
  }
  void Sync() override {
    Step();
    real_->Sync();
  }
  void PinModificationTime(std::optional<qint64> nanoseconds) override {
    Step();
    real_->PinModificationTime(nanoseconds);
  }
  void Backup() override {
    Step();
    real_->Backup();
  }
  JournalState FindJournal() override { return real_->FindJournal(); }
  qint64 JournalModified() override { return real_->JournalModified(); }
  QByteArray ReadJournal() override { return real_->ReadJournal(); }
  void CreateJournal() override {
    Step();
    real_->CreateJournal();
  }
  void AppendJournal(const QByteArray &bytes) override {
    Step([&] { real_->AppendJournal(bytes.left(bytes.size() / 2)); });
    real_->AppendJournal(bytes);
  }
  void SyncJournal() override {
    Step();
    real_->SyncJournal();
  }
  void RemoveJournal() override {
    Step();
    real_->RemoveJournal();
  }
  QString SetJournalAside() override {
    Step();
    return real_->SetJournalAside();
  }

 private:
  template <typename Half>
  void Step(Half half) {
    if (stepsLeft_-- > 0) return;
    if (cut_ != Cut::Before) half();
    _exit(Killed);
  }
  void Step() {
    Step([] {});
  }

  std::unique_ptr<JetStorage> real_;
  int stepsLeft_;
  Cut cut_;
};

/// A process of its own that does the work; true when it was killed before the end.
template <typename Work>
bool IsKilled(Work work) {
  const pid_t child = fork();
  if (child == 0) {
    try {
      work();
    } catch (const std::exception &) {
      _exit(1);
    }
    _exit(Finished);
  }
  int status = 0;
  waitpid(child, &status, 0);
  EXPECT_TRUE(WIFEXITED(status));
  EXPECT_TRUE(WEXITSTATUS(status) == Killed || WEXITSTATUS(status) == Finished)
      << WEXITSTATUS(status);
  return WEXITSTATUS(status) == Killed;
}

/// The statement with that number, from 0, of the repair that a moved folder needs.
void RunStatement(JetTrial &trial, JetFile &file, int statement) {
  const QString folder = QStringLiteral("D:\\") + QString(240, QChar(0x6587));
  if (statement == 0) trial.UpdateWhere(file, 0, 0, 2, 2, folder);
  if (statement == 1) trial.UpdateWhere(file, 1, 1, 2, 3, folder);
  if (statement == 2) trial.UpdateWhere(file, 2, 0, 2, 1, folder);
}

constexpr int Statements = 3;

class JetCrash : public testing::TestWithParam<Cut> {
 protected:
  JetCrash() : fixture_(FixtureOfRows()), original_(WriteJetFile(fixture_)) {
    // What is meant after none, one, two and all of the statements.
    JetTrial trial(fixture_);
    Reset();
    const std::unique_ptr<JetFile> file = JetFile::Open(OpenJetStorage(path_));
    stages_.push_back(WhatWasMeant(trial.Meant()));
    for (int statement = 0; statement < Statements; ++statement) {
      RunStatement(trial, *file, statement);
      stages_.push_back(WhatWasMeant(trial.Meant()));
    }
    Reset();
  }

  static FixtureFile FixtureOfRows() {
    CatalogueShape shape;
    shape.projects = 4;
    shape.pages = 80;
    shape.worn = true;
    return CatalogueFixture(shape);
  }

  void Reset() {
    for (const char *suffix : {"-journal", ".bak"})
      QFile::remove(path_ + QString::fromLatin1(suffix));
    QFile disk(path_);
    ASSERT_TRUE(disk.open(QIODevice::WriteOnly));
    disk.write(original_);
  }

  bool RepairIsKilled(int step) {
    return IsKilled([&] {
      JetTrial trial(fixture_);
      const std::unique_ptr<JetFile> file =
          JetFile::Open(std::make_unique<KillingStorage>(path_, step, GetParam()));
      for (int statement = 0; statement < Statements; ++statement)
        RunStatement(trial, *file, statement);
    });
  }

  /// How many statements have been done, by what the file holds; -1 for anything in between.
  int StageOfFile() {
    const std::unique_ptr<JetFile> file = JetFile::Open(OpenJetStorage(path_));
    EXPECT_EQ(file->Access().reason.toStdString(), "");
    const Reading now = ReadByUs(*file, fixture_);
    const auto stage = std::find(stages_.begin(), stages_.end(), now);
    return stage == stages_.end() ? -1 : static_cast<int>(stage - stages_.begin());
  }

  void ExpectWhole(int step) {
    EXPECT_FALSE(QFile::exists(path_ + QStringLiteral("-journal"))) << "step " << step;
    QFile disk(path_);
    ASSERT_TRUE(disk.open(QIODevice::ReadOnly));
    EXPECT_EQ(JetComplaints(disk.readAll()).join(u'\n').toStdString(), "") << "step " << step;
    QFile copy(path_ + QStringLiteral(".bak"));
    if (copy.open(QIODevice::ReadOnly)) {
      EXPECT_EQ(copy.readAll(), original_) << "step " << step;
    }
  }

  QTemporaryDir folder_{FolderInMemory()};
  QString path_ = folder_.filePath(QStringLiteral("eThumbs.mdb"));
  FixtureFile fixture_;
  QByteArray original_;
  std::vector<Reading> stages_;
};

TEST_P(JetCrash, AtAnyStepLeavesTheOldOrTheNewContentWhole) {
  int stage = 0;
  int step = 0;
  for (; RepairIsKilled(step); ++step) {
    const int now = StageOfFile();
    EXPECT_GE(now, stage) << "step " << step;
    EXPECT_LE(now, stage + 1) << "step " << step;
    stage = std::max(stage, now);
    ExpectWhole(step);
    Reset();
  }
  EXPECT_EQ(StageOfFile(), Statements);
  EXPECT_GT(step, 30) << "the repair took fewer steps than it has page writes";
}

/// The journal of a killed repair is put back by a process that is killed in turn, again and again.
TEST_P(JetCrash, OfThePuttingBackIsMadeGoodByTheNext) {
  int steps = 0;
  while (RepairIsKilled(steps)) {
    ++steps;
    Reset();
  }
  for (int step = steps - 10; step < steps; ++step) {
    Reset();
    ASSERT_TRUE(RepairIsKilled(step));
    int killing = 0;
    while (IsKilled(
        [&] { JetFile::Open(std::make_unique<KillingStorage>(path_, killing, GetParam())); })) {
      ++killing;
    }
    EXPECT_GE(StageOfFile(), Statements - 1) << "step " << step;
    ExpectWhole(step);
  }
}

std::string NameOf(const testing::TestParamInfo<Cut> &cut) {
  switch (cut.param) {
    case Cut::Before:
      return "BeforeAWrite";
    case Cut::Within:
      return "WithinAWrite";
    default:
      return "BeforeTheTimeOfAWrite";
  }
}

INSTANTIATE_TEST_SUITE_P(Cut, JetCrash,
                         testing::Values(Cut::Before, Cut::Within, Cut::BeforeTheTime), NameOf);

}  // namespace
}  // namespace velor::fixture
