// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>

class QWidget;

namespace velor {

class PagePrinting;

/// What a browser tells of a page that it has loaded.
struct ShownPage {
  /// The browser was told to show it; false for a page that a link or a script led to.
  bool isGiven = true;
  /// The widths at which its style sheets change, in CSS pixels, the smallest first.
  QList<int> breakpoints;
};

/// Receives what a browser reports.
class BrowserListener {
 public:
  virtual ~BrowserListener() = default;
  /// Text for the status bar: the address of the link under the pointer, else the state of the
  /// load. Also reports that the page's process has ended; Refresh shows the page again then.
  virtual void StatusTextChanged(const QString &text) = 0;
  /// The page shows these files of its site beside its own, style sheets and pictures, paths in
  /// logic form; told whenever there is another.
  virtual void PartsShown(const QStringList &) {}
  /// A page has been loaded.
  virtual void PageShown(const ShownPage &) {}
  /// Progress of a load as two 32-bit numbers; it is complete when both are equal.
  virtual void ProgressChanged(int progress, int maximum) = 0;
};

/// A web browser for previews. Scripts run; nothing is remembered between runs (a profile of its
/// own, off the record); downloads are refused.
class Browser {
 public:
  virtual ~Browser() = default;

  virtual QWidget *Widget() = 0;
  /// At most one; null for none. It outlives the browser or is unset before it goes.
  virtual void SetListener(BrowserListener *listener) = 0;

  /// Sets the folder (native) whose files may be used by pages navigated to from now on. For a page
  /// outside of it, and for the empty text, that is the page's own folder. No other file of this
  /// machine is given to a page; a file that was refused is reported as status text.
  virtual void SetSite(const QString &folder) = 0;
  virtual void Navigate(const QUrl &url) = 0;
  /// Shows `html` as if it were the file `baseUrl`, which need not exist, or a file in the folder
  /// `baseUrl` (ending in "/").
  virtual void NavigateToText(const QString &html, const QUrl &baseUrl) = 0;
  virtual void GoBack() = 0;
  virtual void GoForward() = 0;
  virtual void Refresh() = 0;
  virtual void Stop() = 0;
  /// Puts what is shown on paper. Valid as long as the browser.
  virtual PagePrinting &Printing() = 0;

  /// How large the page is shown, 1 for its own size, from 0.25 to 5. It stays over loads and is
  /// not part of the page.
  virtual double Zoom() const = 0;
  virtual void SetZoom(double factor) = 0;

  /// What a page is shown on. A phone has touch in the mouse's place, a sharper screen, the name of
  /// a phone's browser, and lays a page out as its viewport declaration says.
  enum class Device { Desktop, Phone };
  /// Shows pages as that device does from now on, the one on show too.
  virtual void ShowAs(Device device) = 0;
};

}  // namespace velor
