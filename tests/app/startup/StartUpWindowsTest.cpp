// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/startup/RealStartUpWindows.h"
#include "chrome/FrmFld.h"
#include "tests/support/Checks.h"
#include "tests/support/FakeComponents.h"
#include "tests/support/FakeDialogs.h"
#include "tests/support/FakeFiles.h"

#include <QApplication>
#include <QPushButton>

#include <gtest/gtest.h>

namespace velor {
namespace {

class StartUpWindowsOfTheProgram : public ::testing::Test {
 protected:
  StartUpWindowsOfTheProgram()
      : components_(files_),
        windows_(components_, dialogs_, {values_.ImageFolderPath, values_.ProjectFolderResult},
                 [this] { ++mainWindows_; }) {}

  static QWidget *Login() {
    for (QWidget *window : QApplication::topLevelWidgets()) {
      if (window->objectName() == QStringLiteral("FrmLogin")) return window;
    }
    return nullptr;
  }

  FakeFiles files_;
  FakeDialogs dialogs_;
  FakeComponents components_;
  ProgramValues values_;
  int mainWindows_ = 0;
  RealStartUpWindows windows_;
};

TEST_F(StartUpWindowsOfTheProgram, TheLoginFormIsLoadedHiddenAndStays) {
  EXPECT_EQ(Login(), nullptr);
  FileDialog &databaseDialog = windows_.LoadLogin();
  windows_.LoadMainWindow();
  auto *login = qobject_cast<FrmLogin *>(Login());
  ASSERT_NE(login, nullptr);
  EXPECT_EQ(&login->CommonDialog1(), &databaseDialog);
  EXPECT_EQ(Login()->windowTitle(), QStringLiteral("Form1"));
  EXPECT_FALSE(Login()->isVisible());
  EXPECT_EQ(mainWindows_, 1);
}

TEST_F(StartUpWindowsOfTheProgram, TheFolderPickerIsModalAndAnswersForTheImageFolder) {
  values_.ProjectFolderResult = QStringLiteral("\\project");
  dialogs_.ExpectModal([](QWidget &window) {
    auto *picker = qobject_cast<FrmFld *>(&window);
    ASSERT_NE(picker, nullptr);
    EXPECT_FALSE(picker->ForProject);
    picker->SelectFolder(QStringLiteral("/usr"));
    picker->findChild<QPushButton *>(QStringLiteral("SSCommand1"))->click();
  });
  windows_.PickImageFolder();
  EXPECT_EQ(values_.ImageFolderPath, QStringLiteral("\\usr"));
  EXPECT_EQ(values_.ProjectFolderResult, QStringLiteral("\\project"));
}

TEST_F(StartUpWindowsOfTheProgram, ThePickerIsGoneAfterItsAnswer) {
  dialogs_.ExpectModal([](QWidget &window) { window.close(); });
  windows_.PickImageFolder();
  for (QWidget *window : QApplication::topLevelWidgets()) {
    EXPECT_EQ(qobject_cast<FrmFld *>(window), nullptr);
  }
  EXPECT_EQ(values_.ImageFolderPath, QString());
}

}  // namespace
}  // namespace velor
