// SPDX-License-Identifier: GPL-3.0-or-later
// MfrmProgram: how the window is built, loaded and closed.
#include "app/window/MfrmProgram.h"

#include "app/help/Help.h"
#include "app/window/CommandList.h"
#include "app/window/CoolBar.h"
#include "app/window/CountMenu.h"
#include "app/window/DialogInsertCommands.h"
#include "app/window/FormattingBar.h"
#include "app/window/PageArea.h"
#include "app/window/PageChooser.h"
#include "app/window/PageTabs.h"
#include "app/window/PageZoom.h"
#include "app/window/PaneWalk.h"
#include "app/window/PathCommands.h"
#include "app/window/ProjectDesk.h"
#include "app/window/RecentFiles.h"
#include "app/window/Shortcuts.h"
#include "app/window/StatusLine.h"
#include "app/window/Unwinding.h"
#include "app/window/WindowStyling.h"
#include "chrome/FlatSweeps.h"
#include "chrome/Icons.h"
#include "chrome/Palette.h"
#include "chrome/ProgramWindow.h"
#include "chrome/ReportingSweeps.h"
#include "chrome/ScreenRoom.h"
#include "chrome/ToolBarButtons.h"
#include "editor/PagesAtExit.h"
#include "editor/PdfExport.h"
#include "editor/SourceWrap.h"
#include "editor/frmBrowser.h"
#include "editor/frmMain.h"
#include "platform/Dialogs.h"
#include "platform/EditingComponent.h"
#include "platform/Platform.h"
#include "platform/ProgramValues.h"
#include "platform/RuntimeError.h"
#include "platform/Words.h"
#include "recovery/offers/RecoveryBar.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QHBoxLayout>
#include <QMenu>
#include <QPainter>
#include <QPointer>
#include <QScopedValueRollback>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>

namespace velor {
namespace {

constexpr int ChooserWidth = 240;
constexpr int ChooserButtonWidth = 26;
/// Pixels. Two tabs and the page chooser need more than this.
constexpr int NarrowRow = 700;

/// The row with the page tabs and the page chooser, in the colour of the page area below it. In a
/// narrow window the chooser becomes a button, so that the tabs keep their room.
class TabRow final : public QWidget {
 public:
  TabRow(QComboBox &chooser, QWidget *parent) : QWidget(parent), chooser_(chooser) {}

 protected:
  void resizeEvent(QResizeEvent *event) override {
    QWidget::resizeEvent(event);
    chooser_.setFixedWidth(width() < NarrowRow ? ChooserButtonWidth : ChooserWidth);
  }
  void paintEvent(QPaintEvent *) override { QPainter(this).fillRect(rect(), Backdrop(palette())); }

