// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QUrl>
#include <QWebEnginePage>
#include <QWebEngineUrlRequestInterceptor>

namespace velor {

/// Lets a page on disk use the files beside it and what is on the web, but not read the person's
/// files: the engine knows only "all local files" or "none". Its scripts get no file's content, and
/// its frames show pages and pictures only.
class LocalFileGuard final : public QWebEngineUrlRequestInterceptor {
  Q_OBJECT

 public:
  using QWebEngineUrlRequestInterceptor::QWebEngineUrlRequestInterceptor;

  void interceptRequest(QWebEngineUrlRequestInfo &request) override;
};

/// The preview's page: what would open a window opens here instead.
class BrowserPage final : public QWebEnginePage {
  Q_OBJECT

 public:
  using QWebEnginePage::QWebEnginePage;

  /// `copy` stands in for the page at `base`: links from it to places of that page stay in it.
  void StandIn(const QUrl &copy, const QUrl &base) { bases_[copy] = base; }

 protected:
  QWebEnginePage *createWindow(WebWindowType type) override;
  bool acceptNavigationRequest(const QUrl &url, NavigationType type, bool isMainFrame) override;

 private:
  QHash<QUrl, QUrl> bases_;
};

}  // namespace velor
