// SPDX-License-Identifier: GPL-3.0-or-later
// frmCodeEditor: its controls and their layout.
#include "chrome/HouseStyle.h"
#include "chrome/Icons.h"
#include "chrome/Palette.h"
#include "chrome/ToolBarButtons.h"
#include "editor/FindBar.h"
#include "editor/PageWords.h"
#include "editor/SourceWrap.h"
#include "editor/SpellingBar.h"
#include "editor/frmCodeEditor.h"
#include "platform/Dialogs.h"
#include "platform/Platform.h"
#include "platform/Words.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QShortcut>
#include <QStatusBar>
#include <QTabBar>
#include <QToolBar>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace velor {

namespace {

struct ToolRow {
  QStringView key;  ///< also the key of its image
  const char *caption;
  /// The key with which the source control does it; empty where it has none.
  QStringView keys;
  SourceTool tool;
};

/// In the order of the image list.
constexpr std::array<ToolRow, 12> Tools{{
    {u"copy", Words::Mark("Copy"), u"Ctrl+C", SourceTool::Copy},
    {u"cut", Words::Mark("Cut"), u"Ctrl+X", SourceTool::Cut},
    {u"find next", Words::Mark("Find Next"), u"F3", SourceTool::FindNext},
    {u"find", Words::Mark("Find"), u"Ctrl+F", SourceTool::Find},
    {u"goto line number", Words::Mark("Go to Line Number"), u"", SourceTool::GoToLine},
    {u"indent", Words::Mark("Indent"), u"Tab", SourceTool::Indent},
    {u"mark all found", Words::Mark("Mark All Found"), u"", SourceTool::MarkAll},
    {u"outdent", Words::Mark("Outdent"), u"Shift+Tab", SourceTool::Outdent},
    {u"paste", Words::Mark("Paste"), u"Ctrl+V", SourceTool::Paste},
    {u"redo", Words::Mark("Redo"), u"Ctrl+Y", SourceTool::Redo},
    {u"replace", Words::Mark("Replace"), u"Ctrl+H", SourceTool::Replace},
    {u"undo", Words::Mark("Undo"), u"Ctrl+Z", SourceTool::Undo},
}};
constexpr std::array<const char *, 7> Tabs{
    Words::Mark("Standard"), Words::Mark("Forms"),  Words::Mark("Fonts"),  Words::Mark("Lists"),
    Words::Mark("Scripts"),  Words::Mark("Frames"), Words::Mark("Advance")};

/// The source's own context menu; a row without a caption is a separator.
struct MenuEntry {
  const char *caption = nullptr;
  EditingCommand command = EditingCommand::Undo;
  QStringView picture = {};
};
constexpr std::array<MenuEntry, 9> MenuEntries{{
    {Words::Mark("&Undo"), EditingCommand::Undo, u"undo"},
    {Words::Mark("&Redo"), EditingCommand::Redo, u"redo"},
    {},
    {Words::Mark("Cu&t"), EditingCommand::Cut, u"cut"},
    {Words::Mark("&Copy"), EditingCommand::Copy, u"copy"},
    {Words::Mark("&Paste"), EditingCommand::Paste, u"paste"},
    {Words::Mark("&Delete"), EditingCommand::Delete, u"delete"},
    {},
    {Words::Mark("Select &All"), EditingCommand::SelectAll},
}};

/// The side panel is empty, so it has no width.
constexpr int ToolsWidth = 0;

QString Tooltip(const ToolRow &row) {
  if (row.keys.isEmpty()) return Words::tr(row.caption);
  return Words::tr("%1: %2 in the source").arg(Words::tr(row.caption), row.keys);
}

QVBoxLayout *Stack(QWidget *parent) {
  auto *layout = new QVBoxLayout(parent);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  return layout;
}

}  // namespace

void frmCodeEditor::BuildLayout() {
  auto *sidePanel = new QWidget;
  sidePanel->setObjectName(QStringLiteral("picTools"));
  sidePanel->setFixedWidth(ToolsWidth);

  auto *middle = new QHBoxLayout;
  middle->setContentsMargins(0, 0, 0, 0);
  middle->setSpacing(0);
  middle->addWidget(BuildMain(), 1);
  middle->addWidget(sidePanel);

  QVBoxLayout *layout = Stack(this);
  layout->addWidget(BuildTop());
  layout->addLayout(middle, 1);
  layout->addWidget(BuildStatus());
  setFocusProxy(code_->Widget());
}

