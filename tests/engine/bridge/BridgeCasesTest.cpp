// SPDX-License-Identifier: GPL-3.0-or-later
// The golden cases of cases/*.txt. With VELOR_REBASELINE=1 the expectations are written anew.
#include "tests/engine/bridge/BridgeCase.h"
#include "tests/engine/bridge/BridgePage.h"

#include <QRegularExpression>

#include <gtest/gtest.h>
#include <memory>

namespace velor {

void PrintTo(const BridgeCase &subject, std::ostream *stream) {
  *stream << subject.name.toStdString();
}

namespace {

class BridgeCases : public ::testing::TestWithParam<BridgeCase> {
 protected:
  static void SetUpTestSuite() { page_ = std::make_unique<BridgePage>(); }
  static void TearDownTestSuite() { page_.reset(); }

  static QString Text(const QString &expression) { return page_->Evaluate(expression).toString(); }
  /// Undoes all steps; returns their number.
  static int UndoAll() {
    int steps = 0;
    for (; page_->Evaluate(QStringLiteral("inside.history.canUndo()")).toBool(); ++steps) {
      Perform(*page_, QStringLiteral("undo"));
    }
    return steps;
  }
  static void Redo(int steps) {
    for (; steps > 0; --steps) Perform(*page_, QStringLiteral("redo"));
  }

  static std::unique_ptr<BridgePage> page_;
};
std::unique_ptr<BridgePage> BridgeCases::page_;

TEST_P(BridgeCases, GivesWhatItsFileSays) {
  const BridgeCase &subject = GetParam();
  const bool whole = subject.IsDocument();
  const QString read =
      whole ? QStringLiteral("velor.serialize()") : QStringLiteral("markup.read()");
  page_->Load(subject.Document());
  const QString loaded = Text(QStringLiteral("velor.serialize()"));
  const QString faults = Text(QStringLiteral("markup.faults()"));
  EXPECT_EQ(ActualState(*page_, subject.stateBefore).toStdString(),
            subject.stateBefore.toStdString());
  EXPECT_EQ(Text(QStringLiteral("markup.follow()")).toStdString(), loaded.toStdString());
  bool endsWithChange = false;
  for (const QString &step : subject.steps) {
    const QString before = Text(QStringLiteral("velor.serialize()"));
    Perform(*page_, step);
    // Redo goes on past an undo; a replacement goes on to the next match.
    static const QRegularExpression goesOn(QStringLiteral("^(undo|replace)"));
    endsWithChange = Text(QStringLiteral("velor.serialize()")) != before && !step.contains(goesOn);
    EXPECT_EQ(Text(QStringLiteral("markup.told()")).toStdString(),
              Text(QStringLiteral("velor.serialize()")).toStdString())
        << step.toStdString();
  }

  const QString actual = Text(read);
  if (qEnvironmentVariableIntValue("VELOR_REBASELINE") == 1) {
    Rebaseline(subject, actual);
  } else if (!subject.expected.isEmpty()) {
    EXPECT_EQ(actual.toStdString(), subject.expected.toStdString());
  }
  EXPECT_EQ(ActualState(*page_, subject.state).toStdString(), subject.state.toStdString());
  const QString left = Text(QStringLiteral("markup.faults()"));
  if (left != faults) {
    EXPECT_EQ(left.toStdString(), "") << actual.toStdString();
  }

  // Whatever was done can be taken back to what was loaded, and done again.
  const QString result = Text(QStringLiteral("velor.serialize()"));
  const int steps = UndoAll();
  EXPECT_EQ(Text(QStringLiteral("velor.serialize()")).toStdString(), loaded.toStdString());
  EXPECT_EQ(Text(QStringLiteral("markup.told()")).toStdString(), loaded.toStdString());
  Redo(steps);
  EXPECT_EQ(Text(QStringLiteral("velor.serialize()")).toStdString(), result.toStdString());
  // The caret and the selection too are as after the deed.
  if (endsWithChange) {
    EXPECT_EQ(Text(read).toStdString(), actual.toStdString());
  }
  EXPECT_EQ(Text(QStringLiteral("markup.told()")).toStdString(), result.toStdString());
}

std::string TestName(const ::testing::TestParamInfo<BridgeCase> &info) {
  QString name = info.param.name;
  static const QRegularExpression other(QStringLiteral("[^A-Za-z0-9]+"));
  return name.replace(other, QStringLiteral("_")).toStdString();
}

INSTANTIATE_TEST_SUITE_P(Golden, BridgeCases,
                         ::testing::ValuesIn(ReadBridgeCases(QStringLiteral(VELOR_BRIDGE_TEST_FOLDER
                                                                            "/cases"))),
                         TestName);

}  // namespace
}  // namespace velor
