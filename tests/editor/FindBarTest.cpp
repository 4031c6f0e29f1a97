// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/FindBar.h"
#include "tests/editor/EditorWorld.h"

#include <QAction>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace velor {

class FindBarTest : public EditorWorld {
 protected:
  void OpenBar(FindBar::Purpose purpose) {
    Open(QStringLiteral("\\site\\index.htm"));
    Page(1).ChangeMode(3);
    frmCodeEditor &editor = *pages.CodeEditor(1);
    Code(1).text = QStringLiteral("one two One two");
    editor.show();
    editor.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&editor));
    Code(1).Widget()->setFocus();
    Bar().Open(purpose);
  }
  FindBar &Bar() { return *pages.CodeEditor(1)->findChild<FindBar *>(); }
  template <typename Widget>
  Widget &Part(const char *name) {
    return *pages.CodeEditor(1)->findChild<Widget *>(QString::fromLatin1(name));
  }
  bool Shown(const char *name) { return Part<QWidget>(name).isVisible(); }
  void Press(const char *name) { Part<QPushButton>(name).click(); }
  qsizetype Selected() { return Code(1).selectionStart; }
};

TEST_F(FindBarTest, FindsAsItIsTypedAndEnterGoesOnAround) {
  OpenBar(FindBar::Purpose::Find);
  ASSERT_TRUE(Shown("picFind"));
  EXPECT_FALSE(Shown("txtReplace"));
  EXPECT_EQ(Part<QLineEdit>("txtFind").accessibleName(), QStringLiteral("Find"));
  QTest::keyClicks(&Part<QLineEdit>("txtFind"), QStringLiteral("one"));
  EXPECT_EQ(Selected(), 0);
  QTest::keyClick(&Part<QLineEdit>("txtFind"), Qt::Key_Return);
  EXPECT_EQ(Selected(), 8);
  QTest::keyClick(&Part<QLineEdit>("txtFind"), Qt::Key_Return);
  EXPECT_EQ(Selected(), 0);
  QTest::keyClick(&Part<QLineEdit>("txtFind"), Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_EQ(Selected(), 8);
}

TEST_F(FindBarTest, TheMatchesAreCountedAndMarked) {
  OpenBar(FindBar::Purpose::Find);
  QTest::keyClicks(&Part<QLineEdit>("txtFind"), QStringLiteral("two"));
  EXPECT_EQ(Part<QLabel>("lblResult").text(), QStringLiteral("1 of 2"));
  EXPECT_EQ(Code(1).marked, (std::vector<TextStretch>{{4, 7}, {12, 15}}));
  Press("cmdNext");
  EXPECT_EQ(Part<QLabel>("lblResult").text(), QStringLiteral("2 of 2"));
  QTest::keyClick(&Part<QLineEdit>("txtFind"), Qt::Key_Escape);
  EXPECT_TRUE(Code(1).marked.empty());
}

TEST_F(FindBarTest, TheSelectionIsWhatIsFoundFirst) {
  OpenBar(FindBar::Purpose::Find);
  QTest::keyClick(&Part<QLineEdit>("txtFind"), Qt::Key_Escape);
  Code(1).Select({4, 7});
  Bar().Open(FindBar::Purpose::Find);
  EXPECT_EQ(Part<QLineEdit>("txtFind").text(), QStringLiteral("two"));
  EXPECT_EQ(Part<QLineEdit>("txtFind").selectedText(), QStringLiteral("two"));
  EXPECT_EQ(Part<QLabel>("lblResult").text(), QStringLiteral("1 of 2"));
}

TEST_F(FindBarTest, UpBringsEarlierWords) {
  OpenBar(FindBar::Purpose::Find);
  auto &words = Part<QLineEdit>("txtFind");
  for (const char *each : {"one", "two"}) {
    words.selectAll();
    QTest::keyClicks(&words, QString::fromLatin1(each));
    QTest::keyClick(&words, Qt::Key_Return);
  }
  QTest::keyClick(&words, Qt::Key_Up);
  EXPECT_EQ(words.text(), QStringLiteral("one"));
  QTest::keyClick(&words, Qt::Key_Down);
  EXPECT_EQ(words.text(), QStringLiteral("two"));
}

TEST_F(FindBarTest, ABadExpressionIsTold) {
  OpenBar(FindBar::Purpose::Find);
  QTest::keyClicks(&Part<QLineEdit>("txtFind"), QStringLiteral("(one"));
  Part<QAction>("optExpression").setChecked(true);
  EXPECT_EQ(Part<QLabel>("lblResult").text(), QStringLiteral("Not a regular expression"));
}

TEST_F(FindBarTest, OnlyTheSelectionIsSearchedWhereThatIsWanted) {
  OpenBar(FindBar::Purpose::Replace);
  QTest::keyClicks(&Part<QLineEdit>("txtFind"), QStringLiteral("two"));
  Code(1).Select({8, 15});
  Part<QAction>("optSelection").setChecked(true);
  QTest::keyClicks(&Part<QLineEdit>("txtReplace"), QStringLiteral("2"));
  Press("cmdReplaceAll");
  EXPECT_EQ(Code(1).text, QStringLiteral("one two One 2"));
}

TEST_F(FindBarTest, WordsAndOptionsAreThoseOfThePage) {
  Open(QStringLiteral("\\site\\index.htm"));
  context.find.query.words = QStringLiteral("two");
  context.find.query.edges = WordEdges::Whole;
  Page(1).ChangeMode(3);
  Code(1).text = QStringLiteral("twofold two");
  pages.CodeEditor(1)->show();
  pages.CodeEditor(1)->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(pages.CodeEditor(1)));
  Code(1).Widget()->setFocus();
  Bar().FindOn(SearchDirection::Forward);
  EXPECT_EQ(Selected(), 8);
}

