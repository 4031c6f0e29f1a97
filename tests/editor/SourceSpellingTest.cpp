// SPDX-License-Identifier: GPL-3.0-or-later
// Unknown words in the text of a source: waves, and what is done to them.
#include "editor/SourceSpelling.h"
#include "tests/support/FakeSourceControl.h"
#include "tests/support/FakeSpelling.h"
#include "tests/support/Waiting.h"

#include <QWidget>

#include <gtest/gtest.h>

namespace velor {

namespace {

class SourceWords : public ::testing::Test {
 protected:
  SourceWords() {
    spelling.known = {QStringLiteral("the"), QStringLiteral("house"), QStringLiteral("in")};
    control.textListener = [this] { words.TextChanged(); };
    control.selectionListener = [this] { words.CaretMoved(); };
    words.Use(&spelling, {});
  }
  void Show(const char *source) {
    words.ShowWaves(true);
    control.SetText(QString::fromUtf8(source));
  }
  /// What has waves, with blanks between.
  std::string Waved() const {
    QStringList waved;
    for (const TextStretch &wave : control.waves)
      waved << control.text.sliced(wave.start, wave.end - wave.start);
    return waved.join(u' ').toStdString();
  }
  bool Waves(const char *expected) {
    return WaitFor([&] { return Waved() == expected; });
  }
  /// Types at an offset, as a person does: the caret stands behind it.
  void TypeAt(qsizetype offset, const char *text) {
    control.selectionStart = control.selectionEnd = offset;
    control.ReplaceSelection(QString::fromUtf8(text));
  }
  std::string Text() const { return control.text.toStdString(); }

