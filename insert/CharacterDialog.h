// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QString>

#include <vector>

class QComboBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QListWidgetItem;
class QPushButton;

namespace velor {

/// Lets a person choose a character: by words of its name, by its code point, or from a block of
/// Unicode. Those that were chosen before stand first.
class CharacterDialog final : public QDialog {
  Q_OBJECT

 public:
  /// `recent` has the characters of earlier choices, the last one first; it outlives the dialog and
  /// gets the choice.
  CharacterDialog(std::vector<char32_t> &recent, QWidget *parent);

  /// What was chosen; empty before.
  QString Character() const;

  void accept() override;

 protected:
  /// The arrow keys in the box of words lead along the characters.
  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  void Fill();
  void ShowCharacters(const std::vector<char32_t> &characters);
  void ShowName(const QListWidgetItem *item);

  std::vector<char32_t> &recent_;
  QLineEdit *words_;
  QComboBox *blocks_;
  QListWidget *characters_;
  QLabel *name_;
  QPushButton *ok_;
};

}  // namespace velor
