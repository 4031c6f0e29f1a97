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

/// Acts on the next modal window of a type: `act` runs when it is shown, from inside its event
/// loop. The test fails where none is shown within ten seconds or before this object is destroyed;
/// other modal windows are closed then.
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
