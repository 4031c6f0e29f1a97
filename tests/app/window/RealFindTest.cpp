// SPDX-License-Identifier: GPL-3.0-or-later
// Finding and replacing in the page, by keys.
#include "editor/PageSlots.h"
#include "editor/frmCodeEditor.h"
#include "editor/frmMain.h"
#include "tests/app/window/RealWindowFixture.h"
#include "tests/engine/ComponentFixture.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QWebEnginePage>

namespace velor {
namespace {

const QByteArray Words =
    "<HTML><BODY>\r\n<p>one two\r\n<P align=left>On<B>e</B> three<!-- one -->\r\n<p>phone\r\n"
    "</BODY></HTML>\r\n";

class RealFind : public RealWindow {
 protected:
  frmMain &OpenBar(Qt::Key key) {
    frmMain &page = Open(QStringLiteral("words.htm"), Words);
    Key(page, key, Qt::ControlModifier);
    EXPECT_TRUE(WaitFor([&] { return Box(page, "txtFind").hasFocus(); }));
    return page;
  }
  static QLineEdit &Box(frmMain &page, const char *name) {
    return *page.findChild<QLineEdit *>(QString::fromLatin1(name));
  }
  static bool Tells(frmMain &page, const char *words) {
    auto *result = page.findChild<QLabel *>(QStringLiteral("lblResult"));
    return WaitFor([&] { return result->text() == QLatin1String(words); });
  }
  static void Press(frmMain &page, const char *button) {
    page.findChild<QPushButton *>(QString::fromLatin1(button))->click();
  }
};

TEST_F(RealFind, TypedWordsAreCountedAndF3WalksThroughThem) {
  frmMain &page = OpenBar(Qt::Key_F);
  QTest::keyClicks(&Box(page, "txtFind"), QStringLiteral("one"));
  EXPECT_TRUE(Tells(page, "1 of 3"));
  QTest::keyClick(&Box(page, "txtFind"), Qt::Key_F3);
  EXPECT_TRUE(Tells(page, "2 of 3"));
  QTest::keyClick(&Box(page, "txtFind"), Qt::Key_F3, Qt::ShiftModifier);
  EXPECT_TRUE(Tells(page, "1 of 3"));
  QTest::keyClicks(&Box(page, "txtFind"), QStringLiteral("s"));
  EXPECT_TRUE(Tells(page, "Not found"));
}

TEST_F(RealFind, ServerCodeIsNeverMatchedInThePageAndIsFoundInItsSource) {
  frmMain &page = Open(QStringLiteral("words.htm"),
                       "<p>two<?php one(); ?> <% one %><a href=\"<%= one %>\">one</a><?= one ?>\n");
  Key(page, Qt::Key_F, Qt::ControlModifier);
  ASSERT_TRUE(WaitFor([&] { return Box(page, "txtFind").hasFocus(); }));
  QTest::keyClicks(&Box(page, "txtFind"), QStringLiteral("one"));
  EXPECT_TRUE(Tells(page, "1 of 1"));
  page.ChangeMode(2);
  EXPECT_TRUE(Tells(page, "4 of 5")) << "the match of the page is selected there";
}

TEST_F(RealFind, EscapeLeavesTheKeyboardOnTheMatch) {
  frmMain &page = OpenBar(Qt::Key_F);
  QTest::keyClicks(&Box(page, "txtFind"), QStringLiteral("two"));
  ASSERT_TRUE(Tells(page, "1 of 1"));
  QTest::keyClick(&Box(page, "txtFind"), Qt::Key_Escape);
  EXPECT_FALSE(Box(page, "txtFind").isVisible());
  ASSERT_EQ(QApplication::focusWidget(), InputOf(page));
  Type(page, QStringLiteral("2"));
  EXPECT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("<p>one 2")); })) << Seen(page);
}

