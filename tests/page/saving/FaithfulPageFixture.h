// SPDX-License-Identifier: GPL-3.0-or-later
// Saves a page in memory. A scripted verifier takes the engine's part: it says yes to everything,
// or to what a test wants.
#pragma once

#include "page/saving/FaithfulPage.h"
#include "page/saving/PageVerifier.h"
#include "tests/support/Checks.h"

#include <QStringList>

#include <functional>
#include <optional>
#include <utility>

namespace velor {

/// Answers with the wanted document for the texts that `accepts`, with another for the rest.
class ScriptedVerifier : public PageVerifier {
 public:
  explicit ScriptedVerifier(QString wanted, std::function<bool(const QString &)> accepts = {})
      : wanted_(std::move(wanted)), accepts_(std::move(accepts)) {}
  std::optional<QString> Serialisation(const QString &text) override {
    if (text == wanted_) return wanted_;
    tried << text;
    if (!accepts_ || accepts_(text)) return wanted_;
    return QStringLiteral("<html>another");
  }

  QStringList tried;

 private:
  QString wanted_;
  std::function<bool(const QString &)> accepts_;
};

/// An engine that does not answer.
class SilentVerifier : public PageVerifier {
 public:
  std::optional<QString> Serialisation(const QString &) override { return std::nullopt; }
};

/// A page's bytes as they are read from its file.
inline PageOriginal Original(const QByteArray &bytes) {
  return {bytes, DecodePage(bytes), {}};
}

/// What is written for the document `now` of a file that was loaded as `before`.
inline SavedPage Save(const QByteArray &bytes, const QString &before, const QString &now,
                      PageVerifier &verifier) {
  FaithfulPage page(Original(bytes));
  page.SetBaseline(before);
  return page.Compose(now, verifier);
}

}  // namespace velor
