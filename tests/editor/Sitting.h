// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/EditorContext.h"
#include "editor/PageSlots.h"
#include "editor/frmMain.h"
#include "editor/modWorkFlow.h"
#include "files/QtFiles.h"
#include "files/ReplacedFiles.h"
#include "files/StateFolder.h"
#include "files/TemporaryCopyFiles.h"
#include "platform/Paths.h"
#include "recovery/JournalFiles.h"
#include "tests/support/FakeComponents.h"
#include "tests/support/FakeDialogs.h"
#include "tests/support/FakeFileDialog.h"
#include "tests/support/FakeFileWatches.h"
#include "tests/support/FakeMainWindow.h"
#include "tests/support/FakeRegistry.h"
#include "tests/support/FakeRuntime.h"
#include "tests/support/FaultyCalls.h"

#include <QCoreApplication>
#include <QDir>
#include <QEvent>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <optional>

namespace velor {

/// A run of the program with one page open, on real files whose calls fail as the test says.
struct Sitting {
  /// `person`: who answers in place of a person that is asked nothing.
  explicit Sitting(const QString &file, Dialogs *person = nullptr)
      : platform{files,     runtime,    person != nullptr ? *person : dialogs,
                 registry,  components, nullptr,
                 &journals, &replaced,  &copies,
                 &watches} {
    dialog.FileName = ToLogic(file);
    modWorkFlow::OpenPage(context, ToLogic(file));
    Component().CompleteDocument();
  }
  ~Sitting() {
    const std::vector<QWidget *> windows = mainWindow.adopted;
    for (QWidget *window : windows) delete window;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  Sitting(const Sitting &) = delete;
  Sitting &operator=(const Sitting &) = delete;

  frmMain &Page() { return *pages.Page(1); }
  FakeEditingComponent &Component() {
    return dynamic_cast<FakeEditingComponent &>(Page().DHTML1());
  }
  std::int32_t Save(bool saveAs) {
    return modWorkFlow::SavePage(context, Page(), dialog, pages.Record(1), saveAs);
  }

  FaultyCalls calls;
  QtFiles files{calls};
  JournalFiles journals{calls};
  ReplacedFiles replaced{calls};
  TemporaryCopyFiles copies{calls};
  FakeFileWatches watches;
  FakeRegistry registry;
  FakeRuntime runtime{nullptr};
  FakeDialogs dialogs{nullptr};
  FakeFileDialog dialog{nullptr};
  FakeComponents components{files};
  FakeMainWindow mainWindow{dialog};
  Platform platform;
  PageSlots pages;
  EditorContext context{platform, mainWindow, pages, {}};
};

/// A person's folders, anew for each sitting, and what a sitting leaves there.
class Sittings : public testing::Test {
 protected:
  ~Sittings() override { qputenv("XDG_STATE_HOME", stateHome_); }

  /// Folders with one page.
  void Prepare(const QByteArray &content) {
    folder_.emplace();
    qputenv("XDG_STATE_HOME", folder_->filePath(QStringLiteral("state")).toLocal8Bit());
    page_ = folder_->filePath(QStringLiteral("page.htm"));
    Write(page_, content);
  }
  static void Write(const QString &path, const QByteArray &content) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(content);
  }
  static QByteArray Content(const QString &path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
  }
  /// Whether the next start offers a page with that document.
  static bool IsRecovered(const QString &document) {
    JournalFiles next;
    for (const AbandonedPage &page : next.Abandoned())
      if (next.Read(page.id).page.page.document == document) return true;
    return false;
  }
  static bool IsKept(const QByteArray &content) {
    const QDir folder(StateFolder() + QStringLiteral("/replaced"));
    for (const QString &name : folder.entryList({QStringLiteral("*.htm")})) {
      QFile file(folder.filePath(name));
      if (file.open(QIODevice::ReadOnly) && file.readAll() == content) return true;
    }
    return false;
  }

  QByteArray stateHome_ = qgetenv("XDG_STATE_HOME");
  std::optional<QTemporaryDir> folder_;
  QString page_;
};

}  // namespace velor
