// SPDX-License-Identifier: GPL-3.0-or-later
// Pages, selections and steps at random, with what must be true after each step (walk.js). A run
// names its seed; VELOR_WALK_SEED and VELOR_WALK_PAGES walk others, and more of them.
#include "tests/engine/bridge/BridgeCase.h"
#include "tests/engine/bridge/BridgePage.h"

#include <gtest/gtest.h>

namespace velor {
namespace {

constexpr int StepsAPage = 25;

int Number(const char *variable, int otherwise) {
  bool isNumber = false;
  const int number = qEnvironmentVariableIntValue(variable, &isNumber);
  return isNumber ? number : otherwise;
}

struct Dialect {
  const char *name;
  const char *doctype;
};

class BridgeWalk : public ::testing::TestWithParam<Dialect> {
 protected:
  BridgeWalk()
      : scripts_(TestScript("pages.js") + TestScript("source.js") + TestScript("walk.js") +
                 TestScript("moves.js") + TestScript("tables.js") + TestScript("deeds.js")) {}

  QString Text(const QString &expression) { return page_.Evaluate(expression).toString(); }
  void Begin(int seed, bool withKeys) {
    page_.Load(QLatin1String(GetParam().doctype) + QStringLiteral("<body></body>"));
    page_.Evaluate(scripts_);
    const QString body = Text(QStringLiteral("pages.seed(%1); pages.body()").arg(seed));
    page_.Evaluate(QStringLiteral("document.body.innerHTML = %1; velor.start(); walk.begin(%2)")
                       .arg(ScriptText(body))
                       .arg(withKeys ? 1 : 0));
  }
  static int FirstSeed() { return Number("VELOR_WALK_SEED", 1); }
  static int Pages(int otherwise) { return Number("VELOR_WALK_PAGES", otherwise); }

  BridgePage page_;

 private:
  QString scripts_;
};

TEST_P(BridgeWalk, EveryStepKeepsTheWordsTheRulesAndTheWayBack) {
  for (int seed = FirstSeed(); seed < FirstSeed() + Pages(10); ++seed) {
    Begin(seed, true);
    QString fault;
    for (int step = 0; step < StepsAPage && fault.isEmpty(); ++step) {
      const QString key = Text(QStringLiteral("walk.next()"));
      if (!key.isEmpty()) Perform(page_, key);
      fault = Text(QStringLiteral("walk.judge()"));
    }
    if (fault.isEmpty()) fault = Text(QStringLiteral("walk.wayBack()"));
    EXPECT_EQ(fault.toStdString(), "") << "seed " << seed;
  }
}

TEST_P(BridgeWalk, EveryCommandKeepsTheWordsTheRulesAndTheWayBack) {
  for (int seed = FirstSeed(); seed < FirstSeed() + Pages(60); ++seed) {
    Begin(seed, false);
    const QString fault = Text(QStringLiteral("walk.rush(%1)").arg(StepsAPage));
    EXPECT_EQ(fault.toStdString(), "") << "seed " << seed;
  }
}

TEST_P(BridgeWalk, WhatWasCutOrDeletedComesBackWithItsWordsBlanksAndLines) {
  for (int seed = FirstSeed(); seed < FirstSeed() + Pages(60); ++seed) {
    Begin(seed, false);
    const QString fault = Text(QStringLiteral("moves.run(%1)").arg(StepsAPage));
    EXPECT_EQ(fault.toStdString(), "") << "seed " << seed;
  }
}

TEST_P(BridgeWalk, TablesPositionsPathAndPropertiesKeepTheWordsTheGridsAndTheWayBack) {
  int changes = 0;
  for (int seed = FirstSeed(); seed < FirstSeed() + Pages(30); ++seed) {
    Begin(seed, false);
    page_.Evaluate(
        QStringLiteral("document.body.insertAdjacentHTML('beforeend', tables.markup());"
                       "velor.start()"));
    const QString fault = Text(QStringLiteral("deeds.rush(%1)").arg(StepsAPage));
    EXPECT_EQ(fault.toStdString(), "") << "seed " << seed;
    changes += page_.Evaluate(QStringLiteral("Object.keys(deeds.done()).length")).toInt();
  }
  EXPECT_GT(changes, 2 * Pages(30));
}

INSTANTIATE_TEST_SUITE_P(Dialects, BridgeWalk,
                         ::testing::Values(Dialect{"Old", ""}, Dialect{"Html5", "<!DOCTYPE html>"}),
                         [](const auto &dialect) { return std::string(dialect.param.name); });

}  // namespace
}  // namespace velor
