// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/PageWords.h"

#include "app/settings/modSettingManager.h"
#include "chrome/Captions.h"
#include "editor/PageSlots.h"
#include "editor/frmMain.h"
#include "platform/PageSpelling.h"
#include "platform/Platform.h"
#include "platform/RuntimeError.h"
#include "platform/Words.h"

#include <QAction>
#include <QApplication>
#include <QMenu>
#include <QPointer>

namespace velor {

namespace {

constexpr const Preference &CheckSpelling = PreferenceOf("CheckSpelling");
constexpr qsizetype MostSuggestions = 6;

void CheckAgain(EditorContext &context) {
  ForEachSpelling(context, [](frmMain &, PageSpelling &spelling) { spelling.CheckAgain(); });
}

/// An action that finds its page open.
template <typename Deed>
QAction *NewAction(const char *name, const QString &caption, frmMain &page, QObject &owner,
                   Deed deed) {
  auto *action = new QAction(AsCaption(caption), &owner);
  action->setObjectName(QString::fromLatin1(name));
  const QPointer<frmMain> alive = &page;
  QObject::connect(action, &QAction::triggered, &owner, [alive, deed] {
    if (!alive.isNull()) deed(*alive);
  });
  return action;
}

/// The caret's place on the screen.
QPoint CaretOnScreen(QWidget &page) {
  QWidget *input = QApplication::focusWidget();
  if (input == nullptr || !page.isAncestorOf(input)) return page.mapToGlobal(page.rect().center());
  return input->mapToGlobal(input->inputMethodQuery(Qt::ImCursorRectangle).toRect().bottomLeft());
}

}  // namespace

PageSpelling *SpellingOf(frmMain &page) {
  const Platform &platform = page.Context().platform;
  const bool isThere = platform.spelling != nullptr && page.Context().hasAdditions;
  return isThere ? page.DHTML1().SpellCheck() : nullptr;
}

QString SiteWordList(frmMain &page) {
  QString folder = page.Context().pages.Site(page.Number());
  while (folder.endsWith(u'\\')) folder.chop(1);
  return folder.isEmpty() ? QString() : folder + QStringLiteral("-words.txt");
}

void ForEachSpelling(EditorContext &context,
                     const std::function<void(frmMain &, PageSpelling &)> &deed) {
  for (int number = 1; number <= context.pages.PageCount(); ++number) {
    frmMain *page = context.pages.Page(number);
    PageSpelling *spelling = page == nullptr ? nullptr : SpellingOf(*page);
    if (spelling != nullptr) deed(*page, *spelling);
  }
}

void UseSpelling(frmMain &page) {
  PageSpelling *spelling = SpellingOf(page);
  if (spelling == nullptr) return;
  const Platform &platform = page.Context().platform;
  spelling->Use(platform.spelling, SiteWordList(page));
  spelling->ShowWaves(modSettingManager::IsOn(platform.registry, CheckSpelling));
}

void UseSpelling(EditorContext &context) {
  ForEachSpelling(context, [](frmMain &page, PageSpelling &) { UseSpelling(page); });
}

void IgnoreWord(frmMain &page, const QString &word) {
  page.Context().platform.spelling->Ignore(word);
  CheckAgain(page.Context());
}

void AddWord(frmMain &page, const QString &word, WordHome home) {
  EditorContext &context = page.Context();
  try {
    context.platform.spelling->Add(word, home, SiteWordList(page));
  } catch (const RuntimeError &error) {
    context.mainWindow.status.Report(
        Words::tr("The word could not be added: %1").arg(error.Description()));
    return;
  }
  CheckAgain(context);
}

QString WordsChanged(int count) {
  return count == 1 ? Words::tr("One word changed") : Words::tr("%n words changed", nullptr, count);
}

QList<QAction *> WordActions(frmMain &page, QObject &owner) {
  QList<QAction *> actions;
  PageSpelling *spelling = SpellingOf(page);
  if (spelling == nullptr || page.View() != FrontView::Design) return actions;
  const QPointer<frmMain> alive = &page;
  const auto found = spelling->AtCaret();
  if (!found || alive.isNull()) return actions;
  const QString word = found->word;
  const QStringList suggestions =
      page.Context().platform.spelling->Suggestions(word, found->language).mid(0, MostSuggestions);
  for (const QString &other : suggestions)
    actions << NewAction("wordSuggestion", other, page, owner,
                         [other](frmMain &at) { SpellingOf(at)->Correct(other); });
  if (suggestions.isEmpty()) {
    actions << NewAction("wordNoSuggestion", Words::tr("No Suggestions"), page, owner,
                         [](frmMain &) {});
    actions.last()->setEnabled(false);
  }
  actions << NewAction("wordAdd", Words::tr("Add \"%1\" to My Words").arg(word), page, owner,
                       [word](frmMain &at) { AddWord(at, word, WordHome::Person); });
  if (!SiteWordList(page).isEmpty())
    actions << NewAction("wordAddToSite",
                         Words::tr("Add \"%1\" to the Words of the Site").arg(word), page, owner,
                         [word](frmMain &at) { AddWord(at, word, WordHome::Site); });
  actions << NewAction("wordIgnore", Words::tr("Ignore \"%1\"").arg(word), page, owner,
                       [word](frmMain &at) { IgnoreWord(at, word); });
  return actions;
}

void ShowWordMenu(frmMain &page) {
  const QPointer<frmMain> alive = &page;
  auto *menu = new QMenu(&page);
  menu->setObjectName(QStringLiteral("mnuWord"));
  menu->setAttribute(Qt::WA_DeleteOnClose);
  const QList<QAction *> actions = WordActions(page, *menu);
  if (alive.isNull()) return;
  if (actions.isEmpty()) {
    delete menu;
    page.Context().mainWindow.status.Report(Words::tr("There is no unknown word at the caret"));
    return;
  }
  menu->addActions(actions);
  menu->setActiveAction(actions.first());
  menu->popup(CaretOnScreen(page));
}

}  // namespace velor
