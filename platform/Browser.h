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

  /// The folder (native) whose files the pages navigated to from now on may use; where a page lies
  /// outside of it, and for an empty text, it is the folder of the page itself. Nothing else of
  /// this machine is shown to a page, and what a page names outside is told as status text.
  virtual void SetSite(const QString &folder) = 0;
  virtual void Navigate(const QUrl &url) = 0;
  /// Shows a text in the place of the file `baseUrl`, which need not exist, or of a page in that
  /// folder (ending in "/").
  virtual void NavigateToText(const QString &html, const QUrl &baseUrl) = 0;
  virtual void GoBack() = 0;
  virtual void GoForward() = 0;
  virtual void Refresh() = 0;
  virtual void Stop() = 0;
};

}  // namespace velor
