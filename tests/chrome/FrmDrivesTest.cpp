// SPDX-License-Identifier: GPL-3.0-or-later
#include "chrome/FrmDrives.h"
#include "chrome/FrmFld.h"
#include "platform/Paths.h"
#include "tests/support/FakeDialogs.h"

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTreeWidget>

#include <gtest/gtest.h>

namespace velor {
namespace {

class Drives : public ::testing::Test {
 protected:
  ~Drives() override { UseDriveMap({}); }

  QString File() const { return folder_.filePath(QStringLiteral("Company/drives.conf")); }
  QByteArray Bytes() const {
    QFile file(File());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }
  static void Press(FrmDrives &window, const char *button) {
    window.findChild<QPushButton *>(QString::fromLatin1(button))->click();
  }
  void AddByPicking(FrmDrives &window, QChar letter) {
    window.AddDrive(letter);
    dialogs_.ExpectModal([this](QWidget &picker) {
      static_cast<FrmFld &>(picker).SelectFolder(folder_.path());
      static_cast<FrmFld &>(picker).accept();
    });
    Press(window, "cmdAdd");
  }

  QTemporaryDir folder_;
  FakeDialogs dialogs_;
};

TEST_F(Drives, AnAddedDriveIsWrittenAndInUseAtOnce) {
  FrmDrives window(dialogs_, File());
  AddByPicking(window, u'd');
  EXPECT_EQ(window.findChild<QTreeWidget *>()->topLevelItem(0)->text(1), folder_.path());
  window.accept();
  EXPECT_EQ(Bytes(), "D: " + folder_.path().toUtf8() + '\n');
  EXPECT_EQ(ToNative(QStringLiteral("D:\\a.htm")), folder_.path() + QStringLiteral("/a.htm"));
}

TEST_F(Drives, ARemovedDriveLeavesTheFileAndStaysInUse) {
  {
    FrmDrives window(dialogs_, File());
    AddByPicking(window, u'D');
    window.accept();
  }
  FrmDrives window(dialogs_, File());
  auto *list = window.findChild<QTreeWidget *>();
  ASSERT_EQ(list->topLevelItemCount(), 1);
  list->setCurrentItem(list->topLevelItem(0));
  Press(window, "cmdRemove");
  window.accept();
  EXPECT_EQ(Bytes(), "");
  EXPECT_FALSE(IsOnUnknownDrive(QStringLiteral("D:\\a.htm")));
}

TEST_F(Drives, CancelChangesNothing) {
  FrmDrives window(dialogs_, File());
  AddByPicking(window, u'D');
  window.reject();
  EXPECT_FALSE(QFile::exists(File()));
  EXPECT_TRUE(IsOnUnknownDrive(QStringLiteral("D:\\a.htm")));
}

TEST_F(Drives, CommentsInTheFileStay) {
  QDir(folder_.path()).mkdir(QStringLiteral("Company"));
  QFile file(File());
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("# the shop's computer\nC: /home/win\n");
  file.close();
  FrmDrives window(dialogs_, File());
  window.accept();
  EXPECT_EQ(Bytes(), "# the shop's computer\nC: /home/win\n");
}

}  // namespace
}  // namespace velor
