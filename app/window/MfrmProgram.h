// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/window/CommandRouter.h"
#include "app/window/LoadOrder.h"
#include "app/window/MenuBuilder.h"
#include "app/window/MenuSettings.h"
#include "editor/EditorContext.h"
#include "editor/MainWindow.h"
#include "editor/PageSlots.h"

#include <QMainWindow>
#include <QPointer>

#include <memory>

class QLabel;

namespace velor {

class CoolBar;
class EditingComponent;
class InsertCommands;
class PageArea;
class PageChooser;
class PageTabs;
class ProjectDesk;
class RecoveryBar;
class StyleMenuPainter;
class StylingSweeps;

/// The main window: menus, the band bar `CoolBar` with its two toolbars and the formatting boxes,
/// the page tabs `FileTab` and the page chooser `CmbPages` on `picFileTab`, the area of the child
/// windows and the status bar `Sta`. It arranges and shows; what its commands do is the router's.
class MfrmProgram final : public QMainWindow,
                          public MainWindow,
                          private CommandHost,
                          private LoadSteps {
  Q_OBJECT

 public:
  /// Both must outlive the window.
  MfrmProgram(Platform &platform, ProgramValues &values);
  ~MfrmProgram() override;

  /// Prepares the window step by step and shows it.
  void Load();

  CommandRouter &Router() { return router_; }
  EditorContext &Context() { return context_; }

  // MainWindow
  void AdoptWindow(QWidget *window) override;
  void ShowWindow(QWidget *window) override;
  void ActivateWindow(QWidget *window) override;
  void HideWindow(QWidget *window) override;
  void ReleaseWindow(QWidget *window) override;
  int TabCount() const override;
  void AddTab(const QString &key, int image) override;
  void SetTabCaption(const QString &key, const QString &caption) override;
  void SetTabCaptionAt(int position, const QString &caption) override;
  void SelectTab(const QString &key) override;
  void RemoveTab(const QString &key) override;
  void ClearTabs() override;
  void SetPageCommandsEnabled(bool enabled) override;
  void SetSourceEditingEnabled(bool enabled) override;
  void RefreshCommandState() override;
  void ResetElementInspection() override;
  void SetEditButton(const QString &key, bool enabled, bool pressed) override;
  void DisableEditButton(const QString &key) override;
  void ShowFontName(const QString &name) override;
  void ShowBackColor(const QString &htmlColor) override;
  void ShowForeColor(const QString &htmlColor) override;
  void ShowBlockFormat(const QString &name) override;
  void ShowFontSize(const QString &points) override;
  void SetStatusText(const QString &text) override;
  void ShowTextForm(const QString &words) override;
  void ReportInStatusBar(const QString &message) override;
  void PopUpContextMenu(QPoint screenPosition) override;
  void TakeDroppedFiles(const QStringList &paths, frmMain *page) override;
  FileDialog &SharedFileDialog() override;

 Q_SIGNALS:
  /// The window is about to go, and every other window with it, unasked.
  void Unloading();
  /// The window has gone and every other window with it: the program is to end.
  void Unloaded();

 protected:
  void closeEvent(QCloseEvent *event) override;
  void dragEnterEvent(QDragEnterEvent *event) override;
  void dropEvent(QDropEvent *event) override;

 private:
  // CommandHost
  frmMain *ActiveDocument() override;
  bool IsMenuItemEnabled(const QString &name) const override;
  void SetMenuItemEnabled(const QString &name, bool enabled) override;
  void ChooseMenuStyle(int index) override;
  void ShowProjectManager() override;
  void ShowAbout() override;
  void CloseProgram() override;

  // LoadSteps
  void InitialiseHiddenComponent() override;
  void InitialiseFontPicker() override;
  void CreateBlockFormatNames() override;
  void SetFontSizeList() override;
  void PrepareControlsAndMenus() override;
  void ShowWithoutWaiting() override;
  void FinishPreparation() override;

  void BuildLayout();
  QWidget *BuildTabRow();
  void BuildStatusBar();
  void ConnectBars();
  void ChildActivated();

  Platform &platform_;
  PageSlots pages_;
  EditorContext context_;
  /// Null where windows are not to be styled.
  std::unique_ptr<StylingSweeps> sweeps_;
  std::unique_ptr<InsertCommands> insert_;
  CommandRouter router_;
  MenuPictures menuPictures_;
  Menus menus_;
  StyleMenuPainter *PM;
  CoolBar *coolBar_;
  PageTabs *FileTab;
  PageTabs *FileTab2;
  PageChooser *CmbPages;
  RecoveryBar *recovery_;
  PageArea *area_;
  QLabel *statusText_ = nullptr;
  QLabel *textForm_ = nullptr;
  QAction *sourceEditing_;
  std::unique_ptr<ProjectDesk> projects_;
  std::unique_ptr<EditingComponent> DE1;
  std::unique_ptr<FileDialog> fileDialog_;
  QPointer<QWidget> lastActivated_;
  /// The element under the caret as the tool box knows it; empty where none is looked at.
  QString inspectedElement_;
};

}  // namespace velor
