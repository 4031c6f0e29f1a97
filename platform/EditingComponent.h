// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/EditingCommands.h"
#include "platform/ElementPlace.h"
#include "platform/HtmlDocument.h"
#include "platform/PageMemory.h"
#include "platform/TextCounts.h"

#include <QPoint>
#include <QString>
#include <QStringList>
#include <QVariant>

class QImage;
class QWidget;

namespace velor {

class PagePrinting;
class PageSpelling;
class TextSearch;

/// Answers of QueryStatus, with their published numbers.
enum class CommandStatus : int {
  NotSupported = 0,
  Disabled = 1,
  Enabled = 3,
  Latched = 7,   ///< on throughout the selection
  Ninched = 11,  ///< on in part of the selection
};

/// How a command may talk to the person; Default leaves it to the command.
enum class ExecOption : int { Default = 0, PromptUser = 1, DontPromptUser = 2 };

/// Receives the notices of an editing component. They come after the call that caused them has
/// returned, never from inside it; only ComponentReported also comes while a load is waited for.
class EditingListener {
 public:
  virtual ~EditingListener() = default;
  /// A document was set or loaded. Delivered before any user input reaches it.
  virtual void DocumentComplete() = 0;
  /// The selection, or the state of what is selected, has changed.
  virtual void DisplayChanged() = 0;
  /// The result of Memory may have changed.
  virtual void MemoryChanged() {}
  /// The person asked for a context menu. The component shows none itself.
  virtual void ContextMenuRequested(QPoint screenPosition) = 0;
  /// The pointer moved or pressed within the page, in CSS pixels of its viewport.
  virtual void MouseNotified(int clientX, int clientY) = 0;
  /// Text for the status bar (the page's engine stopped, was restarted ...); the empty text clears
  /// the last one.
  virtual void ComponentReported(const QString &message) = 0;
  /// The page shows these files beside its own, style sheets and pictures, paths in logic form;
  /// told whenever there is another. A file need not exist.
  virtual void PartsShown(const QStringList &) {}
  /// A link was clicked with Ctrl; its address as written in the page.
  virtual void LinkFollowed(const QString & /*address*/) {}
  /// Files were dropped on the page or pasted, paths in logic form. The component has put the caret
  /// where they were dropped and does nothing else with them.
  virtual void FilesDropped(const QStringList &) {}
  /// A picture that is in no file was pasted. The listener puts it into the page and answers true;
  /// otherwise the component does.
  virtual bool PicturePasted(const QImage & /*image*/) { return false; }
  /// Another program's markup was pasted with pictures that come from files or hold their file
  /// themselves (data:). Their addresses as written in the page.
  virtual void PicturesPasted(const QStringList & /*addresses*/) {}
  /// A picture was double clicked, and is selected.
  virtual void PictureOpened() {}
};

/// The surface on which a page is edited as it looks. Page scripts never run in it, nothing
/// navigates, nothing remote is fetched; the page's local pictures and style sheets show.
///
/// Invariants: DocumentHTML and SaveDocument carry no trace of the editor. Every change of the
/// document, typed or commanded, is in one undo history. States and values come from a snapshot
/// that follows each change of the selection; only reading the document waits for the engine.
class EditingComponent {
 public:
  virtual ~EditingComponent() = default;

  /// The widget to lay out; owned by the component and by its parent, whichever goes first.
  virtual QWidget *Widget() = 0;
  virtual void SetListener(EditingListener *listener) = 0;
  virtual void SetFocus() = 0;
  virtual void SetToolTip(const QString &text) = 0;

  /// The document as HTML text: doctype, comments and root element as the engine has them now.
  virtual QString DocumentHTML() = 0;
  /// Replaces the document; returns when it is parsed. Links in it resolve against the program
  /// folder. Its charset is the one it declares, else UTF-8; its line ends are those of `html`.
  virtual void SetDocumentHTML(const QString &html) = 0;

