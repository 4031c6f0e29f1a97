// SPDX-License-Identifier: GPL-3.0-or-later
// Pages closed.
#include "editor/MainWindow.h"
#include "editor/PageSlots.h"
#include "editor/frmCodeEditor.h"
#include "editor/frmMain.h"
#include "editor/modWorkFlow.h"
#include "platform/Dialogs.h"
#include "platform/Files.h"
#include "platform/Platform.h"
#include "platform/Runtime.h"
#include "platform/RuntimeError.h"

namespace velor::modWorkFlow {

namespace {

/// Runs a step of the clean-up; what fails there leaves nothing that a person could mend.
template <typename Step>
void Ignoring(Step step) {
  try {
    step();
  } catch (const RuntimeError &) {
  }
}

CloseDecision SaveBeforeClosing(EditorContext &context, frmMain &window) {
  PageRecord &record = context.pages.Record(window.Number());
  const std::int32_t result =
      SavePage(context, window, context.mainWindow.fileDialog, record, false);
  if (result == 0) return CloseDecision::Close;
  if (result != static_cast<int>(ErrorNumber::DialogCancelled)) {
    Message failure;
    failure.text = QStringLiteral("File saving error: %1").arg(result);
    failure.icon = MessageIcon::Critical;
    context.platform.dialogs.ShowMessage(failure);
  }
  return CloseDecision::Keep;
}

void CloseSourceEditor(EditorContext &context, int number) {
  const QPointer<frmCodeEditor> editor = context.pages.CodeEditor(number);
  if (editor.isNull()) return;
  editor->MarkKill();
  editor->close();
  context.pages.CodeEditor(number).clear();
}

void RemovePageTab(TabStrip &tabs, int number) {
  if (tabs.Count() == 1) {
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
    refusal.text = QStringLiteral("Please close the Code Editor first.");
    refusal.title = QStringLiteral("Closing...");
    refusal.icon = MessageIcon::Information;
    refusal.foreground = true;
    context.platform.dialogs.ShowMessage(refusal);
    return CloseDecision::Keep;
  }

  if (!HasUnsavedChanges(record.SavedHTML, window.DHTML1().DocumentHTML())) {
    return CloseDecision::Close;
  }
  Message question;
  question.text = QStringLiteral("You have made changes to this document. Do you want to save it?");
  question.title = QStringLiteral("Closing doucment...");
  question.buttons = MessageButtons::YesNoCancel;
  question.icon = MessageIcon::Question;
  switch (context.platform.dialogs.ShowMessage(question)) {
    case MessageAnswer::Yes:
      return SaveBeforeClosing(context, window);
    case MessageAnswer::No:
      window.Journal().Discard();
      return CloseDecision::Close;
    default:
      return CloseDecision::Keep;
  }
}

void CleanUpAfterPage(EditorContext &context, frmMain &window) {
  const int number = window.Number();
  window.Journal().Leave();
  context.platform.runtime.ProcessPendingEvents();
  {
    const BusyCursor busy(context.platform.runtime);
    Ignoring([&] { context.platform.files.Delete(context.pages.Record(number).TempPath); });
    Ignoring([&] { CloseSourceEditor(context, number); });
  }
  Ignoring([&] { RemovePageTab(context.mainWindow.tabs, number); });
  context.pages.Page(number).clear();
  Ignoring([&] {
    if (context.mainWindow.tabs.Count() > 0) return;
    context.mainWindow.commands.SetPageCommandsEnabled(false);
    context.mainWindow.status.ShowTextForm({});
  });
}

}  // namespace velor::modWorkFlow
