// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/bridge/BridgePage.h"

#include <QTest>

#include <gtest/gtest.h>

namespace velor {
namespace {

TEST(Bridge, PushesItsFirstStateAfterTheStart) {
  BridgePage page;
  page.Load(QStringLiteral("<p>one|</p>"));
  page.Evaluate(QStringLiteral(
      "globalThis.pushed = []; velor.host = {pushState(json) { pushed.push(JSON.parse(json)); }};"
      "velor.start({})"));
  EXPECT_TRUE(QTest::qWaitFor(
      [&page] { return page.Evaluate(QStringLiteral("pushed.length")).toInt() > 0; }));
  EXPECT_TRUE(
      page.Evaluate(QStringLiteral("pushed[0].dirty && pushed[0].html.length > 0")).toBool());
}

}  // namespace
}  // namespace velor
