// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>
#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>

#include <functional>
#include <gtest/gtest.h>
#include <utility>

namespace velor {

/// The person in front of the next modal window of a type: `act` runs once it is on the screen,
/// from within its event loop. A window that has not come after ten seconds, or by the time the
/// object goes out of scope, fails the test; windows that are in the way then are closed.
template <typename Window>
class OnDialog {
 public:
  explicit OnDialog(std::function<void(Window &)> act) : act_(std::move(act)) {
    waited_.start();
    timer_.setInterval(5);
    QObject::connect(&timer_, &QTimer::timeout, [this] { Look(); });
    timer_.start();
  }
  ~OnDialog() { EXPECT_TRUE(came_) << "the dialog never came"; }
  OnDialog(const OnDialog &) = delete;
  OnDialog &operator=(const OnDialog &) = delete;

 private:
  void Look() {
    auto *window = qobject_cast<Window *>(QApplication::activeModalWidget());
    if (window != nullptr && window->isVisible()) {
      timer_.stop();
      came_ = true;
      act_(*window);
    } else if (waited_.hasExpired(10'000)) {
      timer_.stop();
      ADD_FAILURE() << "waited in vain for a dialog";
      while (QWidget *inTheWay = QApplication::activeModalWidget()) inTheWay->hide();
    }
  }

  std::function<void(Window &)> act_;
  QElapsedTimer waited_;
  QTimer timer_;
  bool came_ = false;
};

}  // namespace velor