class PageFindBarTest : public EditorWorld {
 protected:
  void SetUp() override {
    Open(QStringLiteral("\\site\\index.htm"), "<html><p>one</p></html>");
    Page(1).show();
    Page(1).activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Page(1)));
    Component(1).Widget()->setFocus();
  }
  FindBar &Bar() { return *Page(1).findChild<FindBar *>(); }
  QLineEdit &Words() { return *Page(1).findChild<QLineEdit *>(QStringLiteral("txtFind")); }
  FakeTextSearch &Search() { return Component(1).search; }
};

TEST_F(PageFindBarTest, TheBarSearchesThePageForItsSelection) {
  Search().selectedLine = QStringLiteral("one");
  Search().result = {.count = 3, .current = 2};
  Bar().Open(FindBar::Purpose::Find);
  EXPECT_TRUE(Words().isVisible());
  EXPECT_EQ(Search().query.words, QStringLiteral("one"));
  EXPECT_EQ(Search().calls, QStringList{QStringLiteral("Recount")});
  EXPECT_EQ(Page(1).findChild<QLabel *>(QStringLiteral("lblResult"))->text(),
            QStringLiteral("2 of 3"));
  QTest::keyClicks(&Words(), QStringLiteral("x"));
  EXPECT_EQ(Search().calls.last(), QStringLiteral("Find Here"));
  QTest::keyClick(&Words(), Qt::Key_Escape);
  EXPECT_FALSE(Words().isVisible());
  EXPECT_EQ(Search().calls.mid(2), (QStringList{"End", "SetFocus"}));
}

