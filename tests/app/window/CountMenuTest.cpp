// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/StatusLine.h"
#include "editor/frmMain.h"
#include "tests/app/window/WindowFixture.h"
#include "tests/support/FakeEditingComponent.h"

#include <QContextMenuEvent>
#include <QTest>

namespace velor {
namespace {

class CountMenuTest : public WindowFixture {
 protected:
  CountMenuTest() {
    window.show();
    window.activateWindow();
  }
  /// The rows of the menu that is open, which is closed then.
  std::string Rows() {
    auto *menu = window.findChild<QMenu *>(QStringLiteral("mnuCounts"));
    if (menu == nullptr || !menu->isVisible()) return "no menu";
    QStringList rows;
    for (const QAction *item : menu->actions())
      if (!item->isSeparator()) rows << item->text();
    menu->close();
    return rows.join(u'|').toStdString();
  }
};

TEST_F(CountMenuTest, TellsTheWordsOfThePageAndOfItsSelection) {
  frmMain &page = NewPage();
  Component(page).counts = {{1234, 7000}, {}};
  Button("cmdStatusMenu")->click();
  EXPECT_EQ(Rows(), "Words in the page: 1,234|Characters in the page: 7,000");
  Component(page).counts.selection = {3, 14};
  Button("cmdStatusMenu")->click();
  EXPECT_EQ(Rows(),
            "Words in the page: 1,234|Characters in the page: 7,000|"
            "Words in the selection: 3|Characters in the selection: 14");
  // The page of a source; what is selected of it is no text that is read.
  page.ChangeMode(3);
  Button("cmdStatusMenu")->click();
  EXPECT_EQ(Rows(), "Words in the page: 1,234|Characters in the page: 7,000");
}

TEST_F(CountMenuTest, ComesByF6AndTheMenuKeyAndByTheRightMouseButton) {
  NewPage();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  for (int press = 0; press < 10 && !Button("cmdStatusMenu")->hasFocus(); ++press)
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6);
  ASSERT_TRUE(Button("cmdStatusMenu")->hasFocus());
  const auto ask = [](QWidget &target, QContextMenuEvent::Reason reason) {
    const QPoint middle = target.rect().center();
    QContextMenuEvent event(reason, middle, target.mapToGlobal(middle));
    QApplication::sendEvent(&target, &event);
  };
  ask(*Button("cmdStatusMenu"), QContextMenuEvent::Keyboard);
  EXPECT_EQ(Rows(), "Words in the page: 0|Characters in the page: 0");
  ask(*Find<QWidget>("Sta_2"), QContextMenuEvent::Mouse);
  EXPECT_EQ(Rows(), "Words in the page: 0|Characters in the page: 0");
}

TEST_F(CountMenuTest, ARowThatIsChosenStaysInTheStatusBarForAWhile) {
  Component(NewPage()).counts.page.words = 5;
  Button("cmdStatusMenu")->click();
  Find<QAction>("pageWords")->trigger();
  EXPECT_EQ(Find<StatusLine>("Sta")->currentMessage(), QStringLiteral("Words in the page: 5"));
}

TEST_F(CountMenuTest, WithoutAPageThereIsNothingToCount) {
  Button("cmdStatusMenu")->click();
  EXPECT_EQ(Rows(), "no menu");
  EXPECT_EQ(Find<StatusLine>("Sta")->currentMessage(),
            QStringLiteral("There is no page whose words could be counted"));
}

class CountMenuWithoutAdditions : public WindowFixture {
 protected:
  CountMenuWithoutAdditions() : WindowFixture(Additions::Off) {}
};

TEST_F(CountMenuWithoutAdditions, TheStatusBarHasNoMenu) {
  EXPECT_EQ(window.findChild<QWidget *>(QStringLiteral("cmdStatusMenu")), nullptr);
}

}  // namespace
}  // namespace velor
