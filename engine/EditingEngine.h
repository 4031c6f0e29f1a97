// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/EngineVerifier.h"
#include "engine/GuardedWait.h"
#include "engine/PageScheme.h"

#include <QWebEngineProfile>
#include <QWebEngineUrlRequestInterceptor>

#include <memory>

namespace velor {

/// Lets a page have its local files and nothing else: whatever would leave the machine is blocked.
class RequestBlocker : public QWebEngineUrlRequestInterceptor {
  Q_OBJECT

 public:
  void interceptRequest(QWebEngineUrlRequestInfo &request) override;
};

/// What all editing components share: one profile without memory, the scheme, the blocker and the
/// guard. Outlives every component that uses it.
class EditingEngine {
 public:
  /// Made at its first use, since that starts the browser engine.
  QWebEngineProfile &Profile();
  /// The bridge's script, read once.
  const QString &Bridge();
  PageScheme &Scheme() { return scheme_; }
  EngineGuard &Guard() { return guard_; }
  EngineVerifier &Verifier() { return verifier_; }

 private:
  EngineGuard guard_;
  PageScheme scheme_;
  RequestBlocker blocker_;
  std::unique_ptr<QWebEngineProfile> profile_;
  QString bridge_;
  EngineVerifier verifier_{*this};  ///< last: its page goes before the profile
};

}  // namespace velor
