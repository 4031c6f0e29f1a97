// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/preview/PhoneEmulation.h"

#include <QWebEnginePage>
#include <QWebEngineScript>
#include <QWebEngineScriptCollection>
#include <QtWebEngineCoreVersion>

namespace velor {

namespace {

/// The name that a phone's browser of the engine's own version gives.
const QString PhoneAgent = QStringLiteral(
    "Mozilla/5.0 (Linux; Android 10; K) AppleWebKit/537.36 (KHTML, like Gecko) "
    "Chrome/%1.0.0.0 Mobile Safari/537.36");

/// Sends the commands of the developer tools' protocol. A width of 0 is that of the view. The tools
/// would stop at a `debugger` statement of the page, and tell the size over it.
const QString Commands = QStringLiteral(R"((() => {
  // Far from the numbers of the tools' own commands.
  let id = 1e6;
  const send = (method, params) =>
    InspectorFrontendHost.sendMessageToBackend(JSON.stringify({ id: id++, method, params }));
  send('Debugger.setSkipAllPauses', { skip: true });
  send('Overlay.setShowViewportSizeOnResize', { show: false });
  send('Emulation.setDeviceMetricsOverride',
    { width: 0, height: 0, deviceScaleFactor: 3, mobile: true });
  send('Emulation.setTouchEmulationEnabled', { enabled: true, maxTouchPoints: 5 });
  send('Emulation.setEmitTouchEventsForMouse', { enabled: true, configuration: 'mobile' });
  send('Emulation.setUserAgentOverride', { userAgent: %1, platform: 'Linux armv81',
    userAgentMetadata: { platform: 'Android', platformVersion: '10', architecture: '', model: 'K',
      mobile: true } });
  return true;
})())");

/// The engine forgets this number when a page has another process than the one before.
const QString TouchPoints = QStringLiteral(
    "Object.defineProperty(Navigator.prototype, 'maxTouchPoints',"
    " { get: () => 5, configurable: true, enumerable: true });");

const QString ScriptName = QStringLiteral("touchPoints");

QWebEngineScript TouchScript() {
  QWebEngineScript script;
  script.setName(ScriptName);
  script.setInjectionPoint(QWebEngineScript::DocumentCreation);
  script.setWorldId(QWebEngineScript::MainWorld);
  script.setRunsOnSubFrames(true);
  script.setSourceCode(TouchPoints);
  return script;
}

}  // namespace

PhoneEmulation::PhoneEmulation(QWebEnginePage &page)
    : page_(&page), tools_(std::make_unique<QWebEnginePage>(&profile_)) {
  page.scripts().insert(TouchScript());
  connect(tools_.get(), &QWebEnginePage::loadFinished, this, [this](bool isLoaded) {
    if (isLoaded) Begin();
  });
  tools_->setInspectedPage(&page);
}

PhoneEmulation::~PhoneEmulation() {
  if (page_.isNull()) return;
  for (const QWebEngineScript &script : page_->scripts().find(ScriptName))
    page_->scripts().remove(script);
}

void PhoneEmulation::Begin() {
  const QString version =
      QString::fromLatin1(qWebEngineChromiumVersion()).section(QLatin1Char('.'), 0, 0);
  const QString agent = QStringLiteral("'%1'").arg(PhoneAgent.arg(version));
  tools_->runJavaScript(Commands.arg(agent), QWebEngineScript::MainWorld,
                        [alive = QPointer(this)](const QVariant &sent) {
                          if (!alive.isNull() && sent.toBool()) Q_EMIT alive->Ready();
                        });
}

}  // namespace velor
