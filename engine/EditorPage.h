// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/GuardedWait.h"

#include <QUrl>
#include <QWebEnginePage>

namespace velor {

/// A page that goes nowhere: the only navigation it accepts is the load that its owner announced.
/// No windows, no dialogs, no console.
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

/// Ends the process of a page, which may be busy for ever; the page tells when it has ended.
void EndRenderer(const QWebEnginePage &page);

}  // namespace velor
