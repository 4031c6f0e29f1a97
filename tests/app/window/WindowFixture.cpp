// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/app/window/WindowFixture.h"

#include "app/settings/modSettingManager.h"
#include "app/window/PageTabs.h"
#include "editor/PageSlots.h"
#include "editor/frmMain.h"

#include <QCoreApplication>
#include <QEvent>

namespace velor {

namespace {

Additions Stored(Registry &registry, Additions additions) {
  if (additions == Additions::Off)
    modSettingManager::SetOption(registry, QStringLiteral("PublishedOnly"), QStringLiteral("True"));
  return additions;
}

}  // namespace

WindowFixture::WindowFixture(Additions wanted) : additions(Stored(registry, wanted)) {
  files.AddFolder(runtime.programFolder);
  files.AddFolder(QStringLiteral("\\site"));
  // As on a large screen, whatever the one here is.
  window.resize(1180, 800);
  window.Load();
  log.clear();
}

PageTabs &WindowFixture::Tabs() {
  return *Find<PageTabs>("FileTab");
}

frmMain &WindowFixture::NewPage() {
  Choose("mnuNew");
  frmMain &page = *window.Context().pages.Page(window.Context().pages.PageCount());
  Component(page).CompleteDocument();
  return page;
}

void WindowFixture::WriteFile(const QString &path) {
  files.AddFile(path, QByteArrayLiteral("<html><body>text</body></html>"));
}

FakeEditingComponent &WindowFixture::Component(frmMain &page) {
  return static_cast<FakeEditingComponent &>(page.DHTML1());
}

QStringList WindowFixture::Commands() const {
  QStringList commands;
  for (const QString &call : log) {
    if (call.startsWith(QStringLiteral("ExecCommand("))) commands.append(call);
  }
  return commands;
}

void WindowFixture::DeleteClosedWindows() {
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

}  // namespace velor
