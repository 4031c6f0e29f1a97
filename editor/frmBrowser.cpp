// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/frmBrowser.h"

#include "chrome/Icons.h"
#include "chrome/Palette.h"
#include "chrome/ToolBarButtons.h"
#include "editor/MainWindow.h"
#include "editor/PageFrame.h"
#include "editor/PageSlots.h"
#include "editor/PageWidths.h"
#include "editor/frmMain.h"
#include "platform/Platform.h"
#include "platform/Words.h"

#include <QCloseEvent>
#include <QFontMetrics>
#include <QLabel>
#include <QStatusBar>
#include <QTimer>
#include <QToolBar>

#include <array>
#include <limits>

namespace velor {

namespace {

/// A button's key is its caption and names its image.
struct BrowserButton {
  const char *key;
  const char *tooltip;
  void (Browser::*action)();
};

constexpr std::array<BrowserButton, 4> BrowserButtons{{
    {Words::Mark("Back"), Words::Mark("Back to the page before"), &Browser::GoBack},
    {Words::Mark("Forward"), Words::Mark("Forward again"), &Browser::GoForward},
    {Words::Mark("Refresh"), Words::Mark("Load the page again"), &Browser::Refresh},
    {Words::Mark("Stop"), Words::Mark("Stop loading"), &Browser::Stop},
}};

constexpr int BrowserIconSize = 16;
/// Size of the window when it is not maximised.
constexpr QSize UsualSize(800, 600);
/// The widest text that the progress label shows.
constexpr QLatin1String WidestProgress("-99%");

}  // namespace

int ProgressPercent(std::int32_t progress, std::int32_t maximum) {
  const std::int64_t scaled = std::int64_t{progress} * 100;
  if (maximum == 0 || scaled > std::numeric_limits<std::int32_t>::max() ||
      scaled < std::numeric_limits<std::int32_t>::min()) {
    return 0;
  }
  return static_cast<int>(scaled / maximum % 100);
}

std::optional<QRect> BrowserPlace(QSize inner, int toolBarHeight, int statusBarHeight) {
  const int height = inner.height() - toolBarHeight - statusBarHeight;
  if (height < 0) return std::nullopt;
  return QRect(0, toolBarHeight, inner.width(), height);
}

frmBrowser &PreviewWindow(EditorContext &context) {
  if (context.preview.isNull()) {
    context.preview = new frmBrowser(context);
    context.mainWindow.windows.Adopt(context.preview);
  }
  return *context.preview;
}

frmBrowser::frmBrowser(EditorContext &context)
    : context_(context), browser_(context.platform.components.CreateBrowser(this)) {
  setObjectName(QStringLiteral("frmBrowser"));
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle(Words::tr("Preview"));
  setWindowIcon(IconFor(QStringLiteral("preview")));

  BuildToolBar();
  browser_->Widget()->setObjectName(QStringLiteral("brwWebBrowser"));
  browser_->Widget()->setAccessibleName(Words::tr("Preview"));

  widths_ = new PageWidths(
      context, *this, *browser_->Widget(), [this](double factor) { browser_->SetZoom(factor); },
      [this](Browser::Device device) { browser_->ShowAs(device); });

  BuildStatusBar();
  setFocusProxy(browser_->Widget());

  browser_->SetListener(this);
  if (context.platform.watches == nullptr) return;
  parts_ = context.platform.watches->Begin([this](const QString &) {
    if (isVisible()) browser_->Refresh();
  });
}

frmBrowser::~frmBrowser() {
  browser_->SetListener(nullptr);
}

void frmBrowser::BuildToolBar() {
  toolBar_ = new QToolBar(this);
  toolBar_->setObjectName(QStringLiteral("tbToolBar"));
  toolBar_->setAccessibleName(Words::tr("Navigation"));
  toolBar_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  toolBar_->setIconSize(QSize(BrowserIconSize, BrowserIconSize));
  toolBar_->setContentsMargins(BarMargin, BarSpacing, BarMargin, BarSpacing);
  for (const BrowserButton &row : BrowserButtons) {
    const QString key = QLatin1String(row.key);
    ToolBarAction *button = AddToolBarButton(*toolBar_, key, Words::tr(row.key),
                                             Words::tr(row.tooltip), ButtonKind::Click);
    button->setObjectName(key);
    connect(button, &ToolBarAction::Chosen, this, [this, key] { ButtonClicked(key); });
  }
}

void frmBrowser::BuildStatusBar() {
  statusBar_ = new QStatusBar(this);
  statusBar_->setObjectName(QStringLiteral("Sta"));
  statusBar_->setSizeGripEnabled(false);
  statusBar_->setContentsMargins(BarMargin, 0, BarMargin, 0);
  statusText_ = new QLabel(statusBar_);
  statusText_->setObjectName(QStringLiteral("Sta_1"));
  statusText_->setTextFormat(Qt::PlainText);
  // A long address is cut rather than widening the window.
  statusText_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  progress_ = new QLabel(statusBar_);
  progress_->setObjectName(QStringLiteral("Sta_2"));
  progress_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  // A fixed width, so that nothing moves while the number changes.
  progress_->setMinimumWidth(progress_->fontMetrics().horizontalAdvance(WidestProgress));
  statusBar_->addWidget(statusText_, 1);
  statusBar_->addPermanentWidget(progress_);
}

QSize frmBrowser::sizeHint() const {
  return UsualSize;
}

void frmBrowser::resizeEvent(QResizeEvent *event) {
  QWidget::resizeEvent(event);
  PlaceParts();
}

bool frmBrowser::event(QEvent *event) {
  if (event->type() == QEvent::LayoutRequest) PlaceParts();
  return QWidget::event(event);
}

void frmBrowser::PlaceParts() {
  const int toolBarHeight = toolBar_->sizeHint().height();
  const int statusBarHeight = statusBar_->sizeHint().height();
  WidthsBar &widths = widths_->Bar();
  const int widthsHeight = widths.isHidden() ? 0 : widths.sizeHint().height();
  toolBar_->setGeometry(0, 0, width(), toolBarHeight);
  widths.setGeometry(0, toolBarHeight, width(), widthsHeight);
  statusBar_->setGeometry(0, height() - statusBarHeight, width(), statusBarHeight);
  if (const auto place = BrowserPlace(size(), toolBarHeight + widthsHeight, statusBarHeight)) {
    widths_->Frame().setGeometry(*place);
  }
}

void frmBrowser::ButtonClicked(const QString &key) {
  for (const BrowserButton &row : BrowserButtons) {
    if (key == QLatin1String(row.key)) (browser_.get()->*row.action)();
  }
}

QString frmBrowser::ShownName() const {
  if (page_ == 0) return windowTitle();
  return QStringLiteral("%1, %2").arg(PageName(context_, page_), windowTitle());
}

void frmBrowser::OnActivated() {
  ShowPageWithoutFormats(context_, page_);
  ShowTextForm();
  widths_->Follow();
}

void frmBrowser::ShowTextForm() {
  frmMain *page = page_ == 0 ? nullptr : context_.pages.Page(page_);
  const QString form = page == nullptr ? QString() : page->DHTML1().TextForm();
  context_.mainWindow.status.ShowTextForm(TextFormAndZoom(form, Zoom()));
}

void frmBrowser::SetZoom(double factor) {
  widths_->Frame().SetZoom(factor);
  ShowTextForm();
}

double frmBrowser::Zoom() const {
  return widths_->Frame().Zoom();
}

bool frmBrowser::ToggleWidths() {
  widths_->Toggle();
  return true;
}

void frmBrowser::MarkKill() {
  Tag = QStringLiteral("kill");
  PendingAction = QStringLiteral("kill");
}

void frmBrowser::closeEvent(QCloseEvent *event) {
  if (PendingAction == QStringLiteral("kill")) {
    context_.mainWindow.windows.Release(this);
    event->accept();
    return;
  }
  event->ignore();
  context_.mainWindow.windows.Hide(this);
  context_.mainWindow.commands.Refresh();
}

void frmBrowser::StatusTextChanged(const QString &text) {
  statusText_->setText(text);
}

void frmBrowser::PartsShown(const QStringList &paths) {
  if (parts_) parts_->SetFiles(paths);
}

void frmBrowser::PageShown(const ShownPage &shown) {
  // Waits for the edited page, which cannot answer inside a notice of the engine.
  QTimer::singleShot(0, widths_, [this, shown] { widths_->PageShown(shown); });
}

void frmBrowser::ProgressChanged(int progress, int maximum) {
  progress_->setText(QStringLiteral("%1%").arg(ProgressPercent(progress, maximum)));
}

}  // namespace velor
