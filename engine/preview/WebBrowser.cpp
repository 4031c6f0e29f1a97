// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/preview/WebBrowser.h"

#include "engine/BridgeScript.h"
#include "engine/FileDrops.h"
#include "engine/PdfPrint.h"
#include "engine/preview/BrowserPage.h"
#include "engine/preview/PhoneEmulation.h"
#include "platform/Paths.h"

#include <QAction>
#include <QDesktopServices>
#include <QWebEngineDownloadRequest>
#include <QWebEngineLoadingInfo>
#include <QWebEngineProfile>
#include <QWebEngineScript>
#include <QWebEngineScriptCollection>
#include <QWebEngineSettings>
#include <QWebEngineView>

#include <utility>

namespace velor {

namespace {

/// Progress is told in percent.
constexpr int ProgressMaximum = 100;

/// What the engine's own context menu offers and this browser refuses or has no second window for.
constexpr QWebEnginePage::WebAction RefusedActions[] = {
    QWebEnginePage::SavePage,
    QWebEnginePage::ViewSource,
    QWebEnginePage::DownloadLinkToDisk,
    QWebEnginePage::DownloadImageToDisk,
    QWebEnginePage::DownloadMediaToDisk,
    QWebEnginePage::OpenLinkInNewTab,
    QWebEnginePage::OpenLinkInNewWindow,
};

/// A view that mutes its page while it is hidden.
class BrowserView final : public QWebEngineView {
 public:
  using QWebEngineView::QWebEngineView;

