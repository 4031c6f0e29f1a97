// SPDX-License-Identifier: GPL-3.0-or-later
#include "engine/EditorPage.h"

#include "files/Processes.h"

#include <QLoggingCategory>

namespace velor {

namespace {

Q_LOGGING_CATEGORY(bridgeLog, "velor.bridge", QtWarningMsg)

}  // namespace

EditorPage::EditorPage(QWebEngineProfile *profile, EngineGuard &guard, QObject *parent)
    : QWebEnginePage(profile, parent), guard_(guard) {}

void EditorPage::LoadOwn(const QUrl &address) {
  own_ = address;
  load(address);
}

bool EditorPage::acceptNavigationRequest(const QUrl &url, NavigationType, bool isMainFrame) {
  const EngineCallback callback(guard_);
  if (!isMainFrame || url != own_) return false;
  own_.clear();  // once: the page is not to be loaded again by anything else, either
  return true;
}

QWebEnginePage *EditorPage::createWindow(WebWindowType) {
  return nullptr;
}

void EditorPage::javaScriptAlert(const QUrl &, const QString &) {}

bool EditorPage::javaScriptConfirm(const QUrl &, const QString &) {
  return false;
}

bool EditorPage::javaScriptPrompt(const QUrl &, const QString &, const QString &, QString *) {
  return false;
}

void EditorPage::javaScriptConsoleMessage(JavaScriptConsoleMessageLevel level,
                                          const QString &message, int lineNumber,
                                          const QString &source) {
  const EngineCallback callback(guard_);
  // Only the bridge can raise errors here; what pages provoke are warnings at most.
  if (level == ErrorMessageLevel) qCWarning(bridgeLog).noquote() << source << lineNumber << message;
}

void EndRenderer(const QWebEnginePage &page) {
  EndProcess(page.renderProcessPid());
}

}  // namespace velor
