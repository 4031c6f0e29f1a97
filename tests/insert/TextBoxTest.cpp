// SPDX-License-Identifier: GPL-3.0-or-later
#include "insert/TextBox.h"
#include "tests/support/Checks.h"

#include <QApplication>
#include <QTest>
#include <QVBoxLayout>
#include <QWidget>

namespace velor {
namespace {

/// Two boxes in an active window, the focus in the first.
class TextBoxTest : public testing::Test {
 protected:
  TextBoxTest() {
    auto *layout = new QVBoxLayout(&window);
    layout->addWidget(first);
    layout->addWidget(second);
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    first->setFocus();
    EXPECT_TRUE(first->hasFocus());
  }

  QWidget window;
  TextBox *first = new TextBox(QStringLiteral("first"));
  TextBox *second = new TextBox(QStringLiteral("second"));
};

TEST_F(TextBoxTest, SelectsItsWholeTextWhenReachedByTab) {
  second->deselect();
  QTest::keyClick(first, Qt::Key_Tab);
  ASSERT_TRUE(second->hasFocus());
  EXPECT_EQ(second->selectedText(), QStringLiteral("second"));
}

TEST_F(TextBoxTest, SelectsItsWholeTextWhenReachedByMouse) {
  QTest::mouseClick(second, Qt::LeftButton, {}, QPoint(20, second->height() / 2));
  ASSERT_TRUE(second->hasFocus());
  EXPECT_EQ(second->selectedText(), QStringLiteral("second"));
}

TEST_F(TextBoxTest, SelectsItsWholeTextWhenReachedByTheProgram) {
  second->setFocus();
  EXPECT_EQ(second->selectedText(), QStringLiteral("second"));
}

TEST_F(TextBoxTest, SelectsFromTheStartToTheEnd) {
  first->setCursorPosition(2);
  SelectAllText(*first);
  EXPECT_EQ(first->selectionStart(), 0);
  EXPECT_EQ(first->selectionLength(), 5);
  first->clear();
  SelectAllText(*first);
  EXPECT_FALSE(first->hasSelectedText());
}

TEST_F(TextBoxTest, PlacesTheCaretByAClickIntoTheBoxThatHasTheFocus) {
  QTest::mouseClick(second, Qt::LeftButton, {}, QPoint(20, second->height() / 2));
  QTest::mouseClick(second, Qt::LeftButton, {}, QPoint(20, second->height() / 2),
                    QApplication::doubleClickInterval() + 1);
  EXPECT_FALSE(second->hasSelectedText());
}

TEST_F(TextBoxTest, KeepsTheSelectionOverAChangeOfWindow) {
  first->setSelection(1, 2);
  QFocusEvent out(QEvent::FocusOut, Qt::ActiveWindowFocusReason);
  QFocusEvent in(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
  QApplication::sendEvent(first, &out);
  QApplication::sendEvent(first, &in);
  EXPECT_EQ(first->selectedText(), QStringLiteral("ir"));
}

TEST_F(TextBoxTest, RepairsATextThatIsNoNumberWhenLeft) {
  first->RepairNumberTo(QStringLiteral("32"));
  for (const char *bad : {"abc", "", "12 px"}) {
    first->setFocus();
    first->setText(QString::fromUtf8(bad));
    second->setFocus();
    EXPECT_EQ(first->text(), QStringLiteral("32")) << bad;
  }
}

TEST_F(TextBoxTest, KeepsEveryNumberWhenLeft) {
  first->RepairNumberTo(QStringLiteral("32"));
  for (const char *number : {"0", "-5", "2.5", " 7 ", "1e20", "+3"}) {
    first->setFocus();
    first->setText(QString::fromUtf8(number));
    second->setFocus();
    EXPECT_EQ(first->text(), QString::fromUtf8(number));
  }
}

TEST_F(TextBoxTest, KeepsAnyTextWithoutARepair) {
  first->setText(QStringLiteral("abc"));
  second->setFocus();
  EXPECT_EQ(first->text(), QStringLiteral("abc"));
}

TEST_F(TextBoxTest, DoesNotRepairWhileTheWindowIsInTheBackground) {
  first->RepairNumberTo(QStringLiteral("32"));
  first->setText(QStringLiteral("abc"));
  window.hide();
  EXPECT_EQ(first->text(), QStringLiteral("abc"));
}

}  // namespace
}  // namespace velor
