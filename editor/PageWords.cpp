// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/PageWords.h"

#include "app/settings/modSettingManager.h"
#include "chrome/Captions.h"
#include "editor/PageSlots.h"
#include "editor/frmCodeEditor.h"
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

/// Calls `deed` with all that shows text of a slot's page: design view, source view, source editor.
void ForEachPart(EditorContext &context, int number,
                 const std::function<void(PageSpelling &)> &deed) {
  frmMain *page = context.pages.Page(number);
  frmCodeEditor *editor = context.pages.CodeEditor(number);
  if (context.platform.spelling == nullptr || !context.hasAdditions) return;
  if (page != nullptr) {
    if (PageSpelling *design = page->DHTML1().SpellCheck()) deed(*design);
    deed(page->SourceWords());
  }
  if (editor != nullptr) deed(*editor->SpellCheck());
}

void CheckAgain(EditorContext &context) {
  for (int number = 1; number <= context.pages.PageCount(); ++number)
    ForEachPart(context, number, [](PageSpelling &spelling) { spelling.CheckAgain(); });
}

/// An action that finds its window open.
template <typename Deed>
QAction *NewAction(const char *name, const QString &caption, QWidget *window, QObject &owner,
                   Deed deed) {
  auto *action = new QAction(AsCaption(caption), &owner);
  action->setObjectName(QString::fromLatin1(name));
  const QPointer<QWidget> alive = window;
  QObject::connect(action, &QAction::triggered, &owner, [alive, deed] {
    if (!alive.isNull()) deed();
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

PageSpelling *SpellingOf(const EditorContext &context, FrontWindow &window) {
  const bool isThere = context.platform.spelling != nullptr && context.hasAdditions;
  return isThere ? window.SpellCheck() : nullptr;
}

QString SiteWordList(const EditorContext &context, int page) {
  QString folder = context.pages.Site(page);
  while (folder.endsWith(u'\\')) folder.chop(1);
  return folder.isEmpty() ? QString() : folder + QStringLiteral("-words.txt");
}

void ForEachSpelling(EditorContext &context,
                     const std::function<void(frmMain &, PageSpelling &)> &deed) {
  if (context.platform.spelling == nullptr || !context.hasAdditions) return;
  for (int number = 1; number <= context.pages.PageCount(); ++number) {
    frmMain *page = context.pages.Page(number);
    PageSpelling *spelling = page == nullptr ? nullptr : page->DHTML1().SpellCheck();
    if (spelling != nullptr) deed(*page, *spelling);
  }
}

void UseSpelling(EditorContext &context, int page) {
  const QString siteList = SiteWordList(context, page);
  const bool hasWaves = modSettingManager::IsOn(context.platform.registry, CheckSpelling);
  ForEachPart(context, page, [&](PageSpelling &spelling) {
    spelling.Use(context.platform.spelling, siteList);
    spelling.ShowWaves(hasWaves);
  });
}

void UseSpelling(EditorContext &context) {
  for (int number = 1; number <= context.pages.PageCount(); ++number) UseSpelling(context, number);
}

void IgnoreWord(EditorContext &context, const QString &word) {
  context.platform.spelling->Ignore(word);
  CheckAgain(context);
}

void AddWord(EditorContext &context, const QString &word, WordHome home, const QString &siteList) {
  try {
    context.platform.spelling->Add(word, home, siteList);
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

QList<QAction *> WordActions(EditorContext &context, FrontWindow &window, QObject &owner) {
  QList<QAction *> actions;
  PageSpelling *spelling = SpellingOf(context, window);
  if (spelling == nullptr) return actions;
  auto *widget = dynamic_cast<QWidget *>(&window);
  const QPointer<QWidget> alive = widget;
  const auto found = spelling->AtCaret();
  if (!found || alive.isNull()) return actions;
  const auto add = [&](const char *name, const QString &caption, const auto &deed) {
    actions << NewAction(name, caption, widget, owner, deed);
  };
  const QString word = found->word;
  if (spelling->CanCorrect()) {
    const QStringList suggestions =
        context.platform.spelling->Suggestions(word, found->language).mid(0, MostSuggestions);
    for (const QString &other : suggestions)
      add("wordSuggestion", other, [spelling, other] { spelling->Correct(other); });
    if (suggestions.isEmpty()) {
      add("wordNoSuggestion", Words::tr("No Suggestions"), [] {});
      actions.last()->setEnabled(false);
    }
  }
  add("wordAdd", Words::tr("Add \"%1\" to My Words").arg(word),
      [&context, word] { AddWord(context, word, WordHome::Person); });
  const QString siteList = SiteWordList(context, window.PageNumber());
  if (!siteList.isEmpty())
    add("wordAddToSite", Words::tr("Add \"%1\" to the Words of the Site").arg(word),
        [&context, word, siteList] { AddWord(context, word, WordHome::Site, siteList); });
  add("wordIgnore", Words::tr("Ignore \"%1\"").arg(word),
      [&context, word] { IgnoreWord(context, word); });
  return actions;
}

void ShowWordMenu(EditorContext &context, FrontWindow &window) {
  auto *widget = dynamic_cast<QWidget *>(&window);
  const QPointer<QWidget> alive = widget;
  auto *menu = new QMenu(widget);
  menu->setObjectName(QStringLiteral("mnuWord"));
  menu->setAttribute(Qt::WA_DeleteOnClose);
  const QList<QAction *> actions = WordActions(context, window, *menu);
  if (alive.isNull()) return;
  if (actions.isEmpty()) {
    delete menu;
    context.mainWindow.status.Report(Words::tr("There is no unknown word at the caret"));
    return;
  }
  menu->addActions(actions);
  menu->setActiveAction(actions.first());
  menu->popup(CaretOnScreen(*widget));
}

}  // namespace velor
