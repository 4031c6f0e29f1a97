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
/// nothing. The page is made for the first question, and again when its process has ended. Only
/// what differs from the last question is sent to it. The last answer is kept and given again for
/// the same text.
class EngineVerifier : public QObject, public PageVerifier {
  Q_OBJECT

 public:
  explicit EngineVerifier(EditingEngine &engine);
  ~EngineVerifier() override;

  /// Waits for the engine, at most a minute. Inside one of its callbacks the answer is nothing
  /// unless it is the one kept.
  std::optional<QString> Serialisation(const QString &text) override;
  std::optional<QString> SerialisationLike(const QString &text, const QString &expected) override;
  /// Asks without waiting; `expected` is the likely answer. When the answer is there it is kept,
  /// and `then` runs inside a callback of the engine. A later call replaces one without an answer.
  void Precompute(const QString &text, const QString &expected, std::function<void()> then);

  /// Number of the process that parses; 0 for none.
  std::int64_t ProcessId() const;

  /// A verifier whose waits the person may stop by Escape (Patience); it answers nothing from then
  /// on.
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

  /// A verifier that never waits: it gives the answer that is kept, or none.
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

  /// Waits for an answer. With `patience` the person may stop the wait; that ends the page's
  /// process and sets `*isStopped`.
  std::optional<QString> Answer(const Question &question, const Patience *patience,
                                bool *isStopped);
  /// The kept answer, where it is for that text.
  std::optional<QString> Known(const QString &text) const;
  /// Whether the question under way is for that text.
  bool IsWanted(const QString &text) const { return wanted_ && wanted_->text == text; }
  /// Makes the page.
  void Start();
  /// Sends `wanted_` to the page.
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
