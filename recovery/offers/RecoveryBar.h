// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/EditorContext.h"
#include "platform/Journal.h"

#include <QFrame>
#include <QPointer>

#include <map>
#include <vector>

class QLabel;
class QPushButton;
class QScrollArea;
class QVBoxLayout;

namespace velor {

class frmMain;

/// The strip above the page area that offers pages with unsaved changes: those of a run that
/// crashed, and those that an exit kept. One row a page: its name, the time of its last change, how
/// the file on disk compares. Restore opens the page as it was left, Show opens it in the preview,
/// Discard deletes its journal; Restore All and Discard All do so with every row. At most MostPages
/// are open at once: what finds no room stays in the bar, and so does a page whose file is open, or
/// that was restored and is in no journal yet; restoring it again shows the open page. Hidden while
/// there is nothing to offer. What is not decided is offered again by the next run.
///
/// Alt+G leads to the first row from anywhere in the window. From there Left and Right go along a
/// row, Up and Down, Home and End along the rows; Space and Enter press.
class RecoveryBar final : public QFrame {
  Q_OBJECT

 public:
  /// `context` outlives the bar.
  RecoveryBar(EditorContext &context, QWidget *parent);

  /// Looks for such pages and shows itself where there are any. Where this run's own changes cannot
  /// be kept, the status bar says so.
  void Offer();

  bool eventFilter(QObject *watched, QEvent *event) override;

 protected:
  void paintEvent(QPaintEvent *event) override;
  void changeEvent(QEvent *event) override;

 private:
  struct Offered {
    QWidget *row;
    AbandonedPage page;
  };

  void BuildCaption(QVBoxLayout &column);
  /// Makes a row for each abandoned page, and hides the bar where there is none.
  void Fill();
  void AddRow(const AbandonedPage &abandoned);
  /// How many more pages may be open.
  int Room() const;
  /// Shows the page of a row where it is open already, else restores it where there is room; the
  /// status bar says where there is none.
  void RestoreOne(const Offered &offered);
  /// Restores the newest pages that there is room for.
  void RestoreAll();
  /// Opens the page as it was left; removes its journal once another one holds the page.
  void Restore(const Offered &offered);
  /// The open page of that file, or the one that the row was restored to.
  frmMain *OpenPageOf(const Offered &offered) const;
  /// Activates the open page. Discards the row where it was restored from it and its changes can be
  /// kept now; else the status bar says why the row stays.
  void ShowOpenPage(const Offered &offered, frmMain &page);
  /// Shows the page in the preview.
  void Show(const AbandonedPage &abandoned);
  /// The person turns the page down: its pictures are as before, journal and row go.
  void GiveUp(const Offered &offered);
  /// Deletes the journal and the row.
  void Discard(const Offered &offered);
  /// Asks first.
  void DiscardAll();
  /// What the journal holds; the status bar says where its end is missing.
  JournalledPage Read(const AbandonedPage &abandoned);
  /// Moves the focus from a button of a row to another, by the key; false for other keys.
  bool MoveFocus(QPushButton *from, int key);
  void RemoveRow(QWidget *row);
  /// Gives the bar the height of its rows, a few at most, and hides it without rows.
  void FitRows();
  /// Gives the notes of all rows the palette's quiet text colour.
  void DimNotes();

  EditorContext &context_;
  std::vector<Offered> offered_;  ///< in the order of the rows
  /// The pages that were restored and could not be kept in a journal of this run, by the row's id.
  std::map<QString, QPointer<frmMain>> unkept_;
  QLabel *caption_ = nullptr;
  QScrollArea *scroller_ = nullptr;
  QVBoxLayout *rows_ = nullptr;
};

}  // namespace velor
