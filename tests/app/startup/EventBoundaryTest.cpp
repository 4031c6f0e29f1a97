// SPDX-License-Identifier: GPL-3.0-or-later
// What becomes of an error that nobody caught, and of the program.
#include "app/startup/EventBoundary.h"
#include "platform/RuntimeError.h"
#include "tests/support/Checks.h"
#include "tests/support/FakeDialogs.h"
#include "tests/support/FakeRuntime.h"

#include <QProcess>

#include <gtest/gtest.h>
#include <stdexcept>

namespace velor {
namespace {

const RuntimeError MissingFile = RuntimeError::Of(
    ErrorNumber::FileNotFound, QStringLiteral("OpenPage"), QStringLiteral("/site/a.htm"));
const RuntimeError FailedWrite = RuntimeError::Of(
    ErrorNumber::DiskFull, QStringLiteral("ReplaceAll"), QStringLiteral("/site/a.htm"));

class Boundary : public ::testing::Test {
 protected:
  Boundary() : dialogs_(&log_), runtime_(&log_), boundary_(dialogs_, runtime_) {
    qunsetenv("VELOR_NO_ERROR_BOX");
    ::testing::internal::CaptureStderr();
  }
  ~Boundary() override {
    qputenv("VELOR_NO_ERROR_BOX", "1");
    // Restores standard error where the test has not asked for what was written.
    if (!taken_) StandardError();
  }

  std::string StandardError() {
    taken_ = true;
    return ::testing::internal::GetCapturedStderr();
  }

  /// The exit status with which the program ended over the error; nothing when it goes on.
  std::optional<int> EndedBy(const std::exception &error) {
    try {
      boundary_.Handle(error);
    } catch (const ProgramEnded &ended) {
      return ended.exitStatus;
    }
    return std::nullopt;
  }

