// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/StatusLine.h"
#include "tests/support/Waiting.h"

#include <QAccessible>

#include <gtest/gtest.h>

namespace velor {
namespace {

using namespace std::chrono_literals;

bool Shows(const StatusLine &bar, const char *text) {
  return WaitFor([&] { return bar.currentMessage() == QString::fromLatin1(text); }, 10'000);
}

TEST(StatusLineTest, NoticesThatComeAtOnceAreAllSeenTheNewestFirst) {
  StatusLine bar(nullptr, {.shown = 200ms, .read = 100ms});
  for (const char *text : {"first", "second", "third"}) bar.Report(QString::fromLatin1(text));
  EXPECT_EQ(bar.currentMessage(), QStringLiteral("third"));
  EXPECT_TRUE(Shows(bar, "second"));
  EXPECT_TRUE(Shows(bar, "first"));
  EXPECT_TRUE(Shows(bar, ""));
}

TEST(StatusLineTest, ANoticeThatCouldBeReadDoesNotComeBack) {
  StatusLine bar(nullptr, {.shown = 60s, .read = 0ms});
  bar.Report(QStringLiteral("read"));
  bar.Report(QStringLiteral("new"));
  bar.Report({});
  EXPECT_EQ(bar.currentMessage(), QString());
}

TEST(StatusLineTest, ANoticeTakenBackGivesWayToTheOneBeforeIt) {
  StatusLine bar(nullptr);
  bar.ReportOn(1, QStringLiteral("before"));
  bar.ReportOn(2, QStringLiteral("taken back"));
  bar.ReportOn(2, {});
  EXPECT_EQ(bar.currentMessage(), QStringLiteral("before"));
}

TEST(StatusLineTest, ANoticeIsTheNameOfTheBarForAssistiveTechnology) {
  StatusLine bar(nullptr);
  const auto name = [&bar] {
    return QAccessible::queryAccessibleInterface(&bar)->text(QAccessible::Name);
  };
  bar.Report(QStringLiteral("Saved"));
  EXPECT_EQ(name(), QStringLiteral("Saved"));
  bar.Report({});
  EXPECT_EQ(name(), QString());
}

TEST(StatusLineTest, ANoticeRepeatedIsShownOnce) {
  StatusLine bar(nullptr);
  bar.ReportOn(1, QStringLiteral("same"));
  bar.ReportOn(2, QStringLiteral("other"));
  bar.ReportOn(1, QStringLiteral("same"));
  bar.ReportOn(1, {});
  EXPECT_EQ(bar.currentMessage(), QStringLiteral("other"));
}

TEST(StatusLineTest, NoticesOnOtherPagesGoWhenAPageComesAndThoseOfTheProgramStay) {
  StatusLine bar(nullptr);
  bar.ReportOn(0, QStringLiteral("program"));
  bar.ReportOn(1, QStringLiteral("page"));
  bar.PageActivated(2);
  EXPECT_EQ(bar.currentMessage(), QStringLiteral("program"));
  EXPECT_FALSE(bar.HasNotice()) << "none about the page in front";
}

}  // namespace
}  // namespace velor
