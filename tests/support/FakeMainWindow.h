// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/MainWindow.h"
#include "tests/support/CallLog.h"

#include <QPointer>
#include <QStringList>
#include <QWidget>

#include <vector>

namespace velor {

/// A main window that notes its calls. Its tabs can be counted and found by key and by position,
/// and raise the errors of the real tabs.
class FakeMainWindow final : public ChildWindows,
                             public TabStrip,
                             public FormatDisplay,
                             public StatusDisplay,
                             public CommandAvailability,
                             public PageRequests {
 public:
  struct Tab {
    QString key;
    int image = 0;
    QString caption;
    TabState state = {};
  };

  explicit FakeMainWindow(FileDialog &sharedDialog, CallLog *log = nullptr)
      : log_(log), dialog_(sharedDialog) {}

  // What tests read.
  std::vector<Tab> tabs;
  QString selectedTab;
  std::vector<QWidget *> adopted;
  QString tag;
  QString textForm;
  QStringList reports;
  bool pageCommandsEnabled = false;

  void Adopt(QWidget *window) override;
  void Show(QWidget *window) override;
  void Activate(QWidget *window) override;
  void Hide(QWidget *window) override;
  void Release(QWidget *window) override;
  /// The window shown or activated last, unless it has gone since.
  QWidget *Current() const override { return current_; }

  int Count() const override { return static_cast<int>(tabs.size()); }
  void Add(const QString &key, int image) override;
  void SetCaption(const QString &key, const QString &caption) override;
  void SetState(const QString &key, const TabState &state) override { Find(key)->state = state; }
  void Select(const QString &key) override;
  void Remove(const QString &key) override;
  void Clear() override;

  void ShowButton(EditingCommand command, ButtonState state) override;
  void ShowFontName(const QString &name) override;
  void ShowBackColor(const QString &htmlColor) override;
  void ShowForeColor(const QString &htmlColor) override;
  void ShowBlockFormat(const QString &name) override;
  void ShowFontSize(const QString &points) override;
  void ShowNothing() override;

  void ShowTag(const QString &tag) override;
  void ShowTextForm(const QString &words) override { textForm = words; }
  void Report(const QString &message) override;
  void ReportOn(int page, const QString &message) override;
  bool HasNotice() const override { return !reports.isEmpty() && !reports.last().isEmpty(); }

  void SetPageCommandsEnabled(bool enabled) override;
  void SetSourceEditingEnabled(bool enabled) override;
  void Refresh() override;

  void PopUpContextMenu(QPoint screenPosition) override;
  void OpenDroppedFiles(const QStringList &paths, frmMain *page) override;
  void ResetElementInspection() override;

  /// As EditorContext has it.
  operator MainWindow() { return {*this, *this, *this, *this, *this, *this, dialog_}; }

 private:
  std::vector<Tab>::iterator Find(const QString &key);

  CallLog *log_;
  QWidget host_;
  QPointer<QWidget> current_;
  FileDialog &dialog_;
};

}  // namespace velor
