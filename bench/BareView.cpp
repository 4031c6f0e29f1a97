// SPDX-License-Identifier: GPL-3.0-or-later
#include "bench/BareView.h"

#include "bench/Measure.h"

#include <QCoreApplication>
#include <QFile>
#include <QUrl>
#include <QWebChannel>
#include <QWebEnginePage>
#include <QWebEngineProfile>
#include <QWebEngineScript>
#include <QWebEngineScriptCollection>

namespace velor::bench {

namespace {

QWebEngineProfile *SharedProfile() {
  static auto *profile = new QWebEngineProfile(qApp);
  return profile;
}

}  // namespace

BareView::BareView(QWidget *parent) : QWebEngineView(parent) {
  setPage(new QWebEnginePage(SharedProfile(), this));
  auto *channel = new QWebChannel(this);
  channel->registerObject(QStringLiteral("view"), this);
  page()->setWebChannel(channel, QWebEngineScript::ApplicationWorld);
  QFile library(QStringLiteral(":/qtwebchannel/qwebchannel.js"));
  const bool opened = library.open(QIODevice::ReadOnly);
  Q_ASSERT(opened);
  QWebEngineScript script;
  script.setWorldId(QWebEngineScript::ApplicationWorld);
  script.setInjectionPoint(QWebEngineScript::DocumentReady);
  script.setSourceCode(QString::fromUtf8(library.readAll()) + QStringLiteral(R"(
    new QWebChannel(qt.webChannelTransport, function (channel) {
      document.designMode = 'on';
      document.addEventListener('selectionchange', () => channel.objects.view.SelectionMoved());
    });)"));
  page()->scripts().insert(script);
}

void BareView::LoadFile(const QString &nativePath) {
  bool done = false;
  const auto connection =
      connect(page(), &QWebEnginePage::loadFinished, this, [&done](bool) { done = true; });
  load(QUrl::fromLocalFile(nativePath));
  WaitUntil([&done] { return done; });
  disconnect(connection);
  Evaluate(QStringLiteral(
      "document.designMode = 'on'; document.body.focus();"
      "getSelection().collapse(document.body.firstElementChild || document.body, 0); 1"));
}

QString BareView::OuterHtml() {
  return Evaluate(QStringLiteral("document.documentElement.outerHTML")).toString();
}

QString BareView::OuterHtmlAfter(const QString &insertedHtml) {
  return Evaluate(QStringLiteral("document.execCommand('insertHTML', false, '%1');"
                                 "document.documentElement.outerHTML")
                      .arg(insertedHtml))
      .toString();
}

QVariant BareView::Evaluate(const QString &script) {
  bool done = false;
  QVariant answer;
  page()->runJavaScript(script, QWebEngineScript::ApplicationWorld, [&](const QVariant &result) {
    answer = result;
    done = true;
  });
  WaitUntil([&done] { return done; });
  return answer;
}

}  // namespace velor::bench
