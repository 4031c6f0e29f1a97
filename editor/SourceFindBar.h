// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/SourceControl.h"

#include <QWidget>

class QCheckBox;
class QLabel;
class QLineEdit;

namespace velor {

/// The bar below a source control that finds and replaces in it. Enter and Shift+Enter find the
/// next and previous match, Escape closes the bar and returns the focus. Hidden at first.
class SourceFindBar : public QWidget {
  Q_OBJECT

 public:
  enum class Purpose { Find, Replace };

  /// `source` outlives the bar.
  SourceFindBar(SourceControl &source, QWidget *parent);

  /// Shows the bar, with the boxes for replacing where `purpose` is Replace. The selected text, if
  /// it is of one line, becomes the text to find; it is selected, so that typing replaces it.
  void Open(Purpose purpose);
  /// Finds the next match in that direction; opens the bar while there is no text to find.
  void FindOn(SearchDirection direction);

 protected:
  void keyPressEvent(QKeyEvent *event) override;

 private:
  void Build();
  /// Hides the bar and focuses the source control.
  void CloseBar();
  /// Selects the next match, or shows that there is none.
  void Find(SearchDirection direction);
  /// Replaces the selected match and finds the next one.
  void ReplaceFound();
  void ReplaceEverywhere();
  LetterCase ChosenCase() const;

  SourceControl &source_;
  QLineEdit *findText_ = nullptr;
  QLineEdit *replacement_ = nullptr;
  QCheckBox *matchCase_ = nullptr;
  QWidget *replacing_ = nullptr;
  QLabel *result_ = nullptr;
};

}  // namespace velor