QWidget *frmCodeEditor::BuildTop() {
  auto *toolBar = new QToolBar;
  toolBar->setObjectName(QStringLiteral("tbrGeneral"));
  toolBar->setAccessibleName(Words::tr("Source Tools"));
  toolBar->setProperty(HouseStyle::OnBand, true);
  toolBar->setIconSize(QSize(ToolIconSize, ToolIconSize));
  for (const ToolRow &row : Tools) {
    ToolBarAction *button = AddToolBarButton(*toolBar, row.key.toString(), Words::tr(row.caption),
                                             Tooltip(row), ButtonKind::Click);
    button->setObjectName(row.key.toString());
    if (context_.hasAdditions) {
      connect(button, &ToolBarAction::Chosen, this, [this, tool = row.tool] { Use(tool); });
    } else {
      // Tab skips buttons that do nothing.
      toolBar->widgetForAction(button)->setFocusPolicy(Qt::NoFocus);
    }
  }

  auto *applyButton = new QPushButton(Words::tr("Apply to Document"));
  applyButton->setObjectName(QStringLiteral("cmdApply"));
  applyButton->setAccessibleName(applyButton->text());
  if (context_.hasAdditions)
    applyButton->setToolTip(Words::tr("Write the source back into the page (Ctrl+Return)"));
  connect(applyButton, &QPushButton::clicked, this, &frmCodeEditor::Apply);

  auto *elementGroups = new QTabBar;
  elementGroups->setObjectName(QStringLiteral("tabCode"));
  elementGroups->setAccessibleName(Words::tr("Element Groups"));
  elementGroups->setDocumentMode(true);
  elementGroups->setDrawBase(false);
  elementGroups->setExpanding(false);
  elementGroups->setFocusPolicy(Qt::NoFocus);
  for (const char *tab : Tabs) elementGroups->addTab(Words::tr(tab));
  // They are empty.
  elementGroups->setEnabled(!context_.hasAdditions);

  auto *bandBar = new QFrame;
  bandBar->setObjectName(QStringLiteral("CoolBar"));
  auto *buttons = new QHBoxLayout;
  buttons->setContentsMargins(BarMargin, BarSpacing, BarMargin, BarSpacing);
  buttons->setSpacing(BarMargin);
  buttons->addWidget(toolBar, 1);
  buttons->addWidget(applyButton);
  QVBoxLayout *bands = Stack(bandBar);
  bands->addLayout(buttons);
  bands->addWidget(elementGroups);

  auto *top = new QWidget;
  top->setObjectName(QStringLiteral("picTop"));
  top->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  Stack(top)->addWidget(bandBar);
  return top;
}

QWidget *frmCodeEditor::BuildMain() {
  code_->Widget()->setObjectName(QStringLiteral("Code"));
  code_->Widget()->setAccessibleName(Words::tr("HTML source"));
  auto *sourceArea = new QWidget;
  sourceArea->setObjectName(QStringLiteral("picMain"));
  findBar_ = new FindBar(context_.find, sourceArea);
  findBar_->SetTarget(search_);
  QVBoxLayout *layout = Stack(sourceArea);
  layout->addWidget(code_->Widget(), 1);
  layout->addWidget(findBar_);
  layout->addWidget(new SpellingBar(context_, *this, this));

  const auto onKey = [this](const QKeySequence &key, const std::function<void()> &act) {
    auto *shortcut = new QShortcut(key, this);
    shortcut->setContext(Qt::WidgetWithChildrenShortcut);
    connect(shortcut, &QShortcut::activated, this, act);
  };
  if (!context_.hasAdditions) {
    code_->Widget()->setContextMenuPolicy(Qt::PreventContextMenu);
    return sourceArea;
  }
  onKey(Qt::CTRL | Qt::Key_Return, [this] { Apply(); });
  onKey(Qt::CTRL | Qt::Key_Enter, [this] { Apply(); });
  code_->Widget()->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(code_->Widget(), &QWidget::customContextMenuRequested, this, &frmCodeEditor::PopUpMenu);
  return sourceArea;
}

