// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/help/Manual.h"

#include <QDialog>

class QLineEdit;
class QListWidget;
class QListWidgetItem;
class QTextBrowser;
class QToolBar;

namespace velor {

class ToolBarAction;

/// The manual's window: a box for words, the list of chapters or of what was found, and the page.
class ManualWindow final : public QDialog {
  Q_OBJECT

 public:
  /// `manual` outlives the window.
  explicit ManualWindow(const Manual &manual);

  /// Shows a place, "page.html" or "page.html#anchor".
  void ShowPlace(const QString &place);
  /// The place on show.
  QString Place() const;

 protected:
  void changeEvent(QEvent *event) override;
  void keyPressEvent(QKeyEvent *event) override;

 private:
  void BuildLayout();
  QToolBar *BuildToolBar();
  /// Fills the list: with all chapters, or with what has the words in the box.
  void FillList();
  void AddToList(const QString &caption, const QString &place);
  void Choose(const QListWidgetItem *entry);
  /// Makes the chapter on show the list's current row, where the list has chapters.
  void MarkChapter();
  /// Marks the words in the box on the page.
  void MarkWords();
  /// Gives the pages the colours of the palette.
  void Dress();

  const Manual &manual_;
  QLineEdit *words_;
  QListWidget *list_;
  QTextBrowser *page_;
};

}  // namespace velor
