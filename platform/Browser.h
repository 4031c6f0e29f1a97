// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QUrl>

class QWidget;

namespace velor {

class BrowserListener {
 public:
  virtual ~BrowserListener() = default;
  /// The address under the pointer, else how the load stands; also that the page's process has
  /// ended, after which Refresh shows the page again.
  virtual void StatusTextChanged(const QString &text) = 0;
  /// Both 32-bit, as browsers of old report them; done when equal.
  virtual void ProgressChanged(int progress, int maximum) = 0;
};

/// A web browser for previews: scripts on, a profile of its own that remembers nothing, downloads
/// refused.
class Browser {
 public:
  virtual ~Browser() = default;

  virtual QWidget *Widget() = 0;
  virtual void SetListener(BrowserListener *listener) = 0;

  virtual void Navigate(const QUrl &url) = 0;
  /// Shows a page that has no file: its relative links resolve against `baseUrl`. The browser keeps
  /// a private copy as long as it lives.
  virtual void NavigateToText(const QString &html, const QUrl &baseUrl) = 0;
  virtual void GoBack() = 0;
  virtual void GoForward() = 0;
  virtual void Refresh() = 0;
  virtual void Stop() = 0;
};

}  // namespace velor