  QWidget host;
  FakeSpelling spelling;
  QStringList reports;
  FakeSourceControl control{&host, SourceAccess::Edit};
  SourceSpelling words{control, SourceAccess::Edit,
                       [this](const QString &report) { reports << report; }};
};

}  // namespace

TEST_F(SourceWords, OfThePagesTextHaveWavesAndMarkupHasNone) {
  Show("<p class=abc>the hose<!-- def --> ho<b>s</b>e <% ghi %>caf&eacute;<script>jkl</script>");
  EXPECT_TRUE(Waves("hose ho s e caf&eacute;")) << Waved();
}

TEST_F(SourceWords, WithoutWavesHaveNoneAndAreFoundAllTheSame) {
  control.SetText(QStringLiteral("<p>the hose"));
  EXPECT_EQ(words.SelectNext(), (UnknownWord{QStringLiteral("hose"), {}}));
  EXPECT_EQ(control.SelectedText(), QStringLiteral("hose"));
  Show("<p>the hose");
  ASSERT_TRUE(Waves("hose"));
  words.ShowWaves(false);
  EXPECT_EQ(Waved(), "");
}

TEST_F(SourceWords, NearAChangeAreJudgedAgainAndNoOthers) {
  Show("<p>the hose<p>in hose<p>the end");
  ASSERT_TRUE(Waves("hose hose end"));
  spelling.judged.clear();
  TypeAt(16, " xyz");
  EXPECT_EQ(Waved(), "hose hose end") << "the others keep theirs until there is time";
  ASSERT_TRUE(WaitFor([&] { return !spelling.judged.empty(); }));
  EXPECT_EQ(spelling.judged.size(), 1U);
  EXPECT_EQ(spelling.judged[0].text, QStringLiteral("in xyz hose"));
  control.SetCaret(0, 0);
  EXPECT_TRUE(Waves("hose xyz hose end")) << Waved();
}

TEST_F(SourceWords, BehindAChangeOfTheMarkupAreJudgedByIt) {
  Show("<p>hose<p>end<p>last");
  ASSERT_TRUE(Waves("hose end last"));
  TypeAt(7, "<!-- ");
  EXPECT_TRUE(Waves("hose")) << Waved();
  TypeAt(21, "--><p>");
  EXPECT_TRUE(Waves("hose last")) << Waved();
  spelling.judged.clear();
  TypeAt(0, "<div lang=de>");
  ASSERT_TRUE(WaitFor([&] { return spelling.judged.size() >= 2; }));
  EXPECT_EQ(spelling.judged.back().LanguageAt(0), QStringLiteral("de"));
}

TEST_F(SourceWords, AtTheEndOfTheTextAreJudgedAgain) {
  Show("<p>the hose");
  ASSERT_TRUE(Waves("hose"));
  TypeAt(11, "s in");
  EXPECT_TRUE(Waves("hoses")) << Waved();
}

TEST_F(SourceWords, BroughtBackByUndoHaveTheirWavesAgain) {
  Show("<p>the hose<p>end");
  ASSERT_TRUE(Waves("hose end"));
  control.selectionStart = 3;
  control.selectionEnd = 11;
  control.ReplaceSelection({});
  control.ReplaceSelection(QStringLiteral("the hose"));
  EXPECT_EQ(Waved(), "end");
  control.SetCaret(0, 0);
  EXPECT_TRUE(Waves("hose end")) << Waved();
}

TEST_F(SourceWords, InSightAreJudgedFirst) {
  QString source;
  for (int line = 0; line < 3'000; ++line) source += QStringLiteral("<p>hose%1\n").arg(line);
  const qsizetype middle = source.indexOf(QStringLiteral("<p>hose1500"));
  control.inSight = TextStretch{middle + 4, middle + 20};
  Show(source.toUtf8().constData());
  ASSERT_TRUE(WaitFor([&] { return !spelling.judged.empty(); }));
  EXPECT_EQ(spelling.judged.front().text.trimmed(), QStringLiteral("hose1500"));
  EXPECT_TRUE(WaitFor([&] { return control.waves.size() == 3'000U; }));
  EXPECT_EQ(spelling.judged.size(), 3'000U);
}

TEST_F(SourceWords, BeingWrittenHaveNoWaveUntilTheCaretLeavesThem) {
  Show("<p>the in");
  ASSERT_TRUE(WaitFor([&] { return !spelling.judged.empty(); }));
  spelling.judged.clear();
  TypeAt(6, " hos");
  ASSERT_TRUE(WaitFor([&] { return !spelling.judged.empty(); }));
  EXPECT_EQ(Waved(), "");
  control.SetCaret(0, 4);
  EXPECT_TRUE(Waves("hos")) << Waved();
}

TEST_F(SourceWords, AtTheCaretAreCorrectedAsOneStepThatKeepsTheMarkupInThem) {
  control.SetText(QStringLiteral("<p>the ho<b>s</b>e in"));
  control.Select({8, 8});
  EXPECT_EQ(words.AtCaret(), (UnknownWord{QStringLiteral("hose"), {}}));
  EXPECT_TRUE(words.Correct(QStringLiteral("house")));
  EXPECT_EQ(Text(), "<p>the hou<b>s</b>e in");
  EXPECT_EQ(control.selectionEnd, 19) << "behind the word";
  EXPECT_EQ(control.undoable.size(), 1);
  control.Select({4, 4});
  EXPECT_EQ(words.AtCaret(), std::nullopt);
  EXPECT_FALSE(words.Correct(QStringLiteral("x")));
}

TEST_F(SourceWords, AreFoundWhereTheTextHasChangedAMomentAgo) {
  Show("<p>the hose<p lang=de>in<p>end");
  ASSERT_TRUE(Waves("hose end"));
  TypeAt(22, "xyz ");
  EXPECT_EQ(words.AtCaret(), std::nullopt) << "the caret is behind the blank";
  control.Select({23, 23});
  EXPECT_EQ(words.AtCaret(), (UnknownWord{QStringLiteral("xyz"), QStringLiteral("de")}));
  EXPECT_EQ(words.SelectNext(), (UnknownWord{QStringLiteral("xyz"), QStringLiteral("de")}));
  EXPECT_EQ(words.SelectNext(), (UnknownWord{QStringLiteral("end"), {}}));
  EXPECT_TRUE(words.Correct(QStringLiteral("the")));
  EXPECT_EQ(Text(), "<p>the hose<p lang=de>xyz in<p>the");
  EXPECT_TRUE(Waves("hose xyz")) << Waved();
  words.ShowWaves(false);
  EXPECT_EQ(words.All().size(), 2U);
}

TEST_F(SourceWords, AreReplacedAcrossTheMarkupInThem) {
  control.SetText(QStringLiteral("<p>a<b>b</b>c&eacute;"));
  ASSERT_TRUE(words.SelectNext());
  EXPECT_EQ(control.Selection(), (TextStretch{3, 21}));
  EXPECT_TRUE(words.Correct(QStringLiteral("x<y")));
  EXPECT_EQ(Text(), "<p>x&lt;y<b></b>");
}

TEST_F(SourceWords, KeepTheReferencesThatAreNotChanged) {
  control.SetText(QStringLiteral("<p>caf&eacute;"));
  ASSERT_TRUE(words.SelectNext());
  EXPECT_TRUE(words.Correct(QStringLiteral("caf\u00e9s")));
  EXPECT_EQ(Text(), "<p>caf&eacute;s");
}

TEST_F(SourceWords, AreNotCorrectedWhereTheTextHasChangedSince) {
  control.SetText(QStringLiteral("<p>hose"));
  ASSERT_TRUE(words.SelectNext());
  control.ReplaceText(QStringLiteral("<p><p>hose"));
  EXPECT_FALSE(words.Correct(QStringLiteral("house")));
  EXPECT_EQ(Text(), "<p><p>hose");
}

TEST_F(SourceWords, AreWalkedThroughAroundTheEnd) {
  control.SetText(QStringLiteral("<p>hose the<p>end"));
  control.Select({14, 14});
  const auto next = [this] { return words.SelectNext().value_or(UnknownWord{}).word; };
  EXPECT_EQ(next(), QStringLiteral("end"));
  EXPECT_EQ(next(), QStringLiteral("hose"));
  EXPECT_EQ(next(), QStringLiteral("end"));
  spelling.known += {QStringLiteral("end"), QStringLiteral("hose")};
  EXPECT_EQ(words.SelectNext(), std::nullopt);
}

TEST_F(SourceWords, AreChangedEverywhereAsOneStep) {
  control.SetText(QStringLiteral("<p title=hose>hose<p>the ho<i>se</i>, hoses"));
  EXPECT_EQ(words.All().size(), 3U);
  EXPECT_EQ(words.CorrectAll(QStringLiteral("hose"), QStringLiteral("house")), 2);
  EXPECT_EQ(Text(), "<p title=hose>house<p>the hou<i>se</i>, hoses");
}

TEST_F(SourceWords, ThatAreAddedLoseTheirWaves) {
  Show("<p>hose end");
  ASSERT_TRUE(Waves("hose end"));
  spelling.known.insert(QStringLiteral("hose"));
  words.CheckAgain();
  EXPECT_TRUE(Waves("end")) << Waved();
}

TEST_F(SourceWords, OfALanguageWithoutDictionaryAreToldOf) {
  spelling.packages << QStringLiteral("hunspell-fr");
  Show("<p lang=fr>the");
  ASSERT_TRUE(WaitFor([&] { return !reports.isEmpty(); }));
  EXPECT_TRUE(reports[0].contains(QStringLiteral("hunspell-fr"))) << reports[0].toStdString();
}

TEST(SourceWordsOfAView, CanBeShownOnly) {
  QWidget host;
  FakeSpelling spelling;
  FakeSourceControl control(&host, SourceAccess::View);
  SourceSpelling words(control, SourceAccess::View, [](const QString &) {});
  words.Use(&spelling, {});
  control.SetText(QStringLiteral("<p>hose"));
  EXPECT_FALSE(words.CanCorrect());
  ASSERT_TRUE(words.SelectNext());
  EXPECT_FALSE(words.Correct(QStringLiteral("house")));
  EXPECT_EQ(words.CorrectAll(QStringLiteral("hose"), QStringLiteral("house")), 0);
  EXPECT_EQ(control.text, QStringLiteral("<p>hose"));
}

}  // namespace velor
