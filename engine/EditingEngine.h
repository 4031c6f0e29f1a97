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

 Q_SIGNALS:
  /// As PageScheme::PartAsked, for a file that is named by a full address.
  void FileAsked(const QString &page, const QString &name, const QString &file);
};

/// What all editing components share. It must outlive them.
class EditingEngine {
 public:
  EditingEngine();
  /// The profile, which stores nothing; made at its first use, since that starts the browser
  /// engine.
  QWebEngineProfile &Profile();
  /// BridgeScript(), read once.
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
