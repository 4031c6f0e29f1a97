// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/FakeMainWindow.h"

#include "platform/Conversions.h"
#include "platform/RuntimeError.h"

#include <algorithm>

namespace velor {

namespace {

QString Call(const char *name, std::initializer_list<QString> arguments) {
  return QString::fromLatin1(name) + u'(' + QStringList(arguments).join(QStringLiteral(", ")) +
         u')';
}

}  // namespace

std::vector<FakeMainWindow::Tab>::iterator FakeMainWindow::Find(const QString &key) {
  const auto tab = std::find_if(tabs.begin(), tabs.end(),
                                [&](const Tab &candidate) { return candidate.key == key; });
  if (tab == tabs.end()) {
    throw RuntimeError::Of(ErrorNumber::ElementNotFound, QStringLiteral("FileTab"), key);
  }
  return tab;
}

void FakeMainWindow::AdoptWindow(QWidget *window) {
  Note(log_, Call("AdoptWindow", {window->objectName()}));
  window->setParent(&host_);
  adopted.push_back(window);
}

void FakeMainWindow::ShowWindow(QWidget *window) {
  Note(log_, Call("ShowWindow", {window->objectName()}));
  host_.show();
  window->show();
}

void FakeMainWindow::ActivateWindow(QWidget *window) {
  Note(log_, Call("ActivateWindow", {window->objectName()}));
}

void FakeMainWindow::HideWindow(QWidget *window) {
  Note(log_, Call("HideWindow", {window->objectName()}));
  window->hide();
}

void FakeMainWindow::ReleaseWindow(QWidget *window) {
  Note(log_, Call("ReleaseWindow", {window->objectName()}));
  std::erase(adopted, window);
}

void FakeMainWindow::AddTab(const QString &key, int image) {
  Note(log_, Call("AddTab", {key, QString::number(image)}));
  tabs.push_back({key, image, {}});
}

void FakeMainWindow::SetTabCaption(const QString &key, const QString &caption) {
  Note(log_, Call("SetTabCaption", {key, caption}));
  Find(key)->caption = caption;
}

void FakeMainWindow::SetTabCaptionAt(int position, const QString &caption) {
  Note(log_, Call("SetTabCaptionAt", {QString::number(position), caption}));
  if (position < 1 || position > TabCount()) {
    throw RuntimeError::Of(ErrorNumber::IndexOutOfBounds, QStringLiteral("FileTab"));
  }
  tabs[static_cast<std::size_t>(position - 1)].caption = caption;
}

void FakeMainWindow::SelectTab(const QString &key) {
  Note(log_, Call("SelectTab", {key}));
  selectedTab = Find(key)->key;
}

void FakeMainWindow::RemoveTab(const QString &key) {
  Note(log_, Call("RemoveTab", {key}));
  tabs.erase(Find(key));
}

void FakeMainWindow::ClearTabs() {
  Note(log_, Call("ClearTabs", {}));
  tabs.clear();
}

void FakeMainWindow::SetPageCommandsEnabled(bool enabled) {
  Note(log_, Call("SetPageCommandsEnabled", {BoolText(enabled)}));
  pageCommandsEnabled = enabled;
}

void FakeMainWindow::SetSourceEditingEnabled(bool enabled) {
  Note(log_, Call("SetSourceEditingEnabled", {BoolText(enabled)}));
}

void FakeMainWindow::RefreshCommandState() {
  Note(log_, Call("RefreshCommandState", {}));
}

void FakeMainWindow::ResetElementInspection() {
  Note(log_, Call("ResetElementInspection", {}));
}

void FakeMainWindow::SetEditButton(const QString &key, bool enabled, bool pressed) {
  Note(log_, Call("SetEditButton", {key, BoolText(enabled), BoolText(pressed)}));
}

void FakeMainWindow::DisableEditButton(const QString &key) {
  Note(log_, Call("DisableEditButton", {key}));
}

void FakeMainWindow::ShowFontName(const QString &name) {
  Note(log_, Call("ShowFontName", {name}));
}

void FakeMainWindow::ShowBackColor(const QString &htmlColor) {
  Note(log_, Call("ShowBackColor", {htmlColor}));
}

void FakeMainWindow::ShowForeColor(const QString &htmlColor) {
  Note(log_, Call("ShowForeColor", {htmlColor}));
}

void FakeMainWindow::ShowBlockFormat(const QString &name) {
  Note(log_, Call("ShowBlockFormat", {name}));
}

void FakeMainWindow::ShowFontSize(const QString &points) {
  Note(log_, Call("ShowFontSize", {points}));
}

void FakeMainWindow::SetStatusText(const QString &text) {
  Note(log_, Call("SetStatusText", {text}));
  statusText = text;
}

void FakeMainWindow::ReportInStatusBar(const QString &message) {
  Note(log_, Call("ReportInStatusBar", {message}));
  reports << message;
}

void FakeMainWindow::PopUpContextMenu(QPoint screenPosition) {
  Note(log_, Call("PopUpContextMenu",
                  {QString::number(screenPosition.x()), QString::number(screenPosition.y())}));
}

void FakeMainWindow::TakeDroppedFiles(const QStringList &paths, frmMain *) {
  Note(log_, Call("TakeDroppedFiles", {paths.join(QLatin1Char(';'))}));
}

}  // namespace velor
