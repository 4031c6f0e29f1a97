// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/window/Shortcuts.h"

#include <QDialog>
#include <QLineEdit>

#include <optional>

class QLabel;
class QPushButton;
class QTreeWidget;

namespace velor {

/// A box that shows the key that is pressed in it. Delete and Backspace empty it; Tab, Enter and
/// Escape do what they do in every box.
class KeyBox final : public QLineEdit {
  Q_OBJECT

 public:
  explicit KeyBox(QWidget *parent = nullptr);

 Q_SIGNALS:
  /// A key was pressed; empty for none.
  void Pressed(const QKeySequence &key);

 protected:
  bool event(QEvent *event) override;
  void keyPressEvent(QKeyEvent *event) override;
};

/// The window of all commands and their keys. A key that cannot be a command's is refused at once;
/// one that two commands have, or that the page answers itself, is told of, and OK waits until each
/// key has one command.
class FrmShortcuts final : public QDialog {
  Q_OBJECT

 public:
  /// `shortcuts` outlives the window and is only read.
  FrmShortcuts(const Shortcuts &shortcuts, QWidget *parent);

  /// The keys in the order of the commands.
  const std::vector<QKeySequence> &Keys() const { return keys_; }

 private:
  void Build();
  void Fill();
  /// Shows the rows that have all words in their names, words or keys.
  void Filter(const QString &words);
  void ShowChosen();
  void SetKey(const QKeySequence &key);
  void ResetAll();
  /// Writes keys and conflicts into the list and lets OK be pressed where there is none.
  void Judge();
  QString ConflictOf(std::size_t index) const;
  /// The index of the chosen command; nothing without one.
  std::optional<std::size_t> Chosen() const;

  const Shortcuts &shortcuts_;
  std::vector<QKeySequence> keys_;
  QLineEdit *words_ = nullptr;
  QTreeWidget *list_ = nullptr;
  KeyBox *key_ = nullptr;
  QPushButton *reset_ = nullptr;
  QPushButton *ok_ = nullptr;
  QLabel *state_ = nullptr;
};

}  // namespace velor
