// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/PageWidths.h"

#include "app/settings/modSettingManager.h"
#include "editor/PageFrame.h"
#include "editor/PageSlots.h"
#include "editor/frmMain.h"
#include "editor/modGeneral.h"
#include "platform/Platform.h"
#include "platform/Words.h"

#include <QApplication>
#include <QPointer>
#include <QUrl>

#include <utility>

namespace velor {

namespace {

/// The section beside the preferences; a value's name is the site's folder, percent-encoded.
const QString Section = QStringLiteral("widths");
const QString FullWidth = QStringLiteral("full");

const QString Viewport = QStringLiteral("width=device-width, initial-scale=1");

/// Stands behind the width where previews are a phone's.
const QString OnPhone = QStringLiteral(" phone");
/// The width that a preview at the window's own gets when it becomes a phone's.
constexpr int PhoneWidth = 412;

QString InStore(std::optional<int> width, Browser::Device device) {
  if (!width) return {};
  const QString text = *width == PageFrame::Full ? FullWidth : QString::number(*width);
  return device == Browser::Device::Phone ? text + OnPhone : text;
}

std::optional<int> WidthFrom(const QString &text) {
  const QString number = text.section(u' ', 0, 0);
  if (number == FullWidth) return PageFrame::Full;
  const int width = number.toInt();
  return width > 0 ? std::optional(width) : std::nullopt;
}

/// Only who writes for small screens is told of a missing declaration: the page has rules for
/// widths, or is of today's dialect.
WidthFacts FactsFrom(const PropertyValues &values) {
  WidthFacts facts;
  for (const QString &width : values[QStringLiteral("breakpoints")].split(u' ', Qt::SkipEmptyParts))
    facts.breakpoints << width.toInt();
  const bool isForPhones =
      !facts.breakpoints.isEmpty() || values[QStringLiteral("dialect")] == QStringLiteral("html5");
  facts.lacksViewport = isForPhones && values[QStringLiteral("viewport")].isEmpty();
  return facts;
}

}  // namespace

PageWidths::PageWidths(EditorContext &context, QWidget &window, QWidget &view,
                       std::function<void(double)> applyZoom,
                       std::function<void(Browser::Device)> showAs)
    : QObject(&window),
      context_(context),
      window_(window),
      front_(dynamic_cast<FrontWindow &>(window)),
      frame_(new PageFrame(view, std::move(applyZoom), &window)),
      bar_(new WidthsBar(*frame_, &window)),
      showAs_(std::move(showAs)) {
  connect(frame_, &PageFrame::Dragged, frame_, &PageFrame::ShowAt);
  connect(frame_, &PageFrame::Dropped, this, &PageWidths::Keep);
  connect(bar_, &WidthsBar::WidthChosen, this, &PageWidths::Choose);
  connect(bar_, &WidthsBar::CloseWanted, this, [this] { Choose(std::nullopt); });
  connect(bar_, &WidthsBar::DeviceChosen, this, &PageWidths::ChooseDevice);
  connect(bar_, &WidthsBar::ViewportWanted, this, &PageWidths::AddViewport);
}

frmMain *PageWidths::Page() const {
  return front_.PageNumber() == 0 ? nullptr : context_.pages.Page(front_.PageNumber());
}

QString PageWidths::Site() const {
  if (front_.PageNumber() == 0) return {};
  QString folder = context_.pages.Site(front_.PageNumber());
  const QString path = context_.pages.Record(front_.PageNumber()).Path;
  if (folder.isEmpty() && path.contains(u'\\')) folder = modGeneral::FolderOfPath(path);
  while (folder.endsWith(u'\\')) folder.chop(1);
  return QString::fromLatin1(QUrl::toPercentEncoding(folder));
}

void PageWidths::Toggle() {
  if (frame_->ChosenWidth()) return Choose(std::nullopt);
  const QPointer<PageWidths> alive(this);
  Choose(PageFrame::Full);
  if (!alive.isNull()) bar_->TakeKeyboard();
}

void PageWidths::Choose(std::optional<int> width) {
  const bool wasHidden = bar_->isHidden();
  frame_->ShowAt(width);
  Keep();
  ShowDevice();
  ShowBar();
  if (wasHidden) ReadFacts();
}

void PageWidths::ChooseDevice(Browser::Device device) {
  device_ = device;
  if (device == Browser::Device::Phone && frame_->ChosenWidth() == PageFrame::Full)
    return Choose(PhoneWidth);
  Keep();
  ShowDevice();
}

void PageWidths::Keep() const {
  if (const QString site = Site(); !site.isEmpty())
    modSettingManager::SaveText(context_.platform.registry, Section, site,
                                InStore(frame_->ChosenWidth(), device_));
}

void PageWidths::ShowDevice() {
  if (!showAs_) return;
  bar_->ShowDevice(device_);
  showAs_(frame_->ChosenWidth() ? device_ : Browser::Device::Desktop);
}

void PageWidths::ShowBar() {
  bar_->setVisible(frame_->ChosenWidth() && front_.View() != FrontView::SourceView);
}

void PageWidths::Follow() {
  if (!context_.hasAdditions) return;
  const QString before = std::exchange(site_, Site());
  // A new page's own choice becomes that of the site that it is saved into.
  if (before.isEmpty() && !site_.isEmpty() && frame_->ChosenWidth())
    return Choose(frame_->ChosenWidth());
  if (!site_.isEmpty()) {
    const QString kept = modSettingManager::StoredText(context_.platform.registry, Section, site_);
    device_ = kept.endsWith(OnPhone) ? Browser::Device::Phone : Browser::Device::Desktop;
    frame_->ShowAt(WidthFrom(kept));
  }
  ShowDevice();
  ShowBar();
  ReadFacts();
}

void PageWidths::PageShown(const ShownPage &shown) {
  shown_ = shown;
  ReadFacts();
}

void PageWidths::DocumentChanged() {
  // The properties window takes what it changes for one step as long as nobody else asks for them.
  if (bar_->isHidden() || Page() == nullptr || QApplication::activeModalWidget() != nullptr) return;
  const QString text = Page()->DHTML1().Memory().document;
  const QString head = text.left(text.indexOf(QStringLiteral("<body"), 0, Qt::CaseInsensitive));
  if (std::exchange(head_, head) != head) ReadFacts();
}

void PageWidths::ReadFacts() {
  if (bar_->isHidden()) return;
  const QPointer<PageWidths> alive(this);
  WidthFacts facts;
  if (frmMain *page = Page())
    facts = FactsFrom(page->DHTML1().Document().Properties({PropertySubject::Page}));
  if (alive.isNull()) return;
  if (shown_) {
    facts.breakpoints = shown_->breakpoints;
    facts.lacksViewport &= shown_->isGiven;
  }
  bar_->ShowFacts(facts);
}

void PageWidths::AddViewport() {
  if (frmMain *page = Page())
    page->DHTML1().Document().SetProperties({PropertySubject::Page},
                                            {{QStringLiteral("viewport"), Viewport}});
}

}  // namespace velor
