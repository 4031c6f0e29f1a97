// SPDX-License-Identifier: GPL-3.0-or-later
// The path of elements in the status bar, and what its menu does to the page.
#include "app/window/PathBar.h"
#include "editor/frmMain.h"
#include "tests/app/window/WindowFixture.h"
#include "tests/support/FakeDialogs.h"
#include "tests/support/FakeEditingComponent.h"

#include <QApplication>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QStatusBar>
#include <QTest>

namespace velor {
namespace {

class PathBarTest : public WindowFixture {
 protected:
  PathBarTest() {
    window.show();
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    page.setFocus();
    ShowPath({"body", "table", "tr", "td.num", "p.intro", "b"});
  }

  void ShowPath(const QStringList &path) {
    component.elementPath = path;
    component.ChangeDisplay();
    QCoreApplication::processEvents();
    log.clear();
  }
  /// The buttons in sight from left to right, with where they are.
  QStringList InSight() {
    QMap<int, QString> shown;
    for (auto *button : bar.findChildren<QToolButton *>()) {
      if (!button->isVisible()) continue;
      shown[button->x()] = button->text();
      EXPECT_TRUE(bar.rect().contains(button->geometry())) << button->text().toStdString();
    }
    return shown.values();
  }
  QStringList PathCalls() const {
    QStringList calls;
    for (const QString &call : log)
      if (call.contains(QStringLiteral("Path(")) || call.startsWith(QStringLiteral("SetProp")))
        calls << call;
    return calls;
  }
  /// The menu of an element, asked for by the menu key.
  QMenu &MenuOf(const char *button) {
    if (auto *old = bar.findChild<QMenu *>(QStringLiteral("mnuPath"))) old->close();
    auto &element = *Find<QToolButton>(button);
    QContextMenuEvent request(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QApplication::sendEvent(&element, &request);
    auto *menu = Find<QMenu>("mnuPath");
    EXPECT_TRUE(menu->isVisible());
    return *menu;
  }
  static QAction *ItemOf(const QMenu &menu, const char *name) {
    return menu.findChild<QAction *>(QString::fromLatin1(name));
  }

  frmMain &page{NewPage()};
  FakeEditingComponent &component{Component(page)};
  PathBar &bar{*Find<PathBar>("pathBar")};
};

TEST_F(PathBarTest, ShowsTheElementsBesideTheTagAndNothingWithoutAPage) {
  EXPECT_EQ(InSight().join(u' ').toStdString(), "body table tr td.num p.intro b");
  EXPECT_TRUE(Find<QLabel>("Sta_1")->isVisible());
  EXPECT_EQ(Find<QToolButton>("path_3")->accessibleName(), QStringLiteral("td.num"));
  page.ChangeMode(2);
  EXPECT_FALSE(bar.isVisible());
  page.ChangeMode(1);
  EXPECT_TRUE(bar.isVisible());
  page.MarkKill();
  page.close();
  EXPECT_FALSE(bar.isVisible());
}

TEST_F(PathBarTest, ANarrowWindowListsTheOuterElementsBehindAButton) {
  const int least = window.minimumSizeHint().width();
  ShowPath({"body", "div.a-long-name-of-a-class", "div.another-long-name", "ul", "li", "p & q"});
  EXPECT_EQ(window.minimumSizeHint().width(), least);
  window.resize(480, 600);
  QCoreApplication::processEvents();
  const QStringList shown = InSight();
  EXPECT_EQ(shown.first(), QString(QChar(0x2026)));
  EXPECT_EQ(shown.last(), QStringLiteral("p && q"));
  EXPECT_LT(shown.size(), 7);
  for (const char *pane : {"Sta_1", "Sta_2"}) EXPECT_TRUE(Find<QWidget>(pane)->isVisible()) << pane;
  Find<QToolButton>("pathOuter")->click();
  auto *menu = Find<QMenu>("mnuOuterElements");
  EXPECT_EQ(menu->actions().first()->text(), QStringLiteral("body"));
  EXPECT_EQ(menu->actions().size(), 7 - shown.size());
  menu->actions().first()->trigger();
  EXPECT_EQ(PathCalls(), QStringList("ActOnPath(0, 0)"));
}

TEST_F(PathBarTest, AnOpenMenuKeepsItsElementWhenAnotherPathIsShown) {
  component.pathElements = {7, 8, 9, 10, 11, 12};
  QMenu &menu = MenuOf("path_4");
  component.elementPath = QStringList({"body", "ul", "li", "p", "i"});
  component.pathElements = {7, 20, 21, 22, 23};
  component.ChangeDisplay();
  ItemOf(menu, "pathDelete")->trigger();
  EXPECT_EQ(PathCalls(), QStringList("ActOnPath(11, 2)"));
}

TEST_F(PathBarTest, TheStatusBarTellsTheSelectedCellsAndTheObjectsPlace) {
  auto *measures = Find<QLabel>("measures");
  EXPECT_FALSE(measures->isVisible());
  component.selectedCells = QRect(QPoint(1, 0), QPoint(2, 4));
  component.ChangeDisplay();
  EXPECT_EQ(measures->text(), QStringLiteral("Rows 1-5, columns 2-3"));
  EXPECT_TRUE(measures->isVisible());
  component.selectedCells = {};
  component.objectPlace = QRect(210, 120, 150, 60);
  component.ChangeDisplay();
  EXPECT_EQ(measures->text(), QStringLiteral("Left 210, top 120, size 150 × 60"));
  component.objectPlace = {};
  component.ChangeDisplay();
  EXPECT_FALSE(measures->isVisible());
}

TEST_F(PathBarTest, AClickSelectsTheElementAndLeavesTheKeyboardInThePage) {
  const QWidget *before = QApplication::focusWidget();
  QTest::mouseClick(Find<QToolButton>("path_1"), Qt::LeftButton);
  EXPECT_EQ(PathCalls(), QStringList("ActOnPath(1, 0)"));
  EXPECT_EQ(QApplication::focusWidget(), before);
}

TEST_F(PathBarTest, F6ArrowsAndEnterSelectAnElement) {
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6, Qt::ShiftModifier);
  for (int pane = 0; pane < 8 && !bar.isAncestorOf(QApplication::focusWidget()); ++pane)
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6, Qt::ShiftModifier);
  ASSERT_EQ(QApplication::focusWidget(), Find<QToolButton>("path_5")) << "the caret's element";
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Left);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Left);
  EXPECT_EQ(QApplication::focusWidget(), Find<QToolButton>("path_3"));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Home);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Left);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  EXPECT_EQ(PathCalls(), QStringList("ActOnPath(1, 0)"));
  EXPECT_TRUE(page.isAncestorOf(QApplication::focusWidget()));
  Find<QToolButton>("path_2")->setFocus();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
  EXPECT_TRUE(page.isAncestorOf(QApplication::focusWidget()));
}

