// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/app/WindowFixture.h"

#include "app/window/PageTabs.h"
#include "editor/PageSlots.h"
#include "editor/frmMain.h"

#include <QCoreApplication>
#include <QEvent>

namespace velor {

WindowFixture::WindowFixture() {
  window.Load();
  log.clear();
}

PageTabs &WindowFixture::Tabs() {
  return *Find<PageTabs>("FileTab");
}

frmMain &WindowFixture::NewPage() {
  Choose("mnuNew");
  return *window.Context().pages.Page(window.Context().pages.PageCount());
}

void WindowFixture::WriteFile(const QString &path) {
  files.ReplaceAll(path, QByteArrayLiteral("<html><body>text</body></html>"));
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
