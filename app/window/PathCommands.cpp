// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/PathCommands.h"

#include "app/window/CommandPalette.h"
#include "app/window/PageArea.h"
#include "app/window/PathBar.h"
#include "app/window/PropertyDialogs.h"
#include "chrome/Captions.h"
#include "editor/frmMain.h"
#include "platform/Dialogs.h"
#include "platform/Words.h"

#include <QAction>
#include <QMenu>
#include <QPointer>

#include <map>
#include <memory>

namespace velor {
namespace {

/// More classes than these are chosen in a window of their own.
constexpr std::size_t MostClassesInMenu = 24;

/// The kind of properties that an element has of its own, by the path's name of it.
PropertySubject SubjectOf(const QString &name) {
  static const std::map<QString, PropertySubject> subjects{
      {QStringLiteral("body"), PropertySubject::Page},
      {QStringLiteral("img"), PropertySubject::Image},
      {QStringLiteral("table"), PropertySubject::Table},
      {QStringLiteral("td"), PropertySubject::Cell},
      {QStringLiteral("th"), PropertySubject::Cell},
      {QStringLiteral("a"), PropertySubject::Link},
  };
  const QString tag = name.section(u'#', 0, 0).section(u'.', 0, 0);
  const auto found = subjects.find(tag);
  return found == subjects.end() ? PropertySubject::Element : found->second;
}

/// Makes an item that gives the class to the element or takes it off.
QAction *ClassItem(frmMain &page, int element, const QString &name, bool has, QObject *parent) {
  auto *item = new QAction(AsCaption(name), parent);
  item->setCheckable(true);
  item->setChecked(has);
  QObject::connect(item, &QAction::triggered, &page, [&page, element, name](bool on) {
    page.DHTML1().Document().SetClassOnPath(element, name, on);
  });
  return item;
}

}  // namespace

PathCommands::PathCommands(PathBar &bar, PageArea &area, Dialogs &dialogs, QObject *parent)
    : QObject(parent), bar_(bar), area_(area), dialogs_(dialogs) {
  connect(&bar_, &PathBar::Chosen, this, &PathCommands::Choose);
  connect(&bar_, &PathBar::MenuWanted, this, &PathCommands::ShowMenu);
  connect(&bar_, &PathBar::Done, &area_, &PageArea::FocusFrontWindow);
}

frmMain *PathCommands::Page() const {
  auto *page = dynamic_cast<frmMain *>(area_.Front());
  return page != nullptr && page->View() == FrontView::Design ? page : nullptr;
}

void PathCommands::Choose(int index) {
  if (frmMain *page = Page()) Select(page->DHTML1().Document().PathElement(index));
}

void PathCommands::Select(int element) {
  frmMain *page = Page();
  if (page == nullptr) return;
  page->DHTML1().Document().ActOnPath(element, HtmlDocument::PathDeed::Select);
  area_.FocusFrontWindow();
}

void PathCommands::ShowMenu(int index, QPoint place) {
  const QPointer<frmMain> page = Page();
  if (page.isNull()) return;
  const QPointer<PathCommands> alive = this;
  // The page may change while the menu is open.
  const int element = page->DHTML1().Document().PathElement(index);
  const QString shown = bar_.Path().value(index);
  const PathChoices choices = page->DHTML1().Document().ChoicesOnPath(element);
  if (alive.isNull() || page.isNull()) return;

  using Deed = HtmlDocument::PathDeed;
  // The last one may have opened a window from within its own event: it stays until the next.
  delete menu_;
  auto *menu = new QMenu(&bar_);
  menu_ = menu;
  menu->setObjectName(QStringLiteral("mnuPath"));
  const auto add = [&](const char *name, const QString &caption, const auto &run) {
    QAction *item = menu->addAction(caption);
    item->setObjectName(QString::fromLatin1(name));
    connect(item, &QAction::triggered, this, run);
    return item;
  };
  const auto act = [this, element](Deed deed) {
    return [this, element, deed] {
      if (frmMain *front = Page()) front->DHTML1().Document().ActOnPath(element, deed);
      area_.FocusFrontWindow();
    };
  };
  add("pathSelect", Words::tr("&Select"), [this, element] { Select(element); });
  add("pathProperties", Words::tr("&Properties..."),
      [this, element, shown] { ShowProperties(element, shown); });
  AddClasses(*menu, *page, choices, element);
  menu->addSeparator();
  add("pathRemoveTag", Words::tr("&Remove Tag, Keep Content"), act(Deed::RemoveTag))
      ->setEnabled(choices.tagCanGo);
  add("pathDelete", Words::tr("&Delete"), act(Deed::Delete));
  menu->popup(place);
}

void PathCommands::AddClasses(QMenu &menu, frmMain &page, const PathChoices &choices, int element) {
  QMenu *classes = menu.addMenu(Words::tr("&Classes"));
  classes->setObjectName(QStringLiteral("mnuPathClasses"));
  if (choices.classes.empty()) {
    classes->addAction(Words::tr("The style sheets have none for it"))->setEnabled(false);
    return;
  }
  std::size_t listed = 0;
  for (const auto &[name, has] : choices.classes) {
    if (has || listed < MostClassesInMenu)
      classes->addAction(ClassItem(page, element, name, has, classes));
    ++listed;
  }
  if (listed <= MostClassesInMenu) return;
  classes->addSeparator();
  QAction *more = classes->addAction(Words::tr("&More..."));
  connect(more, &QAction::triggered, this, [this, alive = QPointer(&page), choices, element] {
    if (!alive.isNull()) LetChooseClass(*alive, choices, element);
  });
}

void PathCommands::LetChooseClass(frmMain &page, const PathChoices &choices, int element) {
  QObject items;
  QList<NamedCommand> commands;
  for (const auto &[name, has] : choices.classes)
    commands.append({name, ClassItem(page, element, name, has, &items)});
  CommandPalette palette(
      {Words::tr("Classes"), Words::tr("Part of the class's name"), Words::tr("Classes")}, commands,
      page.window());
  dialogs_.RunModal(palette);
  if (palette.Chosen() != nullptr) palette.Chosen()->trigger();
}

void PathCommands::ShowProperties(int element, const QString &name) {
  const QPointer<frmMain> page = Page();
  if (page.isNull()) return;
  const PropertySubject subject = SubjectOf(name);
  if (subject != PropertySubject::Element) {
    // These dialogs are about what is selected.
    if (subject != PropertySubject::Page)
      page->DHTML1().Document().ActOnPath(element, HtmlDocument::PathDeed::Select);
    if (velor::ShowProperties(*page, {subject}) || page.isNull()) return;
  }
  velor::ShowProperties(*page, {PropertySubject::Element, element});
}

}  // namespace velor
