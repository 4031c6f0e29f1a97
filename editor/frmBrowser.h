// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "chrome/ProgramWindow.h"
#include "editor/EditorContext.h"
#include "editor/FrontWindow.h"
#include "platform/Browser.h"
#include "platform/FileWatch.h"

#include <QRect>
#include <QString>
#include <QWidget>

#include <cstdint>
#include <memory>
#include <optional>

class QLabel;
class QStatusBar;
class QToolBar;

namespace velor {

/// The progress of a load in whole percent modulo 100, so that a completed load is 0. 0 where
/// `maximum` is 0 or the computation leaves 32 bits.
int ProgressPercent(std::int32_t progress, std::int32_t maximum);

/// The browser's place in a window of that inner size: all between toolbar and status bar. nullopt
/// where the window is too low for the bars; the browser keeps its place then.
std::optional<QRect> BrowserPlace(QSize inner, int toolBarHeight, int statusBarHeight);

class PageWidths;
class frmBrowser;

/// The one preview window (EditorContext::preview); created as a child of the main window when
/// there is none.
frmBrowser &PreviewWindow(EditorContext &context);

/// The preview: shows a page as a web browser does. Created on first use; closing only hides it,
/// unless MarkKill was called.
class frmBrowser : public QWidget,
                   public ProgramWindow,
                   public FrontWindow,
                   private BrowserListener {
  Q_OBJECT

 public:
  explicit frmBrowser(EditorContext &context);
  ~frmBrowser() override;

  /// "kill": the next close really closes.
  QString Tag;
  QString PendingAction;

  Browser &WebBrowser() { return *browser_; }

  /// Carries out a toolbar button: "Back", "Forward", "Refresh", "Stop"; other keys do nothing.
  void ButtonClicked(const QString &key);

  /// Sets the slot of the page that is shown from now on; 0 for a text that is no page's.
  void SetPage(int number) { page_ = number; }

  // FrontWindow
  FrontView View() const override { return FrontView::Preview; }
  int PageNumber() const override { return page_; }
  QString ShownName() const override;
  QString FilePath() const override { return PagePath(context_, page_); }
  /// Does nothing: the preview is not edited.
  void Edit(EditingCommand) override {}
  void OnActivated() override;
  PagePrinting *Printing() override { return &browser_->Printing(); }
  double Zoom() const override;
  void SetZoom(double factor) override;
  bool ToggleWidths() override;

  void MarkKill() override;

  QSize sizeHint() const override;

 protected:
  void closeEvent(QCloseEvent *event) override;
  void resizeEvent(QResizeEvent *event) override;
  /// The bars' heights follow the font and the style.
  bool event(QEvent *event) override;

 private:
  void StatusTextChanged(const QString &text) override;
  void ProgressChanged(int progress, int maximum) override;
  void PartsShown(const QStringList &paths) override;
  void PageShown(const ShownPage &shown) override;

  void BuildToolBar();
  void BuildStatusBar();
  void PlaceParts();
  /// What the status bar shows of the page.
  void ShowTextForm();

  EditorContext &context_;
  std::unique_ptr<Browser> browser_;
  int page_ = 0;
  PageWidths *widths_ = nullptr;
  std::unique_ptr<FileWatch> parts_;  ///< of the page's files; null where files are not watched
  QToolBar *toolBar_ = nullptr;
  QStatusBar *statusBar_ = nullptr;
  QLabel *statusText_ = nullptr;
  QLabel *progress_ = nullptr;
};

}  // namespace velor
