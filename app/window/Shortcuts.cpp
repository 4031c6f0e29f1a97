// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/Shortcuts.h"

#include "app/settings/modSettingManager.h"
#include "chrome/Captions.h"
#include "chrome/ToolBarButtons.h"
#include "engine/PageKeys.h"
#include "platform/Words.h"

#include <QAction>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMenuBar>
#include <QSet>

#include <algorithm>
#include <array>

namespace velor {
namespace {

constexpr const char16_t *Section = u"shortcuts";
constexpr const char16_t *NoKey = u"None";

/// Keys of the window, its parts and the desktop.
constexpr std::array<const char *, 16> KeysOfParts{
    "F1",        "F6",           "Shift+F6", "Ctrl+F6",        "Ctrl+Shift+F6", "Ctrl+Tab",
    "Ctrl+W",    "Ctrl+Backtab", "Ctrl+F4",  "Ctrl+Shift+Tab", "Alt+F4",        "F10",
    "Shift+F10", "Alt+G",        "Escape",   "Ctrl+Escape"};

QKeySequence KeyFrom(const QString &text) {
  return QKeySequence::fromString(text, QKeySequence::PortableText);
}

/// Keys that type, or move the caret, whatever is held with them.
bool MovesOrDeletes(int key) {
  switch (key) {
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Backspace:
    case Qt::Key_Delete:
    case Qt::Key_Insert:
      return true;
    default:
      return false;
  }
}

bool Types(const QKeyCombination &combination) {
  const bool isFunction = combination.key() >= Qt::Key_F1 && combination.key() <= Qt::Key_F35;
  constexpr Qt::KeyboardModifiers Holding =
      Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
  return !isFunction && !(combination.keyboardModifiers() & Holding);
}

template <typename Found>
void ForEachPageKey(Found found) {
  for (const PageKey &row : BridgeKeys) found(row);
  for (const PageKey &row : EngineKeys) found(row);
}

/// The keys that the page answers for an item of that name, by the items of the tables.
QString KeysInPage(const Command &command) {
  QStringList keys;
  ForEachPageKey([&](const PageKey &row) {
    if (command == Command{CommandId::Editing, row.command})
      keys << KeyFrom(QString::fromLatin1(row.key)).toString(QKeySequence::NativeText);
  });
  return keys.join(QStringLiteral(", "));
}

}  // namespace

Shortcuts::Shortcuts(QMainWindow &window, Registry &registry, const QList<NamedCommand> &commands,
                     std::function<void()> beforeKey)
    : QObject(&window), window_(window), registry_(registry), beforeKey_(std::move(beforeKey)) {
  commands_.reserve(static_cast<std::size_t>(commands.size()));
  for (const NamedCommand &command : commands) {
    const QList<QKeySequence> standard = command.item->shortcuts();
    commands_.push_back({command, standard, standard.value(0), KeysInPage(command.command)});
  }
  Read();
  Apply();
  QCoreApplication::instance()->installEventFilter(this);
}

void Shortcuts::Read() {
  QSet<QString> taken;
  std::vector<KeyedCommand *> others;
  for (KeyedCommand &each : commands_) {
    const QString stored =
        modSettingManager::StoredText(registry_, QString::fromUtf16(Section), each.command.id);
    const QKeySequence key = KeyFrom(stored);
    const bool isKey = !stored.isEmpty() && Objection(key).isEmpty() && !taken.contains(stored);
    if (stored == QString::fromUtf16(NoKey)) {
      each.key = {};
    } else if (isKey) {
      each.key = key;
      taken.insert(stored);
    } else {
      others.push_back(&each);
    }
  }
  // Two commands on one key would both be without one.
  for (KeyedCommand *each : others)
    if (taken.contains(each->key.toString(QKeySequence::PortableText))) each->key = {};
}

void Shortcuts::Apply() {
  for (const KeyedCommand &each : commands_) {
    QAction &item = *each.command.item;
    const bool isStandard = each.key == each.standard.value(0);
    item.setShortcuts(isStandard ? each.standard : QList{each.key});
    // The context menu is not open when its keys are pressed.
    if (!isStandard && item.objectName().startsWith(u"ext")) window_.addAction(&item);
    if (qobject_cast<ToolBarAction *>(&item) != nullptr) item.setToolTip(NameWithKey(each.command));
  }
}

void Shortcuts::Use(const std::vector<QKeySequence> &keys) {
  for (std::size_t index = 0; index < commands_.size(); ++index) {
    KeyedCommand &each = commands_[index];
    if (each.key == keys[index]) continue;
    each.key = keys[index];
    const bool isStandard = each.key == each.standard.value(0);
    const QString text = isStandard           ? QString()
                         : each.key.isEmpty() ? QString::fromUtf16(NoKey)
                                              : each.key.toString(QKeySequence::PortableText);
    modSettingManager::SaveText(registry_, QString::fromUtf16(Section), each.command.id, text);
  }
  Apply();
}

QString Shortcuts::Objection(const QKeySequence &key) const {
  if (key.count() != 1 || key[0].key() == Qt::Key_unknown) return Words::tr("That is no key.");
  if (MovesOrDeletes(key[0].key()) || Types(key[0]))
    return Words::tr("%1 types, moves or deletes.").arg(key.toString(QKeySequence::NativeText));
  for (const char *fixed : KeysOfParts) {
    if (key == KeyFrom(QString::fromLatin1(fixed)))
      return Words::tr("%1 is a key of the window.").arg(key.toString(QKeySequence::NativeText));
  }
  for (const QAction *menu : window_.menuBar()->actions()) {
    if (key == QKeySequence::mnemonic(menu->text()))
      return Words::tr("%1 opens the menu %2.")
          .arg(key.toString(QKeySequence::NativeText), SpokenCaption(menu->text()));
  }
  return {};
}

QString Shortcuts::CommandOfPage(const QKeySequence &key) const {
  QString name;
  ForEachPageKey([&](const PageKey &row) {
    if (key != KeyFrom(QString::fromLatin1(row.key))) return;
    for (const KeyedCommand &each : commands_)
      if (each.command.command == Command{CommandId::Editing, row.command})
        name = each.command.name;
  });
  return name;
}

bool Shortcuts::eventFilter(QObject *watched, QEvent *event) {
  if (event->type() == QEvent::ShortcutOverride) {
    const QKeySequence key(static_cast<QKeyEvent *>(event)->keyCombination());
    const bool isOwn = std::any_of(commands_.begin(), commands_.end(), [&](const auto &each) {
      return each.key == key && each.key != each.standard.value(0);
    });
    if (isOwn) beforeKey_();
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace velor