  CallLog log_;
  FakeDialogs dialogs_;
  FakeRuntime runtime_;
  EventBoundary boundary_;
  bool taken_ = false;
};

QString BoxFor(const RuntimeError &error) {
  return QStringLiteral("%1\n\nRun-time error %2 in %3.")
      .arg(error.Description(), QString::number(error.Code()), error.Source());
}
const QString TheEnd = QStringLiteral("\n\nThe program has to end.");

TEST_F(Boundary, AnyErrorDuringStartUpIsReportedAndEndsTheProgramWithStatusOne) {
  dialogs_.ExpectMessage(BoxFor(MissingFile) + TheEnd);
  EXPECT_EQ(EndedBy(MissingFile), 1);
  EXPECT_EQ(dialogs_.messages.front().icon, MessageIcon::Critical);
  EXPECT_EQ(dialogs_.messages.front().title, QStringLiteral("Velor Web Creator"));
  EXPECT_NE(StandardError().find("/site/a.htm"), std::string::npos);
}

TEST_F(Boundary, LaterAnErrorAbandonsTheOperationAndTheProgramGoesOn) {
  boundary_.StartUpDone();
  dialogs_.ExpectMessage(BoxFor(MissingFile));
  EXPECT_EQ(EndedBy(MissingFile), std::nullopt);
  EXPECT_NE(StandardError().find("File not found"), std::string::npos);
}

TEST_F(Boundary, AFailedWriteIsToldWithItsFileAndReasonAndTheProgramGoesOn) {
  boundary_.StartUpDone();
  dialogs_.ExpectMessage(BoxFor(FailedWrite));
  EXPECT_EQ(EndedBy(FailedWrite), std::nullopt);
  EXPECT_TRUE(dialogs_.messages.front().text.contains(QStringLiteral("Disk full: /site/a.htm")));
}

TEST_F(Boundary, ErrorsOfWindowsThatGoAtTheEndAreIgnored) {
  boundary_.StartUpDone();
  boundary_.ProgramEnds();
  EXPECT_EQ(EndedBy(FailedWrite), std::nullopt);
  EXPECT_EQ(StandardError(), "");
}

TEST_F(Boundary, AnErrorOfAnotherKindIsReportedInItsOwnWords) {
  boundary_.StartUpDone();
  dialogs_.ExpectMessage(QStringLiteral("no such thing"));
  EXPECT_EQ(EndedBy(std::runtime_error("no such thing")), std::nullopt);
  EXPECT_NE(StandardError().find("no such thing"), std::string::npos);
}

TEST_F(Boundary, WithoutBoxesTheReportGoesToStandardErrorOnly) {
  qputenv("VELOR_NO_ERROR_BOX", "1");
  EXPECT_EQ(EndedBy(MissingFile), 1);
  EXPECT_TRUE(dialogs_.messages.empty());
  EXPECT_NE(StandardError().find("Error 53 in OpenPage"), std::string::npos);
}

TEST_F(Boundary, AnErrorThatComesWhileABoxIsOpenOpensNoSecondBox) {
  boundary_.StartUpDone();
  class Recursive final : public Dialogs {
   public:
    std::function<void()> whileShown;
    int shown = 0;
    MessageAnswer ShowMessage(const Message &) override {
      ++shown;
      whileShown();
      return MessageAnswer::Ok;
    }
    int Choose(const Message &, const QStringList &) override { return 0; }
    QString AskText(const QString &, const QString &, const QString &) override { return {}; }
    void RunModal(QWidget &) override {}
  } dialogs;
  EventBoundary boundary(dialogs, runtime_);
  boundary.StartUpDone();
  dialogs.whileShown = [&boundary] { boundary.Handle(std::runtime_error("from a timer")); };
  boundary.Handle(MissingFile);
  EXPECT_EQ(dialogs.shown, 1);
  EXPECT_NE(StandardError().find("from a timer"), std::string::npos);
}

TEST_F(Boundary, RunLetsAGoodActionPass) {
  bool ran = false;
  boundary_.Run([&ran] { ran = true; });
  EXPECT_TRUE(ran);
  EXPECT_TRUE(log_.empty());
}

/// A program of its own with the real application object; see BoundaryProbe.cpp.
struct Probe {
  int status;
  QByteArray report;
  QByteArray output;
};

Probe RunProbe(const QString &scene) {
  QProcess process;
  process.start(QStringLiteral(VELOR_BOUNDARY_PROBE), {scene});
  EXPECT_TRUE(process.waitForFinished(30'000)) << process.errorString().toStdString();
  EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
  return {process.exitCode(), process.readAllStandardError(), process.readAllStandardOutput()};
}

TEST(RunningProgram, AnErrorDuringStartUpEndsItWithStatusOne) {
  const Probe probe = RunProbe(QStringLiteral("start-up"));
  EXPECT_EQ(probe.status, 1);
  EXPECT_TRUE(probe.report.contains("Error 53")) << probe.report.constData();
  EXPECT_EQ(probe.output, "");
}

TEST(RunningProgram, AnErrorInAnEventIsReportedAndTheNextEventStillComes) {
  const Probe probe = RunProbe(QStringLiteral("event"));
  EXPECT_EQ(probe.status, 0);
  EXPECT_TRUE(probe.report.contains("Error 9 ")) << probe.report.constData();
  EXPECT_EQ(probe.output, "next event\n");
}

TEST(RunningProgram, AStylingSweepThatFailsIsReportedOnceTheWindowIsLoaded) {
  const Probe probe = RunProbe(QStringLiteral("styling"));
  EXPECT_EQ(probe.status, 0);
  EXPECT_TRUE(probe.report.contains("Error 9 in Painters")) << probe.report.constData();
  EXPECT_EQ(probe.output, "the window is loaded\nnext event\n");
}

TEST(RunningProgram, AFailedWriteInAnEventIsReportedAndTheNextEventStillComes) {
  const Probe probe = RunProbe(QStringLiteral("write"));
  EXPECT_EQ(probe.status, 0);
  EXPECT_TRUE(probe.report.contains("Error 61")) << probe.report.constData();
  EXPECT_EQ(probe.output, "next event\n");
}

TEST(RunningProgram, EndsAtOnceWithoutRunningAnythingElse) {
  const Probe probe = RunProbe(QStringLiteral("end"));
  EXPECT_EQ(probe.status, 7);
  EXPECT_EQ(probe.output, "before the end\n");
}

TEST(RunningProgram, ASignalToEndComesThroughBehindAnOpenMessage) {
  const Probe probe = RunProbe(QStringLiteral("terminated"));
  EXPECT_EQ(probe.status, 0);
  EXPECT_EQ(probe.output, "the end\nthe message is closed\n");
}

TEST(RunningProgram, TheDesktopsQuitIsItsOwnEnd) {
  const Probe probe = RunProbe(QStringLiteral("quit"));
  EXPECT_EQ(probe.status, 0);
  EXPECT_EQ(probe.output, "next event\nthe end\n");
}

TEST(RunningProgram, CapturesItsArgumentsAndActsUponNone) {
  const Probe probe = RunProbe(QStringLiteral("arguments"));
  EXPECT_EQ(probe.status, 0);
  EXPECT_EQ(probe.output, "captured arguments, toolkit got 1\n");
}

}  // namespace
}  // namespace velor
