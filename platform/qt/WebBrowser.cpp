// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/qt/WebBrowser.h"

#include "platform/RuntimeError.h"
#include "platform/qt/BaseElement.h"

#include <QFile>
#include <QFileInfo>
#include <QSet>
#include <QWebEngineDownloadRequest>
#include <QWebEnginePage>
#include <QWebEngineProfile>
#include <QWebEngineSettings>
#include <QWebEngineUrlRequestInfo>
#include <QWebEngineUrlRequestInterceptor>
#include <QWebEngineView>

namespace velor {

namespace {

/// Progress is told in percent.
constexpr int ProgressMaximum = 100;
constexpr const char *Utf8Mark = "\xEF\xBB\xBF";

/// Stands in for the window a page wants to open: hands its first address to the page that asked,
/// and goes.
class WindowRequest final : public QWebEnginePage {
 public:
  WindowRequest(QWebEngineProfile *profile, QWebEnginePage *asking)
      : QWebEnginePage(profile, asking), asking_(asking) {}

 protected:
  bool acceptNavigationRequest(const QUrl &url, NavigationType, bool isMainFrame) override {
    if (isMainFrame && !asking_.isNull()) asking_->load(url);
    deleteLater();
    return false;
  }

 private:
  QPointer<QWebEnginePage> asking_;
};

/// Lets a page on disk use the files beside it and what is on the web, but not read the person's
/// files: the engine knows only "all local files" or "none". Its scripts get no file's content, and
/// its frames show pages and pictures only.
class LocalFileGuard final : public QWebEngineUrlRequestInterceptor {
 public:
  using QWebEngineUrlRequestInterceptor::QWebEngineUrlRequestInterceptor;

  void interceptRequest(QWebEngineUrlRequestInfo &request) override {
    if (!request.requestUrl().isLocalFile()) return;
    switch (request.resourceType()) {
      case QWebEngineUrlRequestInfo::ResourceTypeXhr:
        request.block(true);
        break;
      case QWebEngineUrlRequestInfo::ResourceTypeSubFrame:
      case QWebEngineUrlRequestInfo::ResourceTypeObject:
        request.block(!IsWebContent(request.requestUrl()));
        break;
      default:
        break;
    }
  }

 private:
  static bool IsWebContent(const QUrl &url) {
    static const QSet<QString> suffixes{QStringLiteral("htm"),   QStringLiteral("html"),
                                        QStringLiteral("xhtml"), QStringLiteral("shtml"),
                                        QStringLiteral("svg"),   QStringLiteral("png"),
                                        QStringLiteral("jpg"),   QStringLiteral("jpeg"),
                                        QStringLiteral("gif"),   QStringLiteral("webp")};
    return suffixes.contains(QFileInfo(url.path()).suffix().toLower());
  }
};

class BrowserPage final : public QWebEnginePage {
 public:
  using QWebEnginePage::QWebEnginePage;

 protected:
  QWebEnginePage *createWindow(WebWindowType) override {
    return new WindowRequest(profile(), this);
  }
};

}  // namespace

WebBrowser::WebBrowser(QWidget *parent)
    : profile_(std::make_unique<QWebEngineProfile>()),
      view_(new QWebEngineView(parent)),
      page_(new BrowserPage(profile_.get())) {
  QWebEngineSettings *settings = page_->settings();
  profile_->setUrlRequestInterceptor(new LocalFileGuard(profile_.get()));
  settings->setAttribute(QWebEngineSettings::LocalContentCanAccessFileUrls, true);
  settings->setAttribute(QWebEngineSettings::LocalContentCanAccessRemoteUrls, true);
  settings->setAttribute(QWebEngineSettings::PluginsEnabled, false);
  settings->setAttribute(QWebEngineSettings::NavigateOnDropEnabled, false);
  view_->setPage(page_);

  connect(profile_.get(), &QWebEngineProfile::downloadRequested, this,
          [](QWebEngineDownloadRequest *download) { download->cancel(); });
  connect(page_, &QWebEnginePage::linkHovered, this, [this](const QString &address) {
    if (listener_ != nullptr) listener_->StatusTextChanged(address);
  });
  connect(page_, &QWebEnginePage::loadProgress, this, [this](int percent) {
    if (listener_ != nullptr) listener_->ProgressChanged(percent, ProgressMaximum);
  });
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
  const QString name = copies_.filePath(QStringLiteral("preview.htm"));
  QFile copy(name);
  // The mark outweighs the charset that the page declares for its own file.
  const QByteArray bytes = Utf8Mark + WithBase(html, baseUrl).toUtf8();
  if (!copy.open(QIODevice::WriteOnly) || copy.write(bytes) != bytes.size() || !copy.flush()) {
    throw RuntimeError(ErrorNumber::PathFileAccess, QStringLiteral("Preview"),
                       copy.errorString() + QStringLiteral(": ") + name);
  }
  page_->load(QUrl::fromLocalFile(name));
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

}  // namespace velor
