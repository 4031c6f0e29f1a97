// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Spelling.h"

#include <QList>
#include <QString>

#include <functional>

class QAction;
class QObject;

/// The spelling of open pages.
namespace velor {

class FrontWindow;
class PageSpelling;
class frmMain;
struct EditorContext;

/// The spelling of what a window shows; null where none is checked, as with the published behaviour
/// only.
PageSpelling *SpellingOf(const EditorContext &context, FrontWindow &window);

/// The file of the words of the site of a slot's page, in logic form: it lies beside the project's
/// folder. Empty for a page of no project.
QString SiteWordList(const EditorContext &context, int page);

/// Calls `deed` with each open page whose spelling is checked, and its spelling in design view; it
/// may wait for the page.
void ForEachSpelling(EditorContext &context,
                     const std::function<void(frmMain &, PageSpelling &)> &deed);

/// Has the words of a slot's page judged, in its sources too, with waves under unknown ones where
/// the preference CheckSpelling says so. To be called for each page that was loaded, and each
/// source editor that was opened.
void UseSpelling(EditorContext &context, int page);
/// The same for all open pages, after a change of the preference.
void UseSpelling(EditorContext &context);

/// Takes a word for known in all open pages, until the program ends or, in a word list, for ever. A
/// list that cannot be written is told of in the status bar.
void IgnoreWord(EditorContext &context, const QString &word);
/// `siteList` is the list of the site that the word may be added to (SiteWordList).
void AddWord(EditorContext &context, const QString &word, WordHome home,
             const QString &siteList = {});

/// What the person is told after words were changed.
QString WordsChanged(int count);

/// What can be done to the unknown word at the caret of a window: suggestions, where the word can
/// be changed there, adding, ignoring. Waits for the page. Empty where no such word is there. They
/// belong to `owner`; the window may be closed before they are chosen.
QList<QAction *> WordActions(EditorContext &context, FrontWindow &window, QObject &owner);
/// Shows them at the caret.
void ShowWordMenu(EditorContext &context, FrontWindow &window);

}  // namespace velor
