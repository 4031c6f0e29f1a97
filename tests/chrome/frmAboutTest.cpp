// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/frmAbout.h"
#include "platform/EngineVersion.h"
#include "tests/support/Checks.h"
#include "tests/support/FakeRuntime.h"
#include "tests/support/Forms.h"
#include "tests/support/Waiting.h"

#include <QAccessible>
#include <QApplication>
#include <QDialogButtonBox>
#include <QDir>
#include <QTest>
#include <QTimer>

#include <cstdlib>
#include <ctime>
#include <utility>

namespace velor {
namespace {

/// One animation step later.
constexpr double Later = 0.051;

TEST(AboutAnimation, StepsAtOnceAndThenWheneverMoreThanATwentiethOfASecondHasPassed) {
  AboutAnimation animation;
  EXPECT_TRUE(animation.StepIfDue(100.0));
  EXPECT_FALSE(animation.StepIfDue(100.0));
  EXPECT_FALSE(animation.StepIfDue(100.05));
  EXPECT_TRUE(animation.StepIfDue(100.051));
  EXPECT_FALSE(animation.StepIfDue(100.09));
  EXPECT_TRUE(animation.StepIfDue(100.2));
}

TEST(AboutAnimation, MidnightCountsAsPassedTime) {
  AboutAnimation animation;
  animation.StepIfDue(86399.99);
  EXPECT_TRUE(animation.StepIfDue(0.0));
  EXPECT_FALSE(animation.StepIfDue(0.03));
}

TEST(AboutAnimation, FillsTwentySquaresStandsForTenStepsAndStartsAgain) {
  AboutAnimation animation;
  double now = 0;
  for (int round = 0; round < 2; ++round) {
    for (int step = 1; step <= 30; ++step) {
      ASSERT_TRUE(animation.StepIfDue(now += Later));
      const int expected = step < 20 ? step : step < 30 ? 20 : 0;
      EXPECT_EQ(animation.ShownSquares(), expected) << "step " << step;
    }
  }
}

TEST(AboutAnimation, LaysItsSquaresInFourColumnsRowByRow) {
  EXPECT_EQ(AboutAnimation::SquareAt(0), QRect(0, 0, 12, 12));
  EXPECT_EQ(AboutAnimation::SquareAt(3), QRect(36, 0, 12, 12));
  EXPECT_EQ(AboutAnimation::SquareAt(4), QRect(0, 12, 12, 12));
  EXPECT_EQ(AboutAnimation::SquareAt(19), QRect(36, 48, 12, 12));
}

class frmAboutTest : public ::testing::Test {
 protected:
  QWidget &Thumbing() { return *Control<QWidget>(about, QStringLiteral("Thumbing")); }

  void ShowActive() {
    about.show();
    about.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&about));
  }

  /// Whole squares in the drawing colour, counted row by row up to the first that is not drawn.
  int DrawnSquares() {
    const QImage shown = Thumbing().grab().toImage();
    const QRgb color = about.palette().color(QPalette::Highlight).rgb();
    for (int index = 0; index < AboutAnimation::Squares; ++index) {
      const QRect square = AboutAnimation::SquareAt(index);
      for (const QPoint corner : {square.topLeft(), square.bottomRight()}) {
        if (shown.pixel(corner) != color) return index;
      }
    }
    return AboutAnimation::Squares;
  }

  bool Draws(int squares) {
    return WaitFor([&] { return DrawnSquares() == squares; });
  }

  CallLog log;
  FakeRuntime runtime{&log};
  frmAbout about{runtime, {QStringLiteral("102.0.5005.177"), QStringLiteral("108.0.5359.98")}};
};

TEST_F(frmAboutTest, NamesProductMakerAndAddress) {
  EXPECT_EQ(about.windowTitle(), QStringLiteral("About us..."));
  EXPECT_EQ(Control<QLabel>(about, QStringLiteral("Label2"))->text(), QStringLiteral("Vitrine"));
  EXPECT_EQ(Control<QLabel>(about, QStringLiteral("Label4"))->text(), QStringLiteral("E-mail :"));
  for (const char *line : {"Label1", "Label3", "Label5"}) {
    EXPECT_FALSE(Control<QLabel>(about, QString::fromLatin1(line))->text().isEmpty()) << line;
  }
  EXPECT_FALSE(Control<QLabel>(about, QStringLiteral("Image1"))->pixmap().isNull());
  EXPECT_EQ(Control<QLabel>(about, QStringLiteral("lblMail_To"))->text(),
            QStringLiteral("info@example.com"));
  EXPECT_FALSE(about.findChild<QTimer *>(QStringLiteral("Timer_Show"))->isActive());
}

