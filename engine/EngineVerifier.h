// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/GuardedWait.h"
#include "page/saving/PageVerifier.h"

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
/// made anew when its process ends. It keeps the texts that it was last given, so that only what
/// differs travels. The last answer is kept.
class EngineVerifier : public QObject, public PageVerifier {
  Q_OBJECT

 public:
  explicit EngineVerifier(EditingEngine &engine);
  ~EngineVerifier() override;

  /// Waits for the engine; nothing inside one of its callbacks, unless the answer is known.
  std::optional<QString> Serialisation(const QString &text) override;
  std::optional<QString> SerialisationLike(const QString &text, const QString &expected) override;
  /// Has the answer, likely `expected`, found out; `then` runs when it is known, from inside the
  /// engine. A later call replaces one that waits.
  void Foresee(const QString &text, const QString &expected, std::function<void()> then);

  /// The process that parses; 0 for none.
  std::int64_t ProcessId() const;

  /// The answers of an engine that the person may stop by Escape; there are none from then on.
  class Stoppable : public PageVerifier {
   public:
    Stoppable(EngineVerifier &verifier, Patience patience)
        : verifier_(verifier), patience_(std::move(patience)) {}
    std::optional<QString> Serialisation(const QString &text) override;
    std::optional<QString> SerialisationLike(const QString &text, const QString &expected) override;

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
  struct Parsed {
    QString text;
    QString serialisation;
  };
  struct Question {
    QString text;
    QString expected;
  };

  /// Waits, where `patience` is given until the person stops the page, which `isStopped` then
  /// tells.
  std::optional<QString> Answer(const Question &question, const Patience *patience,
                                bool *isStopped);
  std::optional<QString> Known(const QString &text) const;
  /// Makes the page where there is none.
  void Start();
  void Ask();

  EditingEngine &engine_;
  std::unique_ptr<QWebEnginePage> page_;
  bool isReady_ = false;
  Question wanted_;  ///< asked, or to be asked when the page is ready; no text for none
  Question given_;   ///< what the page has
  bool isAsked_ = false;
  std::function<void()> then_;
  Parsed last_;
};

}  // namespace velor
