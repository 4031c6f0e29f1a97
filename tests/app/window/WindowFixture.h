// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/window/Additions.h"
#include "app/window/MfrmProgram.h"
#include "platform/Platform.h"
#include "platform/ProgramValues.h"
#include "tests/support/CallLog.h"
#include "tests/support/Checks.h"
#include "tests/support/FakeComponents.h"
#include "tests/support/FakeDatabase.h"
#include "tests/support/FakeDialogs.h"
#include "tests/support/FakeFileDialog.h"
#include "tests/support/FakeFiles.h"
#include "tests/support/FakeRegistry.h"
#include "tests/support/FakeRuntime.h"
#include "tests/support/FakeTemporaryCopies.h"

#include <QAction>
#include <QMenu>
#include <QToolButton>

#include <gtest/gtest.h>

namespace velor {

class PageChooser;
class PageTabs;
class frmMain;

/// The main window, loaded, in a world of fakes.
class WindowFixture : public ::testing::Test {
 protected:
  explicit WindowFixture(Additions additions = Additions::On);
  ~WindowFixture() override { DeleteClosedWindows(); }

  template <typename Widget>
  Widget *Find(const char *name) {
    auto *found = window.findChild<Widget *>(QString::fromLatin1(name));
    EXPECT_NE(found, nullptr) << name;
    return found;
  }

  QAction *Item(const char *name) { return Find<QAction>(name); }
  QToolButton *Button(const char *name) { return Find<QToolButton>(name); }
  void Choose(const char *item) { Item(item)->trigger(); }
  void Click(const char *button) { Button(button)->click(); }
  PageTabs &Tabs();

  /// Makes a page as File > New does, in front of the others; its document is there.
  frmMain &NewPage();
  /// A file that can be opened.
  void WriteFile(const QString &path);
  /// The main window as pages see it.
  const MainWindow &Parts() { return window.Context().mainWindow; }
  FakeFileDialog &SharedDialog() { return static_cast<FakeFileDialog &>(Parts().fileDialog); }
  /// The editing component of a page.
  static FakeEditingComponent &Component(frmMain &page);
  /// The log's calls of the editing commands, "ExecCommand(5000)" and the like.
  QStringList Commands() const;
  /// Lets windows that delete themselves go.
  static void DeleteClosedWindows();

  CallLog log;
  FakeFiles files;
  FakeRegistry registry;
  /// Read when the window is made.
  const Additions additions;
  FakeRuntime runtime{&log};
  FakeDialogs dialogs{&log};
  FakeDatabase database{&log};
  FakeComponents components{files, &database, &log};
  FakeTemporaryCopies copies{files};
  Platform platform{files,   runtime, dialogs, registry, components,
                    nullptr, nullptr, nullptr, &copies};
  ProgramValues values;
  MfrmProgram window{platform, values};
};

}  // namespace velor
