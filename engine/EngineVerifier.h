// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "engine/GuardedWait.h"
#include "engine/Lifetime.h"
#include "page/saving/PageVerifier.h"

#include <QObject>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <utility>

class QWebEnginePage;

namespace velor {

class EditingEngine;

/// Parses texts in a spare page of the engine, which is never shown, runs no script and fetches
/// nothing. The page is made at the first question, and made anew when its process ends. It keeps
/// the texts of the last question, so that only the difference is sent; the last answer is kept.
class EngineVerifier : public QObject, public PageVerifier {
  Q_OBJECT

 public:
  explicit EngineVerifier(EditingEngine &engine);
  ~EngineVerifier() override;

  /// Waits for the engine. Nothing inside one of its callbacks, unless the answer is known.
  std::optional<QString> Serialisation(const QString &text) override;
  std::optional<QString> SerialisationLike(const QString &text, const QString &expected) override;
  /// Asks without waiting; `expected` is the likely answer. `then` runs when the answer is known,
  /// from inside the engine. A later call replaces one that has no answer yet.
  void Precompute(const QString &text, const QString &expected, std::function<void()> then);

  /// The process that parses; 0 for none.
  std::int64_t ProcessId() const;

  /// A verifier that the person may stop by Escape; it answers nothing from then on.
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

  /// A verifier that never waits: it answers what is known already.
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
  bool IsWanted(const QString &text) const { return wanted_ && wanted_->text == text; }
  /// Makes the page where there is none.
  void Start();
  void Ask();

  EditingEngine &engine_;
  std::unique_ptr<QWebEnginePage> page_;
  bool isReady_ = false;
  std::optional<Question> wanted_;  ///< asked, or to be asked when the page is ready
  Question given_;                  ///< what the page has
  bool isAsked_ = false;
  std::function<void()> then_;
  Parsed last_;
  Lifetime lifetime_;  ///< last: the engine answers what is still open while the page is deleted
};

}  // namespace velor
