// SPDX-License-Identifier: GPL-3.0-or-later
// What the page windows ask of the main window.
#include "app/window/CoolBar.h"
#include "app/window/DialogInsertCommands.h"
#include "app/window/FormattingBar.h"
#include "app/window/GeneralToolbar.h"
#include "app/window/MfrmProgram.h"
#include "app/window/PageArea.h"
#include "app/window/PageTabs.h"
#include "app/window/ProjectDesk.h"
#include "chrome/ToolBarButtons.h"
#include "editor/frmBrowser.h"
#include "platform/Dialogs.h"
#include "platform/EditingComponent.h"
#include "platform/Paths.h"

#include <QAction>
#include <QDropEvent>
#include <QLabel>
#include <QMenu>
#include <QMimeData>
#include <QStatusBar>
#include <QTimer>
#include <QUrl>

namespace velor {
namespace {

constexpr int NoticeMilliseconds = 10'000;

}  // namespace

void MfrmProgram::AdoptWindow(QWidget *window) {
  area_->Adopt(window);
}

void MfrmProgram::ShowWindow(QWidget *window) {
  area_->Show(window);
  window->setFocus();
}

void MfrmProgram::ActivateWindow(QWidget *window) {
  area_->Activate(window);
  // Whoever walks along the tabs by keyboard stays there.
  if (!FileTab->hasFocus()) window->setFocus();
}

void MfrmProgram::HideWindow(QWidget *window) {
  area_->Hide(window);
}

void MfrmProgram::ReleaseWindow(QWidget *window) {
  area_->Release(window);
}

int MfrmProgram::TabCount() const {
  return FileTab->count();
}

void MfrmProgram::AddTab(const QString &key, int image) {
  FileTab->Add(key, image);
}

void MfrmProgram::SetTabCaption(const QString &key, const QString &caption) {
  FileTab->SetCaption(key, caption);
}

void MfrmProgram::SetTabCaptionAt(int position, const QString &caption) {
  FileTab->SetCaptionAt(position, caption);
}

void MfrmProgram::SelectTab(const QString &key) {
  FileTab->Select(key);
}

void MfrmProgram::RemoveTab(const QString &key) {
  FileTab->Remove(key);
}

void MfrmProgram::ClearTabs() {
  FileTab->Clear();
}

void MfrmProgram::SetPageCommandsEnabled(bool enabled) {
  for (const char *menu : PageMenus) {
    menus_.menus.value(QString::fromLatin1(menu))->menuAction()->setEnabled(enabled);
  }
  for (const char *key : PageButtons) {
    coolBar_->GeneralButtonOf(QString::fromLatin1(key)).setEnabled(enabled);
  }
}

void MfrmProgram::SetSourceEditingEnabled(bool enabled) {
  sourceEditing_->setEnabled(enabled);
}

void MfrmProgram::RefreshCommandState() {
  SetPageCommandsEnabled(TabCount() > 0);
}

void MfrmProgram::ResetElementInspection() {
  inspectedElement_.clear();
}

void MfrmProgram::SetEditButton(const QString &key, bool enabled, bool pressed) {
  ToolBarAction &button = coolBar_->EditButtonOf(key);
  button.setEnabled(enabled);
  button.ShowChecked(pressed);
}

void MfrmProgram::DisableEditButton(const QString &key) {
  coolBar_->EditButtonOf(key).setEnabled(false);
}

void MfrmProgram::ShowFontName(const QString &name) {
  coolBar_->Boxes().ShowFontName(name);
}

void MfrmProgram::ShowBackColor(const QString &htmlColor) {
  coolBar_->Boxes().ShowBackColor(htmlColor);
}

void MfrmProgram::ShowForeColor(const QString &htmlColor) {
  coolBar_->Boxes().ShowForeColor(htmlColor);
}

void MfrmProgram::ShowBlockFormat(const QString &name) {
  coolBar_->Boxes().ShowBlockFormat(name);
}

void MfrmProgram::ShowFontSize(const QString &points) {
  coolBar_->Boxes().ShowFontSize(points);
}

void MfrmProgram::SetStatusText(const QString &text) {
  statusText_->setText(text);
}

void MfrmProgram::ShowTextForm(const QString &words) {
  textForm_->setText(words);
}

void MfrmProgram::ReportInStatusBar(const QString &message) {
  statusBar()->showMessage(message, NoticeMilliseconds);
}

void MfrmProgram::PopUpContextMenu(QPoint screenPosition) {
  menus_.menus.value(QStringLiteral("mnuExt"))->popup(screenPosition);
}

void MfrmProgram::TakeDroppedFiles(const QStringList &paths, frmMain *page) {
  router_.TakeDroppedFiles(paths, page);
}

void MfrmProgram::dragEnterEvent(QDragEnterEvent *event) {
  if (event->mimeData()->hasUrls()) event->acceptProposedAction();
}

void MfrmProgram::dropEvent(QDropEvent *event) {
  QStringList paths;
  for (const QUrl &url : event->mimeData()->urls())
    if (url.isLocalFile()) paths += ToLogic(url.toLocalFile());
  event->acceptProposedAction();
  // The program that the files come from waits for the end of this event.
  QTimer::singleShot(0, this, [this, paths] { TakeDroppedFiles(paths, nullptr); });
}

FileDialog &MfrmProgram::SharedFileDialog() {
  return *fileDialog_;
}

}  // namespace velor
