// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/DriveMap.h"
#include "platform/Paths.h"
#include "projects/ProjectHost.h"
#include "projects/RecordList.h"
#include "projects/frmProjectManager.h"
#include "tests/support/Checks.h"
#include "tests/support/FakeDatabase.h"
#include "tests/support/FakeDialogs.h"
#include "tests/support/FakeFiles.h"
#include "tests/support/FakeStylingSweeps.h"
#include "tests/support/Forms.h"

#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QTabWidget>
#include <QTest>

#include <algorithm>
#include <functional>

namespace velor {
namespace {

QString U(const char *text) {
  return QString::fromUtf8(text);
}

/// A main window that notes what the project manager does with it.
class NotedHost final : public ProjectHost {
 public:
  explicit NotedHost(CallLog &log) : log_(log) {}
  int documents = 2;
  QString pickedFolder;

  void ClearTabs() override { log_.push_back(U("ClearTabs")); }
  void ClearPageChooser() override { log_.push_back(U("ClearPageChooser")); }
  void AddChooserPage(const QString &name, std::int32_t pageId) override {
    log_.push_back(U("AddChooserPage(%1, %2)").arg(name).arg(pageId));
  }
  int DocumentCount() const override { return documents; }
  void UnloadDocument(int index) override { log_.push_back(U("UnloadDocument(%1)").arg(index)); }
  void OpenProjectPage(const QString &path) override {
    log_.push_back(U("OpenProjectPage(%1)").arg(path));
  }
  QString PickProjectFolder(const QString &) override {
    log_.push_back(U("PickProjectFolder"));
    return pickedFolder;
  }
  void NameDrives(const QString &path) override {
    log_.push_back(U("NameDrives(%1)").arg(path));
    if (onNameDrives) onNameDrives();
    if (!namedDrives.isEmpty()) UseDriveMap(DriveMap::Parse(namedDrives, U("test")));
  }
  std::function<void()> onNameDrives;
  /// The drive map after the person has named drives.
  QString namedDrives;

 private:
  CallLog &log_;
};

const QString Generated = QStringLiteral("Select * from Project where Created = true");
const QString ByDate =
    QStringLiteral("Select * from Project where Created = true Order by DtModified");
const QString Project12 = QStringLiteral("Select * from Project where IdProject = '12'");
const QString ChooserPages12 =
    QStringLiteral("Select * from Page where ProjectId = '12' Order by Pagename");
const QString ListedPages12 =
    QStringLiteral("Select * from Page where ProjectId = '12' Order by PageName");
const QString Question = QStringLiteral("Web path not found please provide the path");

class ProjectManagerTest : public testing::Test {
 protected:
  ProjectManagerTest() {
    connection = database.CreateConnection();
    connection->Open({}, {}, {}, -1);
    SetProjects(2);
    FakeRows pages;
    pages.columns = {{U("PageId"), ColumnType::Integer}, {U("PageName")}};
    pages.rows = {{31, U("About")}, {30, U("Home")}};
    database.results[ChooserPages12] = pages;
    database.results[ListedPages12] = pages;
    files.AddFile(U(R"(\sites\twelve\INDEX.HTM)"), "<HTML>");
    log.clear();
  }

  /// The catalogue's generated projects: 12 and, from the second on, others after it.
  void SetProjects(int count) {
    FakeRows rows;
    rows.columns = {{U("IdProject"), ColumnType::Integer},
                    {U("Name")},
                    {U("Path")},
                    {U("DtModified"), ColumnType::Date}};
    FakeRows twelve = rows;
    twelve.rows = {{12, U("Twelve"), U("\\sites\\twelve"), U("2004-01-02 03:04:05")}};
    for (int i = 0; i < count; ++i) {
      rows.rows.push_back(
          {12 + i, U("Project %1").arg(i), U("\\sites\\%1").arg(i), U("2004-01-02")});
    }
    database.results[Generated] = rows;
    database.results[ByDate] = rows;
    database.results[Project12] = twelve;
  }

