// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/frmBrowser.h"

#include "chrome/Icons.h"
#include "editor/MainWindow.h"
#include "platform/Platform.h"

#include <QAction>
#include <QCloseEvent>
#include <QLabel>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <array>
#include <limits>

namespace velor {

namespace {

/// A button's key is its caption and names its image.
struct BrowserButton {
  QStringView key;
  void (Browser::*action)();
};

constexpr std::array<BrowserButton, 4> BrowserButtons{{
    {u"Back", &Browser::GoBack},
    {u"Forward", &Browser::GoForward},
    {u"Refresh", &Browser::Refresh},
    {u"Stop", &Browser::Stop},
}};

constexpr int BrowserIconSize = 16;

}  // namespace

int ProgressPercent(std::int32_t progress, std::int32_t maximum) {
  const std::int64_t scaled = std::int64_t{progress} * 100;
  if (maximum == 0 || scaled > std::numeric_limits<std::int32_t>::max() ||
      scaled < std::numeric_limits<std::int32_t>::min()) {
    return 0;
  }
  return static_cast<int>(scaled / maximum % 100);
}

frmBrowser::frmBrowser(EditorContext &context)
    : context_(context), browser_(context.platform.components.CreateBrowser(this)) {
  setObjectName(QStringLiteral("frmBrowser"));
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle(QStringLiteral("Preview"));
  setWindowIcon(IconFor(QStringLiteral("preview")));

  BuildToolBar();
  browser_->Widget()->setObjectName(QStringLiteral("brwWebBrowser"));
  browser_->Widget()->setAccessibleName(QStringLiteral("Preview"));

  auto *sta = new QStatusBar(this);
  sta->setObjectName(QStringLiteral("Sta"));
  sta->setSizeGripEnabled(false);
  statusText_ = new QLabel(sta);
  statusText_->setObjectName(QStringLiteral("Sta_1"));
  statusText_->setTextFormat(Qt::PlainText);
  // A long address is cut rather than widening the window.
  statusText_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  progress_ = new QLabel(sta);
  progress_->setObjectName(QStringLiteral("Sta_2"));
  sta->addWidget(statusText_, 1);
  sta->addPermanentWidget(progress_);

  auto *layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);
  layout->addWidget(tbToolBar);
  layout->addWidget(browser_->Widget(), 1);
  layout->addWidget(sta);
  setFocusProxy(browser_->Widget());

  browser_->SetListener(this);
}

frmBrowser::~frmBrowser() {
  browser_->SetListener(nullptr);
}

void frmBrowser::BuildToolBar() {
  tbToolBar = new QToolBar(this);
  tbToolBar->setObjectName(QStringLiteral("tbToolBar"));
  tbToolBar->setAccessibleName(QStringLiteral("Navigation"));
  tbToolBar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  tbToolBar->setIconSize(QSize(BrowserIconSize, BrowserIconSize));
  for (const BrowserButton &row : BrowserButtons) {
    const QString key = row.key.toString();
    QAction *button = tbToolBar->addAction(IconFor(key), key);
    button->setObjectName(key);
    button->setData(key);
    connect(button, &QAction::triggered, this, [this, key] { ButtonClicked(key); });
    tbToolBar->widgetForAction(button)->setFocusPolicy(Qt::TabFocus);
    tbToolBar->widgetForAction(button)->setAccessibleName(key);
  }
}

void frmBrowser::ButtonClicked(const QString &key) {
  for (const BrowserButton &row : BrowserButtons) {
    if (row.key == key) (browser_.get()->*row.action)();
  }
}

void frmBrowser::MarkKill() {
  Tag = QStringLiteral("kill");
  PendingAction = QStringLiteral("kill");
}

void frmBrowser::closeEvent(QCloseEvent *event) {
  if (PendingAction == QStringLiteral("kill")) {
    context_.mainWindow.ReleaseWindow(this);
    event->accept();
    return;
  }
  event->ignore();
  context_.mainWindow.HideWindow(this);
  context_.mainWindow.RefreshCommandState();
}

void frmBrowser::StatusTextChanged(const QString &text) {
  statusText_->setText(text);
}

void frmBrowser::ProgressChanged(int progress, int maximum) {
  progress_->setText(QStringLiteral("%1%").arg(ProgressPercent(progress, maximum)));
}

}  // namespace velor
