// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRect>

#include <optional>

namespace velor {

/// The pattern of the About box: squares fill a grid row by row, stand for a while, go, and come
/// again. A step is due whenever more than StepSeconds have passed since the last; the first is due
/// at once. Times are seconds since midnight; a clock that went back counts as passed.
class AboutAnimation {
 public:
  static constexpr int Squares = 20;
  static constexpr int Steps = 30;
  static constexpr int Columns = 4;
  static constexpr int Side = 12;  ///< of a square, in device-independent pixels
  static constexpr double StepSeconds = 0.05;

  /// One pass of the loop; whether a step was due.
  bool Pass(double now);

  int ShownSquares() const { return shown_; }
  static QRect SquareAt(int index) {
    return {Side * (index % Columns), Side * (index / Columns), Side, Side};
  }

 private:
  std::optional<double> lastStep_;
  int step_ = 0;
  int shown_ = 0;
};

}  // namespace velor
