// SPDX-License-Identifier: GPL-3.0-or-later
// frmCodeEditor: its controls and their layout.
#include "app/settings/modSettingManager.h"
#include "chrome/HouseStyle.h"
#include "chrome/Icons.h"
#include "chrome/Palette.h"
#include "chrome/ToolBarButtons.h"
#include "editor/FindBar.h"
#include "editor/SourceWrap.h"
#include "editor/frmCodeEditor.h"
#include "platform/Platform.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QShortcut>
#include <QStatusBar>
#include <QTabBar>
#include <QToolBar>
#include <QVBoxLayout>

#include <array>

namespace velor {

namespace {

struct ToolRow {
  QStringView key;  ///< also the key of its image
  QStringView caption;
  /// The key with which the source control does it; empty where it has none.
  QStringView keys;
};

/// In the order of the image list.
constexpr std::array<ToolRow, 12> Tools{{
    {u"copy", u"Copy", u"Ctrl+C"},
    {u"cut", u"Cut", u"Ctrl+X"},
    {u"find next", u"Find Next", u"F3"},
    {u"find", u"Find", u"Ctrl+F"},
    {u"goto line number", u"Go to Line Number", u""},
    {u"indent", u"Indent", u"Tab"},
    {u"mark all found", u"Mark All Found", u""},
    {u"outdent", u"Outdent", u"Shift+Tab"},
    {u"paste", u"Paste", u"Ctrl+V"},
    {u"redo", u"Redo", u"Ctrl+Y"},
    {u"replace", u"Replace", u"Ctrl+H"},
    {u"undo", u"Undo", u"Ctrl+Z"},
}};
constexpr std::array<QStringView, 7> Tabs{u"Standard", u"Forms",  u"Fonts",  u"Lists",
                                          u"Scripts",  u"Frames", u"Advance"};

/// The source's own context menu; a row without a caption is a separator.
struct MenuEntry {
  QStringView caption;
  EditingCommand command = EditingCommand::Undo;
  QStringView picture = {};
};
constexpr std::array<MenuEntry, 9> MenuEntries{{
    {u"&Undo", EditingCommand::Undo, u"undo"},
    {u"&Redo", EditingCommand::Redo, u"redo"},
    {},
    {u"Cu&t", EditingCommand::Cut, u"cut"},
    {u"&Copy", EditingCommand::Copy, u"copy"},
    {u"&Paste", EditingCommand::Paste, u"paste"},
    {u"&Delete", EditingCommand::Delete, u"delete"},
    {},
    {u"Select &All", EditingCommand::SelectAll},
}};

/// The side panel is empty, so it has no width.
constexpr int ToolsWidth = 0;

QString Tooltip(const ToolRow &row) {
  if (row.keys.isEmpty()) return row.caption.toString();
  return QStringLiteral("%1: %2 in the source").arg(row.caption, row.keys);
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
  toolBar->setAccessibleName(QStringLiteral("Source Tools"));
  toolBar->setProperty(HouseStyle::OnBand, true);
  toolBar->setIconSize(QSize(ToolIconSize, ToolIconSize));
  for (const ToolRow &row : Tools) {
    ToolBarAction *button = AddToolBarButton(*toolBar, row.key.toString(), row.caption.toString(),
                                             Tooltip(row), ButtonKind::Click);
    // Tab skips buttons that do nothing.
    toolBar->widgetForAction(button)->setFocusPolicy(Qt::NoFocus);
  }

  auto *applyButton = new QPushButton(QStringLiteral("Apply to Document"));
  applyButton->setObjectName(QStringLiteral("cmdApply"));
  applyButton->setAccessibleName(applyButton->text());
  applyButton->setToolTip(QStringLiteral("Write the source back into the page (Ctrl+Return)"));
  connect(applyButton, &QPushButton::clicked, this, &frmCodeEditor::Apply);

  auto *elementGroups = new QTabBar;
  elementGroups->setObjectName(QStringLiteral("tabCode"));
  elementGroups->setAccessibleName(QStringLiteral("Element Groups"));
  elementGroups->setDocumentMode(true);
  elementGroups->setDrawBase(false);
  elementGroups->setExpanding(false);
  elementGroups->setFocusPolicy(Qt::NoFocus);
  for (const QStringView tab : Tabs) elementGroups->addTab(tab.toString());

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
  code_->Widget()->setAccessibleName(QStringLiteral("HTML source"));
  auto *sourceArea = new QWidget;
  sourceArea->setObjectName(QStringLiteral("picMain"));
  auto *findBar = new FindBar(context_.find, sourceArea);
  findBar->SetTarget(search_);
  QVBoxLayout *layout = Stack(sourceArea);
  layout->addWidget(code_->Widget(), 1);
  layout->addWidget(findBar);

  const auto onKey = [this](const QKeySequence &key, const std::function<void()> &act) {
    auto *shortcut = new QShortcut(key, this);
    shortcut->setContext(Qt::WidgetWithChildrenShortcut);
    connect(shortcut, &QShortcut::activated, this, act);
  };
  onKey(Qt::CTRL | Qt::Key_Return, [this] { Apply(); });
  onKey(Qt::CTRL | Qt::Key_Enter, [this] { Apply(); });
  // Elsewhere they are those of the Tools menu.
  if (!modSettingManager::HasAdditions(context_.platform.registry)) AddFindKeys(*findBar, *this);
  code_->Widget()->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(code_->Widget(), &QWidget::customContextMenuRequested, this, &frmCodeEditor::PopUpMenu);
  return sourceArea;
}

void frmCodeEditor::PopUpMenu(QPoint place) {
  auto *menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  for (const MenuEntry &entry : MenuEntries) {
    if (entry.caption.isEmpty()) {
      menu->addSeparator();
      continue;
    }
    QAction *item = menu->addAction(entry.caption.toString(), this,
                                    [this, command = entry.command] { Edit(command); });
    if (!entry.picture.isEmpty()) item->setIcon(IconFor(entry.picture.toString()));
  }
  menu->addSeparator();
  QAction *apply = menu->addAction(QStringLiteral("Apply to Document"), this, [this] { Apply(); });
  apply->setShortcut(Qt::CTRL | Qt::Key_Return);
  QAction *wrap = menu->addAction(QStringLiteral("&Wrap Lines"));
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
  lineEnds_->setToolTip(QStringLiteral("How the lines of the source end"));
  for (QLabel *label : {place_, lineEnds_}) {
    label->setContentsMargins(BarMargin, 0, BarMargin, 0);
    statusBar->addPermanentWidget(label);
  }
  return statusBar;
}

}  // namespace velor
