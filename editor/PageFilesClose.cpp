// SPDX-License-Identifier: GPL-3.0-or-later
// modWorkFlow: pages are closed.
#include "editor/MainWindow.h"
#include "editor/OpenPages.h"
#include "editor/PagePictures.h"
#include "editor/PageSlots.h"
#include "editor/frmBrowser.h"
#include "editor/frmCodeEditor.h"
#include "editor/frmMain.h"
#include "editor/modWorkFlow.h"
#include "platform/Dialogs.h"
#include "platform/Platform.h"
#include "platform/Runtime.h"
#include "platform/RuntimeError.h"
#include "platform/TemporaryCopies.h"
#include "platform/Words.h"

namespace velor::modWorkFlow {

namespace {

/// Runs a step of the clean-up and ignores its error: the person could not mend it.
template <typename Step>
void Ignoring(Step step) {
  try {
    step();
  } catch (const RuntimeError &) {
  }
}

void CloseSourceEditor(EditorContext &context, int number) {
  const QPointer<frmCodeEditor> editor = context.pages.CodeEditor(number);
  if (editor.isNull()) return;
  editor->MarkKill();
  editor->close();
  context.pages.CodeEditor(number).clear();
}

void RemovePageTab(EditorContext &context, int number) {
  TabStrip &tabs = context.mainWindow.tabs;
  // Where this page has lost its tab, the last one is another page's.
  if (tabs.Count() == 1 && OpenPageCount(context) <= 1) {
    tabs.Clear();
  } else {
    tabs.Remove(PageKey(number));
  }
}

}  // namespace

CloseDecision AskBeforeClosing(EditorContext &context, frmMain &window) {
  const QString kill = QStringLiteral("kill");
  if (window.PendingAction == kill || window.Tag == kill) return CloseDecision::Close;

  const PageRecord record = window.GetPageRecord();
  if (record.EditorOpen != False16) {
    Message refusal;
    refusal.text = Words::tr("Please close the Code Editor first.");
    refusal.title = Words::tr("Closing...");
    refusal.icon = MessageIcon::Information;
    refusal.foreground = true;
    context.platform.dialogs.ShowMessage(refusal);
    return CloseDecision::Keep;
  }

  const bool isChanged = HasUnsavedChanges(record.SavedHTML, window.DHTML1().DocumentHTML());
  if (!isChanged && window.Journal().IsSafe()) return CloseDecision::Close;
  Message question;
  question.text = Words::tr("You have made changes to this document. Do you want to save it?");
  question.title = Words::tr("Closing doucment...");
  question.buttons = MessageButtons::YesNoCancel;
  question.icon = MessageIcon::Question;
  switch (context.platform.dialogs.ShowMessage(question)) {
    case MessageAnswer::Yes:
      return SaveAndReport(context, window, SaveKind::Save) == SaveEnd::Safe ? CloseDecision::Close
                                                                             : CloseDecision::Keep;
    case MessageAnswer::No:
      window.Journal().Discard();
      window.Pictures().RemoveUnsaved();
      return CloseDecision::Close;
    default:
      return CloseDecision::Keep;
  }
}

void CleanUpAfterPage(EditorContext &context, frmMain &window) {
  const int number = window.Number();
  window.Journal().Close();
  context.platform.runtime.ProcessPendingEvents();
  {
    const BusyCursor busy(context.platform.runtime);
    TemporaryCopies *copies = context.platform.copies;
    if (copies != nullptr) copies->Remove(context.pages.Record(number).TempPath);
    Ignoring([&] { CloseSourceEditor(context, number); });
  }
  Ignoring([&] {
    frmBrowser *preview = context.preview;
    if (preview != nullptr && preview->PageNumber() == number) preview->close();
  });
  Ignoring([&] { RemovePageTab(context, number); });
  context.pages.Page(number).clear();
  Ignoring([&] {
    if (context.mainWindow.tabs.Count() > 0) return;
    context.mainWindow.commands.SetPageCommandsEnabled(false);
    context.mainWindow.status.ShowTextForm({});
  });
}

}  // namespace velor::modWorkFlow