  /// Replaces the document by a file's; returns when it is parsed. Links resolve against the file.
  /// `path` in logic form. Raises RuntimeError when the file cannot be read or is too large (14);
  /// the old page stays. Raises it too where the person stops a long load. Where a document was
  /// loaded or set already whose links resolve against the same folder, the exchange is one step of
  /// the undo history, and undo brings back that document with its bytes. Where the file's document
  /// is the one on show, in whatever folder it was, that stays as it is with caret, place and undo
  /// history, and the file's bytes are what it came from.
  virtual void LoadDocument(const QString &path) = 0;
  /// Delivers a pending DocumentComplete at once; does nothing without one. Called before another
  /// page is made, so that each page has its baseline before the next.
  virtual void DeliverCompletion() = 0;
  /// Like LoadDocument of a file that holds `html`, without looking at the file, which need not
  /// exist. It is a text of the document on show: undo leads back also where the folder is another
  /// one, against which the links resolve from then on.
  virtual void LoadText(const QString &html, const QString &path) = 0;
  /// Writes the document to a file in the page's own charset and line ends. Raises RuntimeError
  /// when the file cannot be written; an old file then stays whole.
  virtual void SaveDocument(const QString &path) = 0;
  /// What SaveDocument would write, as text.
  virtual QString TextToSave() = 0;
  /// Why SaveDocument would rewrite the page's whole source, in words that complete a sentence
  /// after "since". Empty where it keeps the source except for the edits, and for a page without a
  /// source.
  virtual QString ReasonToWriteAnew() { return {}; }

  /// The page as last received from the engine, without waiting for it. At most 1.5 seconds old;
  /// when it is renewed MemoryChanged follows.
  virtual PageMemory Memory() const = 0;
  /// Whether everything typed so far is on the screen, so that work now delays no key. Asked when
  /// MemoryChanged comes.
  virtual bool IsIdle() const { return false; }
  /// Whether a call that waits for the engine, of this component or another, is on the call stack.
  virtual bool IsWaiting() const { return false; }
  /// Replaces the page by one that Memory gave, of an earlier run perhaps; returns when it is
  /// parsed. It counts as edited against memory.original, and is saved as such. Raises RuntimeError
  /// when it cannot be shown.
  virtual void Restore(const PageMemory &memory) = 0;

  /// The WHATWG name of the page's charset ("big5", "utf-8", "windows-1252" ...).
  virtual QString Charset() const = 0;
  /// The encoding of the page's file in words: charset, byte order mark, line ends
  /// ("utf-8 (BOM), CR LF").
  virtual QString TextForm() const = 0;
  /// Whether the page's bytes begin with a byte order mark.
  virtual bool HasByteOrderMark() const = 0;

  /// Shows a file of PartsShown as it is on the disk now; document, caret, scroll and undo history
  /// stay as they are.
  virtual void ReloadPart(const QString & /*path*/) {}

  /// The place of the caret or of the selection's start; empty where there is none or the page does
  /// not answer.
  virtual ElementPlaces CaretPlaces() = 0;
  /// Puts the caret to the first of these places that the document has, and scrolls it into view.
  virtual void ShowPlace(const ElementPlaces &places) = 0;

  /// The places of both ends of the selection; empty where CaretPlaces is.
  virtual ElementStretch SelectedPlaces() = 0;
  /// Selects from one place to the other, or as ShowPlace where there is no end.
  virtual void ShowStretch(const ElementStretch &stretch) = 0;

  /// Finds and replaces in the page's text. Comments, scripts and server code are no text. Valid as
  /// long as the component.
  virtual TextSearch &Search() = 0;
  /// Puts the page on paper. Valid as long as the component.
  virtual PagePrinting &Printing() = 0;
  /// The spelling of the page's words; null where there is none. Valid as long as the component.
  virtual PageSpelling *SpellCheck() { return nullptr; }
  /// Counts the words of the page; `counted` is called once, from the event loop, or never where
  /// the page does not answer.
  virtual void CountText(const TextCounted &counted) = 0;

  /// How large the page is shown, 1 for its own size, from 0.25 to 5. It stays over loads and is
  /// not part of the page.
  virtual double Zoom() const = 0;
  virtual void SetZoom(double factor) = 0;

  /// Carries out a command (EditingCommands.h) or, for a query command, returns its value: font
  /// name, block format name and size as text, colours as "#RRGGBB"; the empty text where the
  /// selection is mixed. A command that does not apply does nothing.
  virtual QVariant ExecCommand(EditingCommand command, ExecOption option = ExecOption::Default,
                               const QVariant &value = {}) = 0;
  /// From the last snapshot of the selection; does not wait.
  virtual CommandStatus QueryStatus(EditingCommand command) const = 0;
  /// The values of SetBlockFormat and GetBlockFormat, in the order to list them.
  virtual QStringList BlockFormats() const = 0;

  /// The document object. Valid as long as the component.
  virtual HtmlDocument &Document() = 0;

  /// Glyphs for paragraphs, breaks, comments and the like; never part of the page.
  virtual bool ShowDetails() const = 0;
  virtual void SetShowDetails(bool on) = 0;
  /// Positioned elements snap to a grid of 50 pixels when dragged.
  virtual bool SnapToGrid() const = 0;
  virtual void SetSnapToGrid(bool on) = 0;
};

}  // namespace velor
