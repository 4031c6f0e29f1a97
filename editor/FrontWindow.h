// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/EditingCommands.h"

#include <QString>

namespace velor {

struct EditorContext;

/// What a child window shows.
enum class FrontView {
  Nothing,  ///< there is no child window in front
  Design,
  SourceView,
  SourceEditor,
  Preview,
};

/// A child window as the main window sees it while it is in front.
class FrontWindow {
 public:
  virtual ~FrontWindow() = default;
  virtual FrontView View() const = 0;
  /// The slot of the page that it shows; 0 for the preview of a text that no page holds.
  virtual int PageNumber() const = 0;
  /// Its name in titles and in the Window menu: the page's, and what is shown of it where that is
  /// not the page itself ("a.htm, HTML source").
  virtual QString ShownName() const = 0;
  /// The page's file as people read paths; empty where it has none.
  virtual QString FilePath() const = 0;
  /// Carries out a command on what is seen. One that the view has no use for does nothing.
  virtual void Edit(EditingCommand command) = 0;
  /// It has come to the front: shows in the bars what is true of it.
  virtual void OnActivated() = 0;
};

/// The name of a slot's page as its window has it now; the record's caption where the window has
/// gone.
QString PageName(const EditorContext &context, int number);

/// The file of a slot's page as people read paths; empty where it has none.
QString PagePath(const EditorContext &context, int number);

/// Shows in the bars what is true of a page of which something else than the design view is in
/// front: its tab, charset and line ends; nothing to format.
void ShowPageWithoutFormats(const EditorContext &context, int number);

}  // namespace velor
