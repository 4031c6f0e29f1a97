// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/GuardedWait.h"

#include <QUrl>
#include <QWebEnginePage>

namespace velor {

/// A page of the engine that accepts one navigation only: the load that LoadOwn began. It opens no
/// windows and no dialogs. Errors of its scripts, which are the bridge's, go to the log.
class EditorPage : public QWebEnginePage {
  Q_OBJECT

 public:
  EditorPage(QWebEngineProfile *profile, EngineGuard &guard, QObject *parent);

  /// Loads an address of the page scheme; every other navigation is refused.
  void LoadOwn(const QUrl &address);

 protected:
  bool acceptNavigationRequest(const QUrl &url, NavigationType type, bool isMainFrame) override;
  QWebEnginePage *createWindow(WebWindowType type) override;
  void javaScriptAlert(const QUrl &origin, const QString &message) override;
  bool javaScriptConfirm(const QUrl &origin, const QString &message) override;
  bool javaScriptPrompt(const QUrl &origin, const QString &message, const QString &suggestion,
                        QString *result) override;
  void javaScriptConsoleMessage(JavaScriptConsoleMessageLevel level, const QString &message,
                                int lineNumber, const QString &source) override;

 private:
  EngineGuard &guard_;
  QUrl own_;
};

/// Kills the process of a page, which may be busy for ever. The page emits renderProcessTerminated
/// when it has ended.
void EndRenderer(const QWebEnginePage &page);

}  // namespace velor
