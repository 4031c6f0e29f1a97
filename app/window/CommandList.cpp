// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/CommandList.h"

#include "app/settings/modSettingManager.h"
#include "app/window/FormattingBar.h"
#include "app/window/MenuBuilder.h"
#include "chrome/Captions.h"
#include "chrome/ToolBarButtons.h"
#include "platform/LastFirst.h"
#include "platform/Words.h"

#include <algorithm>

namespace velor {

namespace {

/// The value has names of commands with blanks between them.
const QString Section = QStringLiteral("commands");
const QString Used = QStringLiteral("used");
constexpr int MostUsed = 12;

QStringList UsedIds(const Registry &registry) {
  return modSettingManager::StoredText(registry, Section, Used).split(u' ', Qt::SkipEmptyParts);
}

}  // namespace

QList<NamedCommand> CommandsOf(const Menus &menus, const FormattingBar &formatting) {
  QList<NamedCommand> commands;
  for (const MenuRow &row : MenuTable()) {
    if (row.kind != MenuKind::Item || row.command.id == CommandId::None) continue;
    const QString name = QString::fromLatin1(row.name);
    QAction *first = menus.items.at(row.command);
    const bool isRepeated = name.startsWith(u"ext") || first->text() == Words::tr(row.caption);
    if (first->objectName() != name && isRepeated) continue;
    // Items of one name have commands of their own.
    QAction *item = row.index == 0 ? menus.named.value(name) : first;
    const QString id = row.index == 0 ? name : name + QString::number(row.index);
    commands.append(
        {SpokenCaption(Words::tr(row.caption)), item, Words::tr(row.words), id, row.command});
  }
  for (std::size_t index = 0; index < EditCommands.size(); ++index) {
    const EditCommand &row = EditCommands.at(index);
    ToolBarAction *button = formatting.Buttons()[index];
    commands.append({Words::tr(row.tooltip),
                     button,
                     Words::tr(row.words),
                     button->objectName(),
                     {CommandId::Editing, row.command}});
  }
  return commands;
}

QList<NamedCommand> LastUsedFirst(const Registry &registry, QList<NamedCommand> commands) {
  const QStringList used = UsedIds(registry);
  const auto rank = [&used](const NamedCommand &command) {
    const qsizetype place = used.indexOf(command.id);
    return place < 0 ? used.size() : place;
  };
  std::stable_sort(
      commands.begin(), commands.end(),
      [&](const NamedCommand &one, const NamedCommand &other) { return rank(one) < rank(other); });
  return commands;
}

void NoteUse(Registry &registry, const QString &id) {
  QStringList used = UsedIds(registry);
  PutFirst(used, id, MostUsed);
  modSettingManager::SaveText(registry, Section, Used, used.join(u' '));
}

}  // namespace velor
