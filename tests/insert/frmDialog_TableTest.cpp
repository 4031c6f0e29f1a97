// SPDX-License-Identifier: GPL-3.0-or-later
#include "insert/TableHtml.h"
#include "insert/frmDialog_Table.h"
#include "tests/support/Checks.h"
#include "tests/support/Forms.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>

namespace velor {
namespace {

QString U(const char *text) {
  return QString::fromUtf8(text);
}

class TableDialogTest : public testing::Test {
 protected:
  QString Text(const QString &box) { return Control<QLineEdit>(dialog, box)->text(); }
  void Type(const QString &box, const QString &text) {
    Control<QLineEdit>(dialog, box)->setText(text);
  }
  void Click(const QString &button) { Control<QPushButton>(dialog, button)->click(); }

  QString html;
  frmDialog_Table dialog{html};
};

TEST_F(TableDialogTest, ShowsItsFieldsUnderTheirLabelsWithTheirDefaults) {
  EXPECT_EQ(dialog.windowTitle(), U("Table Editor"));
  EXPECT_TRUE(dialog.isModal());
  EXPECT_NE(dialog.findChild<QTabWidget *>(U("TabStrip1")), nullptr);
  EXPECT_TRUE(HasLabel(dialog, U("Table Setup:")));
  const struct {
    const char *name, *label, *value;
  } boxes[] = {{"Text1", "# Of Columns:", "3"},
               {"Text2", "# Of Rows:", "3"},
               {"combo2", "Border:", "1"},
               {"combo3", "Cell Spacing:", "1"},
               {"combo4", "Cell Padding:", "1"}};
  for (const auto &box : boxes) {
    auto *control = Control<QLineEdit>(dialog, U(box.name));
    EXPECT_EQ(LabelOf(dialog, control), U(box.label));
    EXPECT_EQ(control->accessibleName(), U(box.label));
    EXPECT_EQ(control->text(), U(box.value));
  }
  auto *Combo1 = Control<QComboBox>(dialog, U("Combo1"));
  EXPECT_EQ(LabelOf(dialog, Combo1), U("Align:"));
  EXPECT_EQ(Combo1->currentText(), U("Left"));
  EXPECT_EQ(Control<QPushButton>(dialog, U("Command1"))->text(), U("Insert"));
  EXPECT_EQ(Control<QPushButton>(dialog, U("Command2"))->text(), U("Cancel"));
}

TEST_F(TableDialogTest, RefillsTheAlignmentsAtEachDropAndKeepsTheText) {
  dialog.show();
  auto *Combo1 = Control<QComboBox>(dialog, U("Combo1"));
  for (const char *typed : {"Left", "justify", ""}) {
    Combo1->clear();
    Combo1->setEditText(U(typed));
    Combo1->showPopup();
    ASSERT_EQ(Combo1->count(), 3);
    EXPECT_EQ(Combo1->itemText(0), U("Left"));
    EXPECT_EQ(Combo1->itemText(1), U("Center"));
    EXPECT_EQ(Combo1->itemText(2), U("Right"));
    EXPECT_EQ(Combo1->currentText(), U(typed));
    Combo1->hidePopup();
  }
}

TEST_F(TableDialogTest, TakesWhatIsTypedAsItIs) {
  dialog.show();
  auto *edit = Control<QComboBox>(dialog, U("Combo1"))->lineEdit();
  edit->clear();
  QTest::keyClicks(edit, U("cent"));
  Click(U("Command1"));
  EXPECT_TRUE(html.startsWith(U("<Table align=\"cent\" ")));
}

TEST_F(TableDialogTest, PutsEachFieldInItsPlaceAndCloses) {
  dialog.show();
  Type(U("Text1"), U("2"));
  Type(U("Text2"), U("4"));
  Control<QComboBox>(dialog, U("Combo1"))->setEditText(U("Right"));
  Type(U("combo2"), U("5"));
  Type(U("combo3"), U("6"));
  Type(U("combo4"), U("7"));
  Click(U("Command1"));
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_EQ(html, TableHtml({.align = U("Right"),
                             .cellSpacing = U("6"),
                             .cellPadding = U("7"),
                             .border = U("5"),
                             .rows = U("4"),
                             .columns = U("2")}));
}

TEST_F(TableDialogTest, ThePagesDialectIsThatOfAnExtendedDialogAlone) {
  for (const DialogScope scope : {DialogScope::Extended, DialogScope::Published}) {
    QString text;
    frmDialog_Table in(text, nullptr, scope, Dialect::Styles);
    Control<QPushButton>(in, U("Command1"))->click();
    EXPECT_EQ(text.contains(U("style=")), scope == DialogScope::Extended);
    EXPECT_EQ(text.contains(U("cellspacing=")), scope == DialogScope::Published);
  }
}

TEST_F(TableDialogTest, RefusesATableThatNoPageTakesAndSaysHowManyRowsItDoes) {
  dialog.show();
  auto *refusal = Control<QLabel>(dialog, U("lblRefusal"));
  EXPECT_FALSE(refusal->isVisible());
  Type(U("Text1"), U("99"));
  Type(U("Text2"), U("2000"));
  Click(U("Command1"));
  ASSERT_TRUE(dialog.isVisible());
  EXPECT_EQ(html, QString());
  EXPECT_TRUE(refusal->isVisible());
  EXPECT_EQ(refusal->text(),
            U("The table is too large: with 99 columns a page takes 1999 rows at most."));
  EXPECT_EQ(dialog.focusWidget(), Control<QLineEdit>(dialog, U("Text2")));
  QTest::keyClicks(Control<QLineEdit>(dialog, U("Text2")), U("1999"));
  EXPECT_FALSE(refusal->isVisible());
  Click(U("Command1"));
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_EQ(html.count(U("<TR>")), 1999);
}

TEST_F(TableDialogTest, LeavesTheLastTableAloneWhenCancelled) {
  html = U("<Table>");
  dialog.show();
  Type(U("Text1"), U("9"));
  Click(U("Command2"));
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_EQ(html, U("<Table>"));
}

TEST_F(TableDialogTest, InsertsByEnterAndCancelsByEscape) {
  dialog.show();
  QTest::keyClick(&dialog, Qt::Key_Return);
  EXPECT_FALSE(dialog.isVisible());
  EXPECT_NE(html, QString());

  QString untouched;
  frmDialog_Table cancelled(untouched);
  cancelled.show();
  QTest::keyClick(&cancelled, Qt::Key_Escape);
  EXPECT_FALSE(cancelled.isVisible());
  EXPECT_EQ(untouched, QString());
}

TEST_F(TableDialogTest, GoesThroughItsFieldsInTheOrderOfTheEye) {
  const QStringList order = {U("TabStrip1"), U("Text1"),  U("Text2"),    U("Combo1"),  U("combo2"),
                             U("combo3"),    U("combo4"), U("Command1"), U("Command2")};
  EXPECT_EQ(TabOrder(dialog), order);
}

}  // namespace
}  // namespace velor
