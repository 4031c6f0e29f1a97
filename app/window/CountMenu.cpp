// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/CountMenu.h"

#include "app/window/PageArea.h"
#include "app/window/StatusLine.h"
#include "editor/FrontWindow.h"
#include "editor/PageSlots.h"
#include "editor/frmMain.h"
#include "platform/TextCounts.h"
#include "platform/Words.h"

#include <QLocale>
#include <QMenu>

namespace velor {

CountMenu::CountMenu(StatusLine &status, PageArea &area, EditorContext &context, QObject *parent)
    : QObject(parent), status_(status), area_(area), context_(context) {
  status_.AddMenuButton(Words::tr("Words..."), Words::tr("Words and characters"));
  connect(&status_, &StatusLine::MenuWanted, this, &CountMenu::Count);
}

void CountMenu::Count(QPoint place) {
  const FrontWindow *front = area_.Front();
  frmMain *page = front == nullptr ? nullptr : context_.pages.Page(front->PageNumber());
  if (page == nullptr) {
    status_.Report(Words::tr("There is no page whose words could be counted"));
    return;
  }
  const bool showsSelection = front->View() == FrontView::Design;
  page->DHTML1().CountText([alive = QPointer(this), place, showsSelection](TextCounts counts) {
    if (!showsSelection) counts.selection.reset();
    if (!alive.isNull()) alive->Show(counts, place);
  });
}

void CountMenu::Show(const TextCounts &counts, QPoint place) {
  delete menu_;
  menu_ = new QMenu(&status_);
  menu_->setObjectName(QStringLiteral("mnuCounts"));
  const auto add = [this](const char *name, const QString &words, int count) {
    const QString text = words.arg(QLocale().toString(count));
    QAction *item = menu_->addAction(text);
    item->setObjectName(QString::fromLatin1(name));
    // Chosen, it can be read in peace.
    connect(item, &QAction::triggered, &status_, [this, text] { status_.Report(text); });
  };
  add("pageWords", Words::tr("Words in the page: %1"), counts.page.words);
  add("pageCharacters", Words::tr("Characters in the page: %1"), counts.page.characters);
  if (counts.selection) {
    menu_->addSeparator();
    add("selectedWords", Words::tr("Words in the selection: %1"), counts.selection->words);
    add("selectedCharacters", Words::tr("Characters in the selection: %1"),
        counts.selection->characters);
  }
  menu_->popup(place - QPoint(0, menu_->sizeHint().height()));
}

}  // namespace velor
