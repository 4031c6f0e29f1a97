// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "chrome/ProgramWindow.h"
#include "editor/EditorContext.h"
#include "editor/FrontWindow.h"
#include "editor/PageJournal.h"
#include "editor/PageRecord.h"
#include "editor/SourceCaret.h"
#include "editor/SourceSearch.h"
#include "editor/SourceSpelling.h"
#include "editor/modWorkFlow.h"
#include "platform/EditingCommands.h"
#include "platform/EditingComponent.h"
#include "platform/SourceControl.h"

#include <QWidget>

#include <cstdint>
#include <memory>

class QStackedLayout;
class QToolBar;

namespace velor {

class FindBar;
class OutsideChanges;
class PagePictures;
class PageWidths;
class PictureFitting;
class SpellingBar;
class ToolBarAction;

/// The document window: one page, in design view (`DHTML1`) or source view (`Code1`) lying in the
/// same place, under the mode toolbar `tbrQuick`.
///
/// Invariant: the design view always holds the truth of the page; the source view is a copy for
/// reading.
class frmMain : public QWidget, public ProgramWindow, public FrontWindow, private EditingListener {
  Q_OBJECT

 public:
  /// `number` is the page's slot; Tag is set to it later, by the operation that makes the page.
  frmMain(EditorContext &context, int number);
  ~frmMain() override;

  /// The page number as text, or "kill". Lookups go through Number(), which keeps its value.
  QString Tag;
  /// "gethtml": the loaded HTML is to become the saved baseline; "kill": close unasked; or "".
  QString PendingAction;
  /// "True" once the page is set up; until then selection changes are ignored.
  QString Ready;

  int Number() const { return number_; }
  EditingComponent &DHTML1() { return *component_; }
  SourceControl &Code1() { return *source_; }
  EditorContext &Context() { return context_; }
  PageJournal &Journal() { return journal_; }
  OutsideChanges &Outside() { return *outside_; }
  SpellingBar &Spelling() { return *spellingBar_; }
  /// The spelling of Code1.
  PageSpelling &SourceWords() { return sourceSpelling_; }
  PictureFitting &Fitting() { return *fitting_; }
  /// Whoever puts a picture into the page asks this for its address.
  PagePictures &Pictures() { return *pictures_; }

  /// 1 design, 2 view HTML, 3 edit HTML, 4 preview; anything else does nothing.
  void ChangeMode(std::int32_t mode);
  /// Opens the source editor with this page's source. In an editor that is open already the source
  /// is replaced (frmCodeEditor::Refill).
  void ShowEditor();
  /// Opens the source editor with a source that is not applied to the page.
  void ReopenEditor(const QString &source);
  /// Shows the tag of the element under the caret in the status bar and, for a link, its target in
  /// a tooltip.
  void DynaLink();
  /// Shows the status of `command` on the editing toolbar's button of the command `button`.
  void EditBarCheck(EditingCommand button, EditingCommand command);
  /// Updates the main window's formatting buttons and boxes to the selection.
  void RefreshMfrm();
  /// Sets the caption of this page's tab to this window's.
  void UpdateTabCaption();
  /// Enables source editing unless the page is read-only.
  void CheckAcc();
  /// The element under the caret, or the selected object.
  HtmlElement GetActiveElement();
  /// The page as HTML text, as a save would write it. Also writes it to the page's temporary copy;
  /// a failure of that is ignored.
  QString CreatorHTML();
  /// A copy of the page's record.
  PageRecord GetPageRecord() const;

  // FrontWindow
  FrontView View() const override;
  int PageNumber() const override { return number_; }
  QString ShownName() const override;
  QString FilePath() const override { return PagePath(context_, number_); }
  void Edit(EditingCommand command) override;
  void OnActivated() override;
  PagePrinting *Printing() override { return &component_->Printing(); }
  /// Of the view that is shown.
  PageSpelling *SpellCheck() override;
  double Zoom() const override;
  void SetZoom(double factor) override;
  bool ToggleWidths() override;

  /// Turn the view's details, or its grid, on or off, and keep the choice.
  void ToggleShowDetails();
  void ToggleSnapToGrid();

  /// Shows in the preview what a link of this page with that address leads to.
  void FollowLink(const QString &address);

  /// Updates the page's tab: the path of its file, and whether the page has unsaved changes.
  void ShowTab();
  /// Reads the page's HTML again, where the source view shows it.
  void RefreshSourceView();
  void MarkKill() override;

  /// Whether its file was last written anew as a whole: the person has agreed, and what the file
  /// held before is kept.
  bool WasWrittenAnew = false;

  // The pointer's place in the page at the last mouse notice, in CSS pixels.
  int ClientX = 0;
  int ClientY = 0;

 protected:
  void closeEvent(QCloseEvent *event) override;

 private:
  void DocumentComplete() override;
  void DisplayChanged() override;
  void MemoryChanged() override;
  void ContextMenuRequested(QPoint screenPosition) override;
  void MouseNotified(int clientX, int clientY) override;
  void ComponentReported(const QString &message) override;
  void PartsShown(const QStringList &paths) override;
  void FilesDropped(const QStringList &paths) override;
  bool PicturePasted(const QImage &image) override;
  void PicturesPasted(const QStringList &addresses) override;
  void PictureOpened() override;
  void LinkFollowed(const QString &address) override { FollowLink(address); }

  void BuildToolBar();
  /// A button of the mode toolbar by its key; null for an unknown one.
  ToolBarAction *QuickButton(QStringView key) const;
  void QuickButtonClicked(int position);
  void ShowDesign();
  void ViewHtml();
  /// Checks the mode's button and, if the window is in front, updates the bars to the view.
  void ShowMode();
  /// Updates the formatting bar and the status bar to the view.
  void ShowState();
  bool IsInFront() const;
  void EditHtml();
  /// Shows the page in the preview, at the place of that name where it is not empty.
  void Preview(const QString &fragment = {});
  /// Writes the text to the page's temporary copy; false where that fails or there is no place for
  /// one.
  bool RenewTemporaryCopy(const QString &text, modWorkFlow::CopyEnd end);
  /// Moves the page's caret to the place of the source view's caret, where that was moved.
  void ReturnCaretFromSource();

  EditorContext &context_;
  const int number_;
  std::unique_ptr<EditingComponent> component_;
  std::unique_ptr<SourceControl> source_;
  SourceSearch sourceSearch_;
  SourceSpelling sourceSpelling_;
  PageJournal journal_;
  bool isReadOnlyTold_ = false;
  SourceCaret shownCaret_;  ///< the source view's caret as ViewHtml left it
  QToolBar *modeBar_ = nullptr;
  QStackedLayout *views_ = nullptr;
  PageWidths *widths_ = nullptr;
  FindBar *findBar_ = nullptr;
  OutsideChanges *outside_ = nullptr;
  std::unique_ptr<PagePictures> pictures_;
  PictureFitting *fitting_ = nullptr;
  SpellingBar *spellingBar_ = nullptr;
};

}  // namespace velor
