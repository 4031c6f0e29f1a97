// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPoint>
#include <QString>
#include <QStringList>

class QWidget;

namespace velor {

class FileDialog;
class frmMain;

/// What a page window needs of the window that holds it. MfrmProgram implements it; tests have a
/// recording fake. Writes to boxes and tabs through it never fire the handlers meant for the
/// person's own choices.
class MainWindow {
 public:
  virtual ~MainWindow() = default;

  // Child windows.
  /// Makes `window` a child of the main window, not yet shown.
  virtual void AdoptWindow(QWidget *window) = 0;
  /// Shows an adopted window (maximised for pages) and makes it the active one.
  virtual void ShowWindow(QWidget *window) = 0;
  virtual void ActivateWindow(QWidget *window) = 0;
  /// Takes an adopted window out of sight until ShowWindow; its frame goes with it.
  virtual void HideWindow(QWidget *window) = 0;
  /// Lets go of an adopted window that is closing: its frame vanishes. The window deletes itself.
  virtual void ReleaseWindow(QWidget *window) = 0;

  // Page tabs, `FileTab`. Keys are "key" followed by the page number. Unknown keys raise
  // ElementNotFound (35601), positions out of range IndexOutOfBounds (35600).
  virtual int TabCount() const = 0;
  virtual void AddTab(const QString &key, int image) = 0;
  virtual void SetTabCaption(const QString &key, const QString &caption) = 0;
  /// `position` counts from 1 in the order of the tabs.
  virtual void SetTabCaptionAt(int position, const QString &caption) = 0;
  virtual void SelectTab(const QString &key) = 0;
  virtual void RemoveTab(const QString &key) = 0;
  virtual void ClearTabs() = 0;

  // Availability.
  /// The Edit, Insert and Table menus and the toolbar buttons that need a page, together.
  virtual void SetPageCommandsEnabled(bool enabled) = 0;
  /// The action that opens the source editor.
  virtual void SetSourceEditingEnabled(bool enabled) = 0;
  /// Brings the availability of the commands in step with the active window; called when the
  /// preview gives way.
  virtual void RefreshCommandState() = 0;
  /// Clears the element-inspection state kept for the tool box.
  virtual void ResetElementInspection() = 0;

  // The editing toolbar and the formatting boxes. `key` as in the toolbar ("bold" ...).
  virtual void SetEditButton(const QString &key, bool enabled, bool pressed) = 0;
  /// Enabled state alone; the pressed state stays.
  virtual void DisableEditButton(const QString &key) = 0;
  // Each box is written only when its value differs.
  virtual void ShowFontName(const QString &name) = 0;
  /// `htmlColor` as "#RRGGBB"; compared as a colour.
  virtual void ShowBackColor(const QString &htmlColor) = 0;
  virtual void ShowForeColor(const QString &htmlColor) = 0;
  virtual void ShowBlockFormat(const QString &name) = 0;
  virtual void ShowFontSize(const QString &points) = 0;

  // Status bar `Sta`.
  virtual void SetStatusText(const QString &text) = 0;
  /// How the active page's bytes stand for its text, beside the status text; empty without a page.
  virtual void ShowTextForm(const QString &words) = 0;
  /// A notice that gives way to the status text after ten seconds.
  virtual void ReportInStatusBar(const QString &message) = 0;

  /// Pops up the context menu of the editing area.
  virtual void PopUpContextMenu(QPoint screenPosition) = 0;

  /// Files were dropped, paths in logic form: pages are opened, pictures go into `page` at its
  /// caret where there is one.
  virtual void TakeDroppedFiles(const QStringList &paths, frmMain *page) = 0;

  /// The one file dialog that Open, Save and Save As share.
  virtual FileDialog &SharedFileDialog() = 0;
};

}  // namespace velor
