// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QRect>

#include <optional>

namespace velor {

/// The pattern of the About box: Steps steps, the first Squares of which each add a square to a
/// grid of Columns columns. The full grid stays for the rest, then it is empty and begins anew. A
/// step is due when more than StepSeconds have passed since the last one, or the clock went back;
/// the first is due at once.
class AboutAnimation {
 public:
  static constexpr int Squares = 20;
  static constexpr int Steps = 30;
  static constexpr int Columns = 4;
  static constexpr int Side = 12;  ///< of a square, in device-independent pixels
  static constexpr double StepSeconds = 0.05;

  /// Takes a step if one is due at `now` (seconds since midnight); returns whether it did.
  bool StepIfDue(double now);

  /// How many squares are shown, from index 0.
  int ShownSquares() const { return shown_; }
  /// The place of a square in the pattern, in device-independent pixels.
  static QRect SquareAt(int index) {
    return {Side * (index % Columns), Side * (index / Columns), Side, Side};
  }

 private:
  std::optional<double> lastStep_;
  int step_ = 0;
  int shown_ = 0;
};

}  // namespace velor
