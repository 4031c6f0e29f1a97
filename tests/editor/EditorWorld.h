// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/EditorContext.h"
#include "editor/PageSlots.h"
#include "editor/frmBrowser.h"
#include "editor/frmCodeEditor.h"
#include "editor/frmMain.h"
#include "tests/support/Checks.h"
#include "tests/support/FakeComponents.h"
#include "tests/support/FakeDialogs.h"
#include "tests/support/FakeFileDialog.h"
#include "tests/support/FakeFiles.h"
#include "tests/support/FakeMainWindow.h"
#include "tests/support/FakeRegistry.h"
#include "tests/support/FakeRuntime.h"
#include "tests/support/FakeTemporaryCopies.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPointer>

#include <gtest/gtest.h>
#include <initializer_list>

namespace velor {

/// Everything a page window needs, made of fakes that share one log of calls.
class EditorWorld : public ::testing::Test {
 protected:
  EditorWorld() {
    files.AddFolder(QStringLiteral("\\site"));
    files.AddFolder(runtime.programFolder);
  }
  ~EditorWorld() override {
    DeleteClosedWindows();
    const std::vector<QWidget *> windows = mainWindow.adopted;
    for (QWidget *window : windows) delete window;
  }

  frmMain &Page(int number) { return *pages.Page(number); }
  PageRecord &Record(int number) { return pages.Record(number); }
  FakeEditingComponent &Component(int number) {
    return dynamic_cast<FakeEditingComponent &>(Page(number).DHTML1());
  }
  FakeSourceControl &SourceView(int number) {
    return dynamic_cast<FakeSourceControl &>(Page(number).Code1());
  }
  FakeSourceControl &Code(int number) {
    return dynamic_cast<FakeSourceControl &>(pages.CodeEditor(number)->Code());
  }
  FakeBrowser &PreviewBrowser() { return *components.browsers.back(); }

  bool Exists(const QString &path) const { return platform.files.FileExists(path); }
  QByteArray Content(const QString &path) const { return platform.files.ReadAll(path); }

  /// A page file, opened, complete, and known to the shared dialog as the one opened last.
  frmMain &Open(const QString &path, const QByteArray &content = "<p>a</p>");
  /// A new page, complete.
  frmMain &New();

  static void DeleteClosedWindows() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  /// The calls written down, without the text of documents set.
  CallLog Order() const;
  /// How often exactly this call was made.
  long Count(const QString &call) const { return std::count(log.begin(), log.end(), call); }

  static CallLog Calls(std::initializer_list<const char *> names) {
    CallLog calls;
    for (const char *name : names) calls.push_back(QString::fromUtf8(name));
    return calls;
  }

  CallLog log;
  FakeFiles files;
  FakeRegistry registry;
  FakeRuntime runtime{&log};
  FakeDialogs dialogs{&log};
  FakeFileDialog dialog{&log};
  FakeComponents components{files, nullptr, &log};
  FakeMainWindow mainWindow{dialog, &log};
  FakeTemporaryCopies copies{files};
  Platform platform{files,   runtime, dialogs, registry, components,
                    nullptr, nullptr, nullptr, &copies};
  PageSlots pages;
  EditorContext context{platform, mainWindow, pages, {}};
};

}  // namespace velor
