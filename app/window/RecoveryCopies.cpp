// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/window/RecoveryCopies.h"

#include "editor/PageSlots.h"
#include "editor/frmMain.h"
#include "editor/modWorkFlow.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/Platform.h"

namespace velor {

namespace {

QString FreeName(const Files &files, const QString &folder) {
  for (int number = 1;; ++number) {
    const QString path = folder + QStringLiteral("\\Recovered%1.htm").arg(number);
    if (!files.FileExists(path)) return path;
  }
}

}  // namespace

QStringList WriteRecoveryCopies(EditorContext &context, const QString &folder) {
  QStringList copies;
  for (int number = 1; number <= context.pages.PageCount(); ++number) {
    frmMain *page = context.pages.Page(number);
    if (page == nullptr) continue;
    try {
      EditingComponent &component = page->DHTML1();
      if (!modWorkFlow::HasUnsavedChanges(context.pages.Record(number).SavedHTML,
                                          component.DocumentHTML())) {
        continue;
      }
      const QString path = FreeName(context.platform.files, folder);
      component.SaveDocument(path);
      copies << ForPeople(path);
    } catch (const std::exception &) {
      // The error that led here is reported; the remaining pages matter more than this one's.
    }
  }
  return copies;
}

}  // namespace velor
