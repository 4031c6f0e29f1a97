// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/InsertCommands.h"
#include "app/window/PageTabs.h"
#include "editor/PageSlots.h"
#include "editor/frmMain.h"
#include "insert/frmInsertElement.h"
#include "tests/app/WindowFixture.h"

#include <QPushButton>

namespace velor {
namespace {

class InsertTest : public WindowFixture {
 protected:
  void ExpectElementDialog(const QString &mode, const QString &savedMode, const QString &filePath) {
    dialogs.ExpectModal([=, this](QWidget &dialog) {
      auto *element = dynamic_cast<frmInsertElement *>(&dialog);
      ASSERT_NE(element, nullptr);
      EXPECT_EQ(element->ElementMode, mode);
      EXPECT_EQ(element->InsertMode, QStringLiteral("true"));
      EXPECT_EQ(element->SavedMode, savedMode);
      if (savedMode == QStringLiteral("true")) {
        EXPECT_EQ(element->FilePath, filePath);
      }
      EXPECT_TRUE(element->IsCreator);
      EXPECT_EQ(element->TheDOM, &front->DHTML1().Document());
    });
  }

  frmMain *front = nullptr;
};

TEST_F(InsertTest, ImageAndHyperlinkOpenTheElementDialogOnTheirPage) {
  front = &NewPage();
  ExpectElementDialog(QStringLiteral("image"), QStringLiteral("false"), {});
  Choose("mnuISTimage");
  ExpectElementDialog(QStringLiteral("hyperlink"), QStringLiteral("false"), {});
  Choose("mnuISTlink");
  ExpectElementDialog(QStringLiteral("image"), QStringLiteral("false"), {});
  Click("tbrGeneral_image");
}

TEST_F(InsertTest, TargetAndVideoAreCommandsWithoutAnItem) {
  front = &NewPage();
  ExpectElementDialog(QStringLiteral("target"), QStringLiteral("false"), {});
  window.Router().Run({CommandId::InsertTarget});
  ExpectElementDialog(QStringLiteral("video"), QStringLiteral("false"), {});
  window.Router().Run({CommandId::InsertVideo});
}

TEST_F(InsertTest, ASavedPagesFileIsHandedOver) {
  WriteFile(QStringLiteral("\\site\\a.htm"));
  SharedDialog().ExpectOpen(QStringLiteral("\\site\\a.htm"));
  Choose("mnuOpen");
  front = window.Context().pages.Page(1);
  ExpectElementDialog(QStringLiteral("image"), QStringLiteral("true"),
                      QStringLiteral("\\site\\a.htm"));
  Choose("mnuISTimage");
}

TEST_F(InsertTest, TheElementDialogIsOneForTheWholeRun) {
  NewPage();
  QWidget *first = nullptr;
  dialogs.ExpectModal([&](QWidget &dialog) { first = &dialog; });
  Choose("mnuISTimage");
  dialogs.ExpectModal([&](QWidget &dialog) { EXPECT_EQ(&dialog, first); });
  Choose("mnuISTlink");
}

TEST_F(InsertTest, TheTablesHtmlIsPastedAtTheSelection) {
  NewPage();
  dialogs.ExpectModal([](QWidget &dialog) {
    dialog.findChild<QPushButton *>(QStringLiteral("Command1"))->click();
  });
  log.clear();
  Choose("mnuTBLnew");
  ASSERT_FALSE(values.HTMLString.isEmpty());
  EXPECT_EQ(log.back(), QStringLiteral("PasteHTML(%1)").arg(values.HTMLString));
}

TEST_F(InsertTest, ACancelledTableDialogPastesTheTextLeftBefore) {
  NewPage();
  values.HTMLString = QStringLiteral("<b>before</b>");
  dialogs.ExpectModal([](QWidget &) {});
  Click("tbrGeneral_table");
  EXPECT_EQ(log.back(), QStringLiteral("PasteHTML(<b>before</b>)"));
}

class ProjectTest : public WindowFixture {
 protected:
  ProjectTest() {
    values.DbConnection = database.CreateConnection();
    values.DbConnection->Open(QStringLiteral("Data Source=\\eThumbs.mdb"), {}, {}, -1);
  }
};

TEST_F(ProjectTest, ADatabaseThatFailsLeavesTheErrorToTheEventBoundary) {
  EXPECT_THROW(window.Router().Run({CommandId::ProjectManager}), RuntimeError);
}

}  // namespace
}  // namespace velor