TEST_F(frmAboutTest, NamesProgramVersionAndEngine) {
  ShowActive();
  auto *version = Control<QLabel>(about, QStringLiteral("lblVersion"));
  EXPECT_EQ(version->text(),
            QStringLiteral("Velor Web Creator " VELOR_VERSION "\nQt ") + QLatin1String(qVersion()));
  EXPECT_GE(version->width(), version->sizeHint().width());
  EXPECT_GE(version->height(), version->sizeHint().height());
}

TEST_F(frmAboutTest, TellsTheAgeOfTheEnginesSecurityFixesAndWhatItMeans) {
  ShowActive();
  EXPECT_EQ(Control<QLabel>(about, QStringLiteral("lblEngine"))->text(),
            QStringLiteral("Browser engine: Chromium 102.0.5005.177\n"
                           "Security fixes up to 108.0.5359.98 (about December 2022)"));
  EXPECT_EQ(
      Control<QLabel>(about, QStringLiteral("lblEngineAge"))->text(),
      QStringLiteral("These fixes are older than 18 months: preview only pages that you trust. A "
                     "newer release of your system brings a newer engine."));
  EXPECT_EQ(about.width(), 420);
  const auto *close = about.findChild<QDialogButtonBox *>();
  for (const char *name : {"lblEngine", "lblEngineAge"}) {
    auto *label = Control<QLabel>(about, QString::fromLatin1(name));
    EXPECT_FALSE(label->geometry().intersects(close->geometry())) << name;
    EXPECT_GE(label->height(), label->heightForWidth(label->width())) << name;
  }
}

TEST_F(frmAboutTest, SaysNothingOfAnEngineThatIsNewOrNotKnown) {
  const frmAbout recent(runtime, {QStringLiteral("9999.0"), QStringLiteral("9999.1")});
  EXPECT_NE(recent.findChild<QLabel *>(QStringLiteral("lblEngine")), nullptr);
  EXPECT_EQ(recent.findChild<QLabel *>(QStringLiteral("lblEngineAge")), nullptr);
  const frmAbout unknown(runtime, {});
  EXPECT_EQ(unknown.findChild<QLabel *>(QStringLiteral("lblEngine")), nullptr);
}

TEST(EngineVersion, ReleasesAreToldToLessThanAMonth) {
  const std::pair<const char *, QDate> releases[] = {{"94.0.4606.54", {2021, 9, 21}},
                                                     {"108.0.5359.71", {2022, 11, 29}},
                                                     {"120.0.6099.62", {2023, 12, 5}},
                                                     {"142.0.7444.59", {2025, 10, 28}}};
  for (const auto &[version, day] : releases)
    EXPECT_LE(std::abs(ReleaseOfChromium(QString::fromLatin1(version)).daysTo(day)), 28) << version;
  for (const char *version : {"", "engine", "93.0.4577.63"})
    EXPECT_FALSE(ReleaseOfChromium(QString::fromLatin1(version)).isValid()) << version;
}

TEST(EngineVersion, IsOutdatedEighteenMonthsAfterItsFixesCameOut) {
  const EngineVersion engine = {QStringLiteral("90.0"), QStringLiteral("94.0.4606.54")};
  EXPECT_FALSE(IsOutdated(engine, {2023, 3, 21}));
  EXPECT_TRUE(IsOutdated(engine, {2023, 3, 22}));
  EXPECT_FALSE(IsOutdated({QStringLiteral("90.0"), {}}, {2030, 1, 1}));
}

TEST_F(frmAboutTest, HasFiveRidgesOfALightAndADarkLine) {
  ShowActive();
  const QImage shown = about.grab().toImage();
  const QRgb light = about.palette().color(QPalette::Light).rgb();
  const QRgb dark = about.palette().color(QPalette::Dark).rgb();
  for (const int counter : {0, 2, 4, 6, 8}) {
    for (const int x : {0, shown.width() / 2, shown.width() - 1}) {
      EXPECT_EQ(shown.pixel(x, 135 + counter), light) << counter;
      EXPECT_EQ(shown.pixel(x, 136 + counter), dark) << counter;
    }
  }
  EXPECT_NE(shown.pixel(0, 134), light);
  EXPECT_NE(shown.pixel(0, 145), light);
}

TEST_F(frmAboutTest, DrawsOneSquareMoreAtEveryStep) {
  ShowActive();
  EXPECT_TRUE(Draws(1));
  runtime.clock += Later;
  EXPECT_TRUE(Draws(2));
  for (int step = 3; step <= 20; ++step) {
    runtime.clock += Later;
    ASSERT_TRUE(Draws(step));
  }
}