void frmCodeEditor::Use(SourceTool tool) {
  switch (tool) {
    case SourceTool::Copy:
      return code_->Edit(EditingCommand::Copy);
    case SourceTool::Cut:
      return code_->Edit(EditingCommand::Cut);
    case SourceTool::Paste:
      return code_->Edit(EditingCommand::Paste);
    case SourceTool::Undo:
      return code_->Edit(EditingCommand::Undo);
    case SourceTool::Redo:
      return code_->Edit(EditingCommand::Redo);
    case SourceTool::Indent:
      return code_->Edit(EditingCommand::Indent);
    case SourceTool::Outdent:
      return code_->Edit(EditingCommand::Outdent);
    case SourceTool::FindNext:
      return findBar_->FindOn(SearchDirection::Forward);
    case SourceTool::Find:
    case SourceTool::MarkAll:  // the open bar marks what it finds
      return findBar_->Open(FindBar::Purpose::Find);
    case SourceTool::Replace:
      return findBar_->Open(FindBar::Purpose::Replace);
    case SourceTool::GoToLine:
      return GoToLine();
  }
}

void frmCodeEditor::GoToLine() {
  const QPointer<frmCodeEditor> alive(this);
  const QString answer = context_.platform.dialogs.AskText(
      Words::tr("Line:"), Words::tr("Go to Line Number"), QString::number(code_->CaretLine() + 1));
  if (alive.isNull()) return;
  bool isNumber = false;
  const int line = answer.trimmed().toInt(&isNumber);
  if (isNumber) {
    code_->SetCaret(std::clamp(line, 1, static_cast<int>(code_->Text().count(u'\n')) + 1) - 1, 0);
    code_->CenterCaret();
  }
  code_->SetFocus();
}

void frmCodeEditor::PopUpMenu(QPoint place) {
  // What the menu is about: the word that was pressed, unless something around it is selected.
  const TextStretch selected = code_->Selection();
  const qsizetype pressed = code_->OffsetAt(place);
  if (pressed < selected.start || pressed > selected.end) code_->Select({pressed, pressed});
  auto *menu = new QMenu(this);
  menu->setObjectName(QStringLiteral("mnuSource"));
  menu->setAttribute(Qt::WA_DeleteOnClose);
  menu->addActions(WordActions(context_, *this, *menu));
  if (!menu->isEmpty()) menu->addSeparator();
  for (const MenuEntry &entry : MenuEntries) {
    if (entry.caption == nullptr) {
      menu->addSeparator();
      continue;
    }
    QAction *item = menu->addAction(Words::tr(entry.caption), this,
                                    [this, command = entry.command] { Edit(command); });
    if (!entry.picture.isEmpty()) item->setIcon(IconFor(entry.picture.toString()));
  }
  menu->addSeparator();
  QAction *apply = menu->addAction(Words::tr("Apply to Document"), this, [this] { Apply(); });
  apply->setShortcut(Qt::CTRL | Qt::Key_Return);
  QAction *wrap = menu->addAction(Words::tr("&Wrap Lines"));
  wrap->setCheckable(true);
  wrap->setChecked(ChosenLineWrap(context_.platform.registry) == LineWrap::On);
  connect(wrap, &QAction::triggered, this, [this] { TurnLineWrap(context_); });
  menu->popup(code_->Widget()->mapToGlobal(place));
}

QWidget *frmCodeEditor::BuildStatus() {
  auto *statusBar = new QStatusBar;
  statusBar->setObjectName(QStringLiteral("staMain"));
  statusBar->setSizeGripEnabled(false);
  place_ = new QLabel;
  place_->setObjectName(QStringLiteral("lblPlace"));
  lineEnds_ = new QLabel;
  lineEnds_->setObjectName(QStringLiteral("lblLineEnds"));
  lineEnds_->setToolTip(Words::tr("How the lines of the source end"));
  for (QLabel *label : {place_, lineEnds_}) {
    label->setContentsMargins(BarMargin, 0, BarMargin, 0);
    statusBar->addPermanentWidget(label);
  }
  return statusBar;
}

}  // namespace velor
