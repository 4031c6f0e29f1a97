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

void FakeMainWindow::Adopt(QWidget *window) {
  Note(log_, Call("AdoptWindow", {window->objectName()}));
  window->setParent(&host_);
  adopted.push_back(window);
}

void FakeMainWindow::Show(QWidget *window) {
  Note(log_, Call("ShowWindow", {window->objectName()}));
  host_.show();
  window->show();
  current_ = window;
}

void FakeMainWindow::Activate(QWidget *window) {
  Note(log_, Call("ActivateWindow", {window->objectName()}));
  current_ = window;
}

void FakeMainWindow::Hide(QWidget *window) {
  Note(log_, Call("HideWindow", {window->objectName()}));
  window->hide();
  if (current_ == window) current_.clear();
}

void FakeMainWindow::Release(QWidget *window) {
  Note(log_, Call("ReleaseWindow", {window->objectName()}));
  std::erase(adopted, window);
  if (current_ == window) current_.clear();
}

void FakeMainWindow::Add(const QString &key, int image) {
  Note(log_, Call("AddTab", {key, QString::number(image)}));
  tabs.push_back({key, image, {}, {}});
}

void FakeMainWindow::SetCaption(const QString &key, const QString &caption) {
  Note(log_, Call("SetTabCaption", {key, caption}));
  Find(key)->caption = caption;
}

void FakeMainWindow::Select(const QString &key) {
  Note(log_, Call("SelectTab", {key}));
  selectedTab = Find(key)->key;
}

void FakeMainWindow::Remove(const QString &key) {
  Note(log_, Call("RemoveTab", {key}));
  tabs.erase(Find(key));
}

void FakeMainWindow::Clear() {
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

void FakeMainWindow::Refresh() {
  Note(log_, Call("Refresh", {}));
}

void FakeMainWindow::ResetElementInspection() {
  Note(log_, Call("ResetElementInspection", {}));
}

void FakeMainWindow::ShowButton(EditingCommand command, ButtonState state) {
  const char *name = nullptr;
  switch (state) {
    case ButtonState::Unsupported:
      name = "Unsupported";
      break;
    case ButtonState::Off:
      name = "Off";
      break;
    case ButtonState::On:
      name = "On";
      break;
    case ButtonState::Pressed:
      name = "Pressed";
      break;
  }
  Note(log_, Call("ShowButton", {QString::number(Number(command)), QString::fromLatin1(name)}));
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

void FakeMainWindow::ShowNothing() {
  Note(log_, Call("ShowNothing", {}));
}

void FakeMainWindow::ShowTag(const QString &text) {
  Note(log_, Call("ShowTag", {text}));
  tag = text;
}

void FakeMainWindow::Report(const QString &message) {
  Note(log_, Call("Report", {message}));
  reports << message;
}

void FakeMainWindow::ReportOn(int page, const QString &message) {
  Note(log_, Call("ReportOn", {QString::number(page), message}));
  reports << message;
}

void FakeMainWindow::PopUpContextMenu(QPoint screenPosition) {
  Note(log_, Call("PopUpContextMenu",
                  {QString::number(screenPosition.x()), QString::number(screenPosition.y())}));
}

void FakeMainWindow::OpenDroppedFiles(const QStringList &paths, frmMain *) {
  Note(log_, Call("OpenDroppedFiles", {paths.join(QLatin1Char(';'))}));
}

}  // namespace velor
