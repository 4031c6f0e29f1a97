// SPDX-License-Identifier: GPL-3.0-or-later
#include "projects/RecordList.h"
#include "projects/RowTable.h"
#include "tests/support/Checks.h"

#include <QHeaderView>
#include <QSignalSpy>
#include <QTest>
#include <QTextDocument>

namespace velor {
namespace {

class RecordListTest : public testing::Test {
 protected:
  RecordListTest() {
    for (int row = 1; row <= 3; ++row) {
      table.AppendRow();
      table.At(row, 0) = 10.0 * row;
      table.At(row, 1) = QStringLiteral("name %1").arg(row);
    }
  }

  QString Shown(int row, int column) const {
    return list.model()->index(row, column).data().toString();
  }

  RowTable table{1};
  RecordList list{{QStringLiteral("Id"), QStringLiteral("Name")}, 1};
};

TEST_F(RecordListTest, IsEmptyUnderItsHeadingsAtFirst) {
  EXPECT_EQ(list.model()->rowCount(), 0);
  EXPECT_EQ(list.model()->headerData(0, Qt::Horizontal).toString(), QStringLiteral("Id"));
  EXPECT_EQ(list.model()->headerData(1, Qt::Horizontal).toString(), QStringLiteral("Name"));
  EXPECT_TRUE(list.CurrentValue().isNull());
}

TEST_F(RecordListTest, ShowsTheTableAfterARebindAndMakesTheFirstRowCurrent) {
  list.SetArray(table);
  EXPECT_EQ(list.model()->rowCount(), 0);
  QSignalSpy rebuilt(list.model(), &QAbstractItemModel::modelReset);
  list.ReBind();
  EXPECT_EQ(rebuilt.count(), 1);
  EXPECT_EQ(list.model()->rowCount(), 3);
  EXPECT_EQ(Shown(0, 0), QStringLiteral("10"));
  EXPECT_EQ(Shown(2, 1), QStringLiteral("name 3"));
  EXPECT_EQ(list.CurrentValue(), QVariant(10.0));
}

TEST_F(RecordListTest, SaysThatARowHasNoName) {
  table.At(1, 1) = QString();
  table.At(2, 1) = QVariant();
  list.SetArray(table);
  list.ReBind();
  EXPECT_EQ(Shown(0, 1), QStringLiteral("(no name)"));
  EXPECT_EQ(Shown(1, 1), QStringLiteral("(no name)"));
  EXPECT_EQ(Shown(2, 1), QStringLiteral("name 3"));
}

TEST_F(RecordListTest, HasNoCurrentValueOnceItsRowsAreGone) {
  list.SetArray(table);
  list.ReBind();
  table = RowTable(1);
  list.ReBind();
  EXPECT_TRUE(list.CurrentValue().isNull());
}

TEST_F(RecordListTest, FollowsTheKeyboard) {
  list.SetArray(table);
  list.ReBind();
  QTest::keyClick(&list, Qt::Key_Down);
  EXPECT_EQ(list.CurrentValue(), QVariant(20.0));
}

TEST_F(RecordListTest, KeepsTheOrderOfTheTable) {
  list.SetArray(table);
  list.ReBind();
  list.show();
  QTest::mouseClick(list.header()->viewport(), Qt::LeftButton, {}, QPoint(10, 5));
  EXPECT_EQ(Shown(0, 0), QStringLiteral("10"));
}

TEST_F(RecordListTest, TellsInATipWhatANarrowColumnCutsOff) {
  table.At(1, 1) = QString(300, QChar(u'n'));
  list.SetArray(table);
  list.ReBind();
  EXPECT_EQ(list.model()->index(0, 1).data(Qt::ToolTipRole).toString(), QString(300, QChar(u'n')));
}

TEST_F(RecordListTest, ShowsANameThatLooksLikeMarkupLetterByLetterInTheTipToo) {
  const QString name = QStringLiteral("Bob's <b>Big</b> & \"Quoted\" <img src=x>  Site");
  table.At(1, 1) = name;
  list.SetArray(table);
  list.ReBind();
  EXPECT_EQ(Shown(0, 1), name);
  const QString tip = list.model()->index(0, 1).data(Qt::ToolTipRole).toString();
  QTextDocument shown;
  ASSERT_TRUE(Qt::mightBeRichText(tip));
  shown.setHtml(tip);
  EXPECT_EQ(shown.toPlainText(), name);
}

TEST_F(RecordListTest, CannotBeWrittenInto) {
  list.SetArray(table);
  list.ReBind();
  EXPECT_FALSE(list.model()->flags(list.currentIndex()) & Qt::ItemIsEditable);
}

}  // namespace
}  // namespace velor
