// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/FrmFld.h"
#include "platform/Paths.h"
#include "platform/ProgramValues.h"
#include "tests/support/Checks.h"
#include "tests/support/KeyboardWalk.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeWidget>

#include <gtest/gtest.h>

namespace velor {
namespace {

class FolderPicker : public ::testing::Test {
 protected:
  FolderPicker() : picker_({values_.ImageFolderPath, values_.ProjectFolderResult}) {
    QDir(folder_.path()).mkpath(QStringLiteral("Sites/Bob's Site"));
    QDir(folder_.path()).mkpath(QStringLiteral("Other"));
    values_.ProjectFolderResult = QStringLiteral("\\project");
    values_.ImageFolderPath = QStringLiteral("\\images");
    picker_.show();
  }

  QComboBox &Drive1() { return *picker_.findChild<QComboBox *>(QStringLiteral("Drive1")); }
  QTreeWidget &Dir1() { return *picker_.findChild<QTreeWidget *>(QStringLiteral("Dir1")); }
  QPushButton &Button(const char *name) {
    return *picker_.findChild<QPushButton *>(QString::fromLatin1(name));
  }
  QString Native(const QString &name) const { return QDir(folder_.path()).filePath(name); }

  QTemporaryDir folder_;
  ProgramValues values_;
  FrmFld picker_;
};

TEST_F(FolderPicker, HasItsCaptionsAndNames) {
  EXPECT_EQ(picker_.windowTitle(), QStringLiteral("Select Folder"));
  EXPECT_EQ(Button("SSCommand1").text(), QStringLiteral("Ok"));
  EXPECT_EQ(Button("SSCommand2").text(), QStringLiteral("Cancel"));
  EXPECT_EQ(Drive1().accessibleName(), QStringLiteral("Drive"));
  EXPECT_EQ(Dir1().accessibleName(), QStringLiteral("Folder"));
  EXPECT_FALSE(picker_.ForProject);
}

TEST_F(FolderPicker, TabMeetsEveryControlAndEachHasAnAltKeyOfItsOwn) {
  picker_.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&picker_));
  EXPECT_EQ(QApplication::focusWidget(), &Dir1());
  EXPECT_EQ(WalkBothWays(Dir1()).toStdString(),
            "Dir1 chkHidden txtPath SSCommand1 SSCommand2 Drive1");
  EXPECT_EQ(SharedAltKeys(picker_).toStdString(), "");
}

TEST_F(FolderPicker, ArrowsGoIntoFoldersAndBackOut) {
  picker_.SelectFolder(folder_.path());
  const auto press = [&](Qt::Key key) { QTest::keyClick(&Dir1(), key); };
  press(Qt::Key_Right);
  press(Qt::Key_Right);
  EXPECT_EQ(picker_.SelectedFolder(), Native(QStringLiteral("Other")));
  press(Qt::Key_Down);
  EXPECT_EQ(picker_.SelectedFolder(), Native(QStringLiteral("Sites")));
  press(Qt::Key_Right);
  press(Qt::Key_Right);
  EXPECT_EQ(picker_.SelectedFolder(), Native(QStringLiteral("Sites/Bob's Site")));
  press(Qt::Key_Left);
  EXPECT_EQ(picker_.SelectedFolder(), Native(QStringLiteral("Sites")));
}

TEST_F(FolderPicker, OffersTheRootAndTheHomeFolderAndStartsAtHome) {
  EXPECT_GE(Drive1().findData(QStringLiteral("/")), 0);
  EXPECT_GE(Drive1().findData(QDir::homePath()), 0);
  EXPECT_EQ(picker_.SelectedFolder(), QDir::homePath());
}

TEST_F(FolderPicker, AChangedDriveShowsThatDrivesFolders) {
  Drive1().setCurrentIndex(Drive1().findData(QStringLiteral("/")));
  EXPECT_EQ(picker_.SelectedFolder(), QStringLiteral("/"));
  QStringList names;
  for (int index = 0; index < Dir1().topLevelItem(0)->childCount(); ++index) {
    names << Dir1().topLevelItem(0)->child(index)->text(0);
  }
  EXPECT_TRUE(names.contains(QStringLiteral("usr")));
}

TEST_F(FolderPicker, FoldersOpenOnDemandAndFilesAreNotShown) {
  QFile file(Native(QStringLiteral("Sites/Index.htm")));
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  picker_.SelectFolder(Native(QStringLiteral("Sites")));
  QTreeWidgetItem *sites = Dir1().currentItem();
  ASSERT_EQ(sites->text(0), QStringLiteral("Sites"));
  ASSERT_EQ(sites->childCount(), 1);
  EXPECT_EQ(sites->child(0)->text(0), QStringLiteral("Bob's Site"));
}

TEST_F(FolderPicker, OkStoresTheImageFolderWithoutATrailingSeparatorAndCloses) {
  picker_.SelectFolder(Native(QStringLiteral("Sites/Bob's Site")));
  Button("SSCommand1").click();
  EXPECT_EQ(values_.ImageFolderPath, ToLogic(Native(QStringLiteral("Sites/Bob's Site"))));
  EXPECT_EQ(values_.ProjectFolderResult, QStringLiteral("\\project"));
  EXPECT_FALSE(picker_.isVisible());
}

TEST_F(FolderPicker, OkStoresTheProjectFolderWhenThatIsTheTarget) {
  picker_.ForProject = true;
  picker_.SelectFolder(Native(QStringLiteral("Other")));
  Button("SSCommand1").click();
  EXPECT_EQ(values_.ProjectFolderResult, ToLogic(Native(QStringLiteral("Other"))));
  EXPECT_EQ(values_.ImageFolderPath, QStringLiteral("\\images"));
}

