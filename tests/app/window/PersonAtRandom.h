// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "platform/Dialogs.h"
#include "tests/support/Waiting.h"

#include <QApplication>
#include <QDialog>
#include <QPushButton>
#include <QScreen>
#include <QTest>

#include <algorithm>
#include <gtest/gtest.h>
#include <iterator>
#include <random>
#include <string>

namespace velor {

/// A number that an environment variable gives, or else another.
inline int Number(const char *variable, int otherwise) {
  bool isNumber = false;
  const int number = qEnvironmentVariableIntValue(variable, &isNumber);
  return isNumber ? number : otherwise;
}

/// All that is left to chance; one seed makes one walk.
class Chance {
 public:
  int Below(int count) { return static_cast<int>(random_() % static_cast<unsigned>(count)); }
  bool Once(int in) { return Below(in) == 0; }

 private:
  std::mt19937 random_{static_cast<unsigned>(Number("VELOR_WALK_SEED", 1))};
};

/// Answers what the program asks as somebody might who keeps no text; a question that nobody should
/// be asked here fails the walk.
class PersonAtRandom final : public Dialogs {
 public:
  MessageAnswer ShowMessage(const Message &message) override {
    constexpr const char *Known[] = {"You have made changes", "Do you want to apply",
                                     "Please close the Code Editor", "Too many Pages"};
    EXPECT_TRUE(std::any_of(std::begin(Known), std::end(Known), [&](const char *beginning) {
      return message.text.startsWith(QLatin1String(beginning));
    })) << message.text.toStdString();
    if (message.buttons == MessageButtons::Ok) return MessageAnswer::Ok;
    const bool canCancel = message.buttons == MessageButtons::YesNoCancel;
    return canCancel && chance.Once(2) ? MessageAnswer::Cancel : MessageAnswer::No;
  }
  int Choose(const Message &message, const QStringList &captions) override {
    ADD_FAILURE() << message.text.toStdString();
    return static_cast<int>(captions.size()) - 1;
  }
  QString AskText(const QString &prompt, const QString &, const QString &) override {
    ADD_FAILURE() << prompt.toStdString();
    return {};
  }
  void RunModal(QWidget &window) override {
    window.show();
    window.activateWindow();
    const std::string name = window.objectName().toStdString();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window)) << name;
    const QSize least = window.minimumSizeHint();
    const QSize screen = window.screen()->availableSize();
    EXPECT_TRUE(least.width() <= screen.width() && least.height() <= screen.height())
        << name << " is larger than the screen";
    const auto hasKeyboard = [&window] { return window.isAncestorOf(QApplication::focusWidget()); };
    EXPECT_TRUE(WaitFor(hasKeyboard)) << "the keyboard is not in " << name;
    auto *dialog = qobject_cast<QDialog *>(&window);
    if (dialog == nullptr) {
      window.close();
      return;
    }
    // The table dialog's first values make a table; the others' make nothing.
    auto *insert = name == "frmDialog_Table"
                       ? dialog->findChild<QPushButton *>(QStringLiteral("Command1"))
                       : nullptr;
    if (insert != nullptr && chance.Once(2))
      insert->click();
    else
      dialog->reject();
  }

  Chance chance;
};

}  // namespace velor