TEST_F(RealFind, TheSelectionIsWhatIsLookedFor) {
  frmMain &page = Open(QStringLiteral("words.htm"), Words);
  Select(page, QStringLiteral("p:last-of-type"));
  Key(page, Qt::Key_F, Qt::ControlModifier);
  EXPECT_TRUE(WaitFor([&] { return Box(page, "txtFind").text() == QStringLiteral("phone"); }));
  EXPECT_TRUE(Tells(page, "1 of 1"));
}

TEST_F(RealFind, ReplaceAllIsOneStepAndChangesItsBytesOnly) {
  frmMain &page = OpenBar(Qt::Key_H);
  QTest::keyClicks(&Box(page, "txtFind"), QStringLiteral("one"));
  QTest::keyClicks(&Box(page, "txtReplace"), QStringLiteral("1"));
  Press(page, "cmdReplaceAll");
  ASSERT_TRUE(Tells(page, "3 replaced"));
  Choose("mnuSave");
  EXPECT_EQ(Bytes(QStringLiteral("words.htm")).toStdString(),
            "<HTML><BODY>\r\n<p>1 two\r\n<P align=left>1 three<!-- one -->\r\n<p>ph1\r\n"
            "</BODY></HTML>\r\n");
  Choose("mnuUndo");
  ASSERT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("phone")); }));
  Choose("mnuSave");
  EXPECT_EQ(Bytes(QStringLiteral("words.htm")).toStdString(), Words.toStdString());
}

TEST_F(RealFind, TheSourceIsSearchedForTheSameWords) {
  frmMain &page = OpenBar(Qt::Key_F);
  QTest::keyClicks(&Box(page, "txtFind"), QStringLiteral("one"));
  ASSERT_TRUE(Tells(page, "1 of 3"));
  page.ChangeMode(2);
  EXPECT_TRUE(Tells(page, "1 of 3")) << "in the source one is in a comment, and one is no word";
  EXPECT_EQ(page.Code1().SelectedText(), QStringLiteral("one"));
  QTest::keyClick(&Box(page, "txtFind"), Qt::Key_F3, Qt::ShiftModifier);
  EXPECT_TRUE(Tells(page, "3 of 3"));
  page.ChangeMode(1);
  EXPECT_TRUE(Tells(page, "3 of 3")) << "the part of phone is selected in the page too";
}

TEST_F(RealFind, ReplaceIsThereFromTheFirstMoment) {
  frmMain &page = Open(QStringLiteral("words.htm"), Words);
  Select(page, QStringLiteral("p:last-of-type"));
  Key(page, Qt::Key_H, Qt::ControlModifier);
  EXPECT_TRUE(WaitFor([&] { return Box(page, "txtFind").text() == QStringLiteral("phone"); }));
  QTest::keyClicks(&Box(page, "txtReplace"), QStringLiteral("call"));
  Press(page, "cmdReplace");
  EXPECT_TRUE(WaitFor([&] { return Holds(page, QStringLiteral("<p>call")); })) << Seen(page);
}

TEST_F(RealFind, TheMatchIsSelectedInTheSourceEditorToo) {
  frmMain &page = OpenBar(Qt::Key_F);
  QTest::keyClicks(&Box(page, "txtFind"), QStringLiteral("hon"));
  ASSERT_TRUE(Tells(page, "1 of 1"));
  page.ChangeMode(3);
  frmCodeEditor &editor = *window.Context().pages.CodeEditor(page.Number());
  EXPECT_EQ(editor.Code().SelectedText(), QStringLiteral("hon"));
  Choose("mnuFind");
  const auto &box = *editor.findChild<QLineEdit *>(QStringLiteral("txtFind"));
  EXPECT_EQ(box.text(), QStringLiteral("hon"));
  EXPECT_EQ(editor.findChild<QLabel *>(QStringLiteral("lblResult"))->text(),
            QStringLiteral("1 of 1"));
}

}  // namespace
}  // namespace velor