TEST_F(FolderPicker, TheRootKeepsItsSeparator) {
  Drive1().setCurrentIndex(Drive1().findData(QStringLiteral("/")));
  Button("SSCommand1").click();
  EXPECT_EQ(values_.ImageFolderPath, QStringLiteral("\\"));
}

TEST_F(FolderPicker, CancelEmptiesTheMatchingResultOnlyAndCloses) {
  Button("SSCommand2").click();
  EXPECT_EQ(values_.ImageFolderPath, QString());
  EXPECT_EQ(values_.ProjectFolderResult, QStringLiteral("\\project"));
  EXPECT_FALSE(picker_.isVisible());
}

TEST_F(FolderPicker, CancelEmptiesTheProjectFolderWhenThatIsTheTarget) {
  picker_.ForProject = true;
  Button("SSCommand2").click();
  EXPECT_EQ(values_.ProjectFolderResult, QString());
  EXPECT_EQ(values_.ImageFolderPath, QStringLiteral("\\images"));
}

TEST_F(FolderPicker, EscapeAndTheCloseBoxCancel) {
  QTest::keyClick(&picker_, Qt::Key_Escape);
  EXPECT_EQ(values_.ImageFolderPath, QString());
  values_.ImageFolderPath = QStringLiteral("\\images");
  picker_.show();
  picker_.close();
  EXPECT_EQ(values_.ImageFolderPath, QString());
}

TEST_F(FolderPicker, EnterInTheFolderListMeansOk) {
  picker_.SelectFolder(Native(QStringLiteral("Other")));
  QTest::keyClick(&Dir1(), Qt::Key_Return);
  EXPECT_EQ(values_.ImageFolderPath, ToLogic(Native(QStringLiteral("Other"))));
  EXPECT_FALSE(picker_.isVisible());
}

TEST_F(FolderPicker, KeepsItsSizeWhateverTheNamesAndShowsALongPathInATip) {
  const QString longName(200, QChar(u'n'));
  ASSERT_TRUE(QDir(folder_.path()).mkdir(longName));
  const QSize size = picker_.size();
  picker_.SelectFolder(Native(longName));
  QCoreApplication::processEvents();
  EXPECT_EQ(picker_.size(), size);
  EXPECT_LE(picker_.minimumSizeHint().width(), size.width());
  EXPECT_TRUE(picker_.rect().contains(
      QRect(Button("SSCommand2").mapTo(&picker_, QPoint(0, 0)), Button("SSCommand2").size())));
  auto *selected = picker_.findChild<QLabel *>(QStringLiteral("lblSelected"));
  EXPECT_EQ(selected->toolTip(), Native(longName));
  EXPECT_TRUE(selected->text().contains(QChar(0x2026)));
}

TEST_F(FolderPicker, DeepFoldersAreReachedByKeyboardAndByScrolling) {
  QString deep = QStringLiteral("deep");
  for (int level = 1; level <= 20; ++level) deep += QStringLiteral("/level%1").arg(level);
  ASSERT_TRUE(QDir(folder_.path()).mkpath(deep));
  picker_.SelectFolder(Native(QStringLiteral("deep")));
  for (int i = 0; i < 42; ++i) QTest::keyClick(&Dir1(), Qt::Key_Right);
  EXPECT_EQ(picker_.SelectedFolder(), Native(deep));
  EXPECT_TRUE(Button("SSCommand1").isEnabled());
  EXPECT_GT(Dir1().horizontalScrollBar()->maximum(), 0);
}

TEST_F(FolderPicker, FoldersAreInTheOrderOfPeopleAndHiddenOnesComeOnRequest) {
  for (const char *name : {"f10", "f2", "F1", ".secret"})
    ASSERT_TRUE(QDir(folder_.path()).mkpath(QStringLiteral("Order/") + QLatin1String(name)));
  const auto names = [&] {
    QStringList found;
    picker_.SelectFolder(Native(QStringLiteral("Order")));
    for (int i = 0; i < Dir1().currentItem()->childCount(); ++i)
      found << Dir1().currentItem()->child(i)->text(0);
    return found;
  };
  const QStringList shown{QStringLiteral("F1"), QStringLiteral("f2"), QStringLiteral("f10")};
  EXPECT_EQ(names(), shown);
  picker_.findChild<QCheckBox *>(QStringLiteral("chkHidden"))->click();
  EXPECT_EQ(picker_.SelectedFolder(), Native(QStringLiteral("Order")));
  EXPECT_TRUE(names().contains(QStringLiteral(".secret")));
  EXPECT_EQ(names().size(), 4);
}

TEST_F(FolderPicker, APathCanBeTypedAndOkNeedsAFolderThatIsThere) {
  auto *box = picker_.findChild<QLineEdit *>(QStringLiteral("txtPath"));
  box->setFocus();
  box->clear();
  QTest::keyClicks(box, Native(QStringLiteral("Sites/Nowhere")));
  EXPECT_FALSE(Button("SSCommand1").isEnabled());
  box->clear();
  QTest::keyClicks(box, Native(QStringLiteral("Sites/Bob's Site")));
  EXPECT_EQ(box->text(), Native(QStringLiteral("Sites/Bob's Site")));
  EXPECT_TRUE(Button("SSCommand1").isEnabled());
  Button("SSCommand1").click();
  EXPECT_EQ(values_.ImageFolderPath, ToLogic(Native(QStringLiteral("Sites/Bob's Site"))));
}

TEST_F(FolderPicker, StartsAtTheNearestFolderThatIsStillThere) {
  picker_.SelectFolder(Native(QStringLiteral("Sites/gone/deeper")));
  EXPECT_EQ(picker_.SelectedFolder(), Native(QStringLiteral("Sites")));
}

}  // namespace
}  // namespace velor
