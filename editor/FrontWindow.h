// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/EditingCommands.h"

#include <QString>

namespace velor {

class PagePrinting;
class PageSpelling;
struct EditorContext;

/// What a child window shows.
enum class FrontView {
  Nothing,  ///< there is no child window in front
  Design,
  SourceView,
  SourceEditor,
  Preview,
};

/// A child window, for the commands and displays of the main window while it is in front.
class FrontWindow {
 public:
  virtual ~FrontWindow() = default;
  virtual FrontView View() const = 0;
  /// The slot of the page that it shows; 0 for the preview of a text that is no page's.
  virtual int PageNumber() const = 0;
  /// Its name in titles and in the Window menu: the page's, and what is shown of it where that is
  /// not the page itself ("a.htm, HTML source").
  virtual QString ShownName() const = 0;
  /// The page's file in the form for people (ForPeople); empty where it has none.
  virtual QString FilePath() const = 0;
  /// Carries out a command on what it shows; one that does not apply to the view does nothing.
  virtual void Edit(EditingCommand command) = 0;
  /// To be called when it has come to the front: updates the bars of the main window.
  virtual void OnActivated() = 0;
  /// Puts what it shows on paper; null where it shows nothing any more.
  virtual PagePrinting *Printing() = 0;
  /// The spelling of what it shows; null where that has none.
  virtual PageSpelling *SpellCheck() { return nullptr; }
  /// How large the page is shown, 1 for its own size. Sources have none of it.
  virtual double Zoom() const { return 1; }
  virtual void SetZoom(double /*factor*/) {}
  /// Opens the bar with the widths of the page, or closes it. False where there are none: sources
  /// have no width.
  virtual bool ToggleWidths() { return false; }
};

/// The name of a slot's page: the title of its window, or the record's caption where that is gone.
QString PageName(const EditorContext &context, int number);

/// The file of a slot's page in the form for people (ForPeople); empty where it has none.
QString PagePath(const EditorContext &context, int number);

/// What the status bar shows of a page: charset, line ends, and how large it is shown unless that
/// is its own size.
QString TextFormAndZoom(const QString &textForm, double zoom);

/// Updates the bars for a page whose source or preview is in front: selects its tab, shows charset
/// and line ends, and disables formatting.
void ShowPageWithoutFormats(const EditorContext &context, int number);

}  // namespace velor
