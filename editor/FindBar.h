// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/FindMemory.h"
#include "platform/TextSearch.h"

#include <QWidget>

class QAction;
class QCheckBox;
class QHBoxLayout;
class QLabel;
class QLineEdit;

namespace velor {

/// The bar below a page or its source that finds and replaces there. Enter and Shift+Enter find the
/// next and previous match, Up and Down bring earlier words, Escape closes the bar and returns the
/// focus; the match stays selected. Words and options are those of every other bar with the same
/// memory. Hidden at first.
class FindBar : public QWidget {
  Q_OBJECT

 public:
  enum class Purpose { Find, Replace };

  /// `memory` outlives the bar.
  FindBar(FindMemory &memory, QWidget *parent);

  /// Searches in `target` from now on, which outlives every later call of the bar. Where the bar is
  /// open the matches there are marked.
  void SetTarget(TextSearch &target);
  /// Shows the bar, with the boxes for replacing where `purpose` is Replace and the target can. The
  /// selected text, if it is of one line, becomes the text to find; it is selected, so that typing
  /// replaces it.
  void Open(Purpose purpose);
  /// Finds the next match in that direction; opens the bar while there is no text to find.
  void FindOn(SearchDirection direction);
  /// To be called when the target's text has changed: marks and counts the matches again.
  void TextChanged();

 protected:
  void keyPressEvent(QKeyEvent *event) override;

 private:
  void Build();
  void BuildOptions(QHBoxLayout &row);
  /// Sets boxes and options from the memory.
  void Recall();
  /// Ends the search and focuses the target.
  void CloseBar();
  /// Selects the next match; the result is shown when it comes.
  void Find(SearchDirection direction);
  /// The options have changed: finds by them.
  void FindAnew();
  void ReplaceFound();
  void ReplaceEverywhere();
  /// The words and options; noted in the memory.
  SearchQuery Query();
  /// Puts the words that were used before or after those in the box into it.
  void RecallWords(QLineEdit &box, const QStringList &earlier, int step);
  void ShowResult(const SearchResult &result);

  FindMemory &memory_;
  TextSearch *target_ = nullptr;
  QLineEdit *findText_ = nullptr;
  QLineEdit *replacement_ = nullptr;
  QCheckBox *matchCase_ = nullptr;
  QCheckBox *wholeWords_ = nullptr;
  QAction *ignoreAccents_ = nullptr;
  QAction *expression_ = nullptr;
  QAction *inSelection_ = nullptr;
  QWidget *replacing_ = nullptr;
  QLabel *result_ = nullptr;
};

}  // namespace velor
