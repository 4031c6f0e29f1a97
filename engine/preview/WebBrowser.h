// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Browser.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QTemporaryDir>
#include <QUrl>

#include <memory>

class QWebEngineLoadingInfo;
class QWebEngineProfile;
class QWebEngineView;

namespace velor {

class BrowserPage;

/// The preview browser on Qt WebEngine. Page scripts run, in the engine's sandbox; what a page
/// leaves behind (cookies, cache, storage) goes with the browser, downloads are refused, and what
/// would open a window opens here instead. Out of sight it is silent. The status text is the
/// address under the pointer, else how the load stands.
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
  void LoadingChanged(const QWebEngineLoadingInfo &loading);
  void TellState(const QString &state);
  void TellStatus(const QString &text);

  std::unique_ptr<QWebEngineProfile> profile_;
  QPointer<QWebEngineView> view_;
  QPointer<BrowserPage> page_;
  BrowserListener *listener_ = nullptr;
  /// How the last load stands.
  QString state_;
  /// Holds the pages of NavigateToText, one file a base; removed with the browser.
  QTemporaryDir copies_;
  QList<QUrl> bases_;
};

}  // namespace velor