  /// The window as the command shows it.
  frmProjectManager &Open() {
    window = std::make_unique<frmProjectManager>(files, dialogs, connection.get(), host, &sweeps);
    log.clear();
    database.statements.clear();
    window->show();
    return *window;
  }

  template <typename Widget>
  Widget *Get(const char *name) {
    return Control<Widget>(*window, U(name));
  }
  void Click() { Get<QPushButton>("cmdOpen")->click(); }
  void ShowTab(int tab) { Get<QTabWidget>("SSTab1")->setCurrentIndex(tab); }

  /// The log without the recordsets' own calls.
  CallLog Steps() const {
    CallLog steps;
    for (const QString &call : log) {
      if (!call.startsWith(u"SetCursorLocation") && !call.startsWith(u"CloseRecordset")) {
        steps.push_back(call);
      }
    }
    return steps;
  }
  static QString Opened(const QString &statement) {
    return U("OpenRecordset(%1, 3, 1, -1)").arg(statement);
  }

  CallLog log;
  FakeDatabase database{&log};
  FakeFiles files;
  FakeDialogs dialogs{&log};
  std::unique_ptr<DatabaseConnection> connection;
  NotedHost host{log};
  FakeStylingSweeps sweeps{&log};
  std::unique_ptr<frmProjectManager> window;
};

TEST_F(ProjectManagerTest, ShowsItsTabsListsAndButton) {
  Open();
  EXPECT_EQ(window->windowTitle(), U("Web Site Project Manager"));
  auto *tabs = Get<QTabWidget>("SSTab1");
  QStringList captions;
  for (int i = 0; i < tabs->count(); ++i) captions.append(tabs->tabText(i));
  EXPECT_EQ(captions, (QStringList{U("Project Manager"), U("Web Pages"), U("Images"), U("Reports"),
                                   U("Tab 4")}));
  EXPECT_EQ(Get<QLabel>("Label1")->text(), U("Select the Project and open it."));
  EXPECT_EQ(Get<QPushButton>("cmdOpen")->text(), U("Open"));
  EXPECT_TRUE(tabs->widget(0)->isAncestorOf(Get<RecordList>("LsHistory")));
  EXPECT_TRUE(tabs->widget(0)->isAncestorOf(Get<QPushButton>("cmdOpen")));
  EXPECT_TRUE(tabs->widget(1)->isAncestorOf(Get<RecordList>("LstPages")));
  const QAbstractItemModel *projects = Get<RecordList>("LsHistory")->model();
  QStringList headings;
  for (int i = 0; i < projects->columnCount(); ++i) {
    headings.append(projects->headerData(i, Qt::Horizontal).toString());
  }
  EXPECT_EQ(headings, (QStringList{U("ProjectId"), U("ProjectName"), U("DateModified")}));
  EXPECT_EQ(Get<RecordList>("LstPages")->model()->columnCount(), 2);
}

TEST_F(ProjectManagerTest, GoesThroughTabsListAndButtonByTab) {
  Open();
  window->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  QStringList met;
  const QWidget *start = window->focusWidget();
  ASSERT_NE(start, nullptr);
  do {
    met.append(window->focusWidget()->objectName());
    QTest::keyClick(window->focusWidget(), Qt::Key_Tab);
  } while (window->focusWidget() != start && met.size() < 10);
  EXPECT_EQ(met, (QStringList{U("LsHistory"), U("cmdOpen"), U("qt_tabwidget_tabbar")}))
      << met.join(u' ').toStdString();
}

TEST_F(ProjectManagerTest, TakesItsLastThreeTabsOutOfUse) {
  Open();
  auto *tabs = Get<QTabWidget>("SSTab1");
  EXPECT_EQ(tabs->currentIndex(), 0);
  EXPECT_TRUE(tabs->isTabVisible(0));
  EXPECT_TRUE(tabs->isTabVisible(1));
  for (int tab = 2; tab <= 4; ++tab) {
    EXPECT_FALSE(tabs->isTabVisible(tab));
    EXPECT_TRUE(tabs->widget(tab)->findChildren<QWidget *>().isEmpty());
  }
}

TEST_F(ProjectManagerTest, IsStyledBeforeItReadsTheList) {
  frmProjectManager manager(files, dialogs, connection.get(), host, &sweeps);
  ASSERT_FALSE(log.empty());
  EXPECT_EQ(log.front(), U("FlatSweep(frmProjectManager)"));
  EXPECT_EQ(std::count(log.begin(), log.end(), log.front()), 1);
}

TEST_F(ProjectManagerTest, OrdersTheListOnlyWhenThereAreTwoProjects) {
  const struct {
    int projects;
    QString fill;
  } cases[] = {{0, Generated}, {1, Generated}, {2, ByDate}, {3, ByDate}};
  for (const auto &row : cases) {
    SetProjects(row.projects);
    database.statements.clear();
    frmProjectManager manager(files, dialogs, connection.get(), host, nullptr);
    EXPECT_EQ(database.statements, (std::vector<QString>{Generated, row.fill}));
    const QAbstractItemModel *list = Control<RecordList>(manager, U("LsHistory"))->model();
    EXPECT_EQ(list->rowCount(), row.projects);
    EXPECT_EQ(Control<QPushButton>(manager, U("cmdOpen"))->isEnabled(), row.projects > 0);
    EXPECT_EQ(Control<QTabWidget>(manager, U("SSTab1"))->isTabEnabled(1), row.projects > 0);
  }
}

TEST_F(ProjectManagerTest, ListsIdNameAndDate) {
  Open();
  const QAbstractItemModel *list = Get<RecordList>("LsHistory")->model();
  EXPECT_EQ(list->index(1, 0).data().toString(), U("13"));
  EXPECT_EQ(list->index(1, 1).data().toString(), U("Project 1"));
  EXPECT_EQ(list->index(1, 2).data().toString(), U("2004-01-02"));
}

TEST_F(ProjectManagerTest, ListsTheCurrentProjectsPagesOnTheirTab) {
  Open();
  ShowTab(1);
  EXPECT_EQ(database.statements, std::vector<QString>{ListedPages12});
  const QAbstractItemModel *pages = Get<RecordList>("LstPages")->model();
  ASSERT_EQ(pages->rowCount(), 2);
  EXPECT_EQ(pages->index(0, 0).data().toString(), U("31"));
  EXPECT_EQ(pages->index(0, 1).data().toString(), U("About"));
  ShowTab(0);
  EXPECT_EQ(database.statements.size(), 1U);
  ShowTab(1);
  EXPECT_EQ(database.statements.size(), 2U);
}

TEST_F(ProjectManagerTest, LeavesThePageListAloneWithoutACurrentProject) {
  Open();
  ShowTab(1);
  ShowTab(0);
  Get<RecordList>("LsHistory")->setCurrentIndex({});
  ShowTab(1);
  EXPECT_EQ(database.statements.size(), 1U);
  EXPECT_EQ(Get<RecordList>("LstPages")->model()->rowCount(), 2);
}

TEST_F(ProjectManagerTest, SaysWhatFailedAndShowsNoOtherProjectsPages) {
  Open();
  ShowTab(1);
  EXPECT_TRUE(Get<QLabel>("lblNote")->isHidden());
  ShowTab(0);
  database.failures.insert(
      {ListedPages12, RuntimeError::Of(ErrorNumber::PermissionDenied, U("test"),
                                       U("the catalogue is locked\n\nSelect"))});
  ShowTab(1);
  EXPECT_EQ(Get<RecordList>("LstPages")->model()->rowCount(), 0);
  EXPECT_EQ(Get<QLabel>("lblNote")->text(), U("Permission denied: the catalogue is locked"));
  EXPECT_TRUE(Get<QLabel>("lblNote")->isVisible());
  ShowTab(0);
  database.failures.clear();
  ShowTab(1);
  EXPECT_EQ(Get<RecordList>("LstPages")->model()->rowCount(), 2);
  EXPECT_TRUE(Get<QLabel>("lblNote")->isHidden());
}

TEST_F(ProjectManagerTest, OpenIsOffWhereTheListCouldNotBeFilled) {
  database.failures.insert({ByDate, RuntimeError::Of(ErrorNumber::InvalidProcedureCall, U("test"),
                                                     U("no such column: DtModified"))});
  Open();
  EXPECT_EQ(Get<RecordList>("LsHistory")->model()->rowCount(), 0);
  EXPECT_FALSE(Get<QPushButton>("cmdOpen")->isEnabled());
  EXPECT_TRUE(Get<QLabel>("lblNote")->text().contains(U("no such column: DtModified")));
}

TEST_F(ProjectManagerTest, ADamagedCatalogueIsSaidUnderTheLists) {
  database.defect = U("The catalogue \\eThumbs.mdb is not whole: its last page is incomplete");
  Open();
  EXPECT_EQ(Get<QLabel>("lblNote")->text(), database.defect);
  EXPECT_TRUE(Get<QLabel>("lblNote")->isVisible());
  EXPECT_TRUE(Get<QPushButton>("cmdOpen")->isEnabled());
}

TEST_F(ProjectManagerTest, OpensAProjectStepByStep) {
  Open();
  Click();
  EXPECT_EQ(Steps(),
            (CallLog{Opened(Project12), U("ClearTabs"), U("ClearPageChooser"),
                     Opened(ChooserPages12), U("AddChooserPage(About, 31)"),
                     U("AddChooserPage(Home, 30)"), U("UnloadDocument(1)"), U("UnloadDocument(2)"),
                     Opened(Project12), U("OpenProjectPage(\\sites\\twelve\\Files\\Home.htm)")}));
  EXPECT_FALSE(window->isVisible());
  EXPECT_FALSE(window->IsClosed());
}

TEST_F(ProjectManagerTest, UsesOneResultSetForAllItsQueries) {
  frmProjectManager manager(files, dialogs, connection.get(), host, nullptr);
  // Its own, and the list's fresh one.
  EXPECT_EQ(database.recordsetsMade, 2);
  Control<QPushButton>(manager, U("cmdOpen"))->click();
  EXPECT_EQ(database.recordsetsMade, 2);
}

TEST_F(ProjectManagerTest, KeepsItsResultSetOpenBetweenQueriesAndLetsItGoAtTheEnd) {
  Open();
  EXPECT_EQ(database.recordsetsAlive, 1);
  Click();
  EXPECT_EQ(log.front(), U("CloseRecordset()"));
  EXPECT_EQ(std::count(log.begin(), log.end(), U("CloseRecordset()")), 3);
  EXPECT_EQ(database.recordsetsAlive, 1);
  window.reset();
  EXPECT_EQ(database.recordsetsAlive, 0);
}

TEST_F(ProjectManagerTest, ShowsDatesInFull) {
  database.results[ByDate].rows[0][3] = U("2004-12-28 23:58:58");
  Open();
  auto *list = Get<RecordList>("LsHistory");
  const int text = list->fontMetrics().horizontalAdvance(U("2004-12-28 23:58:58"));
  EXPECT_GE(list->columnWidth(2),
            text + 2 * list->style()->pixelMetric(QStyle::PM_FocusFrameHMargin));
  // A name of sixty letters has room besides.
  EXPECT_GE(list->columnWidth(1), list->fontMetrics().averageCharWidth() * 60);
}

TEST_F(ProjectManagerTest, OpensTheProjectOfTheCurrentRow) {
  database.results[U("Select * from Project where IdProject = '13'")] = {};
  database.results[U("Select * from Page where ProjectId = '13' Order by Pagename")] = {};
  Open();
  QTest::keyClick(Get<RecordList>("LsHistory"), Qt::Key_Down);
  Click();
  EXPECT_EQ(database.statements.front(), U("Select * from Project where IdProject = '13'"));
}

TEST_F(ProjectManagerTest, OpensByDoubleClickAndByEnter) {
  Open();
  auto *list = Get<RecordList>("LsHistory");
  const QPoint place = list->visualRect(list->currentIndex()).center();
  QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, place);
  QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, place);
  EXPECT_EQ(log.back(), U("OpenProjectPage(\\sites\\twelve\\Files\\Home.htm)"));

