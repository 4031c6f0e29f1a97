// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/SourceControl.h"

#include <QWidget>

class QCheckBox;
class QLabel;
class QLineEdit;

namespace velor {

/// The slim bar below a source control that finds and replaces in it: Enter and Shift+Enter find on
/// and back, Escape puts it away and gives the focus back. Hidden until it is asked for.
class SourceFindBar : public QWidget {
  Q_OBJECT

 public:
  enum class Purpose { Find, Replace };

  /// `source` outlives the bar.
  SourceFindBar(SourceControl &source, QWidget *parent);

  /// Shows the bar with the selected text, if it is of one line, ready to be typed over.
  void Open(Purpose purpose);
  /// Finds the next place in that direction; opens the bar where there is nothing to look for yet.
  void FindOn(SearchDirection direction);

 protected:
  void keyPressEvent(QKeyEvent *event) override;

 private:
  void Build();
  void PutAway();
  void Look(SearchDirection direction);
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
