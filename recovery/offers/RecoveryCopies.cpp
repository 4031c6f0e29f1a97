// SPDX-License-Identifier: GPL-3.0-or-later
#include "recovery/offers/RecoveryCopies.h"

#include "editor/PageSlots.h"
#include "editor/frmCodeEditor.h"
#include "editor/frmMain.h"
#include "editor/modGeneral.h"
#include "editor/modWorkFlow.h"
#include "platform/Files.h"
#include "platform/Paths.h"
#include "platform/Platform.h"

#include <functional>

namespace velor {

namespace {

QString FreeName(const Files &files, const QString &folder) {
  for (int number = 1;; ++number) {
    const QString path = folder + QStringLiteral("\\Recovered%1.htm").arg(number);
    if (!files.FileExists(path)) return path;
  }
}

bool IsUnsaved(const EditorContext &context, int number, EditingComponent &component) {
  return modWorkFlow::HasUnsavedChanges(context.pages.Record(number).SavedHTML,
                                        component.DocumentHTML());
}

}  // namespace

QStringList WriteRecoveryCopies(EditorContext &context, const QString &folder) {
  Files &files = context.platform.files;
  QStringList copies;
  const auto keep = [&](const std::function<void(const QString &)> &write) {
    const QString path = FreeName(files, folder);
    write(path);
    copies << ForPeople(path);
  };
  const auto attempt = [](const std::function<void()> &step) {
    try {
      step();
    } catch (const std::exception &) {
      // The error that led here is reported; what remains matters more than this one.
    }
  };
  for (int number = 1; number <= context.pages.PageCount(); ++number) {
    attempt([&] {
      frmMain *page = context.pages.Page(number);
      if (page == nullptr || !IsUnsaved(context, number, page->DHTML1())) return;
      keep([page](const QString &path) { page->DHTML1().SaveDocument(path); });
    });
    attempt([&] {
      frmCodeEditor *editor = context.pages.CodeEditor(number);
      if (editor == nullptr || editor->Code().Text() == editor->AppliedText) return;
      keep([&](const QString &path) {
        modGeneral::WriteTextFile(files, path, editor->Code().Text(),
                                  modWorkFlow::EncodingOf(context, number));
      });
    });
  }
  return copies;
}

}  // namespace velor