  Open();
  QTest::keyClick(Get<RecordList>("LsHistory"), Qt::Key_Return);
  EXPECT_EQ(log.back(), U("OpenProjectPage(\\sites\\twelve\\Files\\Home.htm)"));
  EXPECT_EQ(std::count(log.begin(), log.end(), U("ClearTabs")), 1);
}

TEST_F(ProjectManagerTest, AsksForTheFolderOfASiteThatHasMovedAndStopsAtNo) {
  files.Delete(U(R"(\sites\twelve\INDEX.HTM)"));
  Open();
  dialogs.ExpectMessage(Question, MessageAnswer::No);
  Click();
  EXPECT_EQ(Steps(), (CallLog{Opened(Project12), U("ShowMessage(%1)").arg(Question)}));
  EXPECT_TRUE(window->isVisible());
  ASSERT_EQ(dialogs.messages.size(), 1U);
  EXPECT_EQ(dialogs.messages[0].title, U("Velor Web Creator"));
  EXPECT_EQ(dialogs.messages[0].buttons, MessageButtons::YesNo);
  EXPECT_EQ(dialogs.messages[0].icon, MessageIcon::None);
}

TEST_F(ProjectManagerTest, StopsWhenTheFolderPickerIsCancelled) {
  files.Delete(U(R"(\sites\twelve\INDEX.HTM)"));
  Open();
  dialogs.ExpectMessage(Question, MessageAnswer::Yes);
  Click();
  EXPECT_EQ(log.back(), U("PickProjectFolder"));
  EXPECT_EQ(database.statements, std::vector<QString>{Project12});
  EXPECT_TRUE(window->isVisible());
}

