// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "chrome/ProgramWindow.h"
#include "editor/EditorContext.h"
#include "editor/FrontWindow.h"
#include "platform/Browser.h"

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

/// The share of a load that is done, as the preview shows it: whole percent modulo 100, so that a
/// completed load reads 0; 0 too where it cannot be computed in 32 bits.
int ProgressPercent(std::int32_t progress, std::int32_t maximum);

/// Where the browser lies in a window of that inner size: all of it between toolbar and status bar.
/// None where the window is too low for the bars: the browser then stays where it was.
std::optional<QRect> BrowserPlace(QSize inner, int toolBarHeight, int statusBarHeight);

class frmBrowser;

/// The one preview window; made, as a child of the main window, when there is none.
frmBrowser &PreviewWindow(EditorContext &context);

/// The preview: a page as a web browser shows it. Made on first use and then kept; closing hides
/// it.
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

  /// Takes the slot of the page that is shown from now on; 0 for a text that no page holds.
  void SetPage(int number) { page_ = number; }

  // FrontWindow
  FrontView View() const override { return FrontView::Preview; }
  int PageNumber() const override { return page_; }
  QString ShownName() const override;
  QString FilePath() const override { return PagePath(context_, page_); }
  /// What is looked at here is not edited.
  void Edit(EditingCommand) override {}
  void OnActivated() override;

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

  void BuildToolBar();
  void BuildStatusBar();
  void PlaceParts();

  EditorContext &context_;
  std::unique_ptr<Browser> browser_;
  int page_ = 0;
  QToolBar *toolBar_ = nullptr;
  QStatusBar *statusBar_ = nullptr;
  QLabel *statusText_ = nullptr;
  QLabel *progress_ = nullptr;
};

}  // namespace velor
