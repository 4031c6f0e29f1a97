// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/window/Command.h"

#include <QDialog>
#include <QList>
#include <QPointer>

class QAction;
class QLineEdit;
class QListWidget;
class QListWidgetItem;

namespace velor {

/// What the palette calls a command, and the item that runs it.
struct NamedCommand {
  QString name;
  QAction *item;
  /// Further words by which it is found.
  QString words = {};
  /// Its name in the tables; empty for what is no command.
  QString id = {};
  Command command = {};
};

/// Whether each of the words that a person looks for stands in the text.
bool HoldsAll(const QString &text, const QStringList &words);

/// The name with the item's key behind it, where it has one.
QString NameWithKey(const NamedCommand &command);

/// What a palette says it is for.
struct PaletteWords {
  QString title;
  QString prompt;  ///< of the box for the words
  QString list;    ///< the list's name for assistive technology
};

/// Finds a command by some words of its name or by other words for it. Commands that cannot be used
/// now are not listed.
class CommandPalette final : public QDialog {
  Q_OBJECT

 public:
  CommandPalette(const PaletteWords &words, const QList<NamedCommand> &commands, QWidget *parent);

  /// The item that the person chose; null for none. It is run when the window has closed, so that
  /// it acts on what is in front.
  QAction *Chosen() const { return chosen_; }

 protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  /// Lists the commands that every word typed is found in, those first that have all of them in
  /// their names.
  void Filter();
  void Choose(const QListWidgetItem *entry);

  QList<NamedCommand> commands_;
  QLineEdit *words_;
  QListWidget *list_;
  QPointer<QAction> chosen_;
};

}  // namespace velor