/// A catalogue from a computer with drives, whose site is not where it says.
class ForeignCatalogueTest : public ProjectManagerTest {
 protected:
  ForeignCatalogueTest() {
    database.results[Project12].rows[0][2] = U("C:\\Sites\\Shop");
    host.pickedFolder = U(R"(\home\win\Sites\Shop)");
    Open();
    dialogs.ExpectMessage(Question, MessageAnswer::Yes);
  }
  ~ForeignCatalogueTest() override { UseDriveMap({}); }

  void ExpectWarning(MessageAnswer answer) {
    dialogs.ExpectMessage(
        U("This catalogue comes from another computer, where the site lies in C:\\Sites\\Shop. "
          "That "
          "computer no longer finds the site if /home/win/Sites/Shop is written into the "
          "catalogue.\n\nYes: name the folder here that stands for drive C:. No: write "
          "/home/win/Sites/Shop all the same."),
        answer);
  }
  bool IsWritten(const QString &folder) const {
    return std::any_of(database.statements.begin(), database.statements.end(),
                       [&](const QString &statement) {
                         return statement.startsWith(U("Update Project")) &&
                                statement.contains(u'\'' + folder + u'\'');
                       });
  }
};

TEST_F(ForeignCatalogueTest, WarnsBeforeAPathOfThisComputerIsWrittenAndCancelWritesNothing) {
  ExpectWarning(MessageAnswer::Cancel);
  Click();
  EXPECT_EQ(database.statements, std::vector<QString>{Project12});
  EXPECT_TRUE(window->isVisible());
}

