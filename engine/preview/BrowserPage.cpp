// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/preview/BrowserPage.h"

#include <QFileInfo>
#include <QPointer>
#include <QSet>
#include <QWebEngineUrlRequestInfo>

namespace velor {

namespace {

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

bool IsWebContent(const QUrl &url) {
  static const QSet<QString> suffixes{QStringLiteral("htm"),   QStringLiteral("html"),
                                      QStringLiteral("xhtml"), QStringLiteral("shtml"),
                                      QStringLiteral("svg"),   QStringLiteral("png"),
                                      QStringLiteral("jpg"),   QStringLiteral("jpeg"),
                                      QStringLiteral("gif"),   QStringLiteral("webp")};
  return suffixes.contains(QFileInfo(url.path()).suffix().toLower());
}

}  // namespace

void LocalFileGuard::interceptRequest(QWebEngineUrlRequestInfo &request) {
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

QWebEnginePage *BrowserPage::createWindow(WebWindowType) {
  return new WindowRequest(profile(), this);
}

bool BrowserPage::acceptNavigationRequest(const QUrl &url, NavigationType, bool isMainFrame) {
  const QUrl copy = this->url().adjusted(QUrl::RemoveFragment);
  if (!isMainFrame || !url.hasFragment() || !bases_.contains(copy) ||
      bases_.value(copy) != url.adjusted(QUrl::RemoveFragment)) {
    return true;
  }
  QUrl place = copy;
  place.setFragment(url.fragment(QUrl::FullyEncoded), QUrl::StrictMode);
  // The engine does not begin a load from inside its question.
  QMetaObject::invokeMethod(
      this, [this, place] { load(place); }, Qt::QueuedConnection);
  return false;
}

}  // namespace velor
