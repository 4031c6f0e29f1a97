// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/window/Additions.h"
#include "app/window/Command.h"
#include "editor/modWorkFlow.h"
#include "platform/EditingCommands.h"

#include <QString>

#include <cstdint>

class QAction;

namespace velor {

class FrontWindow;
class InsertCommands;
class PageOpener;
class frmMain;
struct EditorContext;
struct GeneralButton;

/// What the router needs of the window whose commands it carries out.
class CommandHost {
 public:
  virtual ~CommandHost() = default;
  /// The child window in front; null when there is none.
  virtual FrontWindow *Front() = 0;
  /// The menu item that runs this command.
  virtual QAction &MenuItem(const Command &command) = 0;
  virtual void ChooseMenuStyle(int index) = 0;
  /// `arrangement` is an Arrangement.
  virtual void ArrangeWindows(int arrangement) = 0;
  virtual void ShowProjectManager() = 0;
  virtual void ShowAbout() = 0;
  /// Shows the manual at the place for what has the keyboard.
  virtual void ShowHelp() = 0;
  virtual void ShowCommandPalette() = 0;
  virtual void ShowDrives() = 0;
  virtual void ShowShortcuts() = 0;
  virtual void ShowSettings() = 0;
  /// Asks for a file and writes what that window shows into it as a PDF.
  virtual void ExportPdf(FrontWindow &front) = 0;
  /// Shows what that window shows as it goes on paper, and prints it.
  virtual void Print(FrontWindow &front) = 0;
  virtual void CloseProgram() = 0;
};

/// Carries out the commands of menus, toolbars and formatting boxes: editing by the component of
/// the active page window, files by modWorkFlow. A command that needs a page window does nothing
/// without one. With additions, the commands of the Edit menu act on the window in front whatever
/// it shows, and saving and previewing on its page.
class CommandRouter {
 public:
  CommandRouter(EditorContext &context, CommandHost &host, InsertCommands &insert,
                PageOpener &opener, Additions additions);

  void Run(const Command &command);
  /// Runs the button's command unless it has a guard (Guard::MenuItem) that is disabled.
  void Click(const GeneralButton &button);

  // For the formatting boxes. The command is sent only when the value differs from the page's.
  void SetBlockFormat(const QString &name);
  void SetFontSize(const QString &points);
  void SetFontName(const QString &name);
  /// Colours are always sent, and the page gets the focus.
  void SetForeColor(std::int32_t color);
  void SetBackColor(std::int32_t color);

 private:
  void NewPage();
  void OpenPage();
  void SavePage(modWorkFlow::SaveKind kind);
  /// Puts what the window in front shows on paper in that way.
  void PutOnPaper(void (CommandHost::*way)(FrontWindow &));
  /// Shows what is in front larger or smaller, or in its own size (NextZoom).
  void Zoom(int steps);
  /// Opens or closes the bar with the widths of what is in front.
  void ToggleWidths();
  /// Applies source that was typed into the window, if it is a source editor, to its page. False
  /// where that cannot be done.
  bool ApplySource(const FrontWindow &front);
  void Preview();
  /// The page window in front; null when the window in front is another one, or there is none.
  frmMain *ActiveDocument();
  void Edit(EditingCommand command);
  /// Pastes the clipboard's text into the page in front: "text", "table" or "markdown"; see
  /// docs/bridge.md, pasteAs. In a source editor all of them paste the text.
  void PasteAs(const QString &form);
  /// The bar of that kind in the window in front; null where it has none.
  template <typename Bar>
  Bar *BarInFront();
  /// Opens the find bar of the window in front, or goes on with its search.
  void FindInFront(CommandId step);
  void Insert(void (InsertCommands::*insertion)(frmMain &));
  void SetValue(EditingCommand query, EditingCommand set, const QString &value);
  void SetColor(EditingCommand set, std::int32_t color);

  EditorContext &context_;
  CommandHost &host_;
  InsertCommands &insert_;
  PageOpener &opener_;
  const Additions additions_;
};

}  // namespace velor
