// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/preview/SiteScheme.h"
#include "platform/Browser.h"
#include "platform/PagePrinting.h"

#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QTimer>
#include <QUrl>

#include <memory>

class QWebEngineLoadingInfo;
class QWebEngineProfile;
class QWebEngineView;

namespace velor {

class BrowserPage;
class PdfPrint;
class PhoneEmulation;

/// The preview browser on Qt WebEngine. Files are shown as parts of their site (SiteScheme), and
/// nothing else of this machine is. Page scripts run, in the engine's sandbox; what a page leaves
/// behind (cookies, cache, storage) goes with the browser, downloads are refused, and what
/// would open a window opens here instead. A hidden preview makes no sound. The status text is the
/// address under the pointer, else how the load stands.
class WebBrowser final : public QObject, public Browser, private PagePrinting {
  Q_OBJECT

 public:
  explicit WebBrowser(QWidget *parent);
  ~WebBrowser() override;

  QWidget *Widget() override;
  void SetListener(BrowserListener *listener) override;
  void SetSite(const QString &folder) override;
  void Navigate(const QUrl &url) override;
  void NavigateToText(const QString &html, const QUrl &baseUrl) override;
  void GoBack() override;
  void GoForward() override;
  void Refresh() override;
  void Stop() override;
  PagePrinting &Printing() override { return *this; }
  double Zoom() const override { return zoom_; }
  void SetZoom(double factor) override;
  void ShowAs(Device device) override;

 private:
  // PagePrinting
  void MakePdf(const PaperForm &form, Made made) override;
  void StopPdf() override;

  void LoadingChanged(const QWebEngineLoadingInfo &loading);
  /// Makes a text the state of the load, and shows it.
  void ShowLoadState(const QString &state);
  /// Shows a text in the status bar, over the state of the load.
  void ShowInStatusBar(const QString &text);
  void Load(const QUrl &address);
  /// Tells what page was loaded.
  void TellShown();
  /// Tells which parts of the page were not shown.
  void ReportRefused();
  /// Opens an address in the program that the desktop has for it (mailto: and the like).
  void OpenInOtherProgram(const QUrl &url);

  SiteScheme scheme_;
  std::unique_ptr<QWebEngineProfile> profile_;
  QPointer<QWebEngineView> view_;
  QPointer<BrowserPage> page_;
  std::unique_ptr<PhoneEmulation> phone_;  ///< null for a desktop
  BrowserListener *listener_ = nullptr;
  double zoom_ = 1;
  QUrl given_;               ///< the page that was navigated to last, without a fragment
  QString site_;             ///< native folder; empty for the folder of each page
  QString state_;            ///< of the last load, in words
  bool isOpening_ = false;   ///< `state_` says that a page is being opened
  QString stateBefore_;      ///< the state before the load under way
  bool isStopping_ = false;  ///< Stop was called during the load under way
  QStringList parts_;        ///< of the page, in logic form
  QTimer tellingParts_;
  std::unique_ptr<PdfPrint> print_;  ///< under way
  Made made_;                        ///< of print_
  QStringList refused_;              ///< parts of the page that lie outside of its site
};

}  // namespace velor
