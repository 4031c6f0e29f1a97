// SPDX-License-Identifier: GPL-3.0-or-later
// The page window itself: its parts, its life and its bookkeeping.
#include "editor/frmMain.h"

#include "app/settings/modSettingManager.h"
#include "chrome/Icons.h"
#include "chrome/Palette.h"
#include "chrome/ToolBarButtons.h"
#include "editor/FindBar.h"
#include "editor/MainWindow.h"
#include "editor/OpenPages.h"
#include "editor/OutsideChanges.h"
#include "editor/PageFrame.h"
#include "editor/PagePictures.h"
#include "editor/PageSlots.h"
#include "editor/PageWidths.h"
#include "editor/PageWords.h"
#include "editor/PictureFitting.h"
#include "editor/SpellingBar.h"
#include "editor/frmCodeEditor.h"
#include "editor/modWorkFlow.h"
#include "platform/Dialogs.h"
#include "platform/Platform.h"
#include "platform/RuntimeError.h"
#include "platform/Words.h"

#include <QAction>
#include <QCloseEvent>
#include <QSize>
#include <QStackedLayout>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <array>

namespace velor {

namespace {

struct QuickButtonRow {
  QStringView key;  ///< also the key of its image
  const char *caption = nullptr;
  const char *tooltip = nullptr;
  ButtonKind kind = ButtonKind::Click;
};

/// The mode toolbar; positions count from 1, the separator included.
constexpr std::array<QuickButtonRow, 7> QuickButtons{{
    {u"design", Words::Mark("Design"), Words::Mark("Design Mode"), ButtonKind::Toggle},
    {u"viewcode", Words::Mark("View HTML"), Words::Mark("View HTML"), ButtonKind::Toggle},
    {u"editcode", Words::Mark("Edit HTML"), Words::Mark("Edit HTML"), ButtonKind::Click},
    {u"preview", Words::Mark("Preview"), Words::Mark("Preview"), ButtonKind::Click},
    {},  // separator
    {u"detail", Words::Mark("Show Detail"), Words::Mark("Show Detail"), ButtonKind::Toggle},
    {u"snap", Words::Mark("Snap to Grid"), Words::Mark("Snap to Grid"), ButtonKind::Toggle},
}};
constexpr int DetailPosition = 6;
constexpr int SnapPosition = 7;

constexpr int QuickIconSize = 16;

constexpr const Preference &ShowDetails = PreferenceOf("ShowDetails");
constexpr const Preference &SnapToGrid = PreferenceOf("SnapToGrid");

/// Colour slots of the source view: margin background and line numbers grey on white.
constexpr std::int32_t Grey = 0x808080;
constexpr std::int32_t White = 0xFFFFFF;

/// Reads a preference that is a truth value. An unusable text is reported once a run, by a message
/// from the event loop.
bool TruthOption(EditorContext &context, const Preference &preference) {
  return modSettingManager::TruthOption(
      context.platform.registry, preference, [&](const RuntimeError &fault) {
        if (context.toldSettings.contains(preference.Name())) return;
        context.toldSettings << preference.Name();
        QTimer::singleShot(0, [&dialogs = context.platform.dialogs, text = fault.Description()] {
          dialogs.ShowMessage({.text = text, .icon = MessageIcon::Critical});
        });
      });
}

}  // namespace

frmMain::frmMain(EditorContext &context, int number)
    : context_(context),
      number_(number),
      component_(context.platform.components.CreateEditingComponent(this)),
      source_(context.platform.components.CreateSourceControl(this, SourceAccess::View)),
      sourceSearch_(*source_, SourceAccess::View),
      sourceSpelling_(*source_, SourceAccess::View,
                      [this](const QString &message) { ComponentReported(message); }),
      journal_(context.platform.journals, context.pages, context.mainWindow.status, *component_,
               number) {
  setObjectName(QStringLiteral("frmMain"));
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowIcon(IconFor(QStringLiteral("page")));

  BuildToolBar();
  component_->Widget()->setObjectName(QStringLiteral("DHTML1"));
  component_->Widget()->setAccessibleName(Words::tr("Page"));
  source_->Widget()->setObjectName(QStringLiteral("Code1"));
  source_->Widget()->setAccessibleName(Words::tr("HTML source"));

  auto *layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(modeBar_);
  widths_ = new PageWidths(context_, *this, *component_->Widget(),
                           [this](double factor) { component_->SetZoom(factor); });
  layout->addWidget(&widths_->Bar());
  views_ = new QStackedLayout;
  views_->addWidget(&widths_->Frame());
  views_->addWidget(source_->Widget());
  layout->addLayout(views_, 1);
  findBar_ = new FindBar(context_.find, this);
  findBar_->SetTarget(component_->Search());
  layout->addWidget(findBar_);
  outside_ = new OutsideChanges(context_, *this);
  layout->addWidget(outside_);
  pictures_ = std::make_unique<PagePictures>(context_, *this);
  layout->addWidget(&pictures_->Bar());
  fitting_ = new PictureFitting(context_, *this);
  layout->addWidget(fitting_);
  spellingBar_ = new SpellingBar(context_, *this, this);
  layout->addWidget(spellingBar_);
  setFocusProxy(component_->Widget());

  component_->SetShowDetails(TruthOption(context_, ShowDetails));
  QuickButton(u"detail")->ShowChecked(component_->ShowDetails());
  component_->SetSnapToGrid(TruthOption(context_, SnapToGrid));
  QuickButton(u"snap")->ShowChecked(component_->SnapToGrid());
  QuickButton(u"design")->ShowChecked(true);
  source_->SetColor(1, Grey);
  source_->SetColor(27, Grey);
  source_->SetColor(26, White);
  source_->SetTextListener([this] { sourceSpelling_.TextChanged(); });

  component_->SetListener(this);
}

frmMain::~frmMain() {
  component_->SetListener(nullptr);
}

void frmMain::BuildToolBar() {
  modeBar_ = new QToolBar(this);
  modeBar_->setObjectName(QStringLiteral("tbrQuick"));
  modeBar_->setAccessibleName(Words::tr("Modes"));
  modeBar_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  modeBar_->setIconSize(QSize(QuickIconSize, QuickIconSize));
  modeBar_->setContentsMargins(BarMargin, BarSpacing, BarMargin, BarSpacing);
  int position = 0;
  for (const QuickButtonRow &row : QuickButtons) {
    ++position;
    if (row.key.isEmpty()) {
      modeBar_->addSeparator();
      continue;
    }
    ToolBarAction *button = AddToolBarButton(*modeBar_, row.key.toString(), Words::tr(row.caption),
                                             Words::tr(row.tooltip), row.kind);
    button->setObjectName(row.key.toString());
    connect(button, &ToolBarAction::Chosen, this,
            [this, position] { QuickButtonClicked(position); });
  }
}

ToolBarAction *frmMain::QuickButton(QStringView key) const {
  for (QAction *button : modeBar_->actions()) {
    if (button->data().toString() == key) return static_cast<ToolBarAction *>(button);
  }
  return nullptr;
}

void frmMain::QuickButtonClicked(int position) {
  switch (position) {
    case DetailPosition:
      ToggleShowDetails();
      break;
    case SnapPosition:
      ToggleSnapToGrid();
      break;
    default:
      ChangeMode(position);
  }
}

void frmMain::ToggleShowDetails() {
  component_->SetShowDetails(!component_->ShowDetails());
  modSettingManager::SetOption(context_.platform.registry, ShowDetails.Name(),
                               BoolText(component_->ShowDetails()));
  QuickButton(u"detail")->ShowChecked(component_->ShowDetails());
}

void frmMain::ToggleSnapToGrid() {
  component_->SetSnapToGrid(!component_->SnapToGrid());
  modSettingManager::SetOption(context_.platform.registry, SnapToGrid.Name(),
                               BoolText(component_->SnapToGrid()));
  QuickButton(u"snap")->ShowChecked(component_->SnapToGrid());
}

PageRecord frmMain::GetPageRecord() const {
  return context_.pages.Record(number_);
}

void frmMain::UpdateTabCaption() {
  try {
    context_.mainWindow.tabs.SetCaption(PageKey(number_), windowTitle());
  } catch (const RuntimeError &) {
    // A page that stayed open when all tabs were cleared has no tab; its save has not failed.
  }
}

void frmMain::CheckAcc() {
  const bool editable = context_.pages.Record(number_).ReadOnly == False16;
  context_.mainWindow.commands.SetSourceEditingEnabled(editable);
  QuickButton(u"editcode")->setEnabled(editable);
}

void frmMain::OnActivated() {
  CheckAcc();
  SetDialogFileName(context_, *this);
  ShowState();
  try {
    context_.mainWindow.tabs.Select(PageKey(number_));
    ShowTab();
  } catch (const RuntimeError &) {
    // The window outlives its tab for a moment while it closes, and its tab may not be there yet.
  }
  if (TruthOption(context_, PreferenceOf("showtoolbox"))) {
    context_.mainWindow.requests.ResetElementInspection();
  }
  widths_->Follow();
}

void frmMain::ShowTab() {
  if (!context_.hasAdditions) return;
  const frmCodeEditor *editor = context_.pages.CodeEditor(number_);
  const bool hasSource = editor != nullptr && editor->UnappliedText().has_value();
  const bool isReadOnly = context_.pages.Record(number_).ReadOnly != False16;
  const QString note =
      isReadOnly && journal_.HasChanges() ? Words::tr("Save As keeps your changes") : QString();
  try {
    context_.mainWindow.tabs.SetState(PageKey(number_),
                                      {.path = FilePath(),
                                       .hasChanges = hasSource || journal_.HasChanges(),
                                       .note = note,
                                       .isReadOnly = isReadOnly});
  } catch (const RuntimeError &) {
    // The tab may not be there yet, or not any more.
  }
}

void frmMain::MarkKill() {
  Tag = QStringLiteral("kill");
  PendingAction = QStringLiteral("kill");
}

void frmMain::closeEvent(QCloseEvent *event) {
  if (modWorkFlow::AskBeforeClosing(context_, *this) == modWorkFlow::CloseDecision::Keep) {
    event->ignore();
    return;
  }
  modWorkFlow::CleanUpAfterPage(context_, *this);
  context_.mainWindow.windows.Release(this);
  event->accept();
}

void frmMain::DocumentComplete() {
  UseSpelling(context_, number_);
  // Waits for the page, which may be closed meanwhile.
  QTimer::singleShot(0, widths_, &PageWidths::Follow);
  if (IsInFront()) ShowState();
  journal_.DocumentChanged();
  if (PendingAction != QStringLiteral("gethtml")) return;
  // A load completes right after its page is made, so that this is the slot made last. Where files
  // are taken several at once the next page may be there already: the baseline is this page's.
  context_.pages.Record(number_).SavedHTML = component_->DocumentHTML();
  journal_.MarkSaved();
  PendingAction.clear();
  ShowTab();
}

void frmMain::DisplayChanged() {
  fitting_->SelectionChanged();
  pictures_->PlaceTextBox();
  widths_->Frame().ShowCaret();
  if (Ready == QStringLiteral("True") && IsInFront()) ShowState();
}

void frmMain::MemoryChanged() {
  journal_.DocumentChanged();
  outside_->DocumentChanged();
  if (View() == FrontView::Design) findBar_->TextChanged();
  pictures_->Follow();
  ShowTab();
  const bool isReadOnly = context_.pages.Record(number_).ReadOnly != False16;
  if (isReadOnly && !isReadOnlyTold_ && journal_.HasChanges()) {
    isReadOnlyTold_ = true;
    context_.mainWindow.status.ReportOn(
        number_, Words::tr("This file is read-only: Save As keeps your changes"));
  }
  widths_->DocumentChanged();
}

void frmMain::ContextMenuRequested(QPoint screenPosition) {
  context_.mainWindow.requests.PopUpContextMenu(screenPosition);
}

void frmMain::MouseNotified(int clientX, int clientY) {
  ClientX = clientX;
  ClientY = clientY;
}

void frmMain::ComponentReported(const QString &message) {
  context_.mainWindow.status.ReportOn(number_, message);
}

void frmMain::PartsShown(const QStringList &paths) {
  outside_->WatchParts(paths);
}

bool frmMain::PicturePasted(const QImage &image) {
  return pictures_->PutIn(image);
}

void frmMain::PicturesPasted(const QStringList &addresses) {
  pictures_->TakePasted(addresses);
}

void frmMain::PictureOpened() {
  context_.mainWindow.requests.ShowPictureProperties(*this);
}

void frmMain::FilesDropped(const QStringList &paths) {
  context_.mainWindow.requests.OpenDroppedFiles(paths, this);
}

}  // namespace velor