 protected:
  void showEvent(QShowEvent *event) override {
    QWebEngineView::showEvent(event);
    page()->setAudioMuted(false);
  }
  void hideEvent(QHideEvent *event) override {
    QWebEngineView::hideEvent(event);
    page()->setAudioMuted(true);
  }
};

QString Named(const QUrl &address) {
  if (address.scheme() == QLatin1String(SiteScheme::Name())) return SiteScheme::FileOf(address);
  return address.toDisplayString();
}

/// What a page names by full file addresses is asked of its site, which serves what lies in it: the
/// engine refuses "file:" to every page of another scheme without asking anybody.
const QString FileLinks = QStringLiteral(R"(
  const own = (link) => {
    const { pathname, search, hash } = new URL(link, document.baseURI);
    return pathname + search + hash;
  };
  const inText = (text) => text.replace(/file:\/\/[^\s"'()]*/gi, own);
  const names = ['src', 'href', 'background', 'data', 'poster', 'longdesc', 'action'];
  for (const name of names) {
    for (const element of document.querySelectorAll(`[${name}^="file:" i]`)) {
      element.setAttribute(name, own(element.getAttribute(name)));
    }
  }
  for (const sheet of document.querySelectorAll('style')) {
    const rules = sheet.textContent.replace(/(url\(\s*["']?|@import\s+["'])(file:\/\/[^\s"'()]*)/gi,
      (all, before, link) => before + own(link));
    if (rules !== sheet.textContent) sheet.textContent = rules;
  }
  for (const name of ['style', 'srcset']) {
    for (const element of document.querySelectorAll(`[${name}*="file:" i]`)) {
      element.setAttribute(name, inText(element.getAttribute(name)));
    }
  }
)");

QWebEngineScript SiteLinks() {
  QWebEngineScript script;
  script.setName(QStringLiteral("site links"));
  script.setInjectionPoint(QWebEngineScript::DocumentReady);
  script.setWorldId(QWebEngineScript::ApplicationWorld);
  script.setRunsOnSubFrames(true);
  script.setSourceCode(QStringLiteral("{%1}").arg(FileLinks));
  return script;
}

bool IsForAnotherProgram(const QUrl &address) {
  const QString scheme = address.scheme();
  return scheme == QStringLiteral("mailto") || scheme == QStringLiteral("tel") ||
         scheme == QStringLiteral("sms");
}

}  // namespace

WebBrowser::WebBrowser(QWidget *parent)
    : profile_(std::make_unique<QWebEngineProfile>()),
      view_(new BrowserView(parent)),
      page_(new BrowserPage(profile_.get(), scheme_)) {
  QWebEngineSettings *settings = page_->settings();
  profile_->setUrlRequestInterceptor(new SiteGuard(profile_.get()));
  profile_->installUrlSchemeHandler(SiteScheme::Name(), &scheme_);
  settings->setAttribute(QWebEngineSettings::LocalContentCanAccessFileUrls, false);
  settings->setAttribute(QWebEngineSettings::LocalContentCanAccessRemoteUrls, false);
  settings->setUnknownUrlSchemePolicy(QWebEngineSettings::DisallowUnknownUrlSchemes);
  settings->setAttribute(QWebEngineSettings::PluginsEnabled, false);
  settings->setAttribute(QWebEngineSettings::NavigateOnDropEnabled, false);
  for (const QWebEnginePage::WebAction refused : RefusedActions) {
    page_->action(refused)->setVisible(false);
  }
  page_->scripts().insert(SiteLinks());
  view_->setPage(page_);
  IgnoreFileDrags(*view_);

  connect(profile_.get(), &QWebEngineProfile::downloadRequested, this,
          [this](QWebEngineDownloadRequest *download) {
            download->cancel();
            ShowLoadState(tr("The preview downloads nothing: %1").arg(Named(download->url())));
          });
  connect(page_, &QWebEnginePage::linkHovered, this, [this](const QString &address) {
    ShowInStatusBar(address.isEmpty() ? state_ : Named(QUrl(address)));
  });
  tellingParts_.setSingleShot(true);
  connect(&tellingParts_, &QTimer::timeout, this, [this] {
    if (listener_ != nullptr) listener_->PartsShown(parts_);
  });
  connect(&scheme_, &SiteScheme::PartServed, this, [this](const QString &file) {
    const QString path = ToLogic(file);
    if (parts_.contains(path)) return;
    parts_ << path;
    tellingParts_.start(0);
  });
  const auto refused = [this](const QString &file) {
    if (!refused_.contains(file)) refused_ << file;
    if (!isOpening_) ReportRefused();
  };
  connect(&scheme_, &SiteScheme::Refused, this, refused);
  connect(page_, &BrowserPage::PartRefused, this, refused);
  connect(page_, &BrowserPage::LinkRefused, this, [this](const QString &file) {
    ShowLoadState(tr("Outside of the site and not opened: %1").arg(file));
  });
  connect(page_, &QWebEnginePage::loadProgress, this, [this](int percent) {
    if (listener_ != nullptr) listener_->ProgressChanged(percent, ProgressMaximum);
  });
  connect(page_, &QWebEnginePage::loadingChanged, this, &WebBrowser::LoadingChanged);
  connect(page_, &QWebEnginePage::renderProcessTerminated, this, [this] {
    ShowLoadState(tr("The page's process has ended. Refresh shows the page again."));
  });
}

WebBrowser::~WebBrowser() {
  print_.reset();
  phone_.reset();
  // Requests that are still on their way are told to nobody.
  scheme_.disconnect(this);
  if (!page_.isNull()) page_->disconnect(this);
  // The page goes before its profile, and the view before the page.
  delete view_;
  delete page_;
}

QWidget *WebBrowser::Widget() {
  return view_;
}

void WebBrowser::SetListener(BrowserListener *listener) {
  listener_ = listener;
}

void WebBrowser::SetSite(const QString &folder) {
  site_ = folder;
}

void WebBrowser::Navigate(const QUrl &url) {
  if (!url.isLocalFile()) return Load(url);
  QUrl address = scheme_.AddressOf(url.toLocalFile(), site_);
  address.setFragment(url.fragment(QUrl::FullyEncoded), QUrl::StrictMode);
  Load(address);
}

void WebBrowser::NavigateToText(const QString &html, const QUrl &baseUrl) {
  Load(scheme_.Offer(baseUrl.toLocalFile(), site_, html));
}

void WebBrowser::Load(const QUrl &address) {
  given_ = address.adjusted(QUrl::RemoveFragment);
  page_->load(address);
}

void WebBrowser::GoBack() {
  page_->triggerAction(QWebEnginePage::Back);
}

void WebBrowser::GoForward() {
  page_->triggerAction(QWebEnginePage::Forward);
}

void WebBrowser::Refresh() {
  page_->triggerAction(QWebEnginePage::ReloadAndBypassCache);
}

void WebBrowser::Stop() {
  isStopping_ = true;
  page_->triggerAction(QWebEnginePage::Stop);
}

void WebBrowser::SetZoom(double factor) {
  zoom_ = factor;
  page_->setZoomFactor(factor);
}

void WebBrowser::ShowAs(Device device) {
  const bool isPhone = device == Device::Phone;
  if (isPhone == (phone_ != nullptr)) return;
  // Without an address there is nothing to show anew.
  const auto showAnew = [this] {
    if (!page_->url().isEmpty()) Refresh();
  };
  if (!isPhone) {
    phone_.reset();
    return showAnew();
  }
  phone_ = std::make_unique<PhoneEmulation>(*page_);
  connect(phone_.get(), &PhoneEmulation::Ready, this, showAnew);
}

void WebBrowser::MakePdf(const PaperForm &form, Made made) {
  made_ = std::move(made);
  print_ = std::make_unique<PdfPrint>(*page_, form);
  connect(print_.get(), &PdfPrint::Ended, this, [this](const QByteArray &pdf) {
    // The sender: it lives until it has returned.
    print_.release()->deleteLater();
    std::exchange(made_, {})(pdf);
  });
}

void WebBrowser::StopPdf() {
  print_.reset();
  made_ = {};
}

void WebBrowser::LoadingChanged(const QWebEngineLoadingInfo &loading) {
  // The engine keeps the factor by the page's host, which may be another one now.
  if (loading.status() != QWebEngineLoadingInfo::LoadStartedStatus) page_->setZoomFactor(zoom_);
  switch (loading.status()) {
    case QWebEngineLoadingInfo::LoadStartedStatus:
      isStopping_ = false;
      // The engine ends such a load by itself.
      if (IsForAnotherProgram(loading.url())) return OpenInOtherProgram(loading.url());
      refused_.clear();
      parts_.clear();
      stateBefore_ = state_;
      ShowLoadState(tr("Opening %1").arg(Named(loading.url())));
      isOpening_ = true;
      break;
    case QWebEngineLoadingInfo::LoadStoppedStatus:
      // The engine also reports as stopped what it never began to load, such as a link to another
      // program.
      if (isStopping_)
        ShowLoadState(tr("Stopped"));
      else if (isOpening_)
        ShowLoadState(stateBefore_);
      break;
    case QWebEngineLoadingInfo::LoadSucceededStatus:
      ShowLoadState(tr("Done"));
      if (!refused_.isEmpty()) ReportRefused();
      TellShown();
      break;
    case QWebEngineLoadingInfo::LoadFailedStatus:
      ShowLoadState(tr("%1 could not be opened").arg(Named(loading.url())));
      break;
  }
}

void WebBrowser::TellShown() {
  const bool isGiven = page_->url().adjusted(QUrl::RemoveFragment) == given_;
  const auto tell = [alive = QPointer(this), isGiven](const QVariant &widths) {
    if (alive.isNull() || alive->listener_ == nullptr) return;
    ShownPage shown{isGiven, {}};
    for (const QVariant &width : widths.toList()) shown.breakpoints << width.toInt();
    alive->listener_->PageShown(shown);
  };
  page_->runJavaScript(ShownPageScript() + QStringLiteral("velorShown.breakpoints()"), BridgeWorld,
                       tell);
}

void WebBrowser::ReportRefused() {
  QString text = tr("Outside of the site and not shown: %1").arg(refused_.first());
  if (refused_.size() > 1) text += tr(" and %1 more").arg(refused_.size() - 1);
  ShowLoadState(text);
}

void WebBrowser::OpenInOtherProgram(const QUrl &url) {
  if (QDesktopServices::openUrl(url)) return;
  const QString text = url.toDisplayString();
  ShowLoadState(url.scheme() == QStringLiteral("mailto")
                    ? tr("No mail program is set up here to write to %1").arg(url.path())
                    : tr("No program is set up here to open %1").arg(text));
}

void WebBrowser::ShowLoadState(const QString &state) {
  state_ = state;
  isOpening_ = false;
  ShowInStatusBar(state);
}

void WebBrowser::ShowInStatusBar(const QString &text) {
  if (listener_ != nullptr) listener_->StatusTextChanged(text);
}

}  // namespace velor
