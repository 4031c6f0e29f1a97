// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QUrl>
#include <QWebEnginePage>
#include <QWebEngineUrlRequestInterceptor>

namespace velor {

class SiteScheme;

/// Lets a page use the files of its site and what is on the web. Its scripts get no file's text,
/// its frames show pages and pictures only, and no request for a file goes past the site's scheme.
class SiteGuard final : public QWebEngineUrlRequestInterceptor {
  Q_OBJECT

 public:
  using QWebEngineUrlRequestInterceptor::QWebEngineUrlRequestInterceptor;

  void interceptRequest(QWebEngineUrlRequestInfo &request) override;
};

/// The preview's page: what would open a window opens here instead, and no link leads out of the
/// site to another place of this machine.
class BrowserPage final : public QWebEnginePage {
  Q_OBJECT

 public:
  BrowserPage(QWebEngineProfile *profile, const SiteScheme &scheme);

 Q_SIGNALS:
  /// A link was not followed, since it leads to that file of this machine outside of the site.
  void LinkRefused(const QString &file);
  /// A picture, a frame or the like was not shown for the same reason.
  void PartRefused(const QString &file);

 protected:
  QWebEnginePage *createWindow(WebWindowType type) override;
  bool acceptNavigationRequest(const QUrl &url, NavigationType type, bool isMainFrame) override;
  void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel level, const QString &message,
                                int lineNumber, const QString &source) override;

 private:
  const SiteScheme &scheme_;
};

}  // namespace velor
