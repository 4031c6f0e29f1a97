// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Browser.h"

#include <QObject>
#include <QPointer>
#include <QTemporaryDir>

#include <memory>

class QWebEnginePage;
class QWebEngineProfile;
class QWebEngineView;

namespace velor {

/// The preview browser on Qt WebEngine. Page scripts run, in the engine's sandbox; what a page
/// leaves behind (cookies, cache, storage) goes with the browser, downloads are refused, and what
/// would open a window opens here instead.
class WebBrowser final : public QObject, public Browser {
  Q_OBJECT

 public:
  explicit WebBrowser(QWidget *parent);
  ~WebBrowser() override;

  QWidget *Widget() override;
  void SetListener(BrowserListener *listener) override;
  void Navigate(const QUrl &url) override;
  void NavigateToText(const QString &html, const QUrl &baseUrl) override;
  void GoBack() override;
  void GoForward() override;
  void Refresh() override;
  void Stop() override;

 private:
  std::unique_ptr<QWebEngineProfile> profile_;
  QPointer<QWebEngineView> view_;
  QPointer<QWebEnginePage> page_;
  BrowserListener *listener_ = nullptr;
  /// Holds the page of NavigateToText; removed with the browser.
  QTemporaryDir copies_;
};

}  // namespace velor
