// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/html/PageVerifier.h"
#include "platform/qt/GuardedWait.h"

#include <QObject>

#include <cstdint>
#include <functional>
#include <memory>
#include <utility>

class QWebEnginePage;

namespace velor {

class EditingEngine;

/// Parses texts in a spare page of the engine, which nobody sees and which shows nothing of them:
/// no script of theirs runs and nothing they name is fetched. The page is made at the first use and
/// made anew when its process ends. The last answers are kept.
class EngineVerifier : public QObject, public PageVerifier {
  Q_OBJECT

 public:
  explicit EngineVerifier(EditingEngine &engine);
  ~EngineVerifier() override;

  /// Waits for the engine; nothing inside one of its callbacks, unless the answer is known.
  std::optional<QString> Serialisation(const QString &text) override {
    return Serialisation(text, nullptr);
  }
  /// Has the answer found out; `then` runs when it is known, from inside the engine. A later call
  /// replaces one that waits.
  void Foresee(const QString &text, std::function<void()> then);

  /// The process that parses; 0 for none.
  std::int64_t ProcessId() const;

  /// The answers of an engine that the person may stop by Escape; there are none from then on.
  class Stoppable : public PageVerifier {
   public:
    Stoppable(EngineVerifier &verifier, Patience patience)
        : verifier_(verifier), patience_(std::move(patience)) {}
    std::optional<QString> Serialisation(const QString &text) override;

   private:
    EngineVerifier &verifier_;
    Patience patience_;
    bool isStopped_ = false;
  };

  /// The answers that are known already, without a wait.
  class KnownAnswers : public PageVerifier {
   public:
    explicit KnownAnswers(const EngineVerifier &verifier) : verifier_(verifier) {}
    std::optional<QString> Serialisation(const QString &text) override {
      return verifier_.Known(text);
    }

   private:
    const EngineVerifier &verifier_;
  };

 private:
  struct Answer {
    QString text;
    QString serialisation;
  };

  std::optional<QString> Serialisation(const QString &text, const Patience *patience,
                                       bool *isStopped = nullptr);
  std::optional<QString> Known(const QString &text) const;
  /// Makes the page where there is none.
  void Start();
  void Ask();

  EditingEngine &engine_;
  std::unique_ptr<QWebEnginePage> page_;
  bool isReady_ = false;
  QString wanted_;  ///< asked for, or to be asked for when the page is ready
  bool isAsked_ = false;
  std::function<void()> then_;
  Answer last_;
};

}  // namespace velor
