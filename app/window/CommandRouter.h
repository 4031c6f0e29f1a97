// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/window/Additions.h"
#include "app/window/Command.h"
#include "app/window/ProjectPageQuery.h"
#include "editor/modWorkFlow.h"
#include "platform/EditingCommands.h"

#include <QString>
#include <QStringList>

#include <cstdint>
#include <memory>

class QAction;

namespace velor {

class FrontWindow;
class InsertCommands;
class frmMain;
struct EditorContext;
struct GeneralButton;

/// What the router asks of the window whose commands it carries out.
class CommandHost {
 public:
  virtual ~CommandHost() = default;
  /// The child window in front; null when there is none.
  virtual FrontWindow *Front() = 0;
  /// The menu item that runs this command.
  virtual QAction &MenuItem(const Command &command) = 0;
  virtual void ChooseMenuStyle(int index) = 0;
  virtual void ShowProjectManager() = 0;
  virtual void ShowAbout() = 0;
  virtual void CloseProgram() = 0;
};

/// Where every command of the menus, toolbars and formatting boxes arrives. The main window edits
/// nothing itself: editing goes to the active document's component, files to the page-file
/// operations. A command that needs a document does nothing without one. With additions, the
/// commands of the Edit menu act on what is in front, and saving and previewing on its page.
class CommandRouter {
 public:
  CommandRouter(EditorContext &context, const std::unique_ptr<DatabaseConnection> &catalogue,
                CommandHost &host, InsertCommands &insert, Additions additions);

  void Run(const Command &command);
  /// Runs the button's command unless its guard item is disabled.
  void Click(const GeneralButton &button);

  // The formatting boxes: the command is sent only when the value differs from the page's.
  void SetBlockFormat(const QString &name);
  void SetFontSize(const QString &points);
  void SetFontName(const QString &name);
  /// Colours are sent without a comparison, and the keyboard goes back to the page.
  void SetForeColor(std::int32_t color);
  void SetBackColor(std::int32_t color);

  /// An entry of the page chooser was chosen.
  void OpenProjectPage(int pageId);
  /// A file of the list of those opened last was chosen; the path in logic form. Opens it, or
  /// brings its page to the front; nothing while another load waits.
  void OpenRecentFile(const QString &path);
  /// Files were dropped, paths in logic form: pages open as far as there is room, whether the menu
  /// item is enabled or not; pictures go to the caret of `page`.
  void TakeDroppedFiles(const QStringList &paths, frmMain *page);
  /// A page's tab was chosen: its window is activated, made first where the slot is empty.
  void ActivatePage(int number);

 private:
  void NewPage();
  void OpenPage();
  /// Opens the file, or brings the page to the front that has it; the status bar says where that
  /// fails.
  void OpenFile(const QString &path);
  /// The shared dialog names the page that is active now.
  void HoldNameOfActivePage();
  void SavePage(modWorkFlow::SaveKind kind);
  void Preview();
  /// The page window in front; null when something else is, or nothing.
  frmMain *ActiveDocument();
  void Edit(EditingCommand command);
  void Insert(void (InsertCommands::*insertion)(frmMain &));
  void SetValue(EditingCommand query, EditingCommand set, const QString &value);
  void SetColor(EditingCommand set, std::int32_t color);

  EditorContext &context_;
  const std::unique_ptr<DatabaseConnection> &catalogue_;
  CommandHost &host_;
  InsertCommands &insert_;
  const Additions additions_;
  ProjectPageQuery projectPages_;
  /// A load waits, and files may be dropped meanwhile.
  bool isOpening_ = false;
};

}  // namespace velor
