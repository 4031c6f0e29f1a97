// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "app/window/MfrmProgram.h"
#include "files/QtFiles.h"
#include "files/TemporaryCopyFiles.h"
#include "platform/Browser.h"
#include "platform/Database.h"
#include "platform/EditingComponent.h"
#include "platform/Platform.h"
#include "platform/ProgramValues.h"
#include "qt/QtComponents.h"
#include "qt/QtRegistry.h"
#include "qt/QtRuntime.h"
#include "tests/support/FakeDialogs.h"
#include "tests/support/FakeFileDialog.h"

#include <QAction>
#include <QTemporaryDir>
#include <QToolButton>

#include <functional>
#include <gtest/gtest.h>

class QWebEnginePage;

namespace velor {

class PageTabs;
class frmMain;

/// The real parts, with a person who answers the file dialogs as the test foresaw.
class AnsweredComponents final : public Components {
 public:
  AnsweredComponents(Files &files, const QString &programFolder) : real_(files, programFolder) {}

  /// Touches each file dialog as it is made.
  std::function<void(FakeFileDialog &)> onFileDialog;

  std::unique_ptr<EditingComponent> CreateEditingComponent(QWidget *parent) override {
    return real_.CreateEditingComponent(parent);
  }
  std::unique_ptr<SourceControl> CreateSourceControl(QWidget *parent,
                                                     SourceAccess access) override {
    return real_.CreateSourceControl(parent, access);
  }
  std::unique_ptr<Browser> CreateBrowser(QWidget *parent) override {
    return real_.CreateBrowser(parent);
  }
  std::unique_ptr<FileDialog> CreateFileDialog() override {
    auto dialog = std::make_unique<FakeFileDialog>();
    if (onFileDialog) onFileDialog(*dialog);
    return dialog;
  }
  std::unique_ptr<DatabaseConnection> CreateDatabaseConnection() override {
    return real_.CreateDatabaseConnection();
  }

 private:
  QtComponents real_;
};

/// An empty folder that is the program folder of every runtime made while it lives.
class ScratchProgramFolder {
 public:
  ScratchProgramFolder() { qputenv("VELOR_PROGRAM_FOLDER", folder_.path().toLocal8Bit()); }
  ~ScratchProgramFolder() { qunsetenv("VELOR_PROGRAM_FOLDER"); }
  ScratchProgramFolder(const ScratchProgramFolder &) = delete;
  ScratchProgramFolder &operator=(const ScratchProgramFolder &) = delete;

  QString FilePath(const QString &name) const { return folder_.filePath(name); }

 private:
  QTemporaryDir folder_;
};

/// The whole main window on the real engine, files and settings; only what would wait for a person
/// is answered by the test. Pages and program share one scratch folder.
class RealWindow : public ::testing::Test {
 protected:
  /// `person` answers in place of `dialogs`.
  explicit RealWindow(Dialogs *person = nullptr);
  ~RealWindow() override;

  template <typename Widget>
  Widget *Find(const char *name) {
    auto *found = window.findChild<Widget *>(QString::fromLatin1(name));
    EXPECT_NE(found, nullptr) << name;
    return found;
  }
  void Choose(const char *item) { Find<QAction>(item)->trigger(); }
  QToolButton &Button(const char *name) { return *Find<QToolButton>(name); }
  PageTabs &Tabs();
  /// The main window as pages see it.
  const MainWindow &Parts() { return window.Context().mainWindow; }
  FakeFileDialog &SharedDialog() { return static_cast<FakeFileDialog &>(Parts().fileDialog); }

  QString Logic(const QString &name) const;
  void Write(const QString &name, const QByteArray &content) const;
  QByteArray Bytes(const QString &name) const;
  bool Exists(const QString &name) const;

  /// Opens a file of the folder through the File menu, written first where `content` is given.
  frmMain &Open(const QString &name, const QByteArray &content = {});
  frmMain &NewPage();
  /// The page that was made last.
  frmMain &LastPage();
  /// Closes a page with changes, and answers No when asked whether to save it.
  void CloseUnsaved(frmMain &page);

  static QWebEnginePage &EngineOf(QWidget &shown);
  /// The widget that takes a page's input.
  static QWidget *InputOf(frmMain &page);
  static void Type(frmMain &page, const QString &text);
  static void Key(frmMain &page, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
  /// Puts the caret after the first character of the first element that the selector finds.
  static void PutCaret(frmMain &page, const QString &selector);
  static void Select(frmMain &page, const QString &selector);
  /// Selects the picture behind the first character of the first paragraph, once it shows in that
  /// width of its file.
  static void SelectPicture(frmMain &page, int width);
  /// The widget that files are dropped on.
  static QWidget &ViewOf(frmMain &page);
  /// Drops files on a widget, as a file manager does.
  static void DropFiles(QWidget &target, const QStringList &nativePaths, QPoint place);
  static bool Holds(frmMain &page, const QString &text);
  static std::string Seen(frmMain &page);

  ScratchProgramFolder folder;
  QtFiles files;
  QtRuntime runtime{0, nullptr};
  FakeDialogs dialogs;
  QtRegistry registry;
  AnsweredComponents components{files, runtime.ProgramFolder()};
  TemporaryCopyFiles copies;
  Platform platform;
  ProgramValues values;
  MfrmProgram window{platform, values};
};

}  // namespace velor
