// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "chrome/ProgramWindow.h"
#include "editor/EditorContext.h"
#include "editor/FrontWindow.h"
#include "editor/SourceCaret.h"
#include "editor/SourceSearch.h"
#include "editor/SourceSpelling.h"
#include "platform/SourceControl.h"

#include <QString>
#include <QWidget>

#include <cstdint>
#include <memory>
#include <optional>

class QLabel;

namespace velor {

class FindBar;

/// The buttons over the source.
enum class SourceTool {
  Copy,
  Cut,
  FindNext,
  Find,
  GoToLine,
  Indent,
  MarkAll,
  Outdent,
  Paste,
  Redo,
  Replace,
  Undo,
};

/// The source editor of one page: its HTML as text, written back into the page by "Apply to
/// Document". While it is open (the page record's EditorOpen) the page cannot be closed. By
/// the published behaviour the buttons of `tbrGeneral` and the tabs of `tabCode` do nothing; as an
/// addition the buttons do what they say.
class frmCodeEditor : public QWidget, public ProgramWindow, public FrontWindow {
  Q_OBJECT

 public:
  /// `number` is the page's slot.
  frmCodeEditor(EditorContext &context, int number);

  /// The page number as text, or "kill".
  QString Tag;
  /// The source as it stood when the editor was filled or last applied.
  QString AppliedText;
  /// "kill": close without any prompt; or "".
  QString PendingAction;

  SourceControl &Code() { return *code_; }
  /// Source not yet applied to the page; nullopt when the editor is closed or its text unchanged.
  std::optional<QString> UnappliedText() const;

  /// Sets the source, with an empty undo history, and puts caret or selection to that place.
  void Fill(const QString &source, const ElementStretch &caret);
  /// Replaces `typed`, which was not applied, by the page's source. Undo brings `typed` back, and
  /// the page's journal keeps it until a source is applied or given up.
  void Refill(const QString &source, const ElementStretch &caret, const QString &typed);

  /// Writes the source and a line break to the page's temporary copy, in the page's charset unless
  /// it declares another, and loads the page from what the copy holds, less that line break. 0 on
  /// success, otherwise the number of the error that stopped it; source and applied text then stay.
  /// An error of the writing itself is raised. Where there is no place for a copy the page takes
  /// the text without one. A Tag that names no page raises SubscriptOutOfRange (9).
  std::int16_t ApplyCode();

  /// The command of `cmdApply`: ApplyCode, with a message where it fails. The source control has
  /// the focus afterwards, its caret where it was. Returns whether the page has the source now.
  bool Apply();

  /// Puts a character in the place of the selection: as itself where the source's charset has it,
  /// else as a reference, as what stands for markup.
  void InsertCharacter(const QString &character);

  // FrontWindow
  FrontView View() const override { return FrontView::SourceEditor; }
  int PageNumber() const override { return number_; }
  QString ShownName() const override;
  QString FilePath() const override { return PagePath(context_, number_); }
  void Edit(EditingCommand command) override;
  void OnActivated() override;
  /// The page, without source that is not applied to it.
  PagePrinting *Printing() override;
  PageSpelling *SpellCheck() override { return &spelling_; }

  void MarkKill() override;

 protected:
  void closeEvent(QCloseEvent *event) override;

 private:
  enum class CloseDecision { Close, Keep };

  /// To be called after the control got another source.
  void SourceReplaced(const ElementStretch &caret);

  // Layout (SourceEditorLayout.cpp)
  void BuildLayout();
  QWidget *BuildTop();
  QWidget *BuildMain();
  QWidget *BuildStatus();

  /// What a button of `tbrGeneral` does.
  void Use(SourceTool tool);
  /// Asks for a line's number and puts the caret there.
  void GoToLine();
  void PopUpMenu(QPoint place);
  CloseDecision AskBeforeClosing();
  /// Keeps the caret within its line and shows its line and column.
  void SelectionChanged();
  /// Updates the page's journal and tab after the source changed or was applied.
  void UpdateJournal();
  /// Moves the page's caret to the place of the source's caret, where that was moved.
  void ReturnCaret();
  /// Makes the changes in the source that the page has seen in design view since this editor was
  /// filled or its source applied, as one step of the source's history. Where both changed the same
  /// place the source stays, and the status bar says so.
  void FollowPage();

  EditorContext &context_;
  const int number_;
  std::unique_ptr<SourceControl> code_;
  SourceSearch search_;
  SourceSpelling spelling_;
  FindBar *findBar_ = nullptr;
  SourceCaret filledCaret_;  ///< the caret as Fill or Refill left it
  QLabel *place_ = nullptr;
  QLabel *lineEnds_ = nullptr;
};

}  // namespace velor
