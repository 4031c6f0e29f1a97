// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/PageArea.h"
#include "app/window/PageTabs.h"
#include "editor/PageSlots.h"
#include "editor/frmBrowser.h"
#include "editor/frmCodeEditor.h"
#include "editor/frmMain.h"
#include "tests/app/window/WindowFixture.h"

#include <QAccessible>
#include <QMdiSubWindow>
#include <QTest>
#include <QToolButton>

namespace velor {
namespace {

class PageWindowsTest : public WindowFixture {
 protected:
  PageArea &Area() { return *Find<PageArea>("PageArea"); }
  QString TabInFront() { return Tabs().tabData(Tabs().currentIndex()).toString(); }
  void ClickTab(int index) {
    QTest::mouseClick(&Tabs(), Qt::LeftButton, {}, Tabs().tabRect(index).center());
  }
};

TEST_F(PageWindowsTest, PagesFillTheArea) {
  frmMain &page = NewPage();
  EXPECT_TRUE(qobject_cast<QMdiSubWindow *>(page.parentWidget())->isMaximized());
  frmMain &second = NewPage();
  EXPECT_TRUE(second.isVisible());
  EXPECT_TRUE(qobject_cast<QMdiSubWindow *>(second.parentWidget())->isMaximized());
  EXPECT_EQ(Area().Current(), &second);
  EXPECT_EQ(TabInFront(), QStringLiteral("key2"));
}

TEST_F(PageWindowsTest, PagesStillFillTheAreaWhenAnotherWindowHasGone) {
  frmMain &first = NewPage();
  frmMain &second = NewPage();
  const auto fills = [](const frmMain &page) {
    return qobject_cast<QMdiSubWindow *>(page.parentWidget())->isMaximized();
  };
  second.ChangeMode(4);
  window.Context().preview->close();
  EXPECT_EQ(Area().Current(), &second);
  EXPECT_TRUE(fills(second));
  second.ChangeMode(3);
  window.Context().pages.CodeEditor(2)->close();
  EXPECT_EQ(Area().Current(), &second);
  EXPECT_TRUE(fills(second));
  second.close();
  EXPECT_EQ(Area().Current(), &first);
  EXPECT_TRUE(fills(first));
}

TEST_F(PageWindowsTest, AClickOnATabBringsItsPageToTheFront) {
  frmMain &first = NewPage();
  NewPage();
  ClickTab(0);
  EXPECT_EQ(Area().Current(), &first);
  EXPECT_EQ(TabInFront(), QStringLiteral("key1"));
}

TEST_F(PageWindowsTest, ATabOfAnEmptySlotMakesItsWindow) {
  NewPage();
  window.Context().pages.AddSlot();
  Parts().tabs.Add(QStringLiteral("key2"), 1);
  ClickTab(1);
  ASSERT_FALSE(window.Context().pages.Page(2).isNull());
  EXPECT_EQ(Area().Current(), window.Context().pages.Page(2));
}

TEST_F(PageWindowsTest, ClosingThePageInFrontBringsTheOneBeforeBack) {
  frmMain &first = NewPage();
  NewPage();
  frmMain &third = NewPage();
  ClickTab(0);
  ClickTab(2);
  third.close();
  EXPECT_EQ(Area().Current(), &first);
  EXPECT_EQ(TabInFront(), QStringLiteral("key1"));
  EXPECT_EQ(Tabs().count(), 2);
  DeleteClosedWindows();
  EXPECT_EQ(Area().OpenWindows().size(), 2);
  EXPECT_EQ(Area().subWindowList().size(), 4);  // two pages and their unopened source editors
}

TEST_F(PageWindowsTest, ClosingByTheFramesButtonIsTheSame) {
  frmMain &first = NewPage();
  frmMain &second = NewPage();
  const QPointer<frmMain> gone = &second;
  second.parentWidget()->close();
  EXPECT_EQ(Area().Current(), &first);
  EXPECT_EQ(Tabs().count(), 1);
  DeleteClosedWindows();
  EXPECT_TRUE(gone.isNull());
}

TEST_F(PageWindowsTest, APageThatIsToStayKeepsFrameAndTab) {
  frmMain &page = NewPage();
  Component(page).Edit(QStringLiteral("<p>changed</p>"));
  dialogs.ExpectMessage(
      QStringLiteral("You have made changes to this document. Do you want to save it?"),
      MessageAnswer::Cancel);
  page.parentWidget()->close();
  EXPECT_TRUE(page.isVisible());
  EXPECT_EQ(Area().Current(), &page);
  EXPECT_EQ(Tabs().count(), 1);
}

TEST_F(PageWindowsTest, TheSourceEditorComesToTheFrontAndTheTabLeadsBack) {
  frmMain &page = NewPage();
  page.ChangeMode(3);
  frmCodeEditor *editor = window.Context().pages.CodeEditor(1);
  ASSERT_NE(editor, nullptr);
  EXPECT_EQ(Area().Current(), editor);
  log.clear();
  Choose("mnuCut");
  EXPECT_EQ(log, CallLog({QStringLiteral("Source.Edit(5003)")}));
  ClickTab(0);
  EXPECT_EQ(Area().Current(), &page);
}

TEST_F(PageWindowsTest, AClosedPreviewBringsThePageCommandsInStepWithThePages) {
  frmMain &page = NewPage();
  page.ChangeMode(4);
  Parts().commands.SetPageCommandsEnabled(false);
  window.Context().preview->close();
  EXPECT_TRUE(Find<QToolButton>("tbrGeneral_preview")->isEnabled());
  page.ChangeMode(4);
  page.close();
  Parts().commands.SetPageCommandsEnabled(true);
  window.Context().preview->close();
  EXPECT_FALSE(Find<QToolButton>("tbrGeneral_preview")->isEnabled());
}

TEST_F(PageWindowsTest, APreviewThatIsClosedIsOnlyHidden) {
  frmMain &page = NewPage();
  page.ChangeMode(4);
  const QPointer<frmBrowser> preview = window.Context().preview;
  ASSERT_FALSE(preview.isNull());
  EXPECT_EQ(Area().Current(), preview);
  preview->parentWidget()->close();
  DeleteClosedWindows();
  ASSERT_FALSE(preview.isNull());
  EXPECT_FALSE(preview->isVisible());
  EXPECT_EQ(Area().Current(), &page);
  page.ChangeMode(4);
  EXPECT_EQ(window.Context().preview, preview);
  EXPECT_TRUE(preview->isVisible());
  EXPECT_EQ(Area().Current(), preview);
}

TEST_F(PageWindowsTest, AssistiveTechnologyMeetsNoPageThatAnotherCovers) {
  frmMain &first = NewPage();
  frmMain &second = NewPage();
  QAccessibleInterface &area = *QAccessible::queryAccessibleInterface(&Area());
  ASSERT_EQ(area.childCount(), 1);
  EXPECT_EQ(area.child(0)->object(), second.parentWidget());
  EXPECT_EQ(area.indexOfChild(area.child(0)), 0);
  Area().Activate(&first);
  ASSERT_EQ(area.childCount(), 1);
  EXPECT_EQ(area.child(0)->object(), first.parentWidget());
  EXPECT_EQ(area.indexOfChild(QAccessible::queryAccessibleInterface(second.parentWidget())), -1);
  first.parentWidget()->showNormal();
  EXPECT_EQ(area.childCount(), 2);
}

TEST_F(PageWindowsTest, TheAreaWithoutPagesTellsHowToBegin) {
  const QImage hint = Area().grab().toImage();
  QSet<QRgb> colors;
  for (int x = 0; x < hint.width(); ++x) {
    for (int y = hint.height() / 2 - 10; y < hint.height() / 2 + 10; ++y) {
      colors.insert(hint.pixel(x, y));
    }
  }
  EXPECT_GT(colors.size(), 2);
}

}  // namespace
}  // namespace velor
