// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/EditorContext.h"
#include "platform/Journal.h"

#include <QFrame>

class QPushButton;
class QScrollArea;
class QVBoxLayout;

namespace velor {

/// The strip above the page area that offers pages whose program ended before they were saved. A
/// row for each: its name, the time of its last change, whether its file has become newer; Restore
/// opens it as it was left, Show lets the person look at it in the preview, Discard does away with
/// it. Hidden while there is nothing to offer. What is not decided is offered again by the next
/// run.
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
  void Fill();
  void AddRow(const AbandonedPage &abandoned);
  void Restore(QWidget *row, const AbandonedPage &abandoned);
  void Show(const AbandonedPage &abandoned);
  void Discard(QWidget *row, const QString &id);
  /// What the journal holds; the status bar says where its end is missing.
  JournalledPage Read(const AbandonedPage &abandoned);
  /// Takes the focus from a button to another of the bar; false for keys that do not.
  bool Walk(QPushButton *from, int key);
  void RemoveRow(QWidget *row);
  /// Height for the rows there are, a few at most.
  void FitRows();
  void QuietenNotes();

  EditorContext &context_;
  QScrollArea *scroller_ = nullptr;
  QVBoxLayout *rows_ = nullptr;
};

}  // namespace velor
