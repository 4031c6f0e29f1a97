// SPDX-License-Identifier: GPL-3.0-or-later
#include "projects/frmProjectManager.h"

#include "chrome/StylingSweeps.h"
#include "platform/Conversions.h"
#include "platform/Database.h"
#include "platform/Dialogs.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"
#include "platform/Words.h"
#include "projects/FillList.h"
#include "projects/ProjectHost.h"
#include "projects/RecordList.h"
#include "projects/RecordsetReader.h"
#include "projects/Statements.h"
#include "projects/Values.h"

#include <QHBoxLayout>
#include <QItemSelectionModel>
#include <QLabel>
#include <QPushButton>
#include <QTabWidget>
#include <QVBoxLayout>

namespace velor {
namespace {

constexpr int PagesTab = 1;
constexpr int FirstUnusedTab = 2;

const QString PathColumn = QStringLiteral("Path");

}  // namespace

frmProjectManager::frmProjectManager(const Files &files, Dialogs &dialogs,
                                     DatabaseConnection *connection, ProjectHost &host,
                                     StylingSweeps *sweeps, QWidget *parent)
    : QDialog(parent), files_(files), dialogs_(dialogs), connection_(connection), host_(host) {
  Build();
  if (sweeps) sweeps->FlatSweep(*this);
  tabs_->setCurrentIndex(0);
  tabs_->setTabEnabled(PagesTab, false);
  for (int tab = FirstUnusedTab; tab < tabs_->count(); ++tab) tabs_->setTabVisible(tab, false);
  for (RecordList *list : {projectList_, pageList_})
    connect(list, &RecordList::Failed, this, &frmProjectManager::ShowNote);
  LoadProjects();

  connect(projectList_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          &frmProjectManager::UpdateOpen);
  connect(projectList_->model(), &QAbstractItemModel::modelReset, this,
          &frmProjectManager::UpdateOpen);
  connect(tabs_, &QTabWidget::currentChanged, this, &frmProjectManager::ListPages);
  connect(openButton_, &QPushButton::clicked, this, &frmProjectManager::OpenCurrentProject);
  connect(projectList_, &QAbstractItemView::doubleClicked, openButton_, &QPushButton::click);
}

frmProjectManager::~frmProjectManager() = default;

void frmProjectManager::Build() {
  constexpr int Margin = 14;
  constexpr int Spacing = 10;
  constexpr QSize ComfortableSize(860, 500);
  const auto column = [](QWidget *widget) {
    auto *layout = new QVBoxLayout(widget);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->setSpacing(Spacing);
    return layout;
  };

  setObjectName(QStringLiteral("frmProjectManager"));
  setWindowTitle(Words::tr("Web Site Project Manager"));
  setModal(true);
  tabs_ = new QTabWidget;
  tabs_->setObjectName(QStringLiteral("SSTab1"));
  auto *layout = column(this);
  layout->addWidget(tabs_);
  note_ = new QLabel;
  note_->setObjectName(QStringLiteral("lblNote"));
  note_->setAccessibleName(Words::tr("Note"));
  note_->setTextFormat(Qt::PlainText);
  note_->setWordWrap(true);
  note_->hide();
  layout->addWidget(note_);

  auto *projectsPage = new QWidget;
  QVBoxLayout *projects = column(projectsPage);
  auto *caption = new QLabel(Words::tr("Select the Project and open it."));
  caption->setObjectName(QStringLiteral("Label1"));
  projectList_ = new RecordList(
      {Words::tr("ProjectId"), Words::tr("ProjectName"), Words::tr("DateModified")}, 1);
  projectList_->setObjectName(QStringLiteral("LsHistory"));
  projectList_->setAccessibleName(caption->text());
  openButton_ = new QPushButton(Words::tr("Open"));
  openButton_->setObjectName(QStringLiteral("cmdOpen"));
  openButton_->setAccessibleName(openButton_->text());
  openButton_->setDefault(true);
  caption->setBuddy(projectList_);
  projects->addWidget(caption);
  projects->addWidget(projectList_);
  projects->addWidget(openButton_, 0, Qt::AlignRight);

  auto *pagesPage = new QWidget;
  pageList_ = new RecordList({Words::tr("PageId"), Words::tr("PageName")}, 1);
  pageList_->setObjectName(QStringLiteral("LstPages"));
  pageList_->setAccessibleName(Words::tr("Web Pages"));
  column(pagesPage)->addWidget(pageList_);

  tabs_->addTab(projectsPage, Words::tr("Project Manager"));
  tabs_->addTab(pagesPage, Words::tr("Web Pages"));
  for (const QString &unused : {Words::tr("Images"), Words::tr("Reports"), Words::tr("Tab 4")})
    tabs_->addTab(new QWidget, unused);
  resize(ComfortableSize);
  projectList_->setFocus();
}

void frmProjectManager::reject() {
  closed_ = true;
  QDialog::reject();
}

void frmProjectManager::Reopen() {
  tabs_->setCurrentIndex(0);
  LoadProjects();
  closed_ = false;
}

void frmProjectManager::LoadProjects() {
  ShowNote(Connection().Defect());
  const int count = Query(Statements::GeneratedProjects()).RecordCount();
  FillList(*projectList_, projects_,
           count < 2 ? Statements::GeneratedProjects() : Statements::GeneratedProjectsByDate(),
           LeadingColumn::None, 0, {},
           {QStringLiteral("IdProject"), QStringLiteral("Name"), QStringLiteral("DtModified")},
           Connection());
  tabs_->setTabEnabled(PagesTab, count > 0);
  UpdateOpen();
}

void frmProjectManager::UpdateOpen() {
  openButton_->setEnabled(!TextOf(projectList_->CurrentValue()).isEmpty());
}

void frmProjectManager::ShowNote(const QString &text) {
  // The lines behind the first one have the failing statement.
  note_->setText(text.section(u'\n', 0, 0));
  note_->setVisible(!text.isEmpty());
}

void frmProjectManager::ListPages(int tab) {
  const QVariant projectId = projectList_->CurrentValue();
  if (tab != PagesTab || TextOf(projectId).isEmpty()) return;
  ShowNote(Connection().Defect());
  FillList(*pageList_, pages_, Statements::PageListOfProject(projectId), LeadingColumn::None, 0, {},
           {QStringLiteral("PageId"), QStringLiteral("PageName")}, Connection());
}

void frmProjectManager::OpenCurrentProject() {
  const QVariant projectId = projectList_->CurrentValue();
  if (TextOf(projectId).isEmpty()) return;
  const Recordset &project = Query(Statements::ProjectById(projectId));
  if (project.RecordCount() > 0) {
    const QString stored = TextOf(project.Value(PathColumn));
    if (!IsSiteIn(stored) && !RepairFolders(projectId, stored)) return;
  }

  hide();
  // Tabs are removed before the documents are closed: a page whose closing is cancelled stays open
  // without a tab.
  host_.ClearTabs();
  host_.ClearPageChooser();
  FillPageChooser(projectId);
  for (int index = 1, count = host_.DocumentCount(); index <= count; ++index) {
    host_.UnloadDocument(index);
  }
  // Read again, since a repair may have changed the folder.
  const Recordset &opened = Query(Statements::ProjectById(projectId));
  if (opened.RecordCount() > 0) {
    host_.OpenProjectPage(TextOf(opened.Value(PathColumn)) + QStringLiteral("\\Files\\Home.htm"));
  }
}

bool frmProjectManager::IsSiteIn(const QString &folder) const {
  return files_.FileExists(folder + QStringLiteral("\\Index.htm"), NameOrigin::Program);
}

QString frmProjectManager::FolderToWrite(const QString &folder, const QString &stored) {
  QString chosen = folder;
  while (IsOnUnknownDrive(stored) && !IsDrivePath(chosen)) {
    const QString drive = stored.left(1).toUpper();
    const MessageAnswer answer = dialogs_.ShowMessage(
        {.text = Words::tr(
                     "This catalogue comes from another computer, where the site lies in %1. That "
                     "computer no longer finds the site if %2 is written into the catalogue.\n\n"
                     "Yes: name the folder here that stands for drive %3:. No: write %2 all the "
                     "same.")
                     .arg(stored, ForPeople(chosen), drive),
         .buttons = MessageButtons::YesNoCancel,
         .icon = MessageIcon::Question});
    if (answer == MessageAnswer::No) break;
    if (answer != MessageAnswer::Yes) return {};
    host_.NameDrives(stored);
    if (IsSiteIn(stored)) return stored;
    // The folder may be on a mapped drive now: take its path on that drive.
    chosen = ToLogic(ToNative(chosen));
  }
  return chosen;
}

bool frmProjectManager::RepairFolders(const QVariant &projectId, const QString &stored) {
  const MessageAnswer answer =
      dialogs_.ShowMessage({.text = Words::tr("Web path not found please provide the path"),
                            .buttons = MessageButtons::YesNo});
  if (answer != MessageAnswer::Yes) return false;
  const QString picked = host_.PickProjectFolder(stored);
  if (picked.isEmpty()) return false;
  const QString folder = FolderToWrite(picked, stored);
  if (folder.isEmpty()) return false;
  if (folder == stored && IsSiteIn(stored)) return true;
  ExecuteSql(Connection(), Statements::SetProjectFolder(folder, projectId));
  ExecuteSql(Connection(), Statements::SetPageFolders(folder, projectId));
  ExecuteSql(Connection(), Statements::SetCustomFolder(folder, projectId));
  return true;
}

void frmProjectManager::FillPageChooser(const QVariant &projectId) {
  Recordset &pages = Query(Statements::PagesOfProject(projectId));
  for (; !pages.EndOfFile(); pages.MoveNext()) {
    host_.AddChooserPage(TextOf(pages.Value(QStringLiteral("PageName"))),
                         CLng(TextOf(pages.Value(QStringLiteral("PageId")))));
  }
}

Recordset &frmProjectManager::Query(const QString &statement) {
  if (!records_) records_ = Connection().CreateRecordset();
  OpenRecordset(*records_, statement, Connection());
  return *records_;
}

DatabaseConnection &frmProjectManager::Connection() {
  if (connection_ == nullptr) {
    throw RuntimeError::Of(ErrorNumber::ObjectNotSet, QStringLiteral("DbConnection"));
  }
  return *connection_;
}

}  // namespace velor
