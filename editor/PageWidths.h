// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/EditorContext.h"
#include "editor/WidthsBar.h"
#include "platform/Browser.h"

#include <QObject>
#include <QString>

#include <functional>
#include <optional>

namespace velor {

class FrontWindow;
class PageFrame;
class frmMain;

/// At which width a window shows its page. All pages of a site, and their previews, are shown at
/// the same; it is kept with the preferences, never in a page. A site is the folder of a project,
/// else the page's own. Previews can be a phone's too. With the published behaviour only there is
/// no choice.
class PageWidths final : public QObject {
  Q_OBJECT

 public:
  /// Lays `view` into the frame. `window` is a FrontWindow, and outlives this object, its child.
  /// `applyZoom` as PageFrame has it. `showAs` shows the page as a device does; empty where it
  /// cannot.
  PageWidths(EditorContext &context, QWidget &window, QWidget &view,
             std::function<void(double)> applyZoom,
             std::function<void(Browser::Device)> showAs = {});

  PageFrame &Frame() { return *frame_; }
  WidthsBar &Bar() { return *bar_; }

  /// Opens the bar with the keyboard in it, or closes it.
  void Toggle();
  /// To be called when the window has come to the front, or shows another page: shows the site's
  /// width, and what the bar says of the page. Waits for the page.
  void Follow();
  /// To be called when the window shows the page in another view: sources have no width.
  void ShowBar();
  /// To be called when a browser shows that page, the one of this window or another.
  void PageShown(const ShownPage &shown);
  /// To be called when the page's text has changed.
  void DocumentChanged();

 private:
  /// The page that is shown; null where it is closed.
  frmMain *Page() const;
  /// Where the choice is kept: the site's folder in a form for names of values; empty for a page
  /// that was not saved yet.
  QString Site() const;
  void Choose(std::optional<int> width);
  void ChooseDevice(Browser::Device device);
  /// Keeps what is chosen with the preferences.
  void Keep() const;
  void ShowDevice();
  void ReadFacts();
  void AddViewport();

  EditorContext &context_;
  QWidget &window_;
  FrontWindow &front_;
  PageFrame *frame_;
  WidthsBar *bar_;
  std::function<void(Browser::Device)> showAs_;
  Browser::Device device_ = Browser::Device::Desktop;
  QString site_;                    ///< whose width is shown
  std::optional<ShownPage> shown_;  ///< by the browser; none of a page that is edited
  QString head_;                    ///< of the page, as it was when the facts were read
};

}  // namespace velor