TEST_F(PathBarTest, TheMenuTakesTheTagOffAndDeletesWhereThePageCan) {
  component.pathChoices.tagCanGo = true;
  ItemOf(MenuOf("path_5"), "pathRemoveTag")->trigger();
  ItemOf(MenuOf("path_4"), "pathDelete")->trigger();
  EXPECT_EQ(PathCalls(), QStringList({"ActOnPath(5, 1)", "ActOnPath(4, 2)"}));
  component.pathChoices.tagCanGo = false;
  EXPECT_FALSE(ItemOf(MenuOf("path_3"), "pathRemoveTag")->isEnabled());
}

TEST_F(PathBarTest, TheMenuGivesAClassAndTakesItOff) {
  component.pathChoices.classes = {{"intro", true}, {"wide & tall", false}};
  const QList<QAction *> classes = MenuOf("path_4").findChild<QMenu *>("mnuPathClasses")->actions();
  ASSERT_EQ(classes.size(), 2);
  EXPECT_TRUE(classes[0]->isChecked());
  EXPECT_EQ(classes[1]->text(), QStringLiteral("wide && tall"));
  classes[0]->trigger();
  classes[1]->trigger();
  EXPECT_EQ(PathCalls(),
            QStringList({"SetClassOnPath(4, intro, 0)", "SetClassOnPath(4, wide & tall, 1)"}));
}

