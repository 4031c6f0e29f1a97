// SPDX-License-Identifier: GPL-3.0-or-later
// Thousands of damaged files, each damage from a fixed seed: none crashes, none takes a second, and
// none is made worse. Built with AddressSanitizer and UndefinedBehaviorSanitizer always.
#include "tests/catalogue/jet/JetExamination.h"
#include "tests/support/jet/JetBytes.h"
#include "tests/support/jet/JetCatalogues.h"
#include "tests/support/jet/JetWriter.h"

#include <ctime>
#include <gtest/gtest.h>
#include <random>

namespace velor::fixture {
namespace {

constexpr int FilesPerSeed = 100;
constexpr quint32 Seeds = 20;

/// Processor time of this process in seconds: a busy machine is not a slow program.
double ProcessorSeconds() {
  return static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
}

FixtureFile FileOf(quint32 seed) {
  if (seed % 6 == 5) return OddTablesFixture();
  CatalogueShape shape;
  shape.seed = seed;
  shape.pages = 50;
  shape.worn = seed % 2 == 0;
  shape.folders = seed % 3 == 0 ? FolderType::Memo : FolderType::Text;
  FixtureFile file = CatalogueFixture(shape);
  file.maps = seed % 4 < 2 ? MapForm::BitmapPages : MapForm::BitmapWhereItReaches;
  file.fileKey = seed % 5 == 0 ? 0xDA3A6E00 : 0;
  return file;
}

/// Damages the bytes of a file in one to four places, where structure is more often than not.
class Damager {
 public:
  explicit Damager(quint32 seed) : random_(seed) {}

  QByteArray Damaged(QByteArray file) {
    for (int count = 1 + Random(4); count > 0; --count) Damage(file);
    return file;
  }

 private:
  int Random(qsizetype below) { return static_cast<int>(random_() % static_cast<quint32>(below)); }

  void Damage(QByteArray &file) {
    const qsizetype pages = file.size() / JetPageSize;
    if (pages < 2) return;
    const qsizetype page = 1 + Random(pages - 1);
    const qsizetype start = page * JetPageSize;
    switch (Random(10)) {
      case 0:
        return file.truncate(Random(file.size()));
      case 1:
        return void(file.replace(start, JetPageSize, QByteArray(JetPageSize, Byte())));
      case 2:
        return void(file.replace(start, JetPageSize,
                                 file.mid(Random(pages) * qsizetype{JetPageSize}, JetPageSize)));
      case 3:
        return void(file[Random(file.size())] = Byte());
      case 4:
        return void(file[Random(JetPageSize)] = Byte());
      case 5:
        return Put32(file, start + Random(64) * 2, Odd(pages));
      case 6:
        return Put16(file, start + 14 + 2 * Random(8), Odd(pages));
      case 7:
        return Put32(file, start + Random(JetPageSize - 4), Odd(pages));
      default:  // the end of a page, where rows and usage maps lie
        return Put32(file, start + JetPageSize - 4 - Random(200), Odd(pages));
    }
  }

  char Byte() { return static_cast<char>(random_()); }

  /// A number that is likely to be taken for a page, an offset or a length.
  quint32 Odd(qsizetype pages) {
    const quint32 odd[] = {0,
                           1,
                           0xFFFF,
                           0x1FFF,
                           0x4000,
                           0x8000,
                           0xFFFFFFFF,
                           0x7FFFFFFF,
                           0x40000000,
                           0x80000000,
                           static_cast<quint32>(Random(pages)),
                           static_cast<quint32>(Random(pages)) << 8,
                           static_cast<quint32>(pages),
                           static_cast<quint32>(Random(JetPageSize)),
                           static_cast<quint32>(random_())};
    return odd[Random(std::size(odd))];
  }

  std::mt19937 random_;
};

class JetDamage : public testing::TestWithParam<quint32> {};

TEST_P(JetDamage, NeitherCrashesNorHangsNorIsMadeWorse) {
  const FixtureFile fixture = FileOf(GetParam());
  // Damage strikes what the pages mean, not their encoded bytes.
  const QByteArray sound = WithPagesEncoded(WriteJetFile(fixture), fixture.fileKey);
  Damager damager(GetParam());
  int opened = 0;
  for (int i = 0; i < FilesPerSeed; ++i) {
    const QByteArray damaged = WithPagesEncoded(damager.Damaged(sound), fixture.fileKey);
    const double began = ProcessorSeconds();
    const JetExamination result = ExamineJetFile(damaged);
    EXPECT_LT(ProcessorSeconds() - began, 1.0) << "file " << i;
    EXPECT_EQ(result.broken.join(u'\n').toStdString(), "") << "file " << i;
    opened += result.opened ? 1 : 0;
  }
  EXPECT_GT(opened, FilesPerSeed / 3) << "too few get past the first page to be a test";
}

TEST(JetSound, FilesAreWrittenByTheSameExamination) {
  for (quint32 seed = 1; seed <= Seeds; ++seed) {
    const JetExamination result = ExamineJetFile(WriteJetFile(FileOf(seed)));
    EXPECT_TRUE(result.written) << seed;
    EXPECT_EQ(result.broken.join(u'\n').toStdString(), "") << seed;
  }
}

INSTANTIATE_TEST_SUITE_P(Seed, JetDamage, testing::Range(1U, 1U + Seeds));

}  // namespace
}  // namespace velor::fixture
