// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Dialogs.h"
#include "tests/support/CallLog.h"

#include <deque>
#include <functional>
#include <variant>
#include <vector>

class QWidget;

namespace velor {

/// Answers messages, questions and windows as the test expects them, in that order. One that was
/// not expected fails the test, and so does an expected one that never came.
class FakeDialogs final : public Dialogs {
 public:
  explicit FakeDialogs(CallLog *log = nullptr) : log_(log) {}
  ~FakeDialogs() override;
  FakeDialogs(const FakeDialogs &) = delete;
  FakeDialogs &operator=(const FakeDialogs &) = delete;

  void ExpectMessage(const QString &text, MessageAnswer answer = MessageAnswer::Ok);
  void ExpectChoice(const QString &text, const QString &caption);
  void ExpectQuestion(const QString &prompt, const QString &answer);
  /// `person` acts on the window in place of its event loop.
  void ExpectModal(std::function<void(QWidget &)> person);

  /// Every message shown, whole, for what ExpectMessage does not compare.
  std::vector<Message> messages;

  MessageAnswer ShowMessage(const Message &message) override;
  int Choose(const Message &message, const QStringList &captions) override;
  QString AskText(const QString &prompt, const QString &title,
                  const QString &defaultAnswer) override;
  void RunModal(QWidget &dialog) override;

 private:
  struct ExpectedMessage {
    QString text;
    MessageAnswer answer;
  };
  struct ExpectedChoice {
    QString text;
    QString caption;
  };
  struct ExpectedQuestion {
    QString prompt;
    QString answer;
  };
  struct ExpectedModal {
    std::function<void(QWidget &)> person;
  };

  template <typename Expected>
  bool Take(Expected &expected, const QString &call);

  std::deque<std::variant<ExpectedMessage, ExpectedChoice, ExpectedQuestion, ExpectedModal>>
      expected_;
  CallLog *log_;
};

}  // namespace velor
