// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/PageBench.h"

#include "bench/Measure.h"
#include "platform/Paths.h"

#include <QDir>
#include <QFile>
#include <QTest>
#include <QWebEnginePage>
#include <QWebEngineScript>
#include <QWebEngineView>

namespace velor::bench {

namespace {

constexpr QSize WindowSize(900, 700);

}  // namespace

OurPage::OurPage(const QString &programFolder)
    : editor(engine, files, ToLogic(programFolder), &window) {
  editor.SetListener(this);
  window.resize(WindowSize);
  editor.Widget()->setGeometry(window.rect());
  window.show();
}

PageBench::PageBench() : ours(QDir::rootPath()) {
  theirs.resize(WindowSize);
  theirs.show();
}

QString PageBench::File(const QString &name, const QByteArray &content) const {
  const QString path = folder.filePath(name);
  QFile file(path);
  if (file.open(QIODevice::WriteOnly)) file.write(content);
  return path;
}

QString PageBench::File(const Size &size) const {
  return File(QString::number(size.bytes) + QStringLiteral(".html"), SamplePage(size.bytes));
}

void PageBench::Load(const QString &path) {
  ours.editor.LoadDocument(ToLogic(path));
  theirs.LoadFile(path);
}

QWidget *KeyTarget(QWidget *view) {
  QWidget *proxy = view->focusProxy();
  return proxy != nullptr ? proxy : view;
}

QWidget *EngineWidget(QWidget *container) {
  for (QWebEngineView *view : container->findChildren<QWebEngineView *>()) return KeyTarget(view);
  return KeyTarget(container);
}

void Focus(QWidget *target) {
  target->window()->activateWindow();
  (void)QTest::qWaitForWindowActive(target->window());
  target->setFocus();
}

QVariant Evaluate(QWidget *container, const QString &script) {
  bool done = false;
  QVariant value;
  auto *view = qobject_cast<QWebEngineView *>(container);
  if (view == nullptr) view = container->findChild<QWebEngineView *>();
  view->page()->runJavaScript(script, QWebEngineScript::ApplicationWorld,
                              [&](const QVariant &answer) {
                                value = answer;
                                done = true;
                              });
  WaitUntil([&done] { return done; });
  return value;
}

}  // namespace velor::bench
