// SPDX-License-Identifier: GPL-3.0-or-later
// The golden cases of cases/*.txt. With VELOR_REBASELINE=1 the expectations are written anew.
#include "page/saving/FaithfulPage.h"
#include "page/saving/PageVerifier.h"
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

/// Parses in the page of a case, beside its document.
class CaseVerifier : public PageVerifier {
 public:
  explicit CaseVerifier(BridgePage &page) : page_(page) {}
  std::optional<QString> Serialisation(const QString &text) override {
    const QString call =
        QStringLiteral("velor.parsed([0, %1, %2], [0, 0, ''])").arg(given_).arg(ScriptText(text));
    given_ = text.size();
    return page_.Evaluate(call).toString();
  }

 private:
  BridgePage &page_;
  qsizetype given_ = 0;
};

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

  static FaithfulPage PageOf(const QString &text) {
    const QByteArray file = text.toUtf8();
    return FaithfulPage({file, DecodePage(file), {}});
  }
  /// As much as the case writes of what a save makes of its file, which was loaded as that document
  /// and is another now.
  static QString Saved(const BridgeCase &subject, const QString &loaded, const QString &now) {
    FaithfulPage file = PageOf(subject.File());
    file.SetBaseline(loaded);
    CaseVerifier verifier(*page_);
    return subject.PartOf(QString::fromUtf8(file.Compose(now, verifier).page.bytes));
  }

  static std::unique_ptr<BridgePage> page_;
};
std::unique_ptr<BridgePage> BridgeCases::page_;

TEST_P(BridgeCases, GivesWhatItsFileSays) {
  const BridgeCase &subject = GetParam();
  const bool whole = subject.IsDocument();
  const QString read =
      whole ? QStringLiteral("velor.serialize()") : QStringLiteral("markup.read()");
  page_->Load(subject.saved.isEmpty() ? subject.Document()
                                      : PageOf(subject.Document()).TextToLoad());
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
  const QString result = Text(QStringLiteral("velor.serialize()"));
  const QString saved = subject.saved.isEmpty() ? QString() : Saved(subject, loaded, result);
  if (qEnvironmentVariableIntValue("VELOR_REBASELINE") == 1) {
    Rebaseline(subject, actual, saved);
  } else {
    if (!subject.expected.isEmpty()) {
      EXPECT_EQ(actual.toStdString(), subject.expected.toStdString());
    }
    EXPECT_EQ(saved.toStdString(), subject.saved.toStdString());
  }
  EXPECT_EQ(ActualState(*page_, subject.state).toStdString(), subject.state.toStdString());
  const QString left = Text(QStringLiteral("markup.faults()"));
  if (left != faults) {
    EXPECT_EQ(left.toStdString(), "") << actual.toStdString();
  }

  // Whatever was done can be taken back to what was loaded, and done again.
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
