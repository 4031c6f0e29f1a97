// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/frmMain.h"
#include "tests/app/window/WindowFixture.h"

#include <QTest>

#include <tuple>

namespace velor {
namespace {

class ContextMenu : public WindowFixture {
 protected:
  /// An item as the menu shows it when it opens now.
  QAction &Shown(const char *item) {
    Parts().requests.PopUpContextMenu(QPoint(60, 70));
    Find<QMenu>("mnuExt")->close();
    return *Item(item);
  }
};

TEST_F(ContextMenu, PopsUpWhereItIsAskedFor) {
  Parts().requests.PopUpContextMenu(QPoint(60, 70));
  auto *menu = Find<QMenu>("mnuExt");
  EXPECT_TRUE(menu->isVisible());
  EXPECT_EQ(menu->pos(), QPoint(60, 70));
  menu->close();
}

TEST_F(ContextMenu, ActsOnThePageInFrontAsTheEditMenuDoes) {
  NewPage();
  Parts().requests.PopUpContextMenu(QPoint(60, 70));
  log.clear();
  for (const char *item :
       {"extCut", "extCopy", "extPaste", "extDelete", "extAll", "extInRow", "extInCol", "extMerge",
        "extSplit", "extAbs", "extFront", "extBelowText"})
    Choose(item);
  EXPECT_EQ(Commands().join(u' ').toStdString(),
            "ExecCommand(5003) ExecCommand(5002) ExecCommand(5032) ExecCommand(5004) "
            "ExecCommand(5035) ExecCommand(6001) ExecCommand(6003) ExecCommand(6008) "
            "ExecCommand(6009) ExecCommand(6020) ExecCommand(6021) ExecCommand(6026)");
  Find<QMenu>("mnuExt")->close();
}

TEST_F(ContextMenu, InsertsAboveAndAtTheLeftWhileShiftIsHeld) {
  NewPage();
  for (const auto &[item, plain, shifted] :
       {std::tuple{"extInRow", EditingCommand::InsertRowBelow, EditingCommand::InsertRowAbove},
        {"extInCol", EditingCommand::InsertColumnRight, EditingCommand::InsertColumnLeft}}) {
    for (const bool isShifted : {false, true}) {
      auto *menu = qobject_cast<QMenu *>(Item(item)->associatedObjects().value(0));
      ASSERT_NE(menu, nullptr) << item;
      menu->popup({});
      menu->setActiveAction(Item(item));
      log.clear();
      QTest::keyClick(menu, Qt::Key_Return, isShifted ? Qt::ShiftModifier : Qt::NoModifier);
      EXPECT_EQ(Commands(), QStringList(QStringLiteral("ExecCommand(%1)")
                                            .arg(static_cast<int>(isShifted ? shifted : plain))));
    }
  }
}

TEST_F(ContextMenu, HasItemsEnabledByWhatIsSelected) {
  FakeEditingComponent &component = Component(NewPage());
  for (const auto &[item, command] : {std::pair{"extCut", EditingCommand::Cut},
                                      {"extInRow", EditingCommand::InsertRowBelow},
                                      {"extMerge", EditingCommand::MergeCells},
                                      {"extAbs", EditingCommand::AbsolutePosition},
                                      {"mnuMoveRowUp", EditingCommand::MoveRowUp}}) {
    EXPECT_TRUE(Shown(item).isEnabled()) << item;
    component.statuses[command] = CommandStatus::Disabled;
    EXPECT_FALSE(Shown(item).isEnabled()) << item;
  }
}

TEST_F(ContextMenu, HasMarkupAndTheCaretsElementOffWhereThereIsNoPlaceForThem) {
  frmMain &page = NewPage();
  EXPECT_TRUE(Shown("extInHTML").isEnabled());
  EXPECT_FALSE(Shown("extGetTag").isEnabled()) << "no element is at the caret";
  Component(page).elementPath = {"body"};
  EXPECT_TRUE(Shown("extGetTag").isEnabled());
  page.ChangeMode(2);
  EXPECT_FALSE(Shown("extInHTML").isEnabled());
  EXPECT_FALSE(Shown("extGetTag").isEnabled());
}

TEST_F(ContextMenu, MarksDetailsGridAndPositionWhereTheyAreOn) {
  frmMain &page = NewPage();
  EXPECT_FALSE(Shown("extDetail").isChecked());
  Choose("extDetail");
  EXPECT_TRUE(Shown("extDetail").isChecked());
  EXPECT_TRUE(Shown("mnuDetail").isChecked());
  EXPECT_TRUE(page.DHTML1().ShowDetails());
  Choose("mnuDetail");
  EXPECT_FALSE(Shown("extDetail").isChecked());
  EXPECT_FALSE(page.DHTML1().ShowDetails());
  EXPECT_TRUE(Shown("extSnap").isChecked());
  Choose("extSnap");
  EXPECT_FALSE(Shown("extSnap").isChecked());
  EXPECT_FALSE(page.DHTML1().SnapToGrid());
  EXPECT_FALSE(Shown("extAbs").isChecked());
  Component(page).statuses[EditingCommand::AbsolutePosition] = CommandStatus::Latched;
  EXPECT_TRUE(Shown("extAbs").isChecked());
}

}  // namespace
}  // namespace velor