TEST_F(PathBarTest, ManyClassesAreFoundByPartsOfTheirNames) {
  for (int index = 0; index < 60; ++index)
    component.pathChoices.classes.emplace_back(QStringLiteral("col-%1").arg(index), index == 59);
  const QList<QAction *> listed = MenuOf("path_4").findChild<QMenu *>("mnuPathClasses")->actions();
  EXPECT_LT(listed.size(), 30);
  EXPECT_EQ(listed[listed.size() - 3]->text(), QStringLiteral("col-59")) << "it has that";
  dialogs.ExpectModal([](QWidget &dialog) {
    dialog.show();
    auto *words = dialog.findChild<QLineEdit *>(QStringLiteral("txtWords"));
    words->setText(QStringLiteral("l-47"));
    QTest::keyClick(words, Qt::Key_Return);
  });
  listed.last()->trigger();
  EXPECT_EQ(PathCalls(), QStringList("SetClassOnPath(4, col-47, 1)"));
}

TEST_F(PathBarTest, PropertiesAreThoseOfTheElementsKind) {
  component.properties[PropertySubject::Cell] = {{"width", "40"}};
  component.properties[PropertySubject::Element] = {{"tag", "p"}, {"class", "intro"}};
  const auto change = [this](const char *button, const char *title, const char *field) {
    dialogs.ExpectModal([=, this](QWidget &dialog) {
      EXPECT_EQ(dialog.windowTitle().toStdString(), title);
      QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
      EXPECT_NE(bar.findChild<QMenu *>(QStringLiteral("mnuPath")), nullptr)
          << "its event is still under way";
      dialog.findChild<QLineEdit *>(QStringLiteral("prp_") + QLatin1String(field))
          ->setText(QStringLiteral("7"));
      dialog.findChild<QPushButton *>(QStringLiteral("cmdOK"))->click();
    });
    QTest::keyClick(&MenuOf(button), Qt::Key_P);
  };
  change("path_3", "Table Cell Properties", "width");
  change("path_4", "Element Properties", "class");
  // A table that the page does not know as one.
  change("path_1", "Element Properties", "class");
  EXPECT_EQ(PathCalls(), QStringList({"ActOnPath(3, 0)", "SetProperties(3, width=7)",
                                      "SetProperties(6:4, class=7)", "ActOnPath(1, 0)",
                                      "SetProperties(6:1, class=7)"}));
}

TEST_F(PathBarTest, GetElementTagNameShowsTheCaretsElementWithItsPath) {
  component.properties[PropertySubject::Element] = {{"tag", "b"}, {"path", "body"}, {"id", ""}};
  dialogs.ExpectModal([](QWidget &dialog) {
    EXPECT_EQ(dialog.findChild<QLabel *>(QStringLiteral("prp_tag"))->text(), QStringLiteral("b"));
    dialog.findChild<QLineEdit *>(QStringLiteral("prp_id"))->setText(QStringLiteral("x"));
    dialog.findChild<QPushButton *>(QStringLiteral("cmdOK"))->click();
  });
  Choose("extGetTag");
  EXPECT_EQ(PathCalls(), QStringList("SetProperties(6:5, id=x)"));
}

TEST_F(PathBarTest, ANoticeTakesThePlaceOfThePathAndTheFileOfATabToo) {
  Parts().status.Report(QStringLiteral("Saved"));
  EXPECT_FALSE(bar.isVisible());
  component.elementPath = {"body", "p"};
  component.ChangeDisplay();
  EXPECT_FALSE(bar.isVisible()) << "the notice is still there";
  Find<QStatusBar>("Sta")->clearMessage();
  EXPECT_TRUE(bar.isVisible());
  EXPECT_EQ(InSight(), QStringList({"body", "p"}));
}

class PublishedPathTest : public WindowFixture {
 protected:
  PublishedPathTest() : WindowFixture(Additions::Off) {}
};

TEST_F(PublishedPathTest, ThereIsNone) {
  Component(NewPage()).elementPath = {"body", "p"};
  EXPECT_EQ(window.findChild<PathBar *>(), nullptr);
  Choose("extGetTag");
}

}  // namespace
}  // namespace velor
