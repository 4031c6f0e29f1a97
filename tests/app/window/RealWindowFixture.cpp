// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/app/window/RealWindowFixture.h"

#include "app/window/PageTabs.h"
#include "editor/PageSlots.h"
#include "editor/frmMain.h"
#include "engine/BridgeScript.h"
#include "platform/Paths.h"
#include "tests/engine/ComponentFixture.h"

#include <QApplication>
#include <QDropEvent>
#include <QFile>
#include <QMimeData>
#include <QTest>
#include <QWebEngineView>

namespace velor {

RealWindow::RealWindow(Dialogs *person)
    : platform{files,    runtime,    person == nullptr ? dialogs : *person,
               registry, components, nullptr,
               nullptr,  nullptr,    &copies} {
  // As on a large screen, whatever the one here is.
  window.resize(1180, 800);
  window.Load();
  EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
  window.activateWindow();
}

RealWindow::~RealWindow() {
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

PageTabs &RealWindow::Tabs() {
  return *Find<PageTabs>("FileTab");
}

QString RealWindow::Logic(const QString &name) const {
  return ToLogic(folder.FilePath(name));
}

void RealWindow::Write(const QString &name, const QByteArray &content) const {
  QFile file(folder.FilePath(name));
  EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << name.toStdString();
  EXPECT_EQ(file.write(content), content.size());
}

QByteArray RealWindow::Bytes(const QString &name) const {
  QFile file(folder.FilePath(name));
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name.toStdString();
  return file.readAll();
}

bool RealWindow::Exists(const QString &name) const {
  return QFile::exists(folder.FilePath(name));
}

frmMain &RealWindow::Open(const QString &name, const QByteArray &content) {
  if (!content.isEmpty()) Write(name, content);
  SharedDialog().ExpectOpen(Logic(name));
  Choose("mnuOpen");
  return LastPage();
}

frmMain &RealWindow::NewPage() {
  Choose("mnuNew");
  return LastPage();
}

frmMain &RealWindow::LastPage() {
  PageSlots &pages = window.Context().pages;
  frmMain &page = *pages.Page(pages.PageCount());
  EXPECT_TRUE(WaitFor([&] { return page.PendingAction.isEmpty(); }));
  page.DHTML1().SetFocus();
  return page;
}

void RealWindow::CloseUnsaved(frmMain &page) {
  dialogs.ExpectMessage(
      QStringLiteral("You have made changes to this document. Do you want to save it?"),
      MessageAnswer::No);
  EXPECT_TRUE(page.close());
}

QWebEnginePage &RealWindow::EngineOf(QWidget &shown) {
  return *shown.findChild<QWebEngineView *>()->page();
}

QWidget *RealWindow::InputOf(frmMain &page) {
  return page.findChild<QWebEngineView *>()->focusProxy();
}

void RealWindow::Type(frmMain &page, const QString &text) {
  QTest::keyClicks(InputOf(page), text);
}

void RealWindow::Key(frmMain &page, Qt::Key key, Qt::KeyboardModifiers modifiers) {
  QTest::keyClick(InputOf(page), key, modifiers);
}

void RealWindow::PutCaret(frmMain &page, const QString &selector) {
  Evaluate(EngineOf(page),
           QStringLiteral("getSelection().collapse(document.querySelector(%1).firstChild, 1)")
               .arg(ScriptValue(selector)));
}

void RealWindow::Select(frmMain &page, const QString &selector) {
  Evaluate(EngineOf(page),
           QStringLiteral("getSelection().selectAllChildren(document.querySelector(%1))")
               .arg(ScriptValue(selector)));
}

void RealWindow::SelectPicture(frmMain &page, int width) {
  ASSERT_TRUE(WaitFor([&] {
    return Evaluate(EngineOf(page), QStringLiteral("document.images[0].naturalWidth")) == width;
  }));
  Evaluate(EngineOf(page), QStringLiteral("{ const p = document.querySelector('p');"
                                          "getSelection().setBaseAndExtent(p, 1, p, 2) }"));
  ASSERT_TRUE(WaitFor(
      [&] { return page.DHTML1().Document().Selection().Type() == SelectionType::Control; }));
}

QWidget &RealWindow::ViewOf(frmMain &page) {
  return *page.DHTML1().Widget()->findChild<QWebEngineView *>();
}

void RealWindow::DropFiles(QWidget &target, const QStringList &nativePaths, QPoint place) {
  QMimeData data;
  QList<QUrl> urls;
  for (const QString &path : nativePaths) urls += QUrl::fromLocalFile(path);
  data.setUrls(urls);
  QDragEnterEvent enter(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&target, &enter);
  EXPECT_TRUE(enter.isAccepted());
  QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&target, &drop);
}

bool RealWindow::Holds(frmMain &page, const QString &text) {
  return page.DHTML1().DocumentHTML().contains(text);
}

std::string RealWindow::Seen(frmMain &page) {
  return page.DHTML1().DocumentHTML().toStdString();
}

}  // namespace velor
