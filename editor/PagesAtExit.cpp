// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/PagesAtExit.h"

#include "editor/PageSlots.h"
#include "editor/frmMain.h"
#include "platform/Dialogs.h"
#include "platform/EditingComponent.h"
#include "platform/Platform.h"
#include "platform/RuntimeError.h"
#include "platform/Words.h"

namespace velor {

namespace {

/// Updates the component's Memory() to the last key typed. The page may be closed meanwhile.
void BringMemoryUpToDate(frmMain &page) {
  try {
    (void)page.DHTML1().DocumentHTML();
  } catch (const RuntimeError &) {
    // The page as it was last received is kept then.
  }
}

QList<QPointer<frmMain>> OpenPages(EditorContext &context) {
  QList<QPointer<frmMain>> open;
  for (int number = 1; number <= context.pages.PageCount(); ++number) {
    if (frmMain *page = context.pages.Page(number)) open.append(page);
  }
  return open;
}

bool EndsAllTheSame(Dialogs &dialogs, const QStringList &captions) {
  Message question;
  question.text =
      Words::tr(
          "The unsaved changes of %1 cannot be kept for the next start. They are lost if the "
          "program ends now.\n\nEnd the program all the same?")
          .arg(captions.join(QStringLiteral(", ")));
  question.buttons = MessageButtons::YesNo;
  question.icon = MessageIcon::Question;
  return dialogs.ShowMessage(question) == MessageAnswer::Yes;
}

void GoOn(const QList<QPointer<frmMain>> &pages) {
  for (const QPointer<frmMain> &page : pages) {
    if (page) page->Journal().CancelExit();
  }
}

}  // namespace

bool KeepPagesAtExit(EditorContext &context) {
  const QList<QPointer<frmMain>> open = OpenPages(context);
  QStringList lost;
  for (const QPointer<frmMain> &page : open) {
    if (page && page->Ready == QStringLiteral("True")) BringMemoryUpToDate(*page);
    if (page && !page->Journal().KeepAtExit()) lost << page->windowTitle();
  }
  if (lost.isEmpty() || EndsAllTheSame(context.platform.dialogs, lost)) return true;
  GoOn(open);
  return false;
}

bool KeepPagesAtSessionEnd(EditorContext &context) {
  const bool mayEnd = KeepPagesAtExit(context);
  GoOn(OpenPages(context));
  return mayEnd;
}

}  // namespace velor
