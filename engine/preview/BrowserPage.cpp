// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/preview/BrowserPage.h"

#include "engine/preview/SiteScheme.h"

#include <QFileInfo>
#include <QPointer>
#include <QSet>
#include <QWebEngineUrlRequestInfo>

namespace velor {

namespace {

/// Takes the place of a window that a page opens: loads the first address into the page that asked
/// for the window, then deletes itself.
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

bool IsWebContent(const QUrl &url) {
  static const QSet<QString> suffixes{QStringLiteral("htm"),   QStringLiteral("html"),
                                      QStringLiteral("xhtml"), QStringLiteral("shtml"),
                                      QStringLiteral("svg"),   QStringLiteral("png"),
                                      QStringLiteral("jpg"),   QStringLiteral("jpeg"),
                                      QStringLiteral("gif"),   QStringLiteral("webp")};
  return suffixes.contains(QFileInfo(url.path()).suffix().toLower());
}

bool IsOfASite(const QUrl &url) {
  return url.scheme() == QLatin1String(SiteScheme::Name());
}

/// What a browser shows itself.
bool IsShownHere(const QUrl &url) {
  static const QSet<QString> schemes{QStringLiteral("http"),  QStringLiteral("https"),
                                     QStringLiteral("about"), QStringLiteral("data"),
                                     QStringLiteral("blob"),  QStringLiteral("javascript")};
  return schemes.contains(url.scheme());
}

}  // namespace

void SiteGuard::interceptRequest(QWebEngineUrlRequestInfo &request) {
  const QUrl url = request.requestUrl();
  if (url.isLocalFile()) return request.block(true);
  if (!IsOfASite(url)) return;
  switch (request.resourceType()) {
    case QWebEngineUrlRequestInfo::ResourceTypeXhr:
      request.block(true);
      break;
    case QWebEngineUrlRequestInfo::ResourceTypeSubFrame:
    case QWebEngineUrlRequestInfo::ResourceTypeObject:
      request.block(!IsWebContent(url));
      break;
    default:
      break;
  }
}

BrowserPage::BrowserPage(QWebEngineProfile *profile, const SiteScheme &scheme)
    : QWebEnginePage(profile), scheme_(scheme) {}

QWebEnginePage *BrowserPage::createWindow(WebWindowType) {
  return new WindowRequest(profile(), this);
}

bool BrowserPage::acceptNavigationRequest(const QUrl &url, NavigationType, bool isMainFrame) {
  if (IsShownHere(url)) return true;
  if (IsOfASite(url)) {
    // SiteScheme refuses and reports what a frame may not show.
    if (!isMainFrame || scheme_.IsInside(url)) return true;
    Q_EMIT LinkRefused(SiteScheme::FileOf(url));
  } else if (url.isLocalFile()) {
    Q_EMIT LinkRefused(url.toLocalFile());
  }
  return false;
}

void BrowserPage::javaScriptConsoleMessage(JavaScriptConsoleMessageLevel, const QString &message,
                                           int, const QString &) {
  // The engine refuses addresses of files itself, and says so here only.
  static const QString refusal = QStringLiteral("Not allowed to load local resource: ");
  if (!message.startsWith(refusal)) return;
  const QUrl url(message.mid(refusal.size()));
  // What lies in the site is asked of it then.
  QUrl ofSite = this->url();
  ofSite.setPath(url.path());
  if (IsOfASite(ofSite) && scheme_.IsInside(ofSite)) return;
  Q_EMIT PartRefused(url.isLocalFile() ? url.toLocalFile() : url.toString());
}

}  // namespace velor
