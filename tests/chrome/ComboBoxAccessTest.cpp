// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/ComboBoxAccess.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QComboBox>
#include <QLineEdit>

#include <gtest/gtest.h>

namespace velor {
namespace {

class ComboBoxAccessTest : public ::testing::Test {
 protected:
  ComboBoxAccessTest() {
    AnnounceComboBoxLabels();
    box.setAccessibleName(QStringLiteral("Block Format"));
    box.addItems({QStringLiteral("Normal"), QStringLiteral("Heading 1")});
    box.setCurrentIndex(1);
  }
  QAccessibleInterface &Access() { return *QAccessible::queryAccessibleInterface(&box); }

  QComboBox box;
};

TEST_F(ComboBoxAccessTest, ABoxIsNamedByItsLabelAndDescribedByWhatIsChosen) {
  EXPECT_EQ(Access().role(), QAccessible::ComboBox);
  EXPECT_EQ(Access().text(QAccessible::Name), QStringLiteral("Block Format"));
  EXPECT_EQ(Access().text(QAccessible::Value), QStringLiteral("Heading 1"));
  EXPECT_EQ(Access().text(QAccessible::Description), QStringLiteral("Heading 1"));
}

TEST_F(ComboBoxAccessTest, ABoxWithoutALabelIsNamedByWhatIsChosen) {
  box.setAccessibleName({});
  EXPECT_EQ(Access().text(QAccessible::Name), QStringLiteral("Heading 1"));
}

TEST_F(ComboBoxAccessTest, ItsListIsItsChildAndOpensByAction) {
  ASSERT_EQ(Access().childCount(), 1);
  EXPECT_EQ(Access().child(0)->object(), box.view());
  EXPECT_EQ(Access().indexOfChild(Access().child(0)), 0);
  box.show();
  auto *actions = Access().actionInterface();
  actions->doAction(QAccessibleActionInterface::showMenuAction());
  EXPECT_TRUE(box.view()->isVisible());
  EXPECT_TRUE(Access().state().expanded);
  actions->doAction(QAccessibleActionInterface::showMenuAction());
  EXPECT_FALSE(box.view()->isVisible());
}

TEST_F(ComboBoxAccessTest, TheTextBoxOfAnEditableOneIsItsSecondChild) {
  box.setEditable(true);
  ASSERT_EQ(Access().childCount(), 2);
  EXPECT_EQ(Access().child(1)->object(), box.lineEdit());
  EXPECT_EQ(Access().indexOfChild(Access().child(1)), 1);
}

}  // namespace
}  // namespace velor
