// SPDX-License-Identifier: GPL-3.0-or-later
#include "editor/FrontWindow.h"

#include "editor/EditorContext.h"
#include "editor/PageSlots.h"
#include "editor/frmMain.h"
#include "platform/Paths.h"
#include "platform/RuntimeError.h"
#include "platform/Words.h"

namespace velor {

QString PageName(const EditorContext &context, int number) {
  if (number == 0) return {};
  const frmMain *page = context.pages.Page(number);
  return page == nullptr ? context.pages.Record(number).Caption : page->windowTitle();
}

QString PagePath(const EditorContext &context, int number) {
  const QString path = number == 0 ? QString() : context.pages.Record(number).Path;
  return path.isEmpty() ? path : ForPeople(path);
}

QString TextFormAndZoom(const QString &textForm, double zoom) {
  const int percent = qRound(zoom * 100);
  if (percent == 100) return textForm;
  const QString words = Words::tr("%1 %").arg(percent);
  return textForm.isEmpty() ? words : textForm + QStringLiteral(", ") + words;
}

void ShowPageWithoutFormats(const EditorContext &context, int number) {
  const MainWindow &mainWindow = context.mainWindow;
  mainWindow.formats.ShowNothing();
  mainWindow.status.ShowTag({});
  mainWindow.status.ShowPath({});
  mainWindow.status.ShowMeasures({});
  frmMain *page = number == 0 ? nullptr : context.pages.Page(number);
  mainWindow.status.ShowTextForm(page == nullptr ? QString() : page->DHTML1().TextForm());
  if (page == nullptr) return;
  try {
    mainWindow.tabs.Select(PageKey(number));
  } catch (const RuntimeError &) {
    // The window outlives its tab for a moment while it closes.
  }
}

}  // namespace velor
