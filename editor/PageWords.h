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

class PageSpelling;
class frmMain;
struct EditorContext;

/// The spelling of a page; null where none is checked, as with the published behaviour only.
PageSpelling *SpellingOf(frmMain &page);

/// The file of the words of the page's site, in logic form: it lies beside the project's folder.
/// Empty for a page of no project.
QString SiteWordList(frmMain &page);

/// Calls `deed` with each open page whose spelling is checked; it may wait for the page.
void ForEachSpelling(EditorContext &context,
                     const std::function<void(frmMain &, PageSpelling &)> &deed);

/// Has the words of a page judged, with waves under unknown ones where the preference CheckSpelling
/// says so. To be called for each page that was loaded.
void UseSpelling(frmMain &page);
/// The same for all open pages, after a change of the preference.
void UseSpelling(EditorContext &context);

/// Takes a word for known in all open pages, until the program ends or, in a word list, for ever. A
/// list that cannot be written is told of in the status bar.
void IgnoreWord(frmMain &page, const QString &word);
void AddWord(frmMain &page, const QString &word, WordHome home);

/// What the person is told after words were changed.
QString WordsChanged(int count);

/// What can be done to the unknown word at the page's caret: suggestions, adding, ignoring. Waits
/// for the page. Empty where no such word is there. They belong to `owner`; the page may be closed
/// before they are chosen.
QList<QAction *> WordActions(frmMain &page, QObject &owner);
/// Shows them at the caret.
void ShowWordMenu(frmMain &page);

}  // namespace velor
