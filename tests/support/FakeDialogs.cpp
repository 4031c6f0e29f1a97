// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/FakeDialogs.h"

#include <QWidget>

#include <algorithm>
#include <gtest/gtest.h>
#include <utility>

namespace velor {

FakeDialogs::~FakeDialogs() {
  EXPECT_TRUE(expected_.empty()) << expected_.size() << " foreseen dialogs never came";
}

void FakeDialogs::ExpectMessage(const QString &text, MessageAnswer answer) {
  expected_.emplace_back(ExpectedMessage{text, answer});
}

void FakeDialogs::ExpectChoice(const QString &text, const QString &caption) {
  expected_.emplace_back(ExpectedChoice{text, caption});
}

void FakeDialogs::ExpectQuestion(const QString &prompt, const QString &answer) {
  expected_.emplace_back(ExpectedQuestion{prompt, answer});
}

void FakeDialogs::ExpectModal(std::function<void(QWidget &)> person) {
  expected_.emplace_back(ExpectedModal{std::move(person)});
}

template <typename Expected>
bool FakeDialogs::Take(Expected &expected, const QString &call) {
  Note(log_, call);
  if (expected_.empty() || !std::holds_alternative<Expected>(expected_.front())) {
    ADD_FAILURE() << "not foreseen: " << call.toStdString();
    return false;
  }
  expected = std::get<Expected>(std::move(expected_.front()));
  expected_.pop_front();
  return true;
}

MessageAnswer FakeDialogs::ShowMessage(const Message &message) {
  messages.push_back(message);
  ExpectedMessage expected{{}, MessageAnswer::Ok};
  if (!Take(expected, QStringLiteral("ShowMessage(%1)").arg(message.text))) {
    return message.buttons == MessageButtons::Ok      ? MessageAnswer::Ok
           : message.buttons == MessageButtons::YesNo ? MessageAnswer::No
                                                      : MessageAnswer::Cancel;
  }
  EXPECT_EQ(message.text.toStdString(), expected.text.toStdString());
  return expected.answer;
}

int FakeDialogs::Choose(const Message &message, const QStringList &captions) {
  messages.push_back(message);
  ExpectedChoice expected;
  const auto last = static_cast<int>(captions.size()) - 1;
  if (!Take(expected, QStringLiteral("Choose(%1)").arg(message.text))) return last;
  EXPECT_EQ(message.text.toStdString(), expected.text.toStdString());
  EXPECT_TRUE(captions.contains(expected.caption)) << expected.caption.toStdString();
  return std::max(static_cast<int>(captions.indexOf(expected.caption)), 0);
}

QString FakeDialogs::AskText(const QString &prompt, const QString &title,
                             const QString &defaultAnswer) {
  ExpectedQuestion expected;
  Take(expected, QStringLiteral("AskText(%1, %2, %3)").arg(prompt, title, defaultAnswer));
  EXPECT_EQ(prompt.toStdString(), expected.prompt.toStdString());
  return expected.answer;
}

void FakeDialogs::RunModal(QWidget &dialog) {
  ExpectedModal expected;
  if (Take(expected, QStringLiteral("RunModal(%1)").arg(dialog.objectName()))) {
    expected.person(dialog);
  }
}

}  // namespace velor
