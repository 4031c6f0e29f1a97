// SPDX-License-Identifier: GPL-3.0-or-later
// The project manager on catalogues of its own on disk, one of each format: what its statements do
// to the rows.
#include "projects/RecordList.h"
#include "projects/RowTable.h"
#include "projects/frmProjectManager.h"
#include "tests/projects/CatalogueDesk.h"
#include "tests/projects/CatalogueOnDisk.h"
#include "tests/support/FakeFiles.h"
#include "tests/support/Forms.h"

#include <QPushButton>
#include <QTabWidget>

namespace velor {
namespace {

QString U(const char *text) {
  return QString::fromUtf8(text);
}

class Desk final : public CatalogueDesk {
 public:
  QString pickedFolder;

  QString PickProjectFolder(const QString &) override { return pickedFolder; }
};

class ProjectRepairTest : public CatalogueOnDisk<FakeFiles, Desk> {
 protected:
  ProjectRepairTest() { Open(SmallCatalogue()); }
};

TEST_P(ProjectRepairTest, ListsGeneratedProjectsOldestFirst) {
  frmProjectManager manager(files, dialogs, connection.get(), desk, nullptr);
  const QAbstractItemModel *list = Control<RecordList>(manager, U("LsHistory"))->model();
  ASSERT_EQ(list->rowCount(), 2);
  EXPECT_EQ(list->index(0, 0).data().toString(), U("2"));
  EXPECT_EQ(list->index(0, 1).data().toString(), U("Older"));
  EXPECT_EQ(list->index(0, 2).data().toString(), U("2004-01-01"));
  EXPECT_EQ(list->index(1, 1).data().toString(), U("Younger"));
}

TEST_P(ProjectRepairTest, ListsThePagesOfTheProjectAloneByName) {
  frmProjectManager manager(files, dialogs, connection.get(), desk, nullptr);
  Control<QTabWidget>(manager, U("SSTab1"))->setCurrentIndex(1);
  const QAbstractItemModel *pages = Control<RecordList>(manager, U("LstPages"))->model();
  ASSERT_EQ(pages->rowCount(), 2);
  EXPECT_EQ(pages->index(0, 1).data().toString(), U("About"));
  EXPECT_EQ(pages->index(1, 1).data().toString(), U("prices"));
}

TEST_P(ProjectRepairTest, PutsTheNewFolderIntoTheProjectsRowsAndNoOthers) {
  frmProjectManager manager(files, dialogs, connection.get(), desk, nullptr);
  desk.pickedFolder = U("\\new\\Bob's Site");
  dialogs.ExpectMessage(U("Web path not found please provide the path"), MessageAnswer::Yes);
  Control<QPushButton>(manager, U("cmdOpen"))->click();

  const QString moved = desk.pickedFolder;
  EXPECT_EQ(Column("Select * from Project Order by IdProject", "Path"),
            (QStringList{U("\\old\\one"), moved, U("\\old\\three")}));
  EXPECT_EQ(Column("Select * from Page Order by PageId", "TPath"),
            (QStringList{moved, moved, U("\\old\\one")}));
  EXPECT_EQ(Column("Select * from CustomCD Order by ProjectId", "PPath"),
            (QStringList{U("\\old\\one"), moved}));
  // What the statements do not name stays as it was.
  EXPECT_EQ(Column("Select * from Project where IdProject = 1", "Notes"), QStringList{U("kept")});
  EXPECT_EQ(desk.opened, moved + U("\\Files\\Home.htm"));
  EXPECT_EQ(desk.pages, (QStringList{U("11 About"), U("10 prices")}));
}

TEST_P(ProjectRepairTest, KeepsTheFirstChangeWhenALaterStatementFails) {
  fixture::FixtureFile content = SmallCatalogue();
  content.tables.pop_back();  // CustomCD
  Open(content);
  frmProjectManager manager(files, dialogs, connection.get(), desk, nullptr);
  desk.pickedFolder = U("\\new");
  dialogs.ExpectMessage(U("Web path not found please provide the path"), MessageAnswer::Yes);
  auto *cmdOpen = Control<QPushButton>(manager, U("cmdOpen"));
  EXPECT_NE(ErrorOf([&] { cmdOpen->click(); }), ErrorNumber::None);
  EXPECT_EQ(Column("Select * from Project where IdProject = 2", "Path"), QStringList{U("\\new")});
  EXPECT_EQ(desk.opened, QString());
}

INSTANTIATE_TEST_SUITE_P(Catalogues, ProjectRepairTest,
                         testing::Values(CatalogueFormat::Sqlite, CatalogueFormat::Jet),
                         [](const auto &format) {
                           return format.param == CatalogueFormat::Jet ? "Jet" : "Sqlite";
                         });

}  // namespace
}  // namespace velor