 private:
  QComboBox &chooser_;
};

constexpr QSize FirstSize(1180, 800);

/// These sweeps own the program's one array of flat painters.
std::unique_ptr<StylingSweeps> SweepsOn(WindowSystem *windows) {
  if (!windows) return nullptr;
  return std::make_unique<ReportingSweeps>(std::make_unique<FlatSweeps>(*windows));
}

/// Closes every window of the program. Each window that would ask is marked first, so that it does
/// not. Errors are ignored: the program ends.
void UnloadProgramWindows() {
  QList<QPointer<QWidget>> windows;
  for (QWidget *widget : QApplication::allWidgets()) {
    if (auto *window = dynamic_cast<ProgramWindow *>(widget)) {
      window->MarkKill();
      windows.append(widget);
    }
  }
  for (const QPointer<QWidget> &window : windows) {
    try {
      if (window) window->close();
    } catch (const std::exception &) {
    }
  }
}

}  // namespace

MfrmProgram::MfrmProgram(Platform &platform, ProgramValues &values)
    : platform_(platform),
      additions_(ReadAdditions(platform.registry)),
      menus_(
          BuildMenus(*this, additions_, [this](const Command &command) { router_.Run(command); })),
      bandBar_(new CoolBar(this)),
      pageTabs_(new PageTabs(this)),
      secondTabs_(new PageTabs(this)),
      area_(new PageArea(additions_, this)),
      statusLine_(new StatusLine(this)),
      sourceEditing_(new QAction(this)),
      commands_(menus_, *bandBar_, *area_, *pageTabs_, *sourceEditing_, additions_),
      selectionItems_(menus_, *area_, additions_),
      fileDialog_(platform.components.CreateFileDialog()),
      context_{platform,
               {.windows = *area_,
                .tabs = *pageTabs_,
                .formats = bandBar_->Formatting(),
                .status = *statusLine_,
                .commands = commands_,
                .requests = *this,
                .fileDialog = *fileDialog_},
               pages_,
               {}},
      sweeps_(SweepsOn(platform.windows)),
      insert_(std::make_unique<DialogInsertCommands>(platform.runtime, platform.dialogs,
                                                     platform.components, *statusLine_,
                                                     values.HTMLString, sweeps_.get(), additions_)),
      opener_(context_, values.DbConnection, *insert_),
      router_(context_, *this, *insert_, opener_, additions_),
      menuPictures_(ProgramMenuPictures()),
      menuPainter_(new StyleMenuPainter(this)),
      pageChooser_(new PageChooser(this)),
      recovery_(new RecoveryBar(context_, this)),
      pdfExport_(new PdfExport(context_, this)),
      projects_(std::make_unique<ProjectDesk>(
          context_, values.DbConnection,
          PickedFolders{values.ImageFolderPath, values.ProjectFolderResult}, *pageChooser_,
          sweeps_.get())) {
  setObjectName(QStringLiteral("MfrmProgram"));
  setWindowTitle(QString::fromUtf16(ApplicationTitle));
  setWindowIcon(ProgramIcon());
  resize(FirstSizeOf(*this, FirstSize));
  menuPainter_->setObjectName(QStringLiteral("PM"));
  sourceEditing_->setObjectName(QStringLiteral("mnuEditHTML"));
  BuildLayout();
  setStatusBar(statusLine_);
  PrepareTools();
  PrepareHelp();
  new WindowList(*menus_.menus.value(QStringLiteral("mnuWindow")), *area_, this);
  new PaneWalk(*this, *area_);
  if (additions_ == Additions::On) {
    new PathCommands(statusLine_->AddPath(), *area_, platform_.dialogs, this);
    new CountMenu(*statusLine_, *area_, context_, this);
  }
}

MfrmProgram::~MfrmProgram() {
  // Page windows use the members of this object, so they are deleted first.
  disconnect(area_, nullptr, this, nullptr);
  delete area_;
}

void MfrmProgram::BuildLayout() {
  setAcceptDrops(true);
  auto *center = new QWidget(this);
  auto *column = new QVBoxLayout(center);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(bandBar_);
  column->addWidget(BuildTabRow());
  column->addWidget(recovery_);
  column->addWidget(area_, 1);
  column->addWidget(pdfExport_);
  setCentralWidget(center);
}

void MfrmProgram::PrepareTools() {
  QMenu *tools = menus_.menus.value(QStringLiteral("mnuTools"));
  if (tools == nullptr) return;
  recent_ = new RecentFiles(
      *menus_.menus.value(QStringLiteral("mnuRecent")), platform_.registry,
      [this](const QString &path) { opener_.OpenRecentFile(path); }, this);
  new PageZoom(
      *area_, [this](const Command &command) { router_.Run(command); }, this);
  // The key of "+" without Shift, where that is the one of "=".
  QAction &zoomIn = MenuItem({CommandId::ZoomIn});
  zoomIn.setShortcuts({zoomIn.shortcut(), QKeySequence(Qt::CTRL | Qt::Key_Equal)});
  QAction &wrap = MenuItem({CommandId::WrapSource});
  wrap.setCheckable(true);
  // Source editors have the same choice in their own menus.
  connect(tools, &QMenu::aboutToShow, this,
          [this, &wrap] { wrap.setChecked(ChosenLineWrap(platform_.registry) == LineWrap::On); });
  shortcuts_ = new Shortcuts(*this, platform_.registry, CommandsOf(menus_, bandBar_->Formatting()),
                             [this] { selectionItems_.Refresh(); });
}

void MfrmProgram::PrepareHelp() {
  if (additions_ == Additions::Off) return;
  help_ = std::make_unique<Help>(ManualFolder(QCoreApplication::applicationDirPath()));
  connect(help_.get(), &Help::Missing, statusLine_,
          [this] { statusLine_->Report(Words::tr("The manual is not installed")); });
}

QWidget *MfrmProgram::BuildTabRow() {
  auto *tabRow = new TabRow(*pageChooser_, this);
  tabRow->setObjectName(QStringLiteral("picFileTab"));
  pageTabs_->setObjectName(QStringLiteral("FileTab"));
  pageTabs_->setAccessibleName(tr("Pages"));
  secondTabs_->setObjectName(QStringLiteral("FileTab2"));
  secondTabs_->hide();
  pageChooser_->setObjectName(QStringLiteral("CmbPages"));
  pageChooser_->setAccessibleName(tr("Project pages"));
  pageChooser_->setToolTip(tr("Project pages"));
  pageChooser_->view()->setMinimumWidth(ChooserWidth);

  auto *row = new QHBoxLayout(tabRow);
  row->setContentsMargins(BarMargin, BarMargin - BarSpacing, BarMargin, 0);
  row->setSpacing(BarMargin);
  row->addWidget(pageTabs_, 1, Qt::AlignBottom);
  row->addWidget(secondTabs_);
  row->addWidget(pageChooser_, 0, Qt::AlignVCenter);
  tabRow->setMinimumHeight(BoxHeight + 2 * BarMargin);
  return tabRow;
}

void MfrmProgram::Load() {
  RunLoadSteps(*this, platform_.runtime);
  // From the event loop, so after the messages of the start.
  QTimer::singleShot(0, recovery_, [this] {
    projects_->ReportCatalogueDefect();
    recovery_->Offer();
  });
}

void MfrmProgram::ComeToFront() {
  setWindowState(windowState() & ~Qt::WindowMinimized);
  raise();
  activateWindow();
}

void MfrmProgram::InitialiseHiddenComponent() {
  formatNames_ = platform_.components.CreateEditingComponent(this);
  formatNames_->Widget()->setObjectName(QStringLiteral("DE1"));
  formatNames_->Widget()->hide();
}

void MfrmProgram::InitialiseFontPicker() {
  bandBar_->Formatting().InitialiseFonts();
}

void MfrmProgram::CreateBlockFormatNames() {
  bandBar_->Formatting().FillBlockFormats(formatNames_->BlockFormats());
}

void MfrmProgram::SetFontSizeList() {
  bandBar_->Formatting().FillFontSizes();
}

void MfrmProgram::PrepareControlsAndMenus() {
  commands_.SetPageCommandsEnabled(false);
  bandBar_->Formatting().ShowNothing();
  StyleMainWindow(*this, sweeps_.get(), MenuImages(), *menuPainter_);
  try {
    DressMenus();
  } catch (const RuntimeError &error) {
    // The program starts without a preference that cannot be read. The error is reported from the
    // event loop, when the window is shown.
    QTimer::singleShot(0, this, [error] { throw error; });
  }
}

void MfrmProgram::DressMenus() {
  PrepareMenus(platform_.registry, menuPictures_, *menuPainter_,
               [this](int style) { MarkMenuStyle(style); });
}

void MfrmProgram::ShowWithoutWaiting() {
  show();
  area_->setFocus();
}

void MfrmProgram::FinishPreparation() {
  ConnectBars();
}

void MfrmProgram::ConnectBars() {
  connect(bandBar_, &CoolBar::GeneralClicked, this,
          [this](const GeneralButton &button) { router_.Click(button); });
  FormattingBar *boxes = &bandBar_->Formatting();
  connect(boxes, &FormattingBar::CommandClicked, this, [this](EditingCommand command) {
    router_.Run({CommandId::Editing, command});
  });
  connect(boxes, &FormattingBar::BlockFormatClicked, this,
          [this](const QString &name) { router_.SetBlockFormat(name); });
  connect(boxes, &FormattingBar::FontSizeClicked, this,
          [this](const QString &points) { router_.SetFontSize(points); });
  connect(boxes, &FormattingBar::FontNameChanged, this,
          [this](const QString &name) { router_.SetFontName(name); });
  connect(boxes, &FormattingBar::ForeColorChanged, this,
          [this](std::int32_t color) { router_.SetForeColor(color); });
  connect(boxes, &FormattingBar::BackColorChanged, this,
          [this](std::int32_t color) { router_.SetBackColor(color); });
  connect(pageTabs_, &PageTabs::PageChosen, this,
          [this](int number) { opener_.ActivatePage(number); });
  connect(pageTabs_, &PageTabs::Pointed, statusLine_, &StatusLine::ShowPlace);
  connect(pageChooser_, &PageChooser::PageChosen, this,
          [this](std::int32_t pageId) { opener_.OpenProjectPage(pageId); });
  connect(boxes, &FormattingBar::Done, area_, &PageArea::FocusFrontWindow);
  connect(area_, &PageArea::FrontChanged, this, &MfrmProgram::ShowFront);
}

void MfrmProgram::ShowFront() {
  FrontWindow *front = area_->Front();
  statusLine_->PageActivated(front == nullptr ? 0 : front->PageNumber());
  commands_.Refresh();
  if (front != nullptr) {
    front->OnActivated();
    return;
  }
  bandBar_->Formatting().ShowNothing();
  statusLine_->ShowTag({});
  statusLine_->ShowPath({});
  statusLine_->ShowMeasures({});
  statusLine_->ShowTextForm({});
}

void MfrmProgram::CloseWhenIdle() {
  if (closing_ != Closing::No) return;
  closing_ = Closing::Awaited;
  UnwindThen([alive = QPointer(this)] {
    if (alive.isNull()) return;
    alive->closing_ = Closing::Due;
    alive->close();
    alive->closing_ = Closing::No;
  });
}

void MfrmProgram::closeEvent(QCloseEvent *event) {
  // While this waits for a page, the person may close the window a second time.
  if (closing_ == Closing::Awaited || closing_ == Closing::UnderWay) return event->ignore();
  if (closing_ == Closing::No && IsCodeWaiting()) {
    event->ignore();
    return CloseWhenIdle();
  }
  const QScopedValueRollback closing(closing_, Closing::UnderWay);
  if (!KeepPagesAtExit(context_)) return event->ignore();
  Q_EMIT Unloading();
  UnloadProgramWindows();
  event->accept();
  Q_EMIT Unloaded();
}

}  // namespace velor
