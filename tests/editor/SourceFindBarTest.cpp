// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/editor/EditorWorld.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

namespace velor {

class FindBarTest : public EditorWorld {
 protected:
  void OpenBar(Qt::Key key) {
    Open(QStringLiteral("\\site\\index.htm"));
    Page(1).ChangeMode(3);
    frmCodeEditor &editor = *pages.CodeEditor(1);
    Code(1).text = QStringLiteral("one two One two");
    editor.show();
    editor.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&editor));
    Code(1).Widget()->setFocus();
    QTest::keyClick(Code(1).Widget(), key, Qt::ControlModifier);
  }
  template <typename Widget>
  Widget &Part(const char *name) {
    return *pages.CodeEditor(1)->findChild<Widget *>(QString::fromLatin1(name));
  }
  bool Shown(const char *name) { return Part<QWidget>(name).isVisible(); }
  void Press(const char *name) { Part<QPushButton>(name).click(); }
  qsizetype Selected() { return Code(1).selectionStart; }
};

TEST_F(FindBarTest, CtrlFFindsAsItIsTypedAndEnterGoesOnAround) {
  OpenBar(Qt::Key_F);
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

TEST_F(FindBarTest, LetterCaseCountsWhereItIsWanted) {
  OpenBar(Qt::Key_F);
  QTest::keyClicks(&Part<QLineEdit>("txtFind"), QStringLiteral("One"));
  Part<QCheckBox>("chkCase").setChecked(true);
  EXPECT_EQ(Selected(), 8);
}

TEST_F(FindBarTest, WhatIsNowhereIsToldAndEscapeGoesBackToTheSource) {
  OpenBar(Qt::Key_F);
  QTest::keyClicks(&Part<QLineEdit>("txtFind"), QStringLiteral("three"));
  EXPECT_EQ(Part<QLabel>("lblResult").text(), QStringLiteral("Not found"));
  log.clear();
  QTest::keyClick(&Part<QLineEdit>("txtFind"), Qt::Key_Escape);
  EXPECT_FALSE(Shown("picFind"));
  EXPECT_EQ(log, Calls({"Source.SetFocus()"}));
}

TEST_F(FindBarTest, F3GoesOnAndShiftF3Back) {
  OpenBar(Qt::Key_F);
  QTest::keyClicks(&Part<QLineEdit>("txtFind"), QStringLiteral("two"));
  QTest::keyClick(&Part<QLineEdit>("txtFind"), Qt::Key_Escape);
  QTest::keyClick(Code(1).Widget(), Qt::Key_F3);
  EXPECT_EQ(Selected(), 12);
  QTest::keyClick(Code(1).Widget(), Qt::Key_F3, Qt::ShiftModifier);
  EXPECT_EQ(Selected(), 4);
}

TEST_F(FindBarTest, TabGoesFromTheWordsToTheirReplacement) {
  OpenBar(Qt::Key_H);
  QTest::keyClick(&Part<QLineEdit>("txtFind"), Qt::Key_Tab);
  EXPECT_TRUE(Part<QLineEdit>("txtReplace").hasFocus());
  QTest::keyClick(&Part<QLineEdit>("txtReplace"), Qt::Key_Tab);
  EXPECT_TRUE(Part<QPushButton>("cmdPrevious").hasFocus());
}

TEST_F(FindBarTest, CtrlHReplacesOneByOneOrAll) {
  OpenBar(Qt::Key_H);
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