TEST_F(frmAboutTest, EachSquareIsSeenBesideTheNext) {
  ShowActive();
  ASSERT_TRUE(Draws(1));
  const QImage shown = Thumbing().grab().toImage();
  const QRect square = AboutAnimation::SquareAt(0);
  EXPECT_NE(shown.pixelColor(square.center()), shown.pixelColor(square.topLeft()));
  EXPECT_NE(shown.pixelColor(square.center()), about.palette().color(QPalette::Window));
}

TEST_F(frmAboutTest, StepsWithTheClockAlone) {
  ShowActive();
  ASSERT_TRUE(Draws(1));
  QTimer passes;
  int waited = 0;
  QObject::connect(&passes, &QTimer::timeout, [&] { ++waited; });
  passes.start(52);
  ASSERT_TRUE(WaitFor([&] { return waited >= 3; }));
  EXPECT_EQ(DrawnSquares(), 1);
}

TEST_F(frmAboutTest, TakesLessThanTwoHundredthsOfAProcessor) {
  ShowActive();
  ASSERT_TRUE(Draws(1));
  int steps = 0;
  QTimer seconds;
  QObject::connect(&seconds, &QTimer::timeout, [&] {
    runtime.clock += Later;
    ++steps;
  });
  seconds.start(52);
  const std::clock_t before = std::clock();
  ASSERT_TRUE(WaitFor([&] { return steps >= 40; }));
  const double used = static_cast<double>(std::clock() - before) / CLOCKS_PER_SEC;
  EXPECT_LT(used / (40 * 0.052), 0.02);
}

TEST_F(frmAboutTest, EndsAtOnceWhenItIsClosedInTheMiddle) {
  auto *closing = new frmAbout(runtime, {});
  closing->show();
  closing->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(closing));
  auto *pattern = closing->findChild<QWidget *>(QStringLiteral("Thumbing"));
  closing->close();
  const QImage last = pattern->grab().toImage();
  QTimer passes;
  int waited = 0;
  QObject::connect(&passes, &QTimer::timeout, [&] {
    runtime.clock += Later;
    ++waited;
  });
  passes.start(52);
  ASSERT_TRUE(WaitFor([&] { return waited >= 3; }));
  EXPECT_EQ(pattern->grab().toImage(), last);
  delete closing;
}

TEST_F(frmAboutTest, EscapeClosesIt) {
  ShowActive();
  QTest::keyClick(&about, Qt::Key_Escape);
  EXPECT_FALSE(about.isVisible());
}

TEST_F(frmAboutTest, ItsMailLinkOpensThroughTheShellUnderABusyPointer) {
  ShowActive();
  QTest::mouseClick(Control<QLabel>(about, QStringLiteral("lblMail_To")), Qt::LeftButton);
  EXPECT_EQ(log, (CallLog{QStringLiteral("ShowBusyCursor()"),
                          QStringLiteral("ShellExecute(Open, mailto:info@example.com, %1)")
                              .arg(QDir::currentPath()),
                          QStringLiteral("RestoreCursor()")}));
}

TEST_F(frmAboutTest, ItsMailLinkIsALinkForAssistiveTechnology) {
  ShowActive();
  auto &link =
      *QAccessible::queryAccessibleInterface(Control<QLabel>(about, QStringLiteral("lblMail_To")));
  EXPECT_EQ(link.role(), QAccessible::Link);
  EXPECT_EQ(link.text(QAccessible::Name), QStringLiteral("info@example.com"));
  EXPECT_TRUE(link.state().focusable);
  link.actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(log.size(), 3U);
}

TEST_F(frmAboutTest, AMailLinkThatFailsIsIgnored) {
  runtime.hasShell = false;
  ShowActive();
  QTest::mouseClick(Control<QLabel>(about, QStringLiteral("lblMail_To")), Qt::LeftButton);
  EXPECT_EQ(log.size(), 3U);
  EXPECT_EQ(runtime.busyCursors, 0);
}

TEST_F(frmAboutTest, ItsMailLinkIsReachedAndOpenedByTheKeyboard) {
  ShowActive();
  auto *mail = Control<QLabel>(about, QStringLiteral("lblMail_To"));
  for (int tabs = 0; tabs < 5 && !mail->hasFocus(); ++tabs) {
    QTest::keyClick(about.focusWidget() ? about.focusWidget() : &about, Qt::Key_Tab);
  }
  ASSERT_TRUE(mail->hasFocus());
  QTest::keyClick(mail, Qt::Key_Return);
  ASSERT_EQ(log.size(), 3U);
  EXPECT_TRUE(log[1].startsWith(QStringLiteral("ShellExecute(Open, mailto:info@example.com, ")));
}

}  // namespace
}  // namespace velor
