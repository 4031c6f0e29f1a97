// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Browser.h"
#include "tests/support/CallLog.h"
#include "tests/support/FakePagePrinting.h"

#include <QPointer>
#include <QWidget>

namespace velor {

/// A browser that loads nothing and notes what it was told to load.
class FakeBrowser final : public Browser {
 public:
  explicit FakeBrowser(QWidget *parent, CallLog *log = nullptr)
      : log_(log), widget_(new QWidget(parent)) {}
  ~FakeBrowser() override { delete widget_; }

  QUrl url;
  QString site;
  QString html;  ///< of NavigateToText
  BrowserListener *listener = nullptr;
  FakePagePrinting printing;
  double zoom = 1;
  Device device = Device::Desktop;

  QWidget *Widget() override { return widget_; }
  void SetListener(BrowserListener *newListener) override { listener = newListener; }
  void SetSite(const QString &folder) override { site = folder; }
  void Navigate(const QUrl &newUrl) override {
    Note(log_, QStringLiteral("Browser.Navigate(%1)").arg(newUrl.toString()));
    url = newUrl;
  }
  void NavigateToText(const QString &newHtml, const QUrl &baseUrl) override {
    Note(log_, QStringLiteral("Browser.NavigateToText(%1)").arg(baseUrl.toString()));
    html = newHtml;
    url = baseUrl;
  }
  void GoBack() override { Note(log_, QStringLiteral("Browser.GoBack()")); }
  void GoForward() override { Note(log_, QStringLiteral("Browser.GoForward()")); }
  void Refresh() override { Note(log_, QStringLiteral("Browser.Refresh()")); }
  void Stop() override { Note(log_, QStringLiteral("Browser.Stop()")); }
  PagePrinting &Printing() override { return printing; }
  double Zoom() const override { return zoom; }
  void SetZoom(double factor) override { zoom = factor; }
  void ShowAs(Device newDevice) override { device = newDevice; }

 private:
  CallLog *log_;
  QPointer<QWidget> widget_;
};

}  // namespace velor
