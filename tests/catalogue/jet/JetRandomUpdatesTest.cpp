// SPDX-License-Identifier: GPL-3.0-or-later
// Random updates with fixed seeds. After each, our reader and the structural checker look at the
// file; other programs' readers now and then. VELOR_JET_UPDATES sets how many there are.
#include "platform/RuntimeError.h"
#include "tests/support/jet/JetCatalogues.h"
#include "tests/support/jet/JetChecker.h"
#include "tests/support/jet/JetReaders.h"
#include "tests/support/jet/JetTrial.h"
#include "tests/support/jet/JetWriter.h"
#include "tests/support/jet/MemoryJetStorage.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <random>

namespace velor::fixture {
namespace {

constexpr int DefaultUpdates = 1000;
constexpr int Files = 5;
constexpr int StepsBetweenReaders = 100;
constexpr int LongestMemo = 500;

int UpdatesPerFile() {
  bool given = false;
  const int updates = qEnvironmentVariableIntValue("VELOR_JET_UPDATES", &given);
  return (given ? updates : DefaultUpdates) / Files + 1;
}

/// Cells that may be changed: table and column.
constexpr CellPlace Columns[] = {{0, 0, 2}, {0, 0, 5}, {1, 0, 3}, {1, 0, 4},
                                 {1, 0, 5}, {1, 0, 6}, {2, 0, 1}};
/// And one that may not: it is in an index.
constexpr CellPlace Indexed = {1, 0, 2};

FixtureFile FileOf(quint32 seed) {
  CatalogueShape shape;
  shape.seed = seed;
  shape.projects = 5;
  shape.pages = 60 + static_cast<int>(seed % 3) * 40;
  shape.worn = seed % 2 == 0;
  shape.folders = seed % 3 == 0 ? FolderType::Memo : FolderType::Text;
  FixtureFile file = CatalogueFixture(shape);
  file.maps = seed % 2 == 0 ? MapForm::BitmapPages : MapForm::BitmapWhereItReaches;
  file.fileKey = seed % 4 == 0 ? 0x5EED0000 + seed : 0;
  file.pageReserve = seed % 5 == 0 ? 500 : 0;
  return file;
}

class JetRandomUpdates : public testing::TestWithParam<quint32> {
 protected:
  JetRandomUpdates() : random_(GetParam()), trial_(FileOf(GetParam())) {
    memory_.file = WriteJetFile(trial_.Meant());
    Open();
  }

  void Open() { file_ = JetFile::Open(std::make_unique<MemoryJetStorage>(memory_)); }
  int Random(int below) { return static_cast<int>(random_() % static_cast<unsigned>(below)); }

  void UpdateSome(int most) {
    for (int count = 1 + Random(most); count > 0; --count) {
      CellPlace place = Columns[Random(std::size(Columns))];
      const FixtureTable &table = trial_.Meant().tables[place.table];
      place.row = Random(static_cast<int>(table.rows.size()));
      const bool memo = table.columns[place.column].type == CellType::Memo;
      const QString text = RandomText(random_, memo ? LongestMemo : 255);
      trial_.Update(*file_, place, Random(12) == 0 ? std::nullopt : std::optional(text));
      ++updates_;
    }
  }

  void Step() {
    const int kind = Random(20);
    if (kind == 0) Open();
    if (kind < 12) return UpdateSome(1);
    if (kind == 12) return ExpectRefusal();
    const FixtureFile before = trial_.Meant();
    file_->Begin();
    UpdateSome(20);
    if (kind < 15) {
      const FixtureFile kept = trial_.Meant();
      file_->Savepoint(0);
      UpdateSome(20);
      file_->RollbackTo(0);
      trial_.SetMeant(kept);
      UpdateSome(3);
      file_->Release(0);
    }
    if (kind < 18) return file_->Commit();
    file_->Rollback();
    trial_.SetMeant(before);
  }

  void ExpectRefusal() {
    const QByteArray before = memory_.file;
    EXPECT_THROW(trial_.Update(*file_, Indexed, QStringLiteral("x")), RuntimeError);
    EXPECT_EQ(memory_.file, before);
  }

  std::string Objection() {
    const QStringList complaints = JetComplaints(memory_.file);
    if (!complaints.isEmpty()) return complaints.join(u'\n').toStdString();
    return Disagreement(WhatWasMeant(trial_.Meant()), ReadByUs(*file_, trial_.Meant()),
                        QStringLiteral("our reader"))
        .toStdString();
  }

  /// What the other programs say of the file.
  std::string OthersObjection() {
    QFile disk(folder_.filePath(QStringLiteral("random.mdb")));
    if (!disk.open(QIODevice::WriteOnly)) return "the disk";
    disk.write(memory_.file);
    disk.close();
    return readers_.DisagreementOn(disk.fileName(), trial_.Meant()).toStdString();
  }

  std::mt19937 random_;
  JetTrial trial_;
  JetMemory memory_;
  std::unique_ptr<JetFile> file_;
  QTemporaryDir folder_{FolderInMemory()};
  JetReaders readers_;
  int updates_ = 0;
};

TEST_P(JetRandomUpdates, LeaveASoundFileThatEveryoneReadsAlike) {
  ASSERT_EQ(file_->Access().reason.toStdString(), "");
  for (int step = 0; updates_ < UpdatesPerFile(); ++step) {
    Step();
    ASSERT_EQ(Objection(), "") << "after step " << step;
    if (step % StepsBetweenReaders == 0) {
      ASSERT_EQ(OthersObjection(), "") << "after step " << step;
    }
  }
  EXPECT_EQ(OthersObjection(), "");
}

INSTANTIATE_TEST_SUITE_P(Seed, JetRandomUpdates, testing::Range(1U, 1U + Files));

}  // namespace
}  // namespace velor::fixture