TEST_F(ForeignCatalogueTest, NoWritesTheFolderAsItIs) {
  ExpectWarning(MessageAnswer::No);
  Click();
  EXPECT_TRUE(IsWritten(U("\\home\\win\\Sites\\Shop")));
}

TEST_F(ForeignCatalogueTest, ANamedDriveIsWhatIsWritten) {
  host.namedDrives = U("C: /home/win");
  host.pickedFolder = U(R"(\home\win\Sites\Moved)");
  dialogs.ExpectMessage(
      U("This catalogue comes from another computer, where the site lies in C:\\Sites\\Shop. That "
        "computer no longer finds the site if /home/win/Sites/Moved is written into the "
        "catalogue.\n\nYes: name the folder here that stands for drive C:. No: write "
        "/home/win/Sites/Moved all the same."),
      MessageAnswer::Yes);
  Click();
  EXPECT_TRUE(IsWritten(U("C:\\Sites\\Moved")));
}

TEST_F(ForeignCatalogueTest, WhereTheNamedDriveHasTheSiteNothingIsWritten) {
  host.namedDrives = U("C: /home/win");
  host.onNameDrives = [this] { files.AddFile(U(R"(C:\Sites\Shop\Index.htm)"), "<HTML>"); };
  ExpectWarning(MessageAnswer::Yes);
  Click();
  EXPECT_FALSE(IsWritten(U("C:\\Sites\\Shop")));
  EXPECT_EQ(log.back(), U("OpenProjectPage(C:\\Sites\\Shop\\Files\\Home.htm)"));
}

