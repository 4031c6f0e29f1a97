// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/EditorContext.h"
#include "platform/Journal.h"

#include <QFrame>

class QLabel;
class QScrollArea;
class QVBoxLayout;

namespace velor {

/// The strip above the page area that offers pages whose program ended before they were saved. A
/// row for each: its name, the time of its last change, whether its file has become newer; Restore
/// opens it as it was left, Show lets the person look at it in the preview, Discard does away with
/// it. Hidden while there is nothing to offer. What is not decided is offered again by the next
/// run.
class RecoveryBar final : public QFrame {
  Q_OBJECT

 public:
  /// `context` outlives the bar.
  RecoveryBar(EditorContext &context, QWidget *parent);

  /// Looks for such pages and shows itself where there are any.
  void Offer();

 protected:
  void paintEvent(QPaintEvent *event) override;
  void changeEvent(QEvent *event) override;

 private:
  void AddRow(const AbandonedPage &abandoned);
  void Restore(QWidget *row, const AbandonedPage &abandoned);
  void Show(const JournalledPage &page);
  void Discard(QWidget *row, const QString &id);
  void RemoveRow(QWidget *row);
  /// Height for the rows there are, a few at most.
  void FitRows();
  void QuietenNotes();

  EditorContext &context_;
  QLabel *caption_ = nullptr;
  QScrollArea *scroller_ = nullptr;
  QVBoxLayout *rows_ = nullptr;
};

}  // namespace velor
