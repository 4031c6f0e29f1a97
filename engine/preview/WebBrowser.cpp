// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/preview/WebBrowser.h"

#include "engine/FileDrops.h"
#include "engine/preview/BaseElement.h"
#include "engine/preview/BrowserPage.h"
#include "platform/RuntimeError.h"

#include <QAction>
#include <QFile>
#include <QWebEngineDownloadRequest>
#include <QWebEngineLoadingInfo>
#include <QWebEngineProfile>
#include <QWebEngineSettings>
#include <QWebEngineView>

namespace velor {

namespace {

/// Progress is told in percent.
constexpr int ProgressMaximum = 100;
constexpr const char *Utf8Mark = "\xEF\xBB\xBF";

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

/// Pages out of sight make no sound.
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
  return address.isLocalFile() ? address.toLocalFile() : address.toDisplayString();
}

}  // namespace

WebBrowser::WebBrowser(QWidget *parent)
    : profile_(std::make_unique<QWebEngineProfile>()),
      view_(new BrowserView(parent)),
      page_(new BrowserPage(profile_.get())) {
  QWebEngineSettings *settings = page_->settings();
  profile_->setUrlRequestInterceptor(new LocalFileGuard(profile_.get()));
  settings->setAttribute(QWebEngineSettings::LocalContentCanAccessFileUrls, true);
  settings->setAttribute(QWebEngineSettings::LocalContentCanAccessRemoteUrls, true);
  settings->setAttribute(QWebEngineSettings::PluginsEnabled, false);
  settings->setAttribute(QWebEngineSettings::NavigateOnDropEnabled, false);
  for (const QWebEnginePage::WebAction refused : RefusedActions) {
    page_->action(refused)->setVisible(false);
  }
  view_->setPage(page_);
  LeaveFilesToTheWindow(*view_);

  connect(profile_.get(), &QWebEngineProfile::downloadRequested, this,
          [this](QWebEngineDownloadRequest *download) {
            download->cancel();
            TellState(tr("The preview downloads nothing: %1").arg(Named(download->url())));
          });
  connect(page_, &QWebEnginePage::linkHovered, this,
          [this](const QString &address) { TellStatus(address.isEmpty() ? state_ : address); });
  connect(page_, &QWebEnginePage::loadProgress, this, [this](int percent) {
    if (listener_ != nullptr) listener_->ProgressChanged(percent, ProgressMaximum);
  });
  connect(page_, &QWebEnginePage::loadingChanged, this, &WebBrowser::LoadingChanged);
  connect(page_, &QWebEnginePage::renderProcessTerminated, this,
          [this] { TellState(tr("The page's process has ended. Refresh shows the page again.")); });
}

WebBrowser::~WebBrowser() {
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

void WebBrowser::Navigate(const QUrl &url) {
  page_->load(url);
}

void WebBrowser::NavigateToText(const QString &html, const QUrl &baseUrl) {
  // A page keeps its file, so that each place in the history shows its own page.
  if (!bases_.contains(baseUrl)) bases_.append(baseUrl);
  const QString name =
      copies_.filePath(QStringLiteral("preview%1.htm").arg(bases_.indexOf(baseUrl) + 1));
  QFile copy(name);
  // The mark outweighs the charset that the page declares for its own file.
  const QByteArray bytes = Utf8Mark + WithBase(html, baseUrl).toUtf8();
  if (!copy.open(QIODevice::WriteOnly) || copy.write(bytes) != bytes.size() || !copy.flush()) {
    throw RuntimeError(ErrorNumber::PathFileAccess, QStringLiteral("Preview"),
                       copy.errorString() + QStringLiteral(": ") + name);
  }
  const QUrl url = QUrl::fromLocalFile(name);
  page_->StandIn(url, baseUrl);
  page_->load(url);
}

void WebBrowser::GoBack() {
  page_->triggerAction(QWebEnginePage::Back);
}

void WebBrowser::GoForward() {
  page_->triggerAction(QWebEnginePage::Forward);
}

void WebBrowser::Refresh() {
  page_->triggerAction(QWebEnginePage::Reload);
}

void WebBrowser::Stop() {
  page_->triggerAction(QWebEnginePage::Stop);
}

void WebBrowser::LoadingChanged(const QWebEngineLoadingInfo &loading) {
  switch (loading.status()) {
    case QWebEngineLoadingInfo::LoadStartedStatus:
      TellState(tr("Opening %1").arg(Named(loading.url())));
      break;
    case QWebEngineLoadingInfo::LoadStoppedStatus:
      TellState(tr("Stopped"));
      break;
    case QWebEngineLoadingInfo::LoadSucceededStatus:
      TellState(tr("Done"));
      break;
    case QWebEngineLoadingInfo::LoadFailedStatus:
      TellState(tr("%1 could not be opened").arg(Named(loading.url())));
      break;
  }
}

void WebBrowser::TellState(const QString &state) {
  state_ = state;
  TellStatus(state);
}

void WebBrowser::TellStatus(const QString &text) {
  if (listener_ != nullptr) listener_->StatusTextChanged(text);
}

}  // namespace velor
