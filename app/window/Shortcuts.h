// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/window/CommandPalette.h"

#include <QKeySequence>
#include <QList>
#include <QObject>

#include <functional>
#include <vector>

class QMainWindow;

namespace velor {

class Registry;

/// A command and the keys that it has. The first one is changed by a person; the others come with
/// the first one of the program.
struct KeyedCommand {
  NamedCommand command;
  QList<QKeySequence> standard;  ///< the program's own; empty for none
  QKeySequence key;              ///< empty for none
  QString pageKey;               ///< what the page itself answers for it; empty for nothing
};

/// The keys of all commands. Those that a person chose are stored with the preferences, in the
/// section "shortcuts" under the names of the items, as text that every language has alike; "None"
/// takes the key from a command. They count in every view: shortcuts of the program go before what
/// a page, a preview or a source would do.
class Shortcuts final : public QObject {
  Q_OBJECT

 public:
  /// Gives the items the stored keys. All outlive it. `beforeKey` brings the items up to date when
  /// a key of the person's is pressed.
  Shortcuts(QMainWindow &window, Registry &registry, const QList<NamedCommand> &commands,
            std::function<void()> beforeKey);

  const std::vector<KeyedCommand> &Commands() const { return commands_; }
  /// Stores the keys of the commands, in their order, and uses them from now on.
  void Use(const std::vector<QKeySequence> &keys);

  /// Why a key can be no command's: it types, moves the caret, opens a menu or is another part's.
  /// Empty where it can.
  QString Objection(const QKeySequence &key) const;
  /// The command that the page itself has on that key; empty for none.
  QString CommandOfPage(const QKeySequence &key) const;

 protected:
  bool eventFilter(QObject *watched, QEvent *event) override;

 private:
  void Read();
  /// Gives the items their keys, and tips that name those that are not the program's own.
  void Apply();

  QMainWindow &window_;
  Registry &registry_;
  const std::function<void()> beforeKey_;
  std::vector<KeyedCommand> commands_;
};

}  // namespace velor
