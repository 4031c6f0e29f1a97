// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/EditingEngine.h"
#include "engine/WebEditor.h"
#include "files/QtFiles.h"
#include "platform/EditingComponent.h"
#include "tests/support/Waiting.h"

#include <QTemporaryDir>
#include <QWebEnginePage>
#include <QWidget>

#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <vector>

namespace velor {

/// The value of an expression in the bridge's world of a page, or in the page's own.
QVariant Evaluate(QWebEnginePage &page, const QString &expression, quint32 world = 1);

/// Records the notices that it gets; a test may act from inside one.
class RecordingListener : public EditingListener {
 public:
  void DocumentComplete() override { Note(++completions, onComplete); }
  void DisplayChanged() override { Note(++displayChanges, onDisplayChange); }
  void ContextMenuRequested(QPoint screenPosition) override {
    menuPosition = screenPosition;
    Note(++menus, onMenu);
  }
  void MouseNotified(int clientX, int clientY) override {
    mouse = {clientX, clientY};
    Note(++mouseNotices, onMouse);
  }
  void FilesDropped(const QStringList &paths) override { files = paths; }
  void ComponentReported(const QString &message) override { reports.push_back(message); }

  int completions = 0;
  int displayChanges = 0;
  int menus = 0;
  int mouseNotices = 0;
  QPoint menuPosition;
  QPoint mouse;
  std::vector<QString> reports;
  QStringList files;
  std::function<void()> onComplete;
  std::function<void()> onDisplayChange;
  std::function<void()> onMenu;
  std::function<void()> onMouse;

 private:
  static void Note(int, const std::function<void()> &then) {
    if (then) then();
  }
};

/// A folder with pages and a window with an editing component in it.
class WebEditorTest : public ::testing::Test {
 protected:
  WebEditorTest();
  ~WebEditorTest() override;

  /// Native path of a file in the folder.
  QString Native(const QString &name) const { return folder_.filePath(name); }
  /// The same in logic form.
  QString Logic(const QString &name) const;
  QString Write(const QString &name, const QByteArray &content) const;
  QByteArray Bytes(const QString &name) const;

  /// Shows the window and gives the page the focus.
  void Show();
  /// The widget that takes the page's input.
  QWidget *Input() const;
  QWebEnginePage *Page() const;
  QVariant Evaluate(const QString &expression, quint32 world = 1) const {
    return velor::Evaluate(*Page(), expression, world);
  }
  /// Loads a page of that content and puts the caret at the end of the first element that the
  /// selector finds.
  void LoadWithCaret(const QByteArray &html, const QString &selector);
  void TypeText(const QString &text) const;
  static EditingEngine &Engine();
  bool DocumentHolds(const QString &text) { return editor_->DocumentHTML().contains(text); }

  QTemporaryDir folder_;
  QtFiles files_;
  RecordingListener listener_;
  std::unique_ptr<QWidget> window_;
  std::unique_ptr<WebEditor> editor_;
};

}  // namespace velor
