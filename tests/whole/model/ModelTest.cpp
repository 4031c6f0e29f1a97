// SPDX-License-Identifier: GPL-3.0-or-later
// Whatever a person does in whatever order, each file holds what was saved to it, and no word is
// lost.
#include "tests/whole/model/Walk.h"

#include <QRandomGenerator>

#include <algorithm>
#include <gtest/gtest.h>

namespace velor {
namespace {

constexpr int WalkLength = 50;
constexpr int Tries = 150;  // to shorten a walk that fails

int FromEnvironment(const char *name, int otherwise) {
  const int wanted = qEnvironmentVariableIntValue(name);
  return wanted > 0 ? wanted : otherwise;
}

void WalkFor(int steps, const QString &engine, int length) {
  const auto seed = static_cast<quint32>(FromEnvironment("VELOR_MODEL_SEED", 1));
  QRandomGenerator random(seed);
  for (int done = 0; done < steps; done += length) {
    const std::vector<Deed> walk = RandomWalk(random, std::min(length, steps - done));
    const Outcome outcome = Carry(walk, engine);
    if (outcome.wrong.isEmpty()) continue;
    std::vector<Deed> failing(walk.begin(), walk.begin() + outcome.deeds);
    const std::vector<Deed> shortened = Shortened(failing, engine, Tries);
    FAIL() << "after " << done << " deeds with seed " << seed << ": "
           << Carry(shortened, engine).wrong.toStdString() << "\nThe walk, shortened:\n"
           << InWords(shortened).toStdString();
  }
}

TEST(Model, NothingIsLostAndNoFileIsHarmedInTenThousandDeeds) {
  WalkFor(FromEnvironment("VELOR_MODEL_STEPS", 10'000), QStringLiteral("fake"), WalkLength);
}

TEST(Model, NothingIsLostAndNoFileIsHarmedInFiveHundredDeedsOnTheRealEngine) {
  WalkFor(FromEnvironment("VELOR_MODEL_REAL_STEPS", 500), QStringLiteral("real"), WalkLength);
}

}  // namespace
}  // namespace velor
