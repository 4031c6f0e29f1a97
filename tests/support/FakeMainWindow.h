// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/MainWindow.h"
#include "tests/support/CallLog.h"

#include <QStringList>
#include <QWidget>

#include <vector>

namespace velor {

/// A main window that writes down what it is asked. Its tabs are real enough to be counted, found
/// by key and by position, and to raise the errors of the real strip.
class FakeMainWindow final : public MainWindow {
 public:
  struct Tab {
    QString key;
    int image = 0;
    QString caption;
  };

  explicit FakeMainWindow(FileDialog &sharedDialog, CallLog *log = nullptr)
      : log_(log), dialog_(sharedDialog) {}

  // What tests read.
  std::vector<Tab> tabs;
  QString selectedTab;
  std::vector<QWidget *> adopted;
  QString statusText;
  QString textForm;
  QStringList reports;
  bool pageCommandsEnabled = false;

  void AdoptWindow(QWidget *window) override;
  void ShowWindow(QWidget *window) override;
  void ActivateWindow(QWidget *window) override;
  void HideWindow(QWidget *window) override;
  void ReleaseWindow(QWidget *window) override;

  int TabCount() const override { return static_cast<int>(tabs.size()); }
  void AddTab(const QString &key, int image) override;
  void SetTabCaption(const QString &key, const QString &caption) override;
  void SetTabCaptionAt(int position, const QString &caption) override;
  void SelectTab(const QString &key) override;
  void RemoveTab(const QString &key) override;
  void ClearTabs() override;

  void SetPageCommandsEnabled(bool enabled) override;
  void SetSourceEditingEnabled(bool enabled) override;
  void RefreshCommandState() override;
  void ResetElementInspection() override;

  void SetEditButton(const QString &key, bool enabled, bool pressed) override;
  void DisableEditButton(const QString &key) override;
  void ShowFontName(const QString &name) override;
  void ShowBackColor(const QString &htmlColor) override;
  void ShowForeColor(const QString &htmlColor) override;
  void ShowBlockFormat(const QString &name) override;
  void ShowFontSize(const QString &points) override;

  void SetStatusText(const QString &text) override;
  void ShowTextForm(const QString &words) override { textForm = words; }
  void ReportInStatusBar(const QString &message) override;
  void PopUpContextMenu(QPoint screenPosition) override;
  void TakeDroppedFiles(const QStringList &paths, frmMain *page) override;
  FileDialog &SharedFileDialog() override { return dialog_; }

 private:
  std::vector<Tab>::iterator Find(const QString &key);

  CallLog *log_;
  QWidget host_;
  FileDialog &dialog_;
};

}  // namespace velor
