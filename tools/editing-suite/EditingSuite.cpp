// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/editing-suite/EditingSuite.h"

#include "engine/BridgeScript.h"
#include "files/Processes.h"
#include "platform/RuntimeError.h"

#include <QEventLoop>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPointer>
#include <QTimer>
#include <QWebEnginePage>
#include <QWebEngineSettings>

#include <memory>

// A static library's resources must be asked for by name, from outside of every namespace.
static void InitialiseSuiteResources() {
  Q_INIT_RESOURCE(editing_suite);
}

namespace velor {

namespace {

const QString Source = QStringLiteral("EditingSuite");

/// Rows that are asked for at once. Where they come to no end, each is tried by itself.
constexpr int Batch = 50;

QString TextOf(const QString &path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly))
    throw RuntimeError::Of(ErrorNumber::FileNotFound, Source, path);
  return QString::fromUtf8(file.readAll());
}

QString SuiteScripts() {
  QString scripts;
  for (const char *name : {"rows.js", "commands.js", "runs.js"})
    scripts += TextOf(QStringLiteral(":/editing-suite/") + QLatin1String(name));
  return scripts;
}

/// What the names in the suite's markup stand for.
const QString SuiteRules = QStringLiteral(
    "<style>.bold { font-weight: bold } .notbold { font-weight: normal } "
    ".italic { font-style: italic } .underline { text-decoration: underline } "
    "#purple { color: purple }</style>");

const QString Html5Doctype = QStringLiteral("<!DOCTYPE html>");
const QString Html4Doctype = QStringLiteral(
    "<!DOCTYPE html PUBLIC \"-//W3C//DTD HTML 4.01 Transitional//EN\" "
    "\"http://www.w3.org/TR/html4/loose.dtd\">");

}  // namespace

SuiteResult &SuiteResult::operator+=(const SuiteResult &other) {
  held += other.held;
  total += other.total;
  heldByEngine += other.heldByEngine;
  statesHeld += other.statesHeld;
  states += other.states;
  foreign += other.foreign;
  lost += other.lost;
  differences.insert(differences.end(), other.differences.begin(), other.differences.end());
  return *this;
}

EditingSuite::EditingSuite(std::chrono::milliseconds limit) : limit_(limit) {
  InitialiseSuiteResources();
  view_.page()->settings()->setAttribute(QWebEngineSettings::JavascriptEnabled, false);
  view_.resize(800, 600);
  view_.show();
}

SuiteResult EditingSuite::Run(const QString &path) {
  path_ = path;
  data_ = TextOf(path);
  SuiteResult sum;
  for (const Dialect dialect : {Dialect::Old, Dialect::Html5}) sum += RunIn(dialect);
  return sum;
}

SuiteResult EditingSuite::RunIn(Dialect dialect) {
  SuiteResult sum;
  const QJsonValue counts = Open(dialect);
  sum.total = counts[u"total"].toInt();
  sum.foreign = counts[u"foreign"].toInt();
  if (sum.total == 0) return sum;
  const std::vector<Outcome> ours = RunRows(QStringLiteral("bridge"), sum.total, dialect);
  const std::vector<Outcome> plain = RunRows(QStringLiteral("engine"), sum.total, dialect);
  for (int index = 0; index < sum.total; ++index) {
    const Outcome &our = ours[static_cast<std::size_t>(index)];
    const Outcome &engine = plain[static_cast<std::size_t>(index)];
    sum.held += our.holds ? 1 : 0;
    sum.heldByEngine += engine.holds ? 1 : 0;
    sum.states += our.shown ? 1 : 0;
    sum.statesHeld += our.shown && our.shown->isEmpty() ? 1 : 0;
    sum.lost += our.found.isNull() ? 1 : 0;
    const QString shown = our.shown.value_or(QString());
    if (our.holds && shown.isEmpty()) continue;
    const QJsonValue row =
        Evaluate(QStringLiteral("velorSuite.row(%1)").arg(index)).value_or(QJsonValue());
    const auto told = [](const Outcome &outcome) {
      if (outcome.holds) return QStringLiteral("as expected");
      return outcome.found.isNull() ? QStringLiteral("(the page's process ended)") : outcome.found;
    };
    sum.differences.push_back({row[u"input"].toString(), row[u"todo"].toString(),
                               row[u"expected"].toString(), told(our), told(engine), shown});
  }
  return sum;
}

std::vector<EditingSuite::Outcome> EditingSuite::RunRows(const QString &way, int total,
                                                         Dialect dialect) {
  std::vector<Outcome> outcomes;
  int oneByOneUntil = 0;
  while (static_cast<int>(outcomes.size()) < total) {
    const int from = static_cast<int>(outcomes.size());
    const int count = from < oneByOneUntil ? 1 : qMin(Batch, total - from);
    const std::optional<QJsonValue> answer =
        Evaluate(QStringLiteral("velorSuite.run('%1', %2, %3)").arg(way).arg(from).arg(count));
    if (!answer) {
      oneByOneUntil = from + count;
      if (count == 1) outcomes.push_back({});
      Open(dialect);
      continue;
    }
    for (const QJsonValue each : answer->toArray()) {
      const QJsonValue states = each[u"states"];
      outcomes.push_back({each[u"holds"].toBool(), each[u"found"].toString(),
                          states.isString() ? std::optional(states.toString()) : std::nullopt});
    }
  }
  return outcomes;
}

QJsonValue EditingSuite::Open(Dialect dialect) {
  QEventLoop loop;
  const auto loaded =
      QObject::connect(view_.page(), &QWebEnginePage::loadFinished, &loop, &QEventLoop::quit);
  view_.setHtml((dialect == Dialect::Html5 ? Html5Doctype : Html4Doctype) +
                QStringLiteral("<html><head>") + SuiteRules +
                QStringLiteral("</head><body></body></html>"));
  loop.exec();
  QObject::disconnect(loaded);
  view_.page()->runJavaScript(BridgeScript() + SuiteScripts(), BridgeWorld);
  const std::optional<QJsonValue> counts =
      Evaluate(QStringLiteral("velorSuite.open(%1, %2)")
                   .arg(ScriptValue(data_), ScriptValue(dialect == Dialect::Html5)));
  const QString error = counts ? (*counts)[u"error"].toString() : QStringLiteral("no end");
  if (!error.isEmpty())
    throw RuntimeError::Of(ErrorNumber::TypeMismatch, Source, path_ + QStringLiteral(": ") + error);
  return *counts;
}

std::optional<QJsonValue> EditingSuite::Evaluate(const QString &expression) {
  QEventLoop loop;
  const auto ended = QObject::connect(view_.page(), &QWebEnginePage::renderProcessTerminated, &loop,
                                      [&] { loop.quit(); });
  QTimer::singleShot(limit_, &loop, [this] { EndProcess(); });
  // The engine may answer after this call has given up.
  const auto text = std::make_shared<QString>();
  const QPointer<QEventLoop> waiting = &loop;
  view_.page()->runJavaScript(QStringLiteral("JSON.stringify(%1)").arg(expression), BridgeWorld,
                              [text, waiting](const QVariant &answer) {
                                *text = answer.toString();
                                if (waiting) waiting->quit();
                              });
  loop.exec();
  QObject::disconnect(ended);
  if (text->isEmpty()) return std::nullopt;
  return QJsonDocument::fromJson('[' + text->toUtf8() + ']').array().at(0);
}

// An endless script ends in no other way. The view tells of it as of any other end.
void EditingSuite::EndProcess() const {
  velor::EndProcess(view_.page()->renderProcessPid());
}

}  // namespace velor
