// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/editing-suite/EditingSuite.h"

#include "platform/RuntimeError.h"
#include "platform/qt/editing/BridgeScript.h"

#include <QEventLoop>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QWebEnginePage>
#include <QWebEngineSettings>

// A static library's resources must be asked for by name, from outside of every namespace.
static void InitialiseSuiteResources() {
  Q_INIT_RESOURCE(editing_suite);
}

namespace velor {

namespace {

const QString source = QStringLiteral("EditingSuite");

QString TextOf(const QString &path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly))
    throw RuntimeError::Of(ErrorNumber::FileNotFound, source, path);
  return QString::fromUtf8(file.readAll());
}

/// What the names in the suite's markup stand for.
const QString suiteRules = QStringLiteral(
    "<style>.bold { font-weight: bold } .notbold { font-weight: normal } "
    ".italic { font-style: italic } .underline { text-decoration: underline } "
    "#purple { color: purple }</style>");

void Add(SuiteResult &sum, const QJsonObject &part) {
  sum.held += part[u"ours"].toInt();
  sum.total += part[u"total"].toInt();
  sum.heldByEngine += part[u"plain"].toInt();
  sum.foreign += part[u"foreign"].toInt();
  for (const QJsonValue &each : part[u"differences"].toArray()) {
    sum.differences.push_back({each[u"input"].toString(), each[u"todo"].toString(),
                               each[u"expected"].toString(), each[u"ours"].toString(),
                               each[u"plain"].toString()});
  }
}

}  // namespace

EditingSuite::EditingSuite() {
  InitialiseSuiteResources();
  view_.page()->settings()->setAttribute(QWebEngineSettings::JavascriptEnabled, false);
  view_.resize(800, 600);
  view_.show();
}

SuiteResult EditingSuite::Run(const QString &path) {
  const QString data = TextOf(path);
  SuiteResult sum;
  for (const bool styled : {false, true}) {
    Load(styled ? QStringLiteral("<!DOCTYPE html>")
                : QStringLiteral("<!DOCTYPE html PUBLIC \"-//W3C//DTD HTML 4.01 Transitional//EN\" "
                                 "\"http://www.w3.org/TR/html4/loose.dtd\">"));
    const QString script =
        QStringLiteral("(() => {\n") + data + QStringLiteral("\nreturn runSuite(browserTests, ") +
        (styled ? QStringLiteral("true") : QStringLiteral("false")) + QStringLiteral("); })()");
    const QString answer = Evaluate(script).toString();
    if (answer.isEmpty()) throw RuntimeError::Of(ErrorNumber::TypeMismatch, source, path);
    Add(sum, QJsonDocument::fromJson(answer.toUtf8()).object());
  }
  return sum;
}

void EditingSuite::Load(const QString &doctype) {
  QEventLoop loop;
  const auto loaded =
      QObject::connect(view_.page(), &QWebEnginePage::loadFinished, &loop, &QEventLoop::quit);
  view_.setHtml(doctype + QStringLiteral("<html><head>") + suiteRules +
                QStringLiteral("</head><body></body></html>"));
  loop.exec();
  QObject::disconnect(loaded);
  Evaluate(BridgeScript() + TextOf(QStringLiteral(":/editing-suite/suite.js")));
}

QVariant EditingSuite::Evaluate(const QString &script) {
  QEventLoop loop;
  QVariant value;
  view_.page()->runJavaScript(script, bridgeWorld, [&](const QVariant &answer) {
    value = answer;
    loop.quit();
  });
  loop.exec();
  return value;
}

}  // namespace velor
