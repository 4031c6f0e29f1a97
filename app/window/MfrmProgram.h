// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/window/CommandRouter.h"
#include "app/window/CommandState.h"
#include "app/window/LoadOrder.h"
#include "app/window/MenuBuilder.h"
#include "app/window/MenuSettings.h"
#include "app/window/PageOpener.h"
#include "app/window/SelectionItems.h"
#include "editor/EditorContext.h"
#include "editor/MainWindow.h"
#include "editor/PageSlots.h"
#include "platform/EngineVersion.h"

#include <QMainWindow>
#include <QPointer>

#include <memory>

namespace velor {

class CoolBar;
class EditingComponent;
class Help;
class InsertCommands;
class PageArea;
class PageChooser;
class PageTabs;
class PdfExport;
class Printers;
class ProjectDesk;
class RecentFiles;
class RecoveryBar;
class Shortcuts;
class StatusLine;
class StyleMenuPainter;
class StylingSweeps;
struct NamedCommand;
struct PaletteWords;
struct ProgramValues;

/// The main window: menus, the band bar `CoolBar` with its two toolbars and the formatting boxes,
/// the page tabs `FileTab` and the page chooser `CmbPages` on `picFileTab`, the area of the child
/// windows and the status bar `Sta`. It creates and connects these parts; CommandRouter carries out
/// its commands.
class MfrmProgram final : public QMainWindow,
                          private PageRequests,
                          private CommandHost,
                          private LoadSteps {
  Q_OBJECT

 public:
  /// Both must outlive the window.
  MfrmProgram(Platform &platform, ProgramValues &values);
  ~MfrmProgram() override;

  /// Prepares the window in the order of LoadSteps and shows it.
  void Load();

  /// Closes the window from the program's own event loop, when all dialogs are closed, as Escape
  /// does it, and no page is waited for. close() comes to the same.
  void CloseWhenIdle();

  /// What the About box tells of the browser engine.
  void SetEngine(const EngineVersion &engine) { engine_ = engine; }

  /// Where pages are printed; it outlives the window. Without this call they are only shown.
  void SetPrinters(Printers &printers) { printers_ = &printers; }

  /// Takes the keyboard, where the desktop lets it.
  void ComeToFront();

  /// Lets a person choose one of the files of Tools > Recent Files. Without that menu nothing
  /// happens.
  void ShowRecentFiles();

  CommandRouter &Router() { return router_; }
  PageOpener &Opener() { return opener_; }
  EditorContext &Context() { return context_; }

 Q_SIGNALS:
  /// The window is about to close, and all others with it, without a question.
  void Unloading();
  /// The window and all others are closed: the program is to end.
  void Unloaded();

 protected:
  void closeEvent(QCloseEvent *event) override;
  void dragEnterEvent(QDragEnterEvent *event) override;
  void dropEvent(QDropEvent *event) override;

 private:
  // PageRequests
  void PopUpContextMenu(QPoint screenPosition) override;
  void OpenDroppedFiles(const QStringList &paths, frmMain *page) override;
  void ShowPictureProperties(frmMain &page) override;
  void CropPicture(frmMain &page) override;
  void ResetElementInspection() override;

  // CommandHost
  FrontWindow *Front() override;
  QAction &MenuItem(const Command &command) override;
  void ChooseMenuStyle(int index) override;
  void ArrangeWindows(int arrangement) override;
  void ShowProjectManager() override;
  void ShowAbout() override;
  void ShowHelp() override;
  void ShowCommandPalette() override;
  void ShowDrives() override;
  void ShowShortcuts() override;
  void ShowSettings() override;
  void ExportPdf(FrontWindow &front) override;
  void Print(FrontWindow &front) override;
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
  void ConnectBars();
  /// Updates bars and titles for the window that has come to the front.
  void ShowFront();
  /// Dresses the menus by the preferences. Raises RuntimeError as PrepareMenus does.
  void DressMenus();
  void MarkMenuStyle(int index);
  /// The menu Tools, where it is there: the files opened last, and what is chosen there.
  void PrepareTools();
  /// Runs the item that a person chooses.
  void RunPalette(const PaletteWords &words, const QList<NamedCommand> &commands);
  /// The manual, where additions are on.
  void PrepareHelp();

  Platform &platform_;
  const Additions additions_;
  PageSlots pages_;
  Menus menus_;
  CoolBar *bandBar_;
  PageTabs *pageTabs_;
  PageTabs *secondTabs_;
  PageArea *area_;
  StatusLine *statusLine_;
  QAction *sourceEditing_;
  CommandState commands_;
  SelectionItems selectionItems_;
  std::unique_ptr<FileDialog> fileDialog_;
  EditorContext context_;
  /// Null where controls are not styled.
  std::unique_ptr<StylingSweeps> sweeps_;
  std::unique_ptr<InsertCommands> insert_;
  PageOpener opener_;
  CommandRouter router_;
  MenuPictures menuPictures_;
  StyleMenuPainter *menuPainter_;
  PageChooser *pageChooser_;
  RecoveryBar *recovery_;
  PdfExport *pdfExport_;
  std::unique_ptr<ProjectDesk> projects_;
  std::unique_ptr<EditingComponent> formatNames_;
  // Null without the menu Tools.
  RecentFiles *recent_ = nullptr;
  Shortcuts *shortcuts_ = nullptr;
  EngineVersion engine_;
  Printers *printers_ = nullptr;
  std::unique_ptr<Help> help_;  ///< null without additions
  /// How far the window is on its way to be closed.
  enum class Closing { No, Awaited, Due, UnderWay };
  Closing closing_ = Closing::No;
  /// At the head of the context menu, while the word there is unknown.
  QList<QAction *> wordActions_;
  /// The element under the caret that the tool box shows; empty for none.
  QString inspectedElement_;
};

}  // namespace velor
