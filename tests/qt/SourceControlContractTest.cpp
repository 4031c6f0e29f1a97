// SPDX-License-Identifier: GPL-3.0-or-later
// What every source control promises: run against the fake that other tests lean on and against the
// real one.
#include "qt/QsciSourceControl.h"
#include "tests/support/Checks.h"
#include "tests/support/FakeSourceControl.h"

#include <QPointer>
#include <QWidget>

#include <functional>
#include <memory>
#include <string>

namespace velor {

struct SourceControlMaker {
  std::string name;
  std::function<std::unique_ptr<SourceControl>(QWidget *, SourceAccess)> make;
};

void PrintTo(const SourceControlMaker &maker, std::ostream *out) {
  *out << maker.name;
}

class SourceControlContract : public ::testing::TestWithParam<SourceControlMaker> {
 protected:
  std::unique_ptr<SourceControl> Make(SourceAccess access = SourceAccess::Edit) {
    return GetParam().make(&host, access);
  }
  QWidget host;
};

TEST_P(SourceControlContract, TheTextComesBackAsItWasGiven) {
  const auto source = Make();
  for (const QString &text :
       {QString(), QStringLiteral("<p>a</p>"), QStringLiteral("a\r\nb\r\n"), QStringLiteral("a\nb"),
        QStringLiteral("a\r\nb\nc"), QStringLiteral("\u65e5\u672c \u00e4 \U0001F600"),
        QString(QStringLiteral("a") + QChar(0) + QStringLiteral("b")), QString(1'000'000, u'x')}) {
    source->SetText(text);
    EXPECT_EQ(source->Text(), text);
  }
}

TEST_P(SourceControlContract, AViewShowsWhatItIsGivenAndTakesNothingElse) {
  const auto source = Make(SourceAccess::View);
  source->SetText(QStringLiteral("one"));
  source->SetText(QStringLiteral("two"));
  EXPECT_EQ(source->Text(), QStringLiteral("two"));
  source->ReplaceSelection(QStringLiteral("typed"));
  EXPECT_EQ(source->Text(), QStringLiteral("two"));
}

TEST_P(SourceControlContract, EveryChangeOfTheTextIsToldAndNothingElse) {
  const auto source = Make();
  int told = 0;
  source->SetTextListener([&] { ++told; });
  const auto tells = [&](const auto &step) {
    told = 0;
    step();
    return told > 0;
  };
  EXPECT_TRUE(tells([&] { source->SetText(QStringLiteral("one two")); }));
  EXPECT_FALSE(tells([&] { source->SetCaret(0, 2); }));
  EXPECT_TRUE(tells([&] { source->ReplaceSelection(QStringLiteral("x")); }));
  EXPECT_TRUE(tells([&] { source->ReplaceParts({{{0, 1}, QStringLiteral("three")}}); }));
  EXPECT_FALSE(tells([&] { source->ReplaceParts({}); }));
  EXPECT_FALSE(tells([&] { source->MarkStretches({{0, 1}}); }));
  EXPECT_FALSE(tells([&] { source->DrawWaves({0, 3}, {{0, 1}}); }));
}

TEST_P(SourceControlContract, TheStretchOfAllChangesIsTakenOnce) {
  const auto source = Make();
  source->SetText(QStringLiteral("\u00e4 \U0001F600 one\r\ntwo three"));
  EXPECT_EQ(source->TakeChange(), (TextStretch{0, 19}));
  EXPECT_EQ(source->TakeChange(), std::nullopt);
  source->ReplaceParts({{{5, 8}, QStringLiteral("\u00e4")}});
  EXPECT_EQ(source->TakeChange(), (TextStretch{5, 6}));
  source->ReplaceParts({{{2, 4}, QStringLiteral("x")}, {{8, 11}, QString()}});
  const auto both = source->TakeChange();
  EXPECT_EQ(both, (TextStretch{2, 7}));
  source->SetCaret(0, 0);
  source->DrawWaves({0, 3}, {{0, 1}});
  EXPECT_EQ(source->TakeChange(), std::nullopt);
  source->ReplaceText(QStringLiteral("other"));
  EXPECT_EQ(source->TakeChange(), (TextStretch{0, 5}));
}

TEST_P(SourceControlContract, TheCaretStartsAtTheBeginningAndGoesWhereItIsPut) {
  const auto source = Make();
  source->SetText(QStringLiteral("first\r\nsecond\r\n"));
  EXPECT_EQ(source->CaretLine(), 0);
  EXPECT_EQ(source->CaretColumn(), 0);
  source->SetCaret(1, 3);
  EXPECT_EQ(source->CaretLine(), 1);
  EXPECT_EQ(source->CaretColumn(), 3);
  source->SetCaret(2, 0);
  EXPECT_EQ(source->CaretLine(), 2);
  EXPECT_EQ(source->CaretColumn(), 0);
}

TEST_P(SourceControlContract, ColumnsCountUtf16Units) {
  const auto source = Make();
  source->SetText(QStringLiteral("\U0001F600\u65e5x"));
  EXPECT_EQ(source->LineLength(0), 4);
  source->SetCaret(0, 3);
  EXPECT_EQ(source->CaretColumn(), 3);
  source->ReplaceSelection(QStringLiteral("!"));
  EXPECT_EQ(source->Text(), QStringLiteral("\U0001F600\u65e5!x"));
}

TEST_P(SourceControlContract, ACaretBeyondTheLineStandsAtItsEnd) {
  const auto source = Make();
  source->SetText(QStringLiteral("ab\r\ncd"));
  source->SetCaret(0, 99);
  EXPECT_EQ(source->CaretLine(), 0);
  EXPECT_EQ(source->CaretColumn(), 2);
}

TEST_P(SourceControlContract, LineLengthsLeaveOutTheLineEnd) {
  const auto source = Make();
  source->SetText(QStringLiteral("abc\r\nde\nf"));
  EXPECT_EQ(source->LineLength(0), 3);
  EXPECT_EQ(source->LineLength(1), 2);
  EXPECT_EQ(source->LineLength(2), 1);
}

TEST_P(SourceControlContract, TextIsInsertedAtTheCaret) {
  const auto source = Make();
  source->SetText(QStringLiteral("one three"));
  source->SetCaret(0, 4);
  source->ReplaceSelection(QStringLiteral("two "));
  EXPECT_EQ(source->Text(), QStringLiteral("one two three"));
  EXPECT_EQ(source->CaretColumn(), 8);
  EXPECT_TRUE(source->SelectedText().isEmpty());
}

TEST_P(SourceControlContract, AStretchIsSelectedByItsPlaceInTheText) {
  const auto source = Make();
  source->SetText(QStringLiteral("\u00e4 \U0001F600 one\r\ntwo"));
  source->Select({5, 8});
  EXPECT_EQ(source->SelectedText(), QStringLiteral("one"));
  EXPECT_EQ(source->Selection(), (TextStretch{5, 8}));
  source->Select({10, 10});
  EXPECT_EQ(source->CaretLine(), 1);
  EXPECT_EQ(source->Selection(), (TextStretch{10, 10}));
}

TEST_P(SourceControlContract, PartsAreReplacedButNotInAView) {
  const std::vector<TextReplacement> parts{{{0, 1}, QStringLiteral("xyz")},
                                           {{5, 6}, QStringLiteral("\u00e4")}};
  const auto source = Make();
  source->SetText(QStringLiteral("a \u00e4\r\nb"));
  source->ReplaceParts(parts);
  EXPECT_EQ(source->Text(), QStringLiteral("xyz \u00e4\r\n\u00e4"));
  const auto view = Make(SourceAccess::View);
  view->SetText(QStringLiteral("a \u00e4\r\nb"));
  view->ReplaceParts(parts);
  EXPECT_EQ(view->Text(), QStringLiteral("a \u00e4\r\nb"));
}

TEST_P(SourceControlContract, ALineIsMarkedWhereItIsSaid) {
  const auto source = Make();
  source->SetText(QStringLiteral("a\nb"));
  source->SetMarkedLine(0);
  EXPECT_EQ(source->MarkedLine(), 0);
  source->SetMarkedLine(1);
  EXPECT_EQ(source->MarkedLine(), 1);
}

TEST_P(SourceControlContract, UnknownColourSlotsAreIgnored) {
  const auto source = Make();
  for (const int slot : {-1, 0, 1, 2, 26, 27, 999}) {
    EXPECT_NO_THROW(source->SetColor(slot, 0x808080));
  }
}

TEST_P(SourceControlContract, TheWidgetBelongsToItsParentAndToTheControl) {
  QPointer<QWidget> widget;
  {
    const auto source = Make();
    widget = source->Widget();
    EXPECT_EQ(widget->parentWidget(), &host);
  }
  EXPECT_TRUE(widget.isNull());
  auto parent = std::make_unique<QWidget>();
  const auto survivor = GetParam().make(parent.get(), SourceAccess::Edit);
  parent.reset();
}

INSTANTIATE_TEST_SUITE_P(
    FakeAndReal, SourceControlContract,
    ::testing::Values(SourceControlMaker{"Fake",
                                         [](QWidget *parent, SourceAccess access) {
                                           return std::make_unique<FakeSourceControl>(parent,
                                                                                      access);
                                         }},
                      SourceControlMaker{"Real",
                                         [](QWidget *parent, SourceAccess access) {
                                           return std::make_unique<QsciSourceControl>(parent,
                                                                                      access);
                                         }}),
    [](const auto &maker) { return maker.param.name; });

}  // namespace velor
