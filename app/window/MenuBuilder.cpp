// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/MenuBuilder.h"

#include "chrome/Icons.h"
#include "platform/Words.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

namespace velor {
namespace {

QMenu *NewMenu(QMainWindow &window, const MenuRow &row, const Menus &built) {
  const QString caption = Words::tr(row.caption);
  QMenu *menu = nullptr;
  if (row.kind == MenuKind::Popup) {
    menu = new QMenu(&window);
  } else if (row.parent) {
    menu = built.menus.value(QString::fromLatin1(row.parent))->addMenu(caption);
  } else {
    menu = window.menuBar()->addMenu(caption);
  }
  const QString name = QString::fromLatin1(row.name);
  menu->setObjectName(name);
  menu->menuAction()->setObjectName(name);
  return menu;
}

QAction *NewItem(QMainWindow &window, const MenuRow &row) {
  auto *item = new QAction(Words::tr(row.caption), &window);
  item->setObjectName(QString::fromLatin1(row.name));
  if (row.index != 0) item->setProperty("index", row.index);
  if (row.shortcut) {
    item->setShortcut(QKeySequence(QString::fromLatin1(row.shortcut), QKeySequence::PortableText));
  }
  if (row.kind == MenuKind::Separator) item->setSeparator(true);
  return item;
}

}  // namespace

Menus BuildMenus(QMainWindow &window, Additions additions,
                 const std::function<void(const Command &)> &run) {
  Menus built;
  for (const MenuRow &row : MenuTable()) {
    const QString name = QString::fromLatin1(row.name);
    const bool isOff = row.reach == Reach::Beyond && additions == Additions::Off;
    if (row.parent && !built.menus.contains(QString::fromLatin1(row.parent))) continue;
    if (row.kind == MenuKind::Menu && isOff) continue;
    if (row.kind == MenuKind::Menu || row.kind == MenuKind::Popup) {
      built.menus.insert(name, NewMenu(window, row, built));
      continue;
    }
    QAction *item = NewItem(window, row);
    if (!isOff)
      QObject::connect(item, &QAction::triggered, &window, [run, &row] { run(row.command); });
    built.menus.value(QString::fromLatin1(row.parent))->addAction(item);
    built.named.insert(name, item);
    if (row.command.id != CommandId::None) built.items.emplace(row.command, item);
  }
  return built;
}

ImageList MenuImages() {
  ImageList images;
  for (const MenuRow &row : MenuTable()) {
    if (row.picture) {
      images.insert(QString::fromLatin1(row.name).toLower(),
                    IconFor(QString::fromLatin1(row.picture)));
    }
  }
  return images;
}

}  // namespace velor
