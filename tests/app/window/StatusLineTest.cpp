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

TEST(StatusLineTest, ALongNoticeIsCutOffBeforeTheFieldsAndItsTipHasItWhole) {
  StatusLine bar(nullptr);
  bar.AddMenuButton(QStringLiteral("..."), QStringLiteral("Menu"));
  bar.ShowTextForm(QStringLiteral("windows-1252, CR LF, 150 %"));
  bar.resize(480, bar.sizeHint().height());
  bar.show();
  const auto *field = bar.findChild<QWidget *>(QStringLiteral("Sta_2"));
  const auto fields = [&] {
    return bar.grab(QRect(field->x() - 3, 0, bar.width(), bar.height())).toImage();
  };
  // Without the tag and the path, which a notice covers.
  bar.Report(QStringLiteral(" "));
  const QImage before = fields();
  const QString notice = QStringLiteral(
      "Die Rechtschreibung einer Sprache dieser Seite wird nicht gepr\u00fcft: das "
      "Paket hunspell-fr ist nicht installiert.");
  bar.Report(notice);
  EXPECT_TRUE(fields() == before) << "the notice runs into a field";
  EXPECT_EQ(bar.currentMessage(), notice);
  EXPECT_TRUE(bar.ShownNotice().endsWith(u'\u2026')) << bar.ShownNotice().toStdString();
  EXPECT_TRUE(bar.toolTip().contains(notice)) << bar.toolTip().toStdString();
  bar.resize(2'000, bar.height());
  EXPECT_EQ(bar.ShownNotice(), notice);
  EXPECT_EQ(bar.toolTip(), QString());
  bar.resize(480, bar.height());
  bar.Report(QStringLiteral("Saved"));
  EXPECT_EQ(bar.ShownNotice(), QStringLiteral("Saved"));
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