TEST_F(PageFindBarTest, TheSourceViewIsSearchedAfterItIsShownAndTakesNoReplacement) {
  Bar().Open(FindBar::Purpose::Replace);
  EXPECT_TRUE(Page(1).findChild<QWidget *>(QStringLiteral("txtReplace"))->isVisible());
  QTest::keyClicks(&Words(), QStringLiteral("html"));
  Page(1).ChangeMode(2);
  EXPECT_EQ(Search().calls.last(), QStringLiteral("End"));
  EXPECT_FALSE(Page(1).findChild<QWidget *>(QStringLiteral("txtReplace"))->isVisible());
  QTest::keyClick(&Words(), Qt::Key_Return);
  EXPECT_EQ(SourceView(1).SelectedText().toLower(), QStringLiteral("html"));
}

TEST_F(PageFindBarTest, AnEditCountsTheMatchesAgain) {
  Bar().Open(FindBar::Purpose::Find);
  QTest::keyClicks(&Words(), QStringLiteral("one"));
  Search().calls.clear();
  Component(1).Edit(QStringLiteral("<p>one</p>"));
  EXPECT_EQ(Search().calls, QStringList{QStringLiteral("Recount")});
}

TEST_F(FindBarTest, LetterCaseCountsWhereItIsWanted) {
  OpenBar(FindBar::Purpose::Find);
  QTest::keyClicks(&Part<QLineEdit>("txtFind"), QStringLiteral("One"));
  Part<QCheckBox>("chkCase").setChecked(true);
  EXPECT_EQ(Selected(), 8);
}

TEST_F(FindBarTest, WhatIsNowhereIsToldAndEscapeGoesBackToTheSource) {
  OpenBar(FindBar::Purpose::Find);
  QTest::keyClicks(&Part<QLineEdit>("txtFind"), QStringLiteral("three"));
  EXPECT_EQ(Part<QLabel>("lblResult").text(), QStringLiteral("Not found"));
  log.clear();
  QTest::keyClick(&Part<QLineEdit>("txtFind"), Qt::Key_Escape);
  EXPECT_FALSE(Shown("picFind"));
  EXPECT_EQ(log, Calls({"Source.SetFocus()"}));
}

TEST_F(FindBarTest, FindNextGoesOnAndFindPreviousBack) {
  OpenBar(FindBar::Purpose::Find);
  QTest::keyClicks(&Part<QLineEdit>("txtFind"), QStringLiteral("two"));
  QTest::keyClick(&Part<QLineEdit>("txtFind"), Qt::Key_Escape);
  Bar().FindOn(SearchDirection::Forward);
  EXPECT_EQ(Selected(), 12);
  Bar().FindOn(SearchDirection::Backward);
  EXPECT_EQ(Selected(), 4);
}

TEST_F(FindBarTest, TabGoesFromTheWordsToTheirReplacement) {
  OpenBar(FindBar::Purpose::Replace);
  QTest::keyClick(&Part<QLineEdit>("txtFind"), Qt::Key_Tab);
  EXPECT_TRUE(Part<QLineEdit>("txtReplace").hasFocus());
  QTest::keyClick(&Part<QLineEdit>("txtReplace"), Qt::Key_Tab);
  EXPECT_TRUE(Part<QPushButton>("cmdPrevious").hasFocus());
}

TEST_F(FindBarTest, ReplacesOneByOneOrAll) {
  OpenBar(FindBar::Purpose::Replace);
  ASSERT_TRUE(Shown("txtReplace"));
  QTest::keyClicks(&Part<QLineEdit>("txtFind"), QStringLiteral("two"));
  QTest::keyClicks(&Part<QLineEdit>("txtReplace"), QStringLiteral("2"));
  Press("cmdReplace");
  EXPECT_EQ(Code(1).text, QStringLiteral("one 2 One two"));
  EXPECT_EQ(Code(1).SelectedText(), QStringLiteral("two"));
  Part<QLineEdit>("txtFind").setText(QStringLiteral("one"));
  Press("cmdReplaceAll");
  EXPECT_EQ(Code(1).text, QStringLiteral("2 2 2 two"));
  EXPECT_EQ(Part<QLabel>("lblResult").text(), QStringLiteral("2 replaced"));
}

}  // namespace velor
