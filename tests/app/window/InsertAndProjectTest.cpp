// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/PageChooser.h"
#include "app/window/PageTabs.h"
#include "app/window/ProjectDesk.h"
#include "chrome/FrmFld.h"
#include "chrome/HouseStyle.h"
#include "editor/PageSlots.h"
#include "editor/frmMain.h"
#include "insert/frmInsertElement.h"
#include "projects/frmProjectManager.h"
#include "tests/app/window/WindowFixture.h"
#include "tests/support/Checks.h"
#include "tests/support/Waiting.h"

#include <QAbstractItemView>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QStatusBar>
#include <QTabWidget>
#include <QTest>

#include <algorithm>

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

TEST_F(InsertTest, ACatalogueThatIsNotWholeIsSaidInTheStatusBarAtTheStart) {
  database.defect = QStringLiteral("The catalogue is not whole");
  values.DbConnection = database.CreateConnection();
  MfrmProgram second(platform, values);
  second.Load();
  EXPECT_TRUE(WaitFor([&] { return second.statusBar()->currentMessage() == database.defect; }));
}

TEST_F(InsertTest, CustomHtmlIsShownBeforeItIsPutInAsItStands) {
  frmMain &page = NewPage();
  FakeEditingComponent &component = Component(page);
  component.SetDocumentHTML(
      QStringLiteral("<!DOCTYPE html><html><head><style>b { color: red }</style></head>"
                     "<body class=\"a>b\"><p>one</p></body></html>"));
  component.CompleteDocument();
  const auto markup = QStringLiteral("<p>two <b>three</b>\n");
  dialogs.ExpectModal([&](QWidget &dialog) {
    dialog.show();
    FakeSourceControl &source = *components.sourceControls.back();
    auto *ok = dialog.findChild<QPushButton *>(QStringLiteral("cmdOK"));
    EXPECT_FALSE(ok->isEnabled());
    source.SetText(markup);
    EXPECT_TRUE(ok->isEnabled());
    EXPECT_TRUE(WaitFor([&] {
      return components.editingComponents.back()->DocumentHTML() ==
             QStringLiteral(
                 "<!DOCTYPE html><html><head><style>b { color: red }</style></head>"
                 "<body class=\"a>b\">") +
                 markup;
    }));
    log.clear();
    QTest::keyClick(source.Widget(), Qt::Key_Return, Qt::ControlModifier);
    EXPECT_FALSE(dialog.isVisible());
  });
  Choose("extInHTML");
  const QString call = QStringLiteral("PasteHTML(") + markup + u')';
  EXPECT_EQ(std::count(log.begin(), log.end(), call), 1);

  dialogs.ExpectModal([&](QWidget &dialog) {
    dialog.show();
    components.sourceControls.back()->SetText(markup);
    log.clear();
    QTest::keyClick(components.sourceControls.back()->Widget(), Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
  });
  Choose("extInHTML");
  EXPECT_EQ(std::count(log.begin(), log.end(), call), 0);
}

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

TEST_F(InsertTest, EachShowingOfTheTableDialogStartsFromTheDefaults) {
  NewPage();
  for (int showing = 0; showing < 2; ++showing) {
    dialogs.ExpectModal([](QWidget &dialog) {
      auto *columns = dialog.findChild<QLineEdit *>(QStringLiteral("Text1"));
      EXPECT_EQ(columns->text(), QStringLiteral("3"));
      columns->setText(QStringLiteral("9"));
      dialog.findChild<QPushButton *>(QStringLiteral("Command1"))->click();
    });
    Choose("mnuTBLnew");
  }
}

TEST_F(InsertTest, APictureThatCannotBeLoadedIsToldInTheStatusBar) {
  NewPage();
  components.onFileDialog = [](FakeFileDialog &person) {
    person.ExpectOpen(QStringLiteral("\\nowhere\\gone.png"));
  };
  dialogs.ExpectModal([](QWidget &dialog) {
    dialog.findChild<QPushButton *>(QStringLiteral("cmdBrowseIMG"))->click();
  });
  Choose("mnuISTimage");
  EXPECT_TRUE(window.statusBar()->currentMessage().contains(QStringLiteral("gone.png")))
      << window.statusBar()->currentMessage().toStdString();
}

const QString Sample = QStringLiteral("\\site");

class ProjectTest : public WindowFixture {
 protected:
  ProjectTest() {
    values.DbConnection = database.CreateConnection();
    values.DbConnection->Open(QStringLiteral("Data Source=\\eThumbs.mdb"), {}, {}, -1);
    const FakeRows project{
        .columns = {{.name = QStringLiteral("IdProject"), .type = ColumnType::Integer},
                    {.name = QStringLiteral("Name")},
                    {.name = QStringLiteral("Path")},
                    {.name = QStringLiteral("DtModified")}},
        .rows = {{12, QStringLiteral("Sample"), Sample, QString()}}};
    database.results[QStringLiteral("Select * from Project where Created = true")] = project;
    database.results[QStringLiteral("Select * from Project where IdProject = '12'")] = project;
    database
        .results[QStringLiteral("Select * from Page where ProjectId = '12' Order by Pagename")] = {
        .columns = {{.name = QStringLiteral("PageId"), .type = ColumnType::Integer},
                    {.name = QStringLiteral("PageName")}},
        .rows = {{31, QStringLiteral("About")}, {30, QStringLiteral("Home")}}};
    WriteFile(Sample + QStringLiteral("\\Index.htm"));
    WriteFile(Sample + QStringLiteral("\\Files\\Home.htm"));
  }

  PageChooser &Chooser() { return *Find<PageChooser>("CmbPages"); }

  static void OpenProject(QWidget &manager) {
    manager.findChild<QPushButton *>(QStringLiteral("cmdOpen"))->click();
  }
};

TEST(PageChooserTest, ManyPagesAreAListOfTwentyRowsInWhichTypingFinds) {
  HouseStyle style;
  PageChooser chooser(nullptr);
  chooser.setStyle(&style);
  for (int page = 1; page <= 700; ++page)
    chooser.AddPage(page == 1 ? QString() : QStringLiteral("Page %1").arg(page), page);
  EXPECT_EQ(chooser.itemText(0), QStringLiteral("(no name)"));
  chooser.show();
  chooser.showPopup();
  QAbstractItemView &list = *chooser.view();
  const int row = list.visualRect(list.model()->index(0, 0)).height();
  ASSERT_GT(row, 0);
  EXPECT_LE(list.viewport()->height() / row, 20);
  EXPECT_GE(list.viewport()->height() / row, 19);
  EXPECT_TRUE(list.verticalScrollBar()->isVisible());
  QTest::keyClicks(&list, QStringLiteral("page 69"));
  EXPECT_EQ(list.currentIndex().data().toString(), QStringLiteral("Page 69"));
  int chosen = 0;
  QObject::connect(&chooser, &PageChooser::PageChosen, [&](std::int32_t id) { chosen = id; });
  QTest::keyClick(&list, Qt::Key_Return);
  EXPECT_EQ(chosen, 69);
}

TEST_F(ProjectTest, ItemAndButtonShowTheProjectManagerModally) {
  int shown = 0;
  for (int i = 0; i < 2; ++i) {
    dialogs.ExpectModal([&](QWidget &manager) {
      EXPECT_NE(dynamic_cast<frmProjectManager *>(&manager), nullptr);
      ++shown;
    });
  }
  Choose("mnuView_ProjectMan");
  Click("tbrGeneral_startman");
  EXPECT_EQ(shown, 2);
}

TEST_F(ProjectTest, OpeningAProjectReplacesPagesTabsAndChooser) {
  NewPage();
  NewPage();
  Chooser().AddPage(QStringLiteral("of another project"), 7);
  dialogs.ExpectModal(OpenProject);
  Choose("mnuView_ProjectMan");
  ASSERT_EQ(Tabs().count(), 1);
  EXPECT_EQ(Tabs().tabText(0), QStringLiteral("Home.htm"));
  EXPECT_EQ(Tabs().tabData(0).toString(), QStringLiteral("key3"));
  EXPECT_TRUE(window.Context().pages.Page(1).isNull());
  EXPECT_TRUE(window.Context().pages.Page(2).isNull());
  ASSERT_EQ(Chooser().count(), 2);
  EXPECT_EQ(Chooser().itemText(0), QStringLiteral("About"));
  EXPECT_EQ(Chooser().itemData(1).toInt(), 30);
  EXPECT_TRUE(Item("mnuInsert")->isEnabled());
}

TEST_F(ProjectTest, APageThatStaysOpenHasNoTabAndClosesLaterWithoutHarm) {
  frmMain &kept = NewPage();
  NewPage().close();
  Component(kept).Edit(QStringLiteral("<p>unsaved</p>"));
  const QString question =
      QStringLiteral("You have made changes to this document. Do you want to save it?");
  dialogs.ExpectModal(OpenProject);
  dialogs.ExpectMessage(question, MessageAnswer::Cancel);
  Choose("mnuView_ProjectMan");
  ASSERT_FALSE(window.Context().pages.Page(1).isNull());
  // The slot that was closed before is passed over, and the project's page has the next one.
  EXPECT_TRUE(window.Context().pages.Page(2).isNull());
  ASSERT_EQ(Tabs().count(), 1);
  EXPECT_EQ(Tabs().tabData(0).toString(), QStringLiteral("key3"));
  const QString caption = Tabs().tabText(0);
  // It is saved without a word about the tab that it has not, and the project's keeps its name.
  const QString saved = QStringLiteral("\\site\\kept.htm");
  window.Context().mainWindow.windows.Activate(&kept);
  SharedDialog().ExpectSave(saved);
  Choose("mnuSave");
  EXPECT_EQ(files.Content(saved), "<p>unsaved</p>");
  EXPECT_EQ(Tabs().tabText(0), caption);
  Component(kept).CompleteDocument();
  Component(kept).Edit(QStringLiteral("<p>more</p>"));
  dialogs.ExpectMessage(question, MessageAnswer::No);
  kept.close();
  DeleteClosedWindows();
  EXPECT_TRUE(window.Context().pages.Page(1).isNull());
  EXPECT_EQ(Tabs().count(), 1) << "the tab that is left is the project's";
  EXPECT_FALSE(window.Context().pages.Page(3).isNull());
}

TEST_F(ProjectTest, AMissingHomePageIsReportedAfterEverythingBeforeIt) {
  NewPage();
  files.Delete(Sample + QStringLiteral("\\Files\\Home.htm"));
  ErrorNumber error = ErrorNumber::None;
  dialogs.ExpectModal([&](QWidget &manager) { error = ErrorOf([&] { OpenProject(manager); }); });
  Choose("mnuView_ProjectMan");
  EXPECT_EQ(error, ErrorNumber::FileNotFound);
  EXPECT_EQ(Tabs().count(), 0);
  EXPECT_EQ(Chooser().count(), 2);
  EXPECT_TRUE(window.Context().pages.Page(1).isNull());
  EXPECT_EQ(window.Context().pages.PageCount(), 1);
}

TEST_F(ProjectTest, AManagerHiddenByOpeningIsAsItWasAClosedOneIsReadAnew) {
  QPointer<QWidget> first;
  dialogs.ExpectModal([&](QWidget &manager) {
    first = &manager;
    OpenProject(manager);
  });
  Choose("mnuView_ProjectMan");
  dialogs.ExpectModal([&](QWidget &manager) {
    EXPECT_EQ(&manager, first);
    manager.show();
    manager.findChild<QTabWidget *>()->setCurrentIndex(1);
    manager.close();
  });
  Choose("mnuView_ProjectMan");
  database.statements.clear();
  dialogs.ExpectModal([](QWidget &manager) {
    EXPECT_FALSE(manager.isVisible());
    EXPECT_EQ(manager.findChild<QTabWidget *>()->currentIndex(), 0);
  });
  Choose("mnuView_ProjectMan");
  EXPECT_EQ(database.statements.size(), 2);
}

TEST_F(ProjectTest, TheFolderPickerAnswersForTheProjectAndIsGoneAfterwards) {
  ProjectDesk desk(window.Context(), values.DbConnection,
                   {values.ImageFolderPath, values.ProjectFolderResult}, Chooser(), nullptr);
  values.ImageFolderPath = QStringLiteral("\\images");
  QPointer<QWidget> shown;
  for (const char *button : {"SSCommand1", "SSCommand2"}) {
    dialogs.ExpectModal([&, button](QWidget &dialog) {
      auto *picker = qobject_cast<FrmFld *>(&dialog);
      ASSERT_NE(picker, nullptr);
      shown = picker;
      picker->SelectFolder(QStringLiteral("/usr"));
      picker->findChild<QPushButton *>(QString::fromLatin1(button))->click();
    });
  }
  desk.PickProjectFolder({});
  EXPECT_EQ(values.ProjectFolderResult, QStringLiteral("\\usr"));
  EXPECT_TRUE(shown.isNull());
  desk.PickProjectFolder({});
  EXPECT_EQ(values.ProjectFolderResult, QString());
  EXPECT_TRUE(shown.isNull());
  EXPECT_EQ(values.ImageFolderPath, QStringLiteral("\\images"));
}

TEST_F(ProjectTest, ADatabaseThatFailsIsTheEventBoundarysBusiness) {
  database.results.clear();
  EXPECT_THROW(window.Router().Run({CommandId::ProjectManager}), RuntimeError);
}

}  // namespace
}  // namespace velor
