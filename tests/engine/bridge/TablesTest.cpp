// SPDX-License-Identifier: GPL-3.0-or-later
// The grid of tables: what holds for every table after every change of its rows, columns and cells.
#include "tests/engine/bridge/BridgePage.h"

#include <gtest/gtest.h>

namespace velor {
namespace {

TEST(Tables, NoChangeOfTenThousandLeavesAHoleAnOverlapOrAnotherWord) {
  BridgePage page;
  page.Load(QStringLiteral("<!DOCTYPE html><p>one|</p>"));
  page.Evaluate(TestScript("pages.js") + TestScript("tables.js"));
  QVariantMap tried;
  // In parts, since an answer is waited for so long only.
  for (int part = 0; part < 10; ++part) {
    tried = page.Evaluate(QStringLiteral("tryTables(1000)")).toMap();
    ASSERT_EQ(tried[QStringLiteral("fault")].toString().toStdString(), "");
  }
  const QVariantMap done = tried[QStringLiteral("done")].toMap();
  const QStringList kinds = tried[QStringLiteral("kinds")].toStringList();
  EXPECT_EQ(kinds.size(), 15);
  for (const QString &kind : kinds) EXPECT_GT(done[kind].toInt(), 300) << kind.toStdString();
}

TEST(Tables, AllThatATableHoldsSelectedIsTheTable) {
  BridgePage page;
  page.Load(QStringLiteral("<p>|one</p><table>\n<tr><td>two</td></tr>\n</table><p>three</p>"));
  page.Evaluate(
      QStringLiteral("getSelection().selectAllChildren(document.querySelector('table'));"
                     "velor.exec(inside.Command.Delete)"));
  EXPECT_EQ(page.Evaluate(QStringLiteral("markup.read()")).toString().toStdString(),
            "<p>one</p><p>|three</p>");
}

TEST(Tables, ARowInWhichNoCellBeginsIsDeletedFromThePathWithItsPartOfTheCells) {
  BridgePage page;
  page.Load(
      QStringLiteral("<table><tbody><tr><td rowspan='2'>one</td><td rowspan='2'>two</td></tr>"
                     "<tr></tr><tr><td>three</td><td>four</td></tr></tbody></table><p>|</p>"));
  page.Evaluate(
      QStringLiteral("getSelection().collapse(document.querySelector('tr:empty'), 0);"
                     "velor.actOnPath(velor.state().pathNumbers.at(-1), 'delete')"));
  EXPECT_EQ(page.Evaluate(QStringLiteral("markup.read()")).toString().toStdString(),
            "<table><tbody><tr><td>one</td><td>two</td></tr>"
            "<tr><td>|three</td><td>four</td></tr></tbody></table><p></p>");
}

}  // namespace
}  // namespace velor