TEST_F(ProjectManagerTest, WritesThePickedFolderIntoTheThreeTablesAsItIs) {
  files.Delete(U(R"(\sites\twelve\INDEX.HTM)"));
  host.pickedFolder = U("\\new\\Bob's Site");
  Open();
  dialogs.ExpectMessage(Question, MessageAnswer::Yes);
  Click();
  EXPECT_EQ(
      database.statements,
      (std::vector<QString>{
          Project12, U("Update Project set Path = '\\new\\Bob''s Site' where IdProject = '12'"),
          U("Update Page set TPath = '\\new\\Bob''s Site' where ProjectId = '12'"),
          U("Update CustomCD set PPath = '\\new\\Bob''s Site' where ProjectId = '12'"),
          ChooserPages12, Project12}));
  EXPECT_FALSE(window->isVisible());
  EXPECT_EQ(log.back().left(15), U("OpenProjectPage"));
}

TEST_F(ProjectManagerTest, StopsAtTheStatementThatFails) {
  const QString second = U("Update Page set TPath = '\\new' where ProjectId = '12'");
  files.Delete(U(R"(\sites\twelve\INDEX.HTM)"));
  host.pickedFolder = U("\\new");
  database.failures.emplace(second, RuntimeError::Of(ErrorNumber::DiskFull, U("test")));
  Open();
  dialogs.ExpectMessage(Question, MessageAnswer::Yes);
  EXPECT_EQ(ErrorOf([&] { Click(); }), ErrorNumber::DiskFull);
  EXPECT_EQ(database.statements.back(), second);
  EXPECT_TRUE(window->isVisible());
  EXPECT_EQ(std::count(log.begin(), log.end(), U("ClearTabs")), 0);
}

TEST_F(ProjectManagerTest, ClearsTheDeskButOpensNothingForAProjectThatIsGone) {
  database.results[Project12].rows.clear();
  database.results[ChooserPages12].rows.clear();
  Open();
  Click();
  EXPECT_EQ(Steps(), (CallLog{Opened(Project12), U("ClearTabs"), U("ClearPageChooser"),
                              Opened(ChooserPages12), U("UnloadDocument(1)"),
                              U("UnloadDocument(2)"), Opened(Project12)}));
  EXPECT_FALSE(window->isVisible());
}

TEST_F(ProjectManagerTest, KeepsItsListWhenShownAgainAfterAnOpening) {
  Open();
  Click();
  database.statements.clear();
  window->show();
  EXPECT_TRUE(database.statements.empty());
  EXPECT_EQ(Get<RecordList>("LsHistory")->model()->rowCount(), 2);
}

TEST_F(ProjectManagerTest, KnowsThatItWasClosed) {
  Open();
  window->close();
  EXPECT_TRUE(window->IsClosed());
  Open();
  QTest::keyClick(window.get(), Qt::Key_Escape);
  EXPECT_TRUE(window->IsClosed());
}

TEST_F(ProjectManagerTest, PassesOnThatTheCatalogueCannotBeRead) {
  database.results.clear();
  EXPECT_EQ(
      ErrorOf([&] { frmProjectManager manager(files, dialogs, connection.get(), host, nullptr); }),
      ErrorNumber::InvalidProcedureCall);
  connection.reset();
  EXPECT_EQ(
      ErrorOf([&] { frmProjectManager manager(files, dialogs, connection.get(), host, nullptr); }),
      ErrorNumber::ObjectNotSet);
}

}  // namespace
}  // namespace velor
